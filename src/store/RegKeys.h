#pragma once

#include <QObject>
#include <QString>

// The settings store: named text values in sections, kept per user through QSettings under
// the organisation "Larkmoor Systems" and the application "Nightreel". Every value is
// stored as text, numbers and Booleans too, so that the file reads the same whatever
// wrote it.
//
// Each call opens its own QSettings object: that is cheap, and a change of the settings
// path (as tests make) is seen at the next call.
class RegKeys : public QObject {
    Q_OBJECT
public:
    // The stored text as it is, untrimmed. An absent value and an empty one both give
    // defaultValue; a value saved empty is stored as one blank, so readers that trim see it
    // as empty.
    QString GetSetting(const QString& section, const QString& name,
                       const QString& defaultValue) const;
    // Writes the value; a failed write is not raised but said by SaveFailed.
    void SaveSetting(const QString& section, const QString& name, const QString& value);
    // Removes the value; errors are ignored.
    void DeleteSetting(const QString& section, const QString& name);

signals:
    void SaveFailed(const QString& section, const QString& name, const QString& value);
};
