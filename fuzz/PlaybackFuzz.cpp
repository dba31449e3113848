// Any text as a recorded session: every line is a step, an error or nothing, a step's own text reads as that step, and
// the lines of a session mean what each means by itself.

#include "fuzz/Require.h"
#include "host/app/playback/PlaybackScript.h"

using namespace host::app;

namespace {

void requireEqual(const Step &step, const Step &other)
{
    require(step.verb == other.verb && step.kind == other.kind && step.words == other.words);
    require(step.points == other.points && step.source == other.source);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const PlaybackScript script = parsePlayback(text);
    const qsizetype lines = text.count(u'\n') + text.count(u'\r') + 1;
    require(script.steps.size() <= lines);
    int before = 0;
    for (const Step &step : script.steps) {
        require(step.line > before && step.line <= lines);
        before = step.line;
        const PlaybackScript alone = parsePlayback(step.source);
        require(alone.errors.isEmpty() && alone.steps.size() == 1);
        requireEqual(step, alone.steps.first());
    }
    for (const ScriptError &error : script.errors)
        require(error.line > 0 && error.line <= lines && !error.message.isEmpty());
    return 0;
}
