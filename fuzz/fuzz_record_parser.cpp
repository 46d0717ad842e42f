// Every record parser reads whatever the daemon sends: malformed or hostile JSON must never
// crash, and a valid record never comes with an error. The first byte picks the
// parser (so one target, one corpus and one short CI run cover them all), the rest is the body.
#include "APIURLConfigInfo.h"
#include "AutoConnectConfigInfo.h"
#include "ConfigPaths.h"
#include "GUIUpdateDownloadInfo.h"
#include "JsonRead.h"
#include "KillSwitchInfo.h"
#include "LanguageConfigInfo.h"
#include "ModeInfo.h"
#include "NodeGroupsInfo.h"
#include "NodesInfo.h"
#include "ProxyListenResultInfo.h"
#include "PurchaseURLInfo.h"
#include "RuntimeInfo.h"
#include "SplitDNSInfo.h"
#include "SplitRuleMutationInfo.h"
#include "SplitRulesInfo.h"
#include "UpdateInfo.h"
#include "UserInfo.h"

#include <cstddef>
#include <cstdint>

namespace {

// An empty object is no record and no error for some records (mode, kill switch), so the check is
// one way: a valid record never comes with an error.
template<typename Record>
void parseChecked(const QByteArray &body)
{
    QString error;
    const Record record = Record::parse(body, &error);
    if (record.valid && !error.isEmpty())
        __builtin_trap();
    Record::parse(body, nullptr); // no error output wanted: must not write through null
}

// The version answer and the repair answers are read inline by their endpoints with the shared
// lenient readers; these are what they call on the body.
void parseLenient(const QByteArray &body)
{
    const auto object = JsonRead::parseObject(body);
    if (!object)
        return;
    JsonRead::text(*object, QLatin1String("version"));
    JsonRead::integer(*object, QLatin1String("version_num"));
    JsonRead::integer64(*object, QLatin1String("size"));
    JsonRead::number(*object, QLatin1String("progress"));
    JsonRead::boolean(*object, QLatin1String("enabled"));
    JsonRead::textList(*object, QLatin1String("servers"));
    JsonRead::objects(object->value(QLatin1String("nodes")));
    JsonRead::idText(object->value(QLatin1String("id")));
    JsonRead::object(*object, QLatin1String("config"));
}

using Parser = void (*)(const QByteArray &);
constexpr Parser kParsers[] = {
    parseChecked<RuntimeInfo>,           // 0 /v1/status, connect, login...
    parseChecked<NodesInfo>,             // 1 /v1/nodes
    parseChecked<NodeGroupsInfo>,        // 2 /v1/nodes/groups
    parseChecked<UserInfo>,              // 3 /v1/user
    parseChecked<ModeInfo>,              // 4 /v1/mode
    parseChecked<KillSwitchInfo>,        // 5 /v1/kill-switch
    parseChecked<UpdateInfo>,            // 6 /v1/gui/update
    parseChecked<GUIUpdateDownloadInfo>, // 7 /v1/gui/update/download
    parseChecked<SplitRulesInfo>,        // 8 /v1/split/rules
    parseChecked<SplitRuleMutationInfo>, // 9 split rule import
    parseChecked<SplitDNSInfo>,          // 10 /v1/split-dns
    parseChecked<PurchaseURLInfo>,       // 11 purchase link
    parseChecked<ConfigPaths>,           // 12 /v1/config/paths
    parseChecked<APIURLConfigInfo>,      // 13 API URL
    parseChecked<AutoConnectConfigInfo>, // 14 auto connect
    parseChecked<LanguageConfigInfo>,    // 15 language
    parseChecked<ProxyListenResultInfo>, // 16 proxy listeners
    parseLenient,                        // 17 version, repairs
};
constexpr size_t kParserCount = sizeof(kParsers) / sizeof(kParsers[0]);

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray body(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1));
    kParsers[data[0] % kParserCount](body);
    return 0;
}
