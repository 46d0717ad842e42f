#include "SplitRuleMutationInfo.h"

#include "JsonRead.h"

SplitRuleMutationInfo SplitRuleMutationInfo::parse(const QByteArray &body, QString *errorOut)
{
    const auto object = JsonRead::parseObject(body);
    if (!object) {
        if (errorOut)
            *errorOut = QStringLiteral("invalid split rule mutation JSON");
        return SplitRuleMutationInfo();
    }
    SplitRuleMutationInfo info;
    info.valid = true;
    info.kind = JsonRead::text(*object, QLatin1String("kind"));
    info.changed = JsonRead::boolean(*object, QLatin1String("changed"));
    info.count = JsonRead::integer(*object, QLatin1String("count"));
    info.file = JsonRead::text(*object, QLatin1String("file"));
    info.runtimeReloaded = JsonRead::boolean(*object, QLatin1String("runtime_reloaded"));
    return info;
}
