#include "ConfigStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace {

const char *const DefaultApiUrl = "https://api.tovra.invalid";

} // namespace

ConfigStore::ConfigStore(const QString &rootDir, const QString &socketPath)
    : m_root(rootDir)
    , m_socketPath(socketPath)
    , m_apiUrl(QString::fromLatin1(DefaultApiUrl))
{
    QDir root(m_root);
    const QStringList dirs{QStringLiteral("config/profiles"), QStringLiteral("config/rules"),
                           QStringLiteral("state"), QStringLiteral("log"),
                           QStringLiteral("downloads")};
    for (const QString &dir : dirs)
        root.mkpath(dir);
    QFile pid(pidFile());
    if (pid.open(QIODevice::WriteOnly | QIODevice::Truncate))
        pid.write(QByteArray::number(QCoreApplication::applicationPid()) + '\n');
}

ConfigStore::~ConfigStore()
{
    QFile::remove(pidFile());
}

QString ConfigStore::pidFile() const
{
    return QFileInfo(m_socketPath).absolutePath() + QStringLiteral("/tovra-demo.pid");
}

QString ConfigStore::setApiUrl(const QString &url)
{
    const QUrl parsed(url.trimmed(), QUrl::StrictMode);
    const QString scheme = parsed.scheme();
    if (!parsed.isValid() || parsed.host().isEmpty() ||
        (scheme != QLatin1String("https") && scheme != QLatin1String("http")))
        return QStringLiteral("API URL must be an http or https URL with a host");
    m_apiUrl = parsed.toString(QUrl::FullyEncoded);
    // Plain HTTP is saved but never trusted: the demo validates only https addresses.
    m_validated = scheme == QLatin1String("https");
    return {};
}

void ConfigStore::resetApiUrl()
{
    m_apiUrl = QString::fromLatin1(DefaultApiUrl);
    m_validated = true;
}

QString ConfigStore::setAutoConnect(const QString &value)
{
    if (value != QLatin1String("off") && value != QLatin1String("last") &&
        value != QLatin1String("smart"))
        return QStringLiteral("auto connect must be \"off\", \"last\" or \"smart\"");
    m_autoConnect = value;
    return {};
}

QString ConfigStore::configDir() const
{
    return m_root + QStringLiteral("/config");
}

QString ConfigStore::logFile() const
{
    return m_root + QStringLiteral("/log/tovra-daemon.log");
}

QString ConfigStore::downloadDir() const
{
    return m_root + QStringLiteral("/downloads");
}

QJsonObject ConfigStore::apiUrlJson() const
{
    return {{QStringLiteral("api_url"), m_apiUrl}, {QStringLiteral("validated"), m_validated}};
}

QJsonObject ConfigStore::pathsJson() const
{
    const QString runtime = QFileInfo(m_socketPath).absolutePath();
    return {
        {QStringLiteral("ConfigDir"), configDir()},
        {QStringLiteral("RuntimeDir"), runtime},
        {QStringLiteral("LogDir"), QString(m_root + QStringLiteral("/log"))},
        {QStringLiteral("StateFile"), QString(m_root + QStringLiteral("/state/state.json"))},
        {QStringLiteral("CredentialsKeyFile"),
         QString(m_root + QStringLiteral("/state/credentials.key"))},
        {QStringLiteral("HistoryFile"), QString(m_root + QStringLiteral("/state/history.jsonl"))},
        {QStringLiteral("ProfilesDir"), QString(configDir() + QStringLiteral("/profiles"))},
        {QStringLiteral("SocketPath"), m_socketPath},
        {QStringLiteral("PIDFile"), pidFile()},
        {QStringLiteral("ControlAddr"), QString(QStringLiteral("unix://") + m_socketPath)}};
}
