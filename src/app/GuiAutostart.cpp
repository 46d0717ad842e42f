#include "GuiAutostart.h"

#include "AppId.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

QString configDirectory(const QString &explicitDir)
{
    const QString given = explicitDir.trimmed();
    if (!given.isEmpty())
        return QDir::cleanPath(given);
    const QString fromEnv = qEnvironmentVariable("XDG_CONFIG_HOME").trimmed();
    if (!fromEnv.isEmpty())
        return QDir::cleanPath(fromEnv);
    return QDir(QDir::homePath()).filePath(QStringLiteral(".config"));
}

QString executable(const QString &explicitPath)
{
    const QString given = explicitPath.trimmed();
    if (!given.isEmpty())
        return QDir::cleanPath(given);
    return QCoreApplication::applicationFilePath();
}

void setError(QString *errorOut, const QString &message)
{
    if (errorOut)
        *errorOut = message;
}

} // namespace

GuiAutostart::GuiAutostart(const QString &configDir, const QString &executablePath)
    : m_entryPath(
          QDir(configDirectory(configDir))
              .filePath(
                  QStringLiteral("autostart/%1").arg(QLatin1String(kTovraAppId) + u".desktop")))
    , m_executablePath(executable(executablePath))
{}

bool GuiAutostart::isSupported()
{
    return true;
}

QString GuiAutostart::quoteExec(const QString &path)
{
    QString quoted = path;
    quoted.replace(u'\\', QStringLiteral("\\\\"));
    quoted.replace(u'"', QStringLiteral("\\\""));
    quoted.replace(u'`', QStringLiteral("\\`"));
    quoted.replace(u'$', QStringLiteral("\\$"));
    return u'"' + quoted + u'"';
}

QByteArray GuiAutostart::entryContents() const
{
    const QString text = QStringLiteral("[Desktop Entry]\n"
                                        "Type=Application\n"
                                        "Name=Tovra VPN\n"
                                        "Comment=Start Tovra VPN in the desktop session\n") +
                         u"Exec=" + quoteExec(m_executablePath) + u" --tovra-autostart\n" +
                         u"TryExec=" + m_executablePath + u'\n' + u"Icon=" +
                         QLatin1String(kTovraAppId) + u'\n' +
                         QStringLiteral("Terminal=false\n"
                                        "NoDisplay=true\n"
                                        "X-GNOME-Autostart-enabled=true\n"
                                        "X-TovraVPN-Autostart=true\n");
    return text.toUtf8();
}

bool GuiAutostart::reconcile(bool enabled, QString *errorOut) const
{
    if (!isSupported()) {
        setError(errorOut, tr("Login startup is not supported on this platform."));
        return false;
    }
    return enabled ? write(errorOut) : remove(errorOut);
}

bool GuiAutostart::write(QString *errorOut) const
{
    if (m_executablePath.isEmpty() || !QFileInfo(m_executablePath).isAbsolute()) {
        setError(errorOut, tr("Could not resolve the Tovra executable for login startup."));
        return false;
    }
    if (!QDir().mkpath(QFileInfo(m_entryPath).absolutePath())) {
        setError(errorOut, tr("Could not prepare the login startup directory."));
        return false;
    }

    const QByteArray contents = entryContents();
    QSaveFile file(m_entryPath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text) ||
        file.write(contents) != contents.size() || !file.commit()) {
        setError(errorOut, tr("Could not update Tovra login startup."));
        return false;
    }

    if (!QFile::setPermissions(m_entryPath, QFileDevice::ReadOwner | QFileDevice::WriteOwner)) {
        QFile::remove(m_entryPath);
        setError(errorOut, tr("Could not secure Tovra login startup."));
        return false;
    }
    return true;
}

bool GuiAutostart::remove(QString *errorOut) const
{
    QFileInfo entry(m_entryPath);
    if (!entry.exists() && !entry.isSymLink())
        return true;
    if (!QFile::remove(m_entryPath)) {
        setError(errorOut, tr("Could not remove Tovra from login startup."));
        return false;
    }
    return true;
}
