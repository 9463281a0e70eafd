#include "common/TextHelpers.h"

#include <QRegularExpression>
#include <cmath>

namespace Text {

QString Trim(const QString& text)
{
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && text.at(begin) == u' ')
        ++begin;
    while (end > begin && text.at(end - 1) == u' ')
        --end;
    return text.mid(begin, end - begin);
}

QString Str(qint64 number)
{
    return number < 0 ? QString::number(number) : u' ' + QString::number(number);
}

double Val(const QString& text)
{
    static const QRegularExpression number(
        QStringLiteral("^[+-]?(\\d+\\.?\\d*|\\.\\d+)([eE][+-]?\\d+)?"));
    QString compact = text;
    compact.remove(u' ').remove(u'\t').remove(u'\n').remove(u'\r');
    const QRegularExpressionMatch match = number.match(compact);
    return match.hasMatch() ? match.captured(0).toDouble() : 0.0;
}

qint64 RoundHalfEven(double value)
{
    return qint64(std::nearbyint(value));
}

QString SqlQuoted(const QString& text)
{
    QString doubled = text;
    doubled.replace(u'\'', QStringLiteral("''"));
    return u'\'' + doubled + u'\'';
}

QString Left(const QString& text, int n)
{
    return text.left(n);
}

} // namespace Text
