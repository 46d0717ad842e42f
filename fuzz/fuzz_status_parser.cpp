// The record parsers read whatever the daemon sends; malformed or hostile JSON must never crash.
#include "NodeGroupsInfo.h"
#include "NodesInfo.h"
#include "RuntimeInfo.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray body(reinterpret_cast<const char *>(data), qsizetype(size));
    QString error;
    const RuntimeInfo status = RuntimeInfo::parse(body, &error);
    if (status.valid == error.isEmpty()) {
        NodesInfo::parse(body, nullptr);
        NodeGroupsInfo::parse(body, nullptr);
        return 0;
    }
    __builtin_trap(); // valid exactly when no error was reported
}
