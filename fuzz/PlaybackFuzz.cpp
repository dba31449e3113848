// Any text as a recorded session: every line is steps, errors or nothing, and a step's own text reads as that step: the
// lines of a session mean what each means by itself.

#include "fuzz/Require.h"
#include "host/app/playback/PlaybackScript.h"

using namespace host::app;

namespace {

void requireEqual(const Step &step, const Step &other)
{
    require(step.verb == other.verb && step.kind == other.kind && step.words == other.words);
    require(step.points == other.points && step.source == other.source);
}

/// Steps in the order of their lines, which may hold several.
void requireInOrder(const QList<Step> &steps, int before, qsizetype lines)
{
    for (const Step &step : steps) {
        require(step.line >= before && step.line > 0 && step.line <= lines);
        before = step.line;
        // What a part was given may have line feeds in it, which no line has.
        if (step.source.contains(u'\n'))
            continue;
        const PlaybackScript alone = parsePlayback(step.source);
        require(alone.errors.isEmpty() && alone.steps.size() == 1);
        requireEqual(step, alone.steps.first());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const PlaybackScript script = parsePlayback(text);
    const qsizetype lines = text.count(u'\n') + text.count(u'\r') + 1;
    requireInOrder(script.steps, 0, lines);
    for (const PlaybackCase &one : script.cases) {
        require(one.line > 0 && one.line <= lines);
        requireInOrder(one.steps, one.line, lines);
    }
    for (const ScriptError &error : script.errors)
        require(error.line > 0 && error.line <= lines && !error.message.isEmpty());
    return 0;
}
