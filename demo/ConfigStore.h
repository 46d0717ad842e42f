#pragma once

#include <QJsonObject>
#include <QString>

// The daemon's own settings and paths: the service API address, the auto-connect preference
// and the directories it keeps its config, state and logs in (all created on disk).
class ConfigStore
{
public:
    ConfigStore(const QString &rootDir, const QString &socketPath);
    ~ConfigStore();
    ConfigStore(const ConfigStore &) = delete;
    ConfigStore &operator=(const ConfigStore &) = delete;

    // Each returns the refusal text, empty when applied.
    QString setApiUrl(const QString &url);
    void resetApiUrl();
    QString setAutoConnect(const QString &value);

    QString apiUrl() const { return m_apiUrl; }
    QString autoConnect() const { return m_autoConnect; }
    QString configDir() const;
    QString logFile() const;
    QString downloadDir() const;
    QString pidFile() const;

    QJsonObject apiUrlJson() const;
    QJsonObject pathsJson() const;

private:
    QString m_root;
    QString m_socketPath;
    QString m_apiUrl;
    bool m_validated = true;
    QString m_autoConnect = QStringLiteral("off");
};
