// Any bytes as multi-line text, in boxes of several widths and in columns: every letter of its words stands somewhere,
// in order, and each piece at a place that is a number.

#include "fuzz/GuiApplication.h"
#include "fuzz/Require.h"
#include "host/view/text/MTextLayout.h"

#include <QGuiApplication>

#include <cmath>

using namespace host::view;

namespace {

QString lettersOf(const std::vector<MTextToken> &tokens)
{
    QString letters;
    for (const MTextToken &token : tokens) {
        if (token.kind == MTextToken::Kind::Space)
            letters += u' ';
        else if (token.kind == MTextToken::Kind::Word || token.kind == MTextToken::Kind::Stack)
            letters += token.text + token.lower;
    }
    return letters;
}

void checkLayout(const std::vector<MTextToken> &tokens, double width, bool isInColumns, Fonts &fonts)
{
    MTextBox box;
    box.width = width;
    box.styleFont = {.name = isInColumns ? QStringLiteral("txt.shx") : QString()};
    if (isInColumns)
        box.columns = MTextColumns{.heights = {3.0, 0.5}, .furtherHeight = 4.0, .count = 2, .gutter = 1.0};
    const MTextLayout layout = layOutMText(tokens, box, 1.0, fonts);
    QString letters;
    for (const MTextRun &run : layout.runs) {
        letters += run.text;
        require(std::isfinite(run.x) && std::isfinite(run.y) && std::isfinite(run.width));
        require(run.format.height > 0.0);
    }
    require(letters == lettersOf(tokens));
    for (const MTextRule &rule : layout.rules)
        require(std::isfinite(rule.x1) && std::isfinite(rule.y1) && std::isfinite(rule.x2) && std::isfinite(rule.y2));
    require(std::isfinite(layout.width) && std::isfinite(layout.height));
    require(width <= 0.0 || (isInColumns ? layout.width > 2.0 * width : layout.width == width));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    makeApplication<QGuiApplication>();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static Fonts fonts;
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const std::vector<MTextToken> tokens = MTextParser(text, {}).parse();
    require(tokens.size() <= std::size_t(text.size()) + 1);
    for (const double width : {0.0, 0.5, 20.0})
        checkLayout(tokens, width, false, fonts);
    checkLayout(tokens, 20.0, true, fonts);
    return 0;
}
