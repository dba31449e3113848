// Any text as a macro expression, with itself as the value of every variable, so that it can evaluate itself: it ends,
// and its value is of bounded size.

#include "fuzz/Require.h"
#include "host/drawing/text/MacroExpression.h"

using namespace host::drawing;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const MacroSurroundings surroundings{.variable = [&text](const QString &name) -> std::optional<QString> {
        if (name.isEmpty())
            return {};
        return text;
    }};
    const QString value = evaluateMacro(text, surroundings);
    require(value.size() <= largestMacroText + 2);
    // What has no call in it says what it is.
    if (!text.contains(QStringLiteral("$(")) && text.size() <= largestMacroText)
        require(value == text);
    return 0;
}
