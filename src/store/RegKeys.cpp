#include "store/RegKeys.h"

#include "diagnostics/EventLog.h"

#include <QCoreApplication>
#include <QSettings>
#include <QStringList>

namespace {

const QString kOrganization = QStringLiteral("Larkmoor Systems");
const QString kApplication = QStringLiteral("Nightreel");

} // namespace

RegKeys::RegKeys(EventLog& log)
    : m_log(log)
{
}

QString RegKeys::GetSetting(const QString& section, const QString& name,
                            const QString& defaultValue) const
{
    QSettings settings(kOrganization, kApplication);
    settings.beginGroup(section);
    const QVariant stored = settings.value(name);
    // A hand-edited line with unquoted commas reads back as a list; keep it as the text
    // it was rather than losing it.
    const QString text = stored.typeId() == QMetaType::QStringList
                             ? stored.toStringList().join(u',')
                             : stored.toString();
    return text.isEmpty() ? defaultValue : text;
}

void RegKeys::SaveSetting(const QString& section, const QString& name, const QString& value)
{
    QSettings settings(kOrganization, kApplication);
    settings.beginGroup(section);
    // Empty is stored as one blank: the readers trim, so it reads back as no value, and
    // the value stays visible in the file as having been set.
    settings.setValue(name, value.isEmpty() ? QStringLiteral(" ") : value);
    settings.endGroup();
    settings.sync();
    if (settings.status() != QSettings::NoError)
        m_log.LogEvent(EventError,
                       QCoreApplication::translate("RegKeys", "Error saving setting in registry."),
                       section + u' ' + name + u' ' + value);
}

void RegKeys::DeleteSetting(const QString& section, const QString& name)
{
    QSettings settings(kOrganization, kApplication);
    settings.beginGroup(section);
    settings.remove(name);
    settings.endGroup();
    settings.sync();
}
