#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

// The XDG autostart entry that starts the GUI with the desktop session.
class GuiAutostart
{
    Q_DECLARE_TR_FUNCTIONS(GuiAutostart)

public:
    // Empty arguments mean XDG_CONFIG_HOME (or ~/.config) and the running executable.
    explicit GuiAutostart(const QString &configDir = {}, const QString &executablePath = {});

    static bool isSupported();
    // The executable as one argument of an "Exec" line.
    static QString quoteExec(const QString &path);

    QString entryPath() const { return m_entryPath; }
    QString executablePath() const { return m_executablePath; }
    QByteArray entryContents() const;

    // Writes or removes the entry; on failure errorOut (when given) gets a translated message.
    bool reconcile(bool enabled, QString *errorOut) const;

private:
    bool write(QString *errorOut) const;
    bool remove(QString *errorOut) const;

    QString m_entryPath;
    QString m_executablePath;
};
