#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QTimer>

// The GUI update offer and its download: queued -> checking -> downloading -> verifying ->
// ready, with a real installer file written under the download directory and verified by its
// SHA-256. With a flaky network the download breaks once halfway and is retried.
class UpdateStore : public QObject
{
    Q_OBJECT

public:
    UpdateStore(const QString &downloadDir, const QString &vendorHost, bool forceUpgrade,
                bool flakyNetwork, QObject *parent = nullptr);
    ~UpdateStore() override;

    // "major.minor.patch[+build]" as one number; -1 when the text is no version.
    static qint64 versionNumber(const QString &version);

    // Returns the refusal text (empty on success) and fills *answer.
    QString check(const QString &guiVersion, QJsonObject *answer) const;
    QString start(const QString &guiVersion, qint64 expectedVersionNum, bool viaTunnel);
    void cancel();
    QJsonObject downloadJson() const;

private:
    bool running() const;
    void setState(const QString &state);
    void advance();
    void fail(const QString &code, const QString &message);
    QString artifactUrl() const;
    QString localPath() const;

    QString m_downloadDir;
    QString m_vendorHost;
    bool m_forceUpgrade;
    bool m_flakyNetwork;
    bool m_retried = false;
    QByteArray m_artifact;
    QByteArray m_artifactSha256;
    QTimer m_timer;
    QString m_state = QStringLiteral("idle");
    QString m_currentVersion;
    qint64 m_bytesDownloaded = 0;
    QString m_egress;
    QString m_errorCode;
    QString m_errorMessage;
    QDateTime m_startedAt;
    QDateTime m_updatedAt;
};
