#include "GUIUpdateDownloadInfo.h"

#include "JsonRead.h"

#include <QStringList>

bool GUIUpdateDownloadInfo::isKnownState(const QString &state)
{
    // "queued" and "retrying" are the daemon's words for a download waiting its turn and one
    // trying again after a network error.
    static const QStringList states{
        QStringLiteral("idle"),        QStringLiteral("queued"),    QStringLiteral("checking"),
        QStringLiteral("downloading"), QStringLiteral("verifying"), QStringLiteral("retrying"),
        QStringLiteral("canceling"),   QStringLiteral("ready"),     QStringLiteral("failed"),
        QStringLiteral("canceled"),
    };
    return states.contains(state);
}

GUIUpdateDownloadInfo GUIUpdateDownloadInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid GUI update download JSON");
        return GUIUpdateDownloadInfo();
    }
    GUIUpdateDownloadInfo info;
    info.valid = true;
    info.state = JsonRead::text(*object, QLatin1String("state"));
    info.currentVersion = JsonRead::text(*object, QLatin1String("current_version"));
    info.versionCode = JsonRead::text(*object, QLatin1String("version_code"));
    info.versionNum = JsonRead::integer64(*object, QLatin1String("version_num"));
    info.bytesDownloaded = JsonRead::integer64(*object, QLatin1String("bytes_downloaded"));
    info.bytesTotal = JsonRead::integer64(*object, QLatin1String("bytes_total"));
    info.egress = JsonRead::text(*object, QLatin1String("egress"));
    info.localPath = JsonRead::text(*object, QLatin1String("local_path"));
    info.errorCode = JsonRead::text(*object, QLatin1String("error_code"));
    info.errorMessage = JsonRead::text(*object, QLatin1String("error_message"));
    info.startedAt = JsonRead::text(*object, QLatin1String("started_at"));
    info.updatedAt = JsonRead::text(*object, QLatin1String("updated_at"));
    if (!isKnownState(info.state)) {
        if (errorOut)
            *errorOut = QStringLiteral("GUI update download state is invalid");
        return GUIUpdateDownloadInfo();
    }
    return info;
}
