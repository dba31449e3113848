#include "host/view/build/ProxyGraphics.h"

#include "host/view/build/ProxyDrawer.h"

#include <array>

namespace host::view {

using drawing::TagList;

namespace {

constexpr std::size_t deepestProxyMatrix = 64;
constexpr int settingSize = 8; ///< bytes; what is not known and no larger is a setting, no shape

} // namespace

const std::array<ProxyDrawer::Row, 28> ProxyDrawer::rows = {{
    {1, &ProxyDrawer::nothing}, // the extents
    {2, &ProxyDrawer::circle},         {3, &ProxyDrawer::circleOfPoints}, {4, &ProxyDrawer::arc},
    {5, &ProxyDrawer::arcOfPoints},    {6, &ProxyDrawer::polyline},       {7, &ProxyDrawer::polygon},
    {8, &ProxyDrawer::mesh},           {9, &ProxyDrawer::shell},          {10, &ProxyDrawer::text},
    {11, &ProxyDrawer::text2},         {12, &ProxyDrawer::xline},         {13, &ProxyDrawer::ray},
    {14, &ProxyDrawer::colour},        {18, &ProxyDrawer::linetype},      {20, &ProxyDrawer::fill},
    {22, &ProxyDrawer::trueColour},    {23, &ProxyDrawer::lineweight},    {24, &ProxyDrawer::linetypeScale},
    {27, &ProxyDrawer::clip},          {28, &ProxyDrawer::nothing}, // the end of a clip
    {29, &ProxyDrawer::pushMatrix},    {30, &ProxyDrawer::pushMatrix},    {31, &ProxyDrawer::popMatrix},
    {32, &ProxyDrawer::polyline}, // with its normal
    {33, &ProxyDrawer::lightPolyline}, {36, &ProxyDrawer::wideText},      {38, &ProxyDrawer::wideText2},
}};

void ProxyDrawer::draw(QByteArrayView graphics)
{
    constexpr int headSize = 8;
    ProxyBytes all(graphics);
    all.integer(); // the size of all, which is what there is
    all.integer();
    while (all.left() > 0) {
        const int size = all.integer();
        const int kind = all.integer();
        const QByteArrayView content = size < headSize ? QByteArrayView() : all.take(size - headSize);
        if (size < headSize || !all.isGood()) {
            m_context.display.isSimplified = true;
            return;
        }
        m_context.display.isSimplified |= !drawPiece(kind, content);
    }
}

bool ProxyDrawer::drawPiece(int kind, QByteArrayView content)
{
    const auto row = std::ranges::find(rows, kind, &Row::kind);
    if (row == rows.end())
        return content.size() <= settingSize;
    ProxyBytes bytes(content);
    return (this->*row->draw)(bytes) && bytes.isGood();
}

bool ProxyDrawer::colour(ProxyBytes &bytes)
{
    m_style.colour = colourFromIndex(bytes.integer());
    return true;
}

/// The highest byte says what the others mean.
bool ProxyDrawer::trueColour(ProxyBytes &bytes)
{
    const auto value = static_cast<std::uint32_t>(bytes.integer());
    switch (value >> 24) {
    case 0xc1:
        m_style.colour = {.kind = Colour::Kind::ByBlock};
        break;
    case 0xc2:
        m_style.colour = {.kind = Colour::Kind::True, .value = value & 0xffffff};
        break;
    case 0xc3:
        m_style.colour = colourFromIndex(value & 0xffff);
        break;
    default:
        m_style.colour = {};
    }
    return true;
}

/// Numbers of linetypes count what the program had open; only those that mean the same everywhere are taken.
bool ProxyDrawer::linetype(ProxyBytes &bytes)
{
    constexpr int byLayer = 32767;
    constexpr int byBlock = 32766;
    const int number = bytes.integer();
    if (number == byLayer)
        m_style.linetype = Style::byLayer;
    else if (number == byBlock)
        m_style.linetype = Style::byBlock;
    else
        m_style.linetype = number == 0 ? 0 : m_context.style.linetype;
    return true;
}

bool ProxyDrawer::fill(ProxyBytes &bytes)
{
    m_isFilled = bytes.integer() == 1;
    return true;
}

bool ProxyDrawer::lineweight(ProxyBytes &bytes)
{
    m_style.lineweight = std::clamp(bytes.integer(), -3, 211);
    return true;
}

bool ProxyDrawer::linetypeScale(ProxyBytes &bytes)
{
    m_style.linetypeScale = bytes.real();
    return true;
}

/// Four rows of four numbers.
bool ProxyDrawer::pushMatrix(ProxyBytes &bytes)
{
    std::array<double, 16> numbers{};
    std::ranges::generate(numbers, [&bytes] { return bytes.real(); });
    if (m_matrices.size() == deepestProxyMatrix) {
        ++m_tooDeep;
        return false;
    }
    const auto column = [&](std::size_t i) { return Vec3{numbers[i], numbers[4 + i], numbers[8 + i]}; };
    const Matrix own{column(0), column(1), column(2), column(3)};
    m_matrices.push_back(map() * (bytes.isGood() ? own : Matrix()));
    return bytes.isGood();
}

bool ProxyDrawer::popMatrix(ProxyBytes &)
{
    if (m_tooDeep > 0)
        --m_tooDeep;
    else if (m_matrices.size() > 1)
        m_matrices.pop_back();
    return true;
}

QByteArray proxyGraphics(const TagList &tags)
{
    constexpr int dataCode = 310;
    QByteArray graphics;
    const auto own = tags.own();
    for (std::size_t i = 0; i + 1 < own.size(); ++i) {
        // Behind their length; other data of the record have other lengths in front.
        if ((own[i].code != 92 && own[i].code != 160) || own[i + 1].code != dataCode)
            continue;
        for (std::size_t at = i + 1; at < own.size() && own[at].code == dataCode; ++at)
            graphics += own[at].binary().value_or(QByteArray());
        break;
    }
    return graphics;
}

bool drawProxyGraphics(BuildContext &context, QByteArrayView graphics)
{
    const std::size_t before = context.display.items.size();
    ProxyDrawer(context).draw(graphics);
    return context.display.items.size() > before;
}

} // namespace host::view
