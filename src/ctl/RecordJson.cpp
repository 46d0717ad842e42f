#include "RecordJson.h"

#include <QJsonArray>

namespace {

QJsonArray strings(const QStringList &list)
{
    return QJsonArray::fromStringList(list);
}

template<typename T>
QJsonArray objects(const QList<T> &list)
{
    QJsonArray array;
    for (const T &item : list)
        array.append(RecordJson::toJson(item));
    return array;
}

QJsonObject listener(const ProxyListenerInfo &info)
{
    return {{QLatin1String("name"), info.name},
            {QLatin1String("scheme"), info.scheme},
            {QLatin1String("address"), info.address}};
}

QJsonArray listeners(const QList<ProxyListenerInfo> &list)
{
    QJsonArray array;
    for (const ProxyListenerInfo &item : list)
        array.append(listener(item));
    return array;
}

} // namespace

QJsonObject RecordJson::toJson(const RuntimeInfo &info)
{
    QJsonArray accessUrls;
    for (const ProxyAccessUrlInfo &url : info.proxyAccessUrls)
        accessUrls.append(QJsonObject{{QLatin1String("kind"), url.kind},
                                      {QLatin1String("scheme"), url.scheme},
                                      {QLatin1String("url"), url.url}});
    return {
        {QLatin1String("valid"), info.valid},
        {QLatin1String("daemon_state"), info.daemonState},
        {QLatin1String("daemon_version"), info.daemonVersion},
        {QLatin1String("api_url"), info.apiURL},
        {QLatin1String("auto_connect"), info.autoConnect},
        {QLatin1String("auto_connect_state"), info.autoConnectState},
        {QLatin1String("language"), info.language},
        {QLatin1String("language_source"), info.languageSource},
        {QLatin1String("effective_language"), info.effectiveLanguage},
        {QLatin1String("catalog_refresh"), info.catalogRefresh},
        {QLatin1String("auth_state"), info.authState},
        {QLatin1String("tunnel_state"), info.tunnelState},
        {QLatin1String("tunnel_kind"), info.tunnelKind},
        {QLatin1String("tunnel_reason"), info.tunnelReason},
        {QLatin1String("last_error"), info.lastError},
        {QLatin1String("mode_summary"), info.modeSummary},
        {QLatin1String("mode"), toJson(info.mode)},
        {QLatin1String("connected_source"), info.connectedSource},
        {QLatin1String("connected_target"), info.connectedTarget},
        {QLatin1String("connected_since"), info.connectedSince},
        {QLatin1String("selected_node"), info.selectedNode},
        {QLatin1String("connected_node"), info.connectedNode},
        {QLatin1String("kill_switch"), toJson(info.killSwitch)},
        {QLatin1String("proxy_listeners"), listeners(info.proxyListeners)},
        {QLatin1String("proxy_access_urls"), accessUrls},
        {QLatin1String("pac_status"), toJson(info.pacStatus)},
    };
}

QJsonObject RecordJson::toJson(const ModeInfo &info)
{
    return {
        {QLatin1String("valid"), info.valid},
        {QLatin1String("transport"), info.transport},
        {QLatin1String("policy"), info.policy},
        {QLatin1String("region"), info.region},
        {QLatin1String("system_proxy"), info.systemProxy},
        {QLatin1String("pac_port"), info.pacPort},
        {QLatin1String("pac_version"), info.pacVersion},
        {QLatin1String("proxy_lan"), info.proxyLan},
        {QLatin1String("local_network"), info.localNetwork},
        {QLatin1String("split_profile"), toJson(info.splitProfile)},
        {QLatin1String("last_tovravpn_policy"), info.lastTovravpnPolicy},
        {QLatin1String("last_tovravpn_split_profile"), toJson(info.lastTovravpnSplitProfile)},
        {QLatin1String("proxy_split_profile"), toJson(info.proxySplitProfile)},
        {QLatin1String("last_proxy_policy"), info.lastProxyPolicy},
        {QLatin1String("last_proxy_split_profile"), toJson(info.lastProxySplitProfile)},
    };
}

QJsonObject RecordJson::toJson(const SplitProfileInfo &info)
{
    QJsonObject object = info.toJson();
    object.insert(QLatin1String("valid"), info.valid);
    return object;
}

QJsonObject RecordJson::toJson(const KillSwitchInfo &info)
{
    return {
        {QLatin1String("valid"), info.valid},
        {QLatin1String("enabled"), info.enabled},
        {QLatin1String("mode"), info.mode},
        {QLatin1String("guard"), info.guard},
        {QLatin1String("platform"), info.platform},
        {QLatin1String("block_mode"), info.blockMode},
        {QLatin1String("allow_lan"), info.allowLan},
        {QLatin1String("lan_policy"), info.lanPolicy},
        {QLatin1String("lan_discovery"), strings(info.lanDiscovery)},
        {QLatin1String("last_error"), info.lastError},
    };
}

