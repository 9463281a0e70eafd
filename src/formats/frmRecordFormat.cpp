#include "formats/frmRecordFormat.h"

#include "diagnostics/EventLog.h"
#include "diagnostics/Trap.h"
#include "formats/CodecCatalogue.h"
#include "formats/FormatChooser.h"
#include "formats/frmMp3RecordingFormatInfo.h"
#include "gui/FormPlacement.h"

#include <QLocale>
#include <QRadioButton>
#include <QScopeGuard>
#include <QStyle>

namespace {

struct Preset {
    quint16 channels;
    quint32 samplesPerSec;
    quint16 bits;
};
constexpr Preset PhoneQuality{1, 11025, 8};
constexpr Preset RadioQuality{1, 22050, 8};
constexpr Preset CdQuality{2, 44100, 16};

// The offset of the form from the main window's corner, in twips.
constexpr int FormOffsetTwips = 200;

// Rates as the user reads them, with the thousands separator even where the locale
// leaves it out by default.
QString RateText(quint32 rate)
{
    QLocale locale;
    locale.setNumberOptions(locale.numberOptions() & ~QLocale::OmitGroupSeparator);
    return locale.toString(rate);
}

void SetCheckedQuietly(QRadioButton* button, bool checked)
{
    // A radio button of an exclusive group can only be cleared with the group off.
    const bool exclusive = button->autoExclusive();
    button->setAutoExclusive(false);
    button->setChecked(checked);
    button->setAutoExclusive(exclusive);
}

} // namespace

frmRecordFormat::frmRecordFormat(EventLog& log, clsRecordingFormat& format, QWidget* parent)
    : QDialog(parent)
    , m_log(log)
    , m_format(format)
{
    setupUi(this);
    // Beside the MP3 frame, not in it: the steps it shows are wanted while MP3 is not yet
    // chosen and the frame is unavailable.
    btnInfo->setIcon(style()->standardIcon(QStyle::SP_MessageBoxInformation));

    // Form load.
    FormPlacement::PlaceAtMainForm(this, parent, FormOffsetTwips);
    m_backup.CopyFrom(m_format);
    chkMP3FileExtension->setChecked(m_format.SaveMP3FileExtension);
    chkConvert->setChecked(m_format.ConvertToMP3);
    UpdateMp3Frame();
    m_sampleRates = CodecCatalogue::SampleRates();
    for (quint32 sampleRate : m_sampleRates)
        ComboSampleRate->addItem(RateText(sampleRate));
    ComboSampleRate->setCurrentIndex(-1);
    CheckRecordingFormat();

    connect(optPhoneQuality, &QRadioButton::clicked, this, [this] {
        SelectPreset(PhoneQuality.channels, PhoneQuality.samplesPerSec, PhoneQuality.bits);
    });
    connect(optRadioQuality, &QRadioButton::clicked, this, [this] {
        SelectPreset(RadioQuality.channels, RadioQuality.samplesPerSec, RadioQuality.bits);
    });
    connect(optCDQuality, &QRadioButton::clicked, this,
            [this] { SelectPreset(CdQuality.channels, CdQuality.samplesPerSec, CdQuality.bits); });
    for (QRadioButton* option : {OptionMono, OptionStereo, Option8bit, Option16bit})
        connect(option, &QRadioButton::clicked, this, &frmRecordFormat::SetWfxFromPcmForm);
    connect(ComboSampleRate, &QComboBox::currentIndexChanged, this,
            &frmRecordFormat::SetWfxFromPcmForm);
    connect(CheckUsePcm, &QCheckBox::clicked, this, &frmRecordFormat::CheckUsePcm_Click);
    connect(chkConvert, &QCheckBox::clicked, this, &frmRecordFormat::Mp3Flag_Click);
    connect(chkMP3FileExtension, &QCheckBox::clicked, this, &frmRecordFormat::Mp3Flag_Click);
    connect(btnInfo, &QPushButton::clicked, this, [this] {
        frmMp3RecordingFormatInfo info(this);
        info.exec();
    });
    connect(CommandAdvanced, &QPushButton::clicked, this, &frmRecordFormat::CommandAdvanced_Click);
    connect(CommandOk, &QPushButton::clicked, this, &frmRecordFormat::CommandOk_Click);
    connect(CommandCancel, &QPushButton::clicked, this, &frmRecordFormat::CommandCancel_Click);
}

void frmRecordFormat::CheckRecordingFormat()
{
    Trap(m_log, "CheckRecordingFormat", [&] { ShowFormat(); });
}

