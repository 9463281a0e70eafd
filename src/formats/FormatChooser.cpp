#include "formats/FormatChooser.h"

#include "formats/CodecCatalogue.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <cstring>

namespace {
quint16 TagOf(const QByteArray& record)
{
    const std::optional<WaveFormatRecord> decoded = WaveFormatRecord::Decode(record);
    return decoded ? decoded->wFormatTag : 0;
}
} // namespace

FormatChooser::FormatChooser(const QByteArray& current, QWidget* parent)
    : QDialog(parent)
    , m_tags(new QComboBox(this))
    , m_attributes(new QListWidget(this))
{
    setObjectName(QStringLiteral("FormatChooser"));
    setWindowTitle(tr("Select Recording Format"));
    m_tags->setObjectName(QStringLiteral("cboFormatTag"));
    m_attributes->setObjectName(QStringLiteral("lstAttributes"));

    for (const QByteArray& record : CodecCatalogue::RecordingFormats()) {
        const quint16 tag = TagOf(record);
        if (!m_tagValues.contains(tag)) {
            QString name;
            CodecCatalogue::FormatTagName(tag, name);
            m_tagValues.append(tag);
            m_tags->addItem(name);
        }
    }

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("btnOk"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("btnCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_attributes, &QListWidget::itemDoubleClicked, this, &QDialog::accept);

    auto* form = new QFormLayout;
    form->addRow(tr("&Format:"), m_tags);
    form->addRow(tr("&Attributes:"), m_attributes);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
    resize(360, 320);

    connect(m_tags, &QComboBox::currentIndexChanged, this, &FormatChooser::FillAttributes);
    const int tagIndex = std::max<int>(0, m_tagValues.indexOf(TagOf(current)));
    m_tags->setCurrentIndex(tagIndex);
    FillAttributes(tagIndex);
    for (int row = 0; row < m_attributes->count(); ++row)
        if (m_attributes->item(row)->data(Qt::UserRole).toByteArray() == current)
            m_attributes->setCurrentRow(row);
    m_attributes->scrollToItem(m_attributes->currentItem(), QAbstractItemView::PositionAtCenter);
}

void FormatChooser::FillAttributes(int tagIndex)
{
    m_attributes->clear();
    if (tagIndex < 0 || tagIndex >= m_tagValues.size())
        return;
    for (const QByteArray& record : CodecCatalogue::RecordingFormats()) {
        if (TagOf(record) != m_tagValues[tagIndex])
            continue;
        QString description;
        CodecCatalogue::FormatDescription(record, description);
        auto* item = new QListWidgetItem(description, m_attributes);
        item->setData(Qt::UserRole, record);
    }
    m_attributes->setCurrentRow(0);
}

QByteArray FormatChooser::SelectedRecord() const
{
    const QListWidgetItem* item = m_attributes->currentItem();
    return item ? item->data(Qt::UserRole).toByteArray() : QByteArray();
}

int FormatChooser::Choose(QWidget* owner, quint8* pwfx, int cbwfx)
{
    const QByteArray current(reinterpret_cast<const char*>(pwfx), cbwfx);
    const std::optional<WaveFormatRecord> record = WaveFormatRecord::Decode(current);
    FormatChooser chooser(record ? current.left(WaveFormatRecord::Size + record->cbSize) : current,
                          owner);
    if (chooser.exec() != QDialog::Accepted)
        return 1;
    const QByteArray selected = chooser.SelectedRecord();
    if (selected.isEmpty())
        return 1;
    if (selected.size() > cbwfx)
        return 2;
    std::memcpy(pwfx, selected.constData(), size_t(selected.size()));
    return 0;
}
