#include "host/view/text/Fonts.h"

#include <QFontDatabase>
#include <QFontMetricsF>

namespace host::view {

using namespace Qt::StringLiterals;

namespace {

constexpr int referenceSize = 128;
constexpr int outlineCacheElements = 2'000'000;
constexpr qsizetype longestRun = 4096;

bool hasFamily(const QString &family)
{
    return QFontDatabase::families().contains(family, Qt::CaseInsensitive);
}

/// Stand-ins are narrow ones where there are: what drawings ask for is mostly narrower than the fonts of free systems.
QString standIn(const QString &name)
{
    const QString lower = name.toLower();
    const auto sounds = [&lower](std::initializer_list<QLatin1StringView> words) {
        return std::ranges::any_of(words, [&lower](QLatin1StringView word) { return lower.contains(word); });
    };
    if (sounds({"mono"_L1, "cour"_L1, "consol"_L1, "typewriter"_L1}))
        return u"DejaVu Sans Mono"_s;
    if (sounds({"times"_L1, "serif"_L1, "roman.ttf"_L1, "georgia"_L1, "garamond"_L1, "book"_L1}))
        return u"DejaVu Serif Condensed"_s;
    return u"DejaVu Sans Condensed"_s;
}

QString familyFor(const QString &name)
{
    const qsizetype folder = std::max(name.lastIndexOf(u'/'), name.lastIndexOf(u'\\'));
    const QString file = name.mid(folder + 1).trimmed();
    const qsizetype dot = file.lastIndexOf(u'.');
    const QString family = dot > 0 ? file.left(dot) : file;
    const bool isStrokeFont = file.endsWith(".shx"_L1, Qt::CaseInsensitive);
    return !family.isEmpty() && !isStrokeFont && hasFamily(family) ? family : standIn(file);
}

QFont makeFont(const FontRequest &request)
{
    QFont font(familyFor(request.name));
    font.setPixelSize(referenceSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleHint(QFont::SansSerif);
    font.setBold(request.isBold);
    font.setItalic(request.isItalic);
    return font;
}

} // namespace

size_t qHash(const FontRequest &request, size_t seed)
{
    return qHashMulti(seed, request.name, request.isBold, request.isItalic);
}

Fonts::Fonts() : m_outlines(outlineCacheElements) {}

int Fonts::find(const FontRequest &request)
{
    if (const auto known = m_found.constFind(request); known != m_found.constEnd())
        return *known;
    Face face{.font = makeFont(request)};
    QPainterPath capital;
    capital.addText(0.0, 0.0, face.font, u"H"_s);
    const double measured = capital.boundingRect().height();
    face.capHeight = measured > 0.0 ? measured : referenceSize * 0.7;
    m_faces.push_back(std::move(face));
    const int index = static_cast<int>(m_faces.size()) - 1;
    m_found.insert(request, index);
    return index;
}

double Fonts::width(int font, const QString &text)
{
    const Face &face = m_faces.at(static_cast<std::size_t>(font));
    return QFontMetricsF(face.font).horizontalAdvance(text.left(longestRun)) / face.capHeight;
}

const QPainterPath &Fonts::outline(int font, const QString &text)
{
    const OutlineKey key(font, text);
    if (const QPainterPath *known = m_outlines.object(key))
        return *known;
    const Face &face = m_faces.at(static_cast<std::size_t>(font));
    QPainterPath glyphs;
    glyphs.addText(0.0, 0.0, face.font, text.left(longestRun));
    glyphs.setFillRule(Qt::WindingFill);
    m_uncached = QTransform::fromScale(1.0 / face.capHeight, -1.0 / face.capHeight).map(glyphs);
    // An outline too large for the cache is not taken, so what is given out is never the cache's own copy.
    m_outlines.insert(key, new QPainterPath(m_uncached), std::max(1, m_uncached.elementCount()));
    return m_uncached;
}

} // namespace host::view
