#include "ControlMetaTypes.h"

#include "ControlEndpoints.h"

#include <QMetaType>

void registerControlMetaTypes()
{
    qRegisterMetaType<RuntimeInfo>("RuntimeInfo");
    qRegisterMetaType<ModeInfo>("ModeInfo");
    qRegisterMetaType<SplitProfileInfo>("SplitProfileInfo");
    qRegisterMetaType<KillSwitchInfo>("KillSwitchInfo");
    qRegisterMetaType<ProxyListenerInfo>("ProxyListenerInfo");
    qRegisterMetaType<ProxyAccessUrlInfo>("ProxyAccessUrlInfo");
    qRegisterMetaType<PacStatusInfo>("PacStatusInfo");
    qRegisterMetaType<NodesInfo>("NodesInfo");
    qRegisterMetaType<NodeEntry>("NodeEntry");
    qRegisterMetaType<NodeGroupsInfo>("NodeGroupsInfo");
    qRegisterMetaType<NodeGroupEntry>("NodeGroupEntry");
    qRegisterMetaType<NodeGroupTab>("NodeGroupTab");
    qRegisterMetaType<VersionInfo>("VersionInfo");
    qRegisterMetaType<APIURLConfigInfo>("APIURLConfigInfo");
    qRegisterMetaType<AutoConnectConfigInfo>("AutoConnectConfigInfo");
    qRegisterMetaType<LanguageEntry>("LanguageEntry");
    qRegisterMetaType<LanguageConfigInfo>("LanguageConfigInfo");
    qRegisterMetaType<UpdateInfo>("UpdateInfo");
    qRegisterMetaType<GUIUpdateDownloadInfo>("GUIUpdateDownloadInfo");
    qRegisterMetaType<UserInfo>("UserInfo");
    qRegisterMetaType<PurchaseURLInfo>("PurchaseURLInfo");
    qRegisterMetaType<ConfigPaths>("ConfigPaths");
    qRegisterMetaType<ProxyListenResultInfo>("ProxyListenResultInfo");
    qRegisterMetaType<SplitDNSInfo>("SplitDNSInfo");
    qRegisterMetaType<SplitRulesInfo>("SplitRulesInfo");
    qRegisterMetaType<SplitRuleMutationInfo>("SplitRuleMutationInfo");
    qRegisterMetaType<RepairResultInfo>("RepairResultInfo");
}
