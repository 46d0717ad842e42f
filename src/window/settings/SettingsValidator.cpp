#include "SettingsValidator.h"

#include "BidiText.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <QUrl>

namespace {

bool isHostName(const QString &host)
{
    // Letters, digits and hyphens in dot-separated labels, the way resolvers accept them.
    static const QRegularExpression pattern(
        QStringLiteral("^(?=.{1,253}$)[A-Za-z0-9](?:[A-Za-z0-9-]{0,61}[A-Za-z0-9])?"
                       "(?:\\.[A-Za-z0-9](?:[A-Za-z0-9-]{0,61}[A-Za-z0-9])?)*$"));
    return pattern.match(host).hasMatch();
}

} // namespace

QString SettingsValidator::checkListenAddress(const QString &address)
{
    const QString text = address.trimmed();
    if (text.isEmpty())
        return {};
    const qsizetype colon = text.lastIndexOf(QLatin1Char(':'));
    if (colon < 0)
        return tr("Add a port: host:port, for example 127.0.0.1:1080.");
    QString host = text.left(colon);
    const QString portText = text.mid(colon + 1);
    if (host.startsWith(QLatin1Char('[')) && host.endsWith(QLatin1Char(']'))) {
        host = host.mid(1, host.size() - 2);
        if (QHostAddress(host).protocol() != QAbstractSocket::IPv6Protocol)
            return tr("\"%1\" is not an IPv6 address.").arg(isolated(host));
    } else if (host.contains(QLatin1Char(':'))) {
        return tr("Write an IPv6 address in brackets: [::1]:1080.");
    } else if (host.isEmpty()) {
        return tr("Add a host before the port: host:port.");
    } else if (QHostAddress(host).isNull() && !isHostName(host)) {
        return tr("\"%1\" is not a host name or IP address.").arg(isolated(host));
    }
    bool number = false;
    const int port = portText.toInt(&number);
    if (portText.isEmpty())
        return tr("Add a port after the colon: host:port.");
    if (!number || port < 1 || port > 65535)
        return tr("The port must be a number from 1 to 65535.");
    return {};
}

QString SettingsValidator::checkAPIURL(const QString &url)
{
    const QString text = url.trimmed();
    if (text.isEmpty())
        return tr("Enter an API URL, or reset it to the default.");
    const QUrl parsed(text, QUrl::StrictMode);
    const QString scheme = parsed.scheme().toLower();
    if (!parsed.isValid() || (scheme != QLatin1String("http") && scheme != QLatin1String("https")))
        return tr("The API URL must start with http:// or https://.");
    if (parsed.host().isEmpty())
        return tr("The API URL needs a host, for example https://api.example.com.");
    return {};
}

QString SettingsValidator::checkDNSServers(const QStringList &servers)
{
    if (servers.isEmpty())
        return tr("Enter at least one DNS server, or clear the list.");
    for (const QString &server : servers) {
        if (QHostAddress(server).isNull())
            return tr("\"%1\" is not an IP address.").arg(isolated(server));
    }
    return {};
}

QStringList SettingsValidator::splitServers(const QString &text)
{
    static const QRegularExpression separators(QStringLiteral("[,\\s]+"));
    return text.split(separators, Qt::SkipEmptyParts);
}
