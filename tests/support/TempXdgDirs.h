#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QTemporaryDir>

#include <optional>

// Points HOME and the XDG base directories at a fresh temporary directory (and QSettings' user
// scope at its config folder) for the lifetime of the object; the old values come back after.
class TempXdgDirs
{
public:
    TempXdgDirs();
    ~TempXdgDirs();
    TempXdgDirs(const TempXdgDirs &) = delete;
    TempXdgDirs &operator=(const TempXdgDirs &) = delete;

    QString root() const { return m_dir.path(); }
    QString configHome() const;
    QString filePath(const QString &relative) const { return m_dir.filePath(relative); }

private:
    void setVariable(const char *name, const QString &value);

    QTemporaryDir m_dir;
    QHash<QByteArray, std::optional<QByteArray>> m_saved;
};
