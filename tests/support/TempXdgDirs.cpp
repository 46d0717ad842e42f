#include "TempXdgDirs.h"

#include <QDir>
#include <QSettings>

TempXdgDirs::TempXdgDirs()
{
    const QDir root(m_dir.path());
    for (const char *sub : {"config", "data", "cache", "state", "home"})
        root.mkpath(QString::fromLatin1(sub));
    setVariable("XDG_CONFIG_HOME", root.filePath(QStringLiteral("config")));
    setVariable("XDG_DATA_HOME", root.filePath(QStringLiteral("data")));
    setVariable("XDG_CACHE_HOME", root.filePath(QStringLiteral("cache")));
    setVariable("XDG_STATE_HOME", root.filePath(QStringLiteral("state")));
    setVariable("HOME", root.filePath(QStringLiteral("home")));
    // QSettings reads XDG_CONFIG_HOME only once per process, so its path is set directly too.
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, configHome());
}

TempXdgDirs::~TempXdgDirs()
{
    for (auto it = m_saved.cbegin(); it != m_saved.cend(); ++it) {
        if (it.value())
            qputenv(it.key().constData(), *it.value());
        else
            qunsetenv(it.key().constData());
    }
    const QByteArray config = qgetenv("XDG_CONFIG_HOME");
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       config.isEmpty() ? QDir::homePath() + QStringLiteral("/.config")
                                        : QString::fromLocal8Bit(config));
}

QString TempXdgDirs::configHome() const
{
    return QDir(m_dir.path()).filePath(QStringLiteral("config"));
}

void TempXdgDirs::setVariable(const char *name, const QString &value)
{
    const QByteArray key(name);
    if (!m_saved.contains(key)) {
        m_saved.insert(key, qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name))
                                                            : std::nullopt);
    }
    qputenv(name, value.toLocal8Bit());
}
