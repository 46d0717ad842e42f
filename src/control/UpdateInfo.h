#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QtGlobal>

// The answer of a GUI update check.
struct UpdateInfo
{
    bool valid = false;
    QString platform;
    QString currentVersion;
    double currentVersionNum = 0.0;
    bool updateAvailable = false;
    QString versionCode;
    double versionNum = 0.0;
    bool forceUpgrade = false;
    bool stagedReleaseUpgrade = false;
    QString recommended;
    QString universalDownloadLink;
    QString arm64DownloadLink;
    QString amd64DownloadLink;
    QString artifactURL;
    QString artifactSHA256;
    qint64 artifactSize = 0;
    QStringList changeLog;
    QString checkedAt;

    static UpdateInfo parse(const QByteArray &body, QString *errorOut);

    friend bool operator==(const UpdateInfo &, const UpdateInfo &) = default;
};

Q_DECLARE_METATYPE(UpdateInfo)
