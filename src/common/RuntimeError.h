#pragma once

#include <QString>
#include <QVariant>
#include <exception>

// A failure inside a routine, with the number and text that its trap reports to the log.
// Numbers follow the database engine's and the run time's where the system knew them.
class RuntimeError : public std::exception {
public:
    RuntimeError(int number, QString text)
        : m_number(number)
        , m_text(std::move(text))
        , m_what(m_text.toUtf8())
    {
    }
    int Number() const { return m_number; }
    const QString& Text() const { return m_text; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    int m_number;
    QString m_text;
    QByteArray m_what;
};

namespace ErrorNumber {
constexpr int Overflow = 6;
constexpr int InvalidUseOfNull = 94;
constexpr int FileNotFound = 53;
constexpr int PathFileAccess = 75;
constexpr int ObjectRequired = 424;
constexpr int DatabaseEngine = 3000;
constexpr int NoCurrentRecord = 3021;
constexpr int CouldNotFindFile = 3024;
constexpr int OperationNotSupported = 3251;
constexpr int ItemNotFound = 3265;
constexpr int RecordDeleted = 3167;
constexpr int UpdateWithoutEdit = 3020;
constexpr int UnrecognizedDatabase = 3343;
} // namespace ErrorNumber

// The run time's error for a NULL read where a value is required.
[[noreturn]] inline void ThrowInvalidUseOfNull()
{
    throw RuntimeError(ErrorNumber::InvalidUseOfNull, QStringLiteral("Invalid use of Null"));
}

// A value the system reads without a NULL test: a NULL there fails as the run time did.
inline QVariant NotNull(const QVariant& value)
{
    if (value.isNull())
        ThrowInvalidUseOfNull();
    return value;
}
