// The texts of pictures that entities of other programs keep.

#include "host/view/build/ProxyDrawer.h"
#include "host/view/text/TextCodes.h"

namespace host::view {

namespace {

/// Without the codes of single-line texts.
QString proxyPlain(const QString &content)
{
    QString plain;
    for (const TextPiece &piece : parseTextCodes(content))
        plain += piece.text;
    return plain;
}

} // namespace

bool ProxyDrawer::addText(const QString &content, const Letters &letters)
{
    const Vec3 x = normalized(letters.direction);
    const Vec3 y = normalized(cross(letters.normal, x));
    const Matrix own{x * (letters.height * letters.width),
                     (y + x * std::tan(letters.oblique)) * letters.height,
                     {0.0, 0.0, 1.0},
                     letters.at};
    const Matrix placement = map() * own;
    if (!isUsable(placement.origin) || !isUsable(placement.xAxis) || !isUsable(placement.yAxis))
        return false;
    if (content.trimmed().isEmpty())
        return true;
    Style style = m_style;
    style.linetype = 0;
    auto run = std::make_unique<TextRun>(TextRun{.text = content, .placement = placement});
    run->font = m_context.fonts().find({.name = letters.font});
    run->width = m_context.fonts().width(run->font, content);
    m_context.add(std::move(run), style);
    return true;
}

bool ProxyDrawer::plainText(ProxyBytes &bytes, bool isWide)
{
    Letters letters{.at = bytes.point(), .normal = bytes.point(), .direction = bytes.point()};
    letters.height = bytes.real();
    letters.width = bytes.real();
    letters.oblique = bytes.real();
    const QString content = isWide ? bytes.wideText() : bytes.text(m_context.drawing.codec());
    return bytes.isGood() && addText(proxyPlain(content), letters);
}

bool ProxyDrawer::styledText(ProxyBytes &bytes, bool isWide)
{
    const auto textOf = [&] { return isWide ? bytes.wideText() : bytes.text(m_context.drawing.codec()); };
    Letters letters{.at = bytes.point(), .normal = bytes.point(), .direction = bytes.point()};
    QString content = textOf();
    const int length = bytes.integer();
    if (length >= 0)
        content.truncate(length);
    const bool isRaw = bytes.integer() != 0;
    letters.height = bytes.real();
    letters.width = bytes.real();
    letters.oblique = bytes.real();
    bytes.real(); // how far letters stand apart
    const bool isBackward = bytes.integer() != 0;
    const bool isUpsideDown = bytes.integer() != 0;
    constexpr int otherSwitches = 3; // upright columns, lines below and above
    constexpr int typefaceNumbers = 4;
    bytes.take(4 * (otherSwitches + (isWide ? typefaceNumbers : 0)));
    if (isWide)
        bytes.wideText(); // the typeface, whose file follows
    letters.font = textOf();
    letters.width *= isBackward ? -1.0 : 1.0;
    if (isUpsideDown) {
        letters.normal = letters.normal * -1.0;
    }
    return bytes.isGood() && addText(isRaw ? content : proxyPlain(content), letters);
}

} // namespace host::view