QJsonObject RecordJson::toJson(const PacStatusInfo &info)
{
    return {
        {QLatin1String("valid"), info.valid},
        {QLatin1String("state"), info.state},
        {QLatin1String("path"), info.path},
        {QLatin1String("proxy_address"), info.proxyAddress},
        {QLatin1String("proxy_port"), info.proxyPort},
        {QLatin1String("active_listener_address"), info.activeListenerAddress},
        {QLatin1String("active_listener_port"), info.activeListenerPort},
        {QLatin1String("message"), info.message},
    };
}

QJsonObject RecordJson::toJson(const NodeEntry &entry)
{
    return {
        {QLatin1String("valid"), entry.valid},
        {QLatin1String("id"), entry.id},
        {QLatin1String("name"), entry.name},
        {QLatin1String("tags"), strings(entry.tags)},
        {QLatin1String("region"), entry.region},
        {QLatin1String("type"), entry.type},
        {QLatin1String("signalLevel"), entry.signalLevel},
        {QLatin1String("pingMs"), entry.pingMs},
    };
}

QJsonObject RecordJson::toJson(const NodesInfo &info)
{
    return {
        {QLatin1String("valid"), info.valid},
        {QLatin1String("stale"), info.stale},
        {QLatin1String("pingRunning"), info.pingRunning},
        {QLatin1String("nodes"), objects(info.nodes)},
        {QLatin1String("selected"), toJson(info.selected)},
        {QLatin1String("connected"), toJson(info.connected)},
    };
}

QJsonObject RecordJson::toJson(const NodeGroupEntry &entry)
{
    return {
        {QLatin1String("id"), entry.id},
        {QLatin1String("name"), entry.name},
        {QLatin1String("code"), entry.code},
        {QLatin1String("level"), entry.level},
        {QLatin1String("rank"), entry.rank},
        {QLatin1String("node_ids"), strings(entry.nodeIds)},
        {QLatin1String("subgroups"), objects(entry.subgroups)},
    };
}

QJsonObject RecordJson::toJson(const NodeGroupsInfo &info)
{
    QJsonArray tabs;
    for (const NodeGroupTab &tab : info.tabs)
        tabs.append(QJsonObject{{QLatin1String("group_type"), tab.groupType},
                                {QLatin1String("node_ids"), strings(tab.nodeIds)}});
    return {
        {QLatin1String("valid"), info.valid},
        {QLatin1String("stale"), info.stale},
        {QLatin1String("tabs"), tabs},
        {QLatin1String("groups"), objects(info.groups)},
    };
}

QJsonObject RecordJson::toJson(const VersionInfo &info)
{
    return {
        {QLatin1String("valid"), info.valid},
        {QLatin1String("compatible"), info.compatible},
        {QLatin1String("version"), info.daemonVersion},
        {QLatin1String("api_version"), info.controlVersion},
    };
}

QJsonObject RecordJson::toJson(const APIURLConfigInfo &info)
{
    return {{QLatin1String("valid"), info.valid},
            {QLatin1String("api_url"), info.apiURL},
            {QLatin1String("validated"), info.validated}};
}

QJsonObject RecordJson::toJson(const AutoConnectConfigInfo &info)
{
    return {{QLatin1String("valid"), info.valid},
            {QLatin1String("auto_connect"), info.autoConnect},
            {QLatin1String("reconnect_source"), info.reconnectSource},
            {QLatin1String("reconnect_target"), info.reconnectTarget}};
}

QJsonObject RecordJson::toJson(const LanguageConfigInfo &info)
{
    QJsonArray languages;
    for (const LanguageEntry &language : info.supportedLanguages)
        languages.append(QJsonObject{{QLatin1String("code"), language.code},
                                     {QLatin1String("name"), language.name}});
    return {{QLatin1String("valid"), info.valid},
            {QLatin1String("source"), info.source},
            {QLatin1String("language"), info.language},
            {QLatin1String("effective_language"), info.effectiveLanguage},
            {QLatin1String("supported_languages"), languages}};
}

QJsonObject RecordJson::toJson(const UserInfo &info)
{
    return {{QLatin1String("valid"), info.valid},
            {QLatin1String("email"), info.email},
            {QLatin1String("user_number"), info.userNumber},
            {QLatin1String("role"), info.role},
            {QLatin1String("email_checked"), info.emailChecked},
            {QLatin1String("left_days"), info.leftDays},
            {QLatin1String("max_device_count"), info.maxDeviceCount}};
}

QJsonObject RecordJson::toJson(const PurchaseURLInfo &info)
{
    return {{QLatin1String("valid"), info.valid}, {QLatin1String("url"), info.url}};
}

QJsonObject RecordJson::toJson(const ConfigPaths &info)
{
    return {{QLatin1String("valid"), info.valid},
            {QLatin1String("ConfigDir"), info.configDir},
            {QLatin1String("RuntimeDir"), info.runtimeDir},
            {QLatin1String("LogDir"), info.logDir},
            {QLatin1String("StateFile"), info.stateFile},
            {QLatin1String("CredentialsKeyFile"), info.credentialsKeyFile},
            {QLatin1String("HistoryFile"), info.historyFile},
            {QLatin1String("ProfilesDir"), info.profilesDir},
            {QLatin1String("SocketPath"), info.socketPath},
            {QLatin1String("PIDFile"), info.pidFile},
            {QLatin1String("ControlAddr"), info.controlAddr}};
}

