#include "UpdateInfo.h"

#include "JsonRead.h"

UpdateInfo UpdateInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid update JSON");
        return UpdateInfo();
    }
    const QJsonObject latest = JsonRead::object(*object, QLatin1String("latest"));
    const QJsonObject download = JsonRead::object(latest, QLatin1String("download"));
    const QJsonObject artifact = JsonRead::object(download, QLatin1String("recommended_artifact"));

    UpdateInfo info;
    info.valid = true;
    info.platform = JsonRead::text(*object, QLatin1String("platform"));
    info.currentVersion = JsonRead::text(*object, QLatin1String("current_version"));
    info.currentVersionNum = JsonRead::number(*object, QLatin1String("current_version_num"));
    info.updateAvailable = JsonRead::boolean(*object, QLatin1String("update_available"));
    info.versionCode = JsonRead::text(latest, QLatin1String("version_code"));
    info.versionNum = JsonRead::number(latest, QLatin1String("version_num"));
    info.forceUpgrade = JsonRead::boolean(latest, QLatin1String("is_force_upgrade"));
    info.stagedReleaseUpgrade =
        JsonRead::boolean(latest, QLatin1String("should_gray_release_upgrade"));
    info.recommended = JsonRead::text(download, QLatin1String("recommended"));
    info.universalDownloadLink = JsonRead::text(download, QLatin1String("universal_download_link"));
    info.arm64DownloadLink = JsonRead::text(download, QLatin1String("arm64_download_link"));
    info.amd64DownloadLink = JsonRead::text(download, QLatin1String("amd64_download_link"));
    info.artifactURL = JsonRead::text(artifact, QLatin1String("url"));
    info.artifactSHA256 = JsonRead::text(artifact, QLatin1String("sha256"));
    info.artifactSize = JsonRead::integer64(artifact, QLatin1String("size_bytes"));
    info.changeLog = JsonRead::textList(latest, QLatin1String("change_log"));
    info.checkedAt = JsonRead::text(*object, QLatin1String("checked_at"));
    return info;
}
