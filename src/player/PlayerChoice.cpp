#include "player/PlayerChoice.h"

#include "common/FileHelpers.h"
#include "common/MessageBox.h"
#include "diagnostics/Trap.h"
#include "player/MediaPlayerAvailable.h"
#include "player/PlayerPanels.h"
#include "store/Options.h"
#include "store/RegKeys.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

const QString kSettings = QStringLiteral("Settings");

} // namespace

PlayerChoice::PlayerChoice(EventLog& log, RegKeys& registry, Options& options,
                           MessageBoxPresenter& messageBox, PlayerPanels& panels,
                           std::function<int(const QString&)> opener, std::function<bool()> probe)
    : m_log(log)
    , m_registry(registry)
    , m_options(options)
    , m_messageBox(messageBox)
    , m_panels(panels)
    , m_probe(probe ? std::move(probe) : std::function<bool()>(&::MediaPlayerAvailable))
    , m_opener(std::move(opener))
{
}

void PlayerChoice::CheckMediaPlayerControl()
{
    m_mediaPlayerAvailable = false;
    m_mediaPlayerAvailable = m_probe();
}

void PlayerChoice::GetPlayerSetting()
{
    InRoutine("GetPlayerSetting", [&] {
        const auto repaired = [&](const QString& name, auto repair) {
            const QString read = m_registry.GetSetting(kSettings, name, QString()).trimmed();
            const QString player = repair(read == FormerDefaultPlayer ? DefaultPlayer : read);
            if (player != read)
                m_registry.SaveSetting(kSettings, name, player);
            return player;
        };
        const QString available = m_mediaPlayerAvailable ? EnhancedPlayer : ClassicPlayer;
        m_options.WavPlayer = repaired(QStringLiteral("WavPlayer"), [&](QString p) {
            if (p == EnhancedPlayer && !m_mediaPlayerAvailable)
                p = ClassicPlayer;
            if (p != EnhancedPlayer && p != ClassicPlayer && p != DefaultPlayer)
                p = available;
            return p;
        });
        // The classic panel can't play MP3: it is refused here.
        const QString mp3Fallback = m_mediaPlayerAvailable ? EnhancedPlayer : DefaultPlayer;
        m_options.Mp3Player = repaired(QStringLiteral("Mp3Player"), [&](QString q) {
            if (q == EnhancedPlayer && !m_mediaPlayerAvailable)
                q = DefaultPlayer;
            if (q != EnhancedPlayer && q != DefaultPlayer)
                q = mp3Fallback;
            return q;
        });
    });
}

bool PlayerChoice::HasMP3FileExtension(const QString& file)
{
    return QFileInfo(file).suffix().compare(QStringLiteral("mp3"), Qt::CaseInsensitive) == 0;
}

void PlayerChoice::PlayExistingFile(const QString& file, const QString& title, double startTime)
{
    const bool mp3 = HasMP3FileExtension(file);
    const QString& setting = mp3 ? m_options.Mp3Player : m_options.WavPlayer;
    if (setting == EnhancedPlayer) {
        m_panels.OpenEnhanced(file, title, startTime);
        return;
    }
    if (!mp3 && setting == ClassicPlayer) {
        m_panels.OpenClassic(file, title, startTime);
        return;
    }
    // The default program plays on its own: nothing here knows when it stops, so the
    // application is not marked as playing.
    const int result = m_opener(file);
    if (result > 32)
        return;
    const QString kind = mp3 ? QStringLiteral("MP3") : QStringLiteral("WAV");
    m_messageBox.Show(QString(),
                      tr("Error Launching default desktop ") + kind + tr(" player. Error Code=") +
                          QString::number(result) +
                          tr("\nPerhaps there is no desktop application associated "
                             "with ") +
                          kind + tr(" files."),
                      MsgIcon::Exclamation, MsgButtons::Ok);
}

void PlayerChoice::ToolbarPlay()
{
    Trap(m_log, "ToolbarPlay", [&] {
        const QString file = m_options.RecentRecordingFilename;
        if (!file.isEmpty() && FileExistsOrClear(file)) {
            PlayExistingFile(file, m_options.RecentRecordingDescription,
                             m_options.RecentRecordingTime);
            return;
        }
        m_messageBox.Show(tr("Recent Recording Not Found"),
                          tr("Most recent recording was not found. It may have been "
                             "deleted, recording media may have been removed, or "
                             "disk drive letter may have changed."),
                          MsgIcon::Exclamation, MsgButtons::Ok);
        // The Play button follows the recent recording, now gone, at the next mode display.
        m_options.SaveRecentRecording(m_registry, QString(), QString(), 0.0);
    });
}