QJsonObject RecordJson::toJson(const UpdateInfo &info)
{
    const QJsonObject artifact{{QLatin1String("url"), info.artifactURL},
                               {QLatin1String("sha256"), info.artifactSHA256},
                               {QLatin1String("size_bytes"), info.artifactSize}};
    const QJsonObject download{
        {QLatin1String("recommended"), info.recommended},
        {QLatin1String("universal_download_link"), info.universalDownloadLink},
        {QLatin1String("arm64_download_link"), info.arm64DownloadLink},
        {QLatin1String("amd64_download_link"), info.amd64DownloadLink},
        {QLatin1String("recommended_artifact"), artifact}};
    const QJsonObject latest{
        {QLatin1String("version_code"), info.versionCode},
        {QLatin1String("version_num"), info.versionNum},
        {QLatin1String("is_force_upgrade"), info.forceUpgrade},
        {QLatin1String("should_gray_release_upgrade"), info.stagedReleaseUpgrade},
        {QLatin1String("download"), download},
        {QLatin1String("change_log"), strings(info.changeLog)}};
    return {{QLatin1String("valid"), info.valid},
            {QLatin1String("platform"), info.platform},
            {QLatin1String("current_version"), info.currentVersion},
            {QLatin1String("current_version_num"), info.currentVersionNum},
            {QLatin1String("update_available"), info.updateAvailable},
            {QLatin1String("latest"), latest},
            {QLatin1String("checked_at"), info.checkedAt}};
}

QJsonObject RecordJson::toJson(const GUIUpdateDownloadInfo &info)
{
    return {{QLatin1String("valid"), info.valid},
            {QLatin1String("state"), info.state},
            {QLatin1String("current_version"), info.currentVersion},
            {QLatin1String("version_code"), info.versionCode},
            {QLatin1String("version_num"), info.versionNum},
            {QLatin1String("bytes_downloaded"), info.bytesDownloaded},
            {QLatin1String("bytes_total"), info.bytesTotal},
            {QLatin1String("egress"), info.egress},
            {QLatin1String("local_path"), info.localPath},
            {QLatin1String("error_code"), info.errorCode},
            {QLatin1String("error_message"), info.errorMessage},
            {QLatin1String("started_at"), info.startedAt},
            {QLatin1String("updated_at"), info.updatedAt}};
}

QJsonObject RecordJson::toJson(const ProxyListenResultInfo &info)
{
    return {{QLatin1String("valid"), info.valid},
            {QLatin1String("applies_on_reconnect"), info.appliesOnReconnect},
            {QLatin1String("proxy_listeners"), listeners(info.proxyListeners)}};
}

QJsonObject RecordJson::toJson(const SplitDNSInfo &info)
{
    const QJsonObject config{
        {QLatin1String("path"), info.configuredPath},
        {QLatin1String("policy"), info.configuredPolicy},
        {QLatin1String("local_direct_dns"), strings(info.configuredLocalDirectDns)}};
    const QJsonObject effective{
        {QLatin1String("policy"), info.effectivePolicy},
        {QLatin1String("local_direct_dns"), strings(info.effectiveLocalDirectDns)},
        {QLatin1String("local_dns_source"), info.localDnsSource},
        {QLatin1String("auto_cn_default"), info.autoDefault},
        {QLatin1String("fake_ip_enabled"), info.fakeIpEnabled}};
    return {{QLatin1String("valid"), info.valid},
            {QLatin1String("config"), config},
            {QLatin1String("effective"), effective},
            {QLatin1String("changed"), info.changed},
            {QLatin1String("runtime_reloaded"), info.runtimeReloaded},
            {QLatin1String("runtime_warning"), info.runtimeWarning}};
}

QJsonObject RecordJson::toJson(const SplitRulesInfo &info)
{
    QJsonObject files;
    for (auto it = info.files.constBegin(); it != info.files.constEnd(); ++it)
        files.insert(it.key(), it.value());
    QJsonObject rules;
    for (auto it = info.rules.constBegin(); it != info.rules.constEnd(); ++it)
        rules.insert(it.key(), QJsonObject{{QLatin1String("items"), strings(it.value())}});
    return {{QLatin1String("valid"), info.valid},
            {QLatin1String("dir"), info.dir},
            {QLatin1String("files"), files},
            {QLatin1String("rules"), rules}};
}

QJsonObject RecordJson::toJson(const SplitRuleMutationInfo &info)
{
    return {{QLatin1String("valid"), info.valid},
            {QLatin1String("kind"), info.kind},
            {QLatin1String("changed"), info.changed},
            {QLatin1String("count"), info.count},
            {QLatin1String("file"), info.file},
            {QLatin1String("runtime_reloaded"), info.runtimeReloaded}};
}

QJsonObject RecordJson::toJson(const RepairResultInfo &info)
{
    return {{QLatin1String("valid"), info.valid},
            {QLatin1String("lines"), strings(info.lines)},
            {QLatin1String("failed_lines"), strings(info.failedLines)}};
}
