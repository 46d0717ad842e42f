#pragma once

#include "ControlEndpoints.h"

#include <QJsonObject>

// Writes records back as JSON for tovra-ctl: the daemon's own keys where a field has one,
// descriptive snake_case names for derived or client-built fields, and "valid" always.
class RecordJson
{
public:
    static QJsonObject toJson(const RuntimeInfo &info);
    static QJsonObject toJson(const ModeInfo &info);
    static QJsonObject toJson(const SplitProfileInfo &info);
    static QJsonObject toJson(const KillSwitchInfo &info);
    static QJsonObject toJson(const PacStatusInfo &info);
    static QJsonObject toJson(const NodeEntry &entry);
    static QJsonObject toJson(const NodesInfo &info);
    static QJsonObject toJson(const NodeGroupEntry &entry);
    static QJsonObject toJson(const NodeGroupsInfo &info);
    static QJsonObject toJson(const VersionInfo &info);
    static QJsonObject toJson(const APIURLConfigInfo &info);
    static QJsonObject toJson(const AutoConnectConfigInfo &info);
    static QJsonObject toJson(const LanguageConfigInfo &info);
    static QJsonObject toJson(const UserInfo &info);
    static QJsonObject toJson(const PurchaseURLInfo &info);
    static QJsonObject toJson(const ConfigPaths &info);
    static QJsonObject toJson(const UpdateInfo &info);
    static QJsonObject toJson(const GUIUpdateDownloadInfo &info);
    static QJsonObject toJson(const ProxyListenResultInfo &info);
    static QJsonObject toJson(const SplitDNSInfo &info);
    static QJsonObject toJson(const SplitRulesInfo &info);
    static QJsonObject toJson(const SplitRuleMutationInfo &info);
    static QJsonObject toJson(const RepairResultInfo &info);
};
