#include "scheduling/StreamAddress.h"

#include <QCoreApplication>
#include <QUrl>

namespace StreamAddress {

QString Problem(const QString& address)
{
    const QUrl url(address.trimmed(), QUrl::StrictMode);
    const QString scheme = url.scheme().toLower();
    if (address.trimmed().isEmpty())
        return QCoreApplication::translate("StreamAddress",
                                           "Please enter the address of the internet stream.");
    if ((scheme != QLatin1String("http") && scheme != QLatin1String("https")) || !url.isValid() ||
        url.host().isEmpty())
        return QCoreApplication::translate(
            "StreamAddress", "The address of an internet stream must begin with http:// or "
                             "https://, such as http://radio.example.org/live.mp3, or name a "
                             ".pls, .m3u or .m3u8 list.");
    return QString();
}

} // namespace StreamAddress