void frmRecordFormat::ShowFormat()
{
    // Setting a control fires its event, which would come back here.
    if (m_updating)
        return;
    m_updating = true;
    const auto updated = qScopeGuard([this] { m_updating = false; });
    InRoutine("CheckRecordingFormat", [&] {
        LabelFormat->setText(m_format.TextCompressionMethod);
        if (m_format.wFormatTag() != clsRecordingFormat::WAVE_FORMAT_PCM) {
            CheckUsePcm->setChecked(false);
            CheckUsePcm->setEnabled(true);
            SetPcmControlsEnabled(false);
            UpdateMp3Frame();
            return;
        }
        CheckUsePcm->setChecked(true);
        CheckUsePcm->setEnabled(false);
        SetPcmControlsEnabled(true);
        (m_format.nChannels() == 2 ? OptionStereo : OptionMono)->setChecked(true);
        (m_format.nBitsPerSample() == 16 ? Option16bit : Option8bit)->setChecked(true);
        ComboSampleRate->setCurrentIndex(int(m_sampleRates.indexOf(m_format.nSamplesPerSec())));

        const struct {
            QRadioButton* button;
            Preset preset;
        } presets[] = {{optPhoneQuality, PhoneQuality},
                       {optRadioQuality, RadioQuality},
                       {optCDQuality, CdQuality}};
        for (const auto& p : presets)
            SetCheckedQuietly(p.button, false);
        for (const auto& p : presets)
            if (p.preset.channels == m_format.nChannels() &&
                p.preset.bits == m_format.nBitsPerSample() &&
                p.preset.samplesPerSec == m_format.nSamplesPerSec())
                p.button->setChecked(true);
    });
}

void frmRecordFormat::UpdateMp3Frame()
{
    const bool mp3 = m_format.wFormatTag() == clsRecordingFormat::WAVE_FORMAT_MPEGLAYER3;
    frameMP3->setEnabled(mp3);
    chkConvert->setEnabled(mp3);
    chkMP3FileExtension->setEnabled(mp3);
}

void frmRecordFormat::SetPcmControlsEnabled(bool enabled)
{
    framePcmFormat->setEnabled(enabled);
}

void frmRecordFormat::SelectPreset(quint16 channels, quint32 samplesPerSec, quint16 bits)
{
    if (m_updating)
        return;
    m_format.SetToPcm(channels, samplesPerSec, bits);
    CheckRecordingFormat();
}

void frmRecordFormat::SetWfxFromPcmForm()
{
    if (m_updating)
        return;
    const quint16 channels = OptionStereo->isChecked() ? 2 : 1;
    const quint16 bits = Option16bit->isChecked() ? 16 : 8;
    const int index = ComboSampleRate->currentIndex();
    const quint32 rate = index >= 0 && index < m_sampleRates.size() ? m_sampleRates[index] : 11025;
    m_format.SetToPcm(channels, rate, bits);
    CheckRecordingFormat();
}

void frmRecordFormat::CheckUsePcm_Click()
{
    if (m_updating)
        return;
    if (CheckUsePcm->isChecked()) {
        SetPcmControlsEnabled(true);
        SetWfxFromPcmForm();
    } else {
        SetPcmControlsEnabled(false);
    }
    UpdateMp3Frame();
}

void frmRecordFormat::Mp3Flag_Click()
{
    if (m_updating)
        return;
    m_format.ConvertToMP3 = chkConvert->isChecked();
    m_format.SaveMP3FileExtension = chkMP3FileExtension->isChecked();
    m_format.CalculateTextCompressionMethodString();
    LabelFormat->setText(m_format.TextCompressionMethod);
}

void frmRecordFormat::CommandAdvanced_Click()
{
    Trap(m_log, "Recording Format Form CommandAdvanced_Click", [&] {
        // The chooser writes straight into the block; the fields are rebuilt from it.
        if (FormatChooser::Choose(this, m_format.mwfx(), m_format.MwfxSize()) != 0)
            return;
        m_format.CalcRemainingVarsFromMwfx();
        UpdateMp3Frame();
        ShowFormat();
    });
}

void frmRecordFormat::CommandOk_Click()
{
    m_format.SaveMP3FileExtension = chkMP3FileExtension->isChecked();
    m_format.ConvertToMP3 = chkConvert->isChecked();
    m_format.CalculateTextCompressionMethodString();
    m_format.FormatChanged = -1;
    QDialog::accept();
}

void frmRecordFormat::CommandCancel_Click()
{
    m_format.CopyFrom(m_backup);
    QDialog::reject();
}

// Escape and the window's close button count as Cancel.
void frmRecordFormat::reject()
{
    CommandCancel_Click();
}

bool ChangeFormat(EventLog& log, clsRecordingFormat& format, QWidget* owner)
{
    return InRoutine("ChangeFormat", [&] {
        format.FormatChanged = 0;
        frmRecordFormat form(log, format, owner);
        form.exec();
        // OK sets True, which is -1: any non-zero value is the confirmation.
        return format.FormatChanged != 0;
    });
}
