// Arbitrary bytes from the socket must never crash the response parser or the error wording.
#include "ControlClient.h"
#include "ControlResponseParser.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    // The first byte picks end-of-stream, the rest is the buffer as the socket delivered it.
    const bool endOfStream = data[0] & 1;
    const QByteArray buffer(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1));
    ControlResponse response;
    if (ControlResponseParser::parse(buffer, endOfStream, &response)) {
        const QString text = ControlClient::responseErrorText(response);
        if (text.isEmpty())
            __builtin_trap();
    }
    return 0;
}
