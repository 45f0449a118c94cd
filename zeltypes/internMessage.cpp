#include "internMessage.h"

#include <cstdio>
#include <utility>

namespace {

ZelInternMessageSink &currentSink()
{
    static ZelInternMessageSink sink;
    return sink;
}

} // namespace

void internMessage(const char *file, long line, const char *text)
{
    if (currentSink())
        currentSink()(file, line, text);
    else
        std::fprintf(stderr, "%s:%ld: %s\n", file ? file : "", line, text ? text : "");
}

ZelInternMessageSink setInternMessageSink(ZelInternMessageSink sink)
{
    return std::exchange(currentSink(), std::move(sink));
}
