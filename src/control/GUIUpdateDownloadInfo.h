#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QtGlobal>

// Progress of the GUI update download that the daemon runs.
struct GUIUpdateDownloadInfo
{
    bool valid = false;
    QString state;
    QString currentVersion;
    QString versionCode;
    qint64 versionNum = 0;
    qint64 bytesDownloaded = 0;
    qint64 bytesTotal = 0;
    QString egress;
    QString localPath;
    QString errorCode;
    QString errorMessage;
    QString startedAt;
    QString updatedAt;

    static GUIUpdateDownloadInfo parse(const QByteArray &body, QString *errorOut);
    static bool isKnownState(const QString &state);

    friend bool operator==(const GUIUpdateDownloadInfo &, const GUIUpdateDownloadInfo &) = default;
};

Q_DECLARE_METATYPE(GUIUpdateDownloadInfo)
