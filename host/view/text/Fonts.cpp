#include "host/view/text/Fonts.h"

#include "host/view/text/StrokeFontTable.h"

#include <QFontDatabase>
#include <QSet>

#include <stdexcept>

namespace host::view {

using namespace Qt::StringLiterals;

namespace {

constexpr int referenceSize = 128;
constexpr int outlineCacheElements = 2'000'000;
constexpr qsizetype longestRun = 4096;

/// The machine's families are listed once: a drawing may name thousands of fonts.
bool hasFamily(const QString &family)
{
    static const QSet<QString> families = [] {
        QSet<QString> folded;
        for (const QString &name : QFontDatabase::families())
            folded.insert(name.toCaseFolded());
        return folded;
    }();
    return families.contains(family.toCaseFolded());
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

QString fileOf(const QString &name)
{
    return name.mid(std::max(name.lastIndexOf(u'/'), name.lastIndexOf(u'\\')) + 1).trimmed();
}

QString familyFor(const QString &name)
{
    const QString file = fileOf(name);
    const qsizetype dot = file.lastIndexOf(u'.');
    const QString family = dot > 0 ? file.left(dot) : file;
    return !family.isEmpty() && hasFamily(family) ? family : standIn(file);
}

QFont makeFont(const FontRequest &request)
{
    QFont font(familyFor(request.name));
    font.setPixelSize(referenceSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleHint(QFont::SansSerif);
    font.setBold(request.isBold);
    font.setItalic(request.isItalic);
    // Drawings are written by programs that set each letter by itself.
    font.setKerning(false);
    return font;
}

} // namespace

size_t qHash(const FontRequest &request, size_t seed)
{
    return qHashMulti(seed, request.name, request.isBold, request.isItalic, request.isFile, request.bigFont);
}

Fonts::Fonts() : m_numbered(mostFaces), m_outlines(outlineCacheElements) {}

void Fonts::readFilesBy(drawing::ShapeFiles &files, const QByteArray &codePage)
{
    m_files = &files;
    m_codec = drawing::TextCodec::forCodePage(codePage);
}

bool Fonts::readAnew()
{
    bool isDifferent = false;
    for (Face &face : m_faces) {
        if (!face.strokes)
            continue;
        Face read = makeFace(face.request);
        const bool hadFile = face.own != nullptr;
        if (hadFile == (read.own != nullptr) && (!hadFile || face.own->hasSameFiles(*read.own)))
            continue;
        face = std::move(read);
        isDifferent = true;
    }
    if (isDifferent)
        m_outlines.clear();
    return isDifferent;
}

int Fonts::find(const FontRequest &request)
{
    {
        const std::shared_lock lock(m_finding);
        if (const auto known = m_found.constFind(request); known != m_found.constEnd())
            return *known;
    }
    const std::scoped_lock lock(m_finding);
    if (const auto known = m_found.constFind(request); known != m_found.constEnd())
        return *known;
    if (m_faces.size() == mostFaces)
        return 0;
    const std::size_t index = m_faces.size();
    m_faces.push_back(makeFace(request));
    m_numbered[index].store(&m_faces.back(), std::memory_order_release);
    m_found.insert(request, static_cast<int>(index));
    return static_cast<int>(index);
}

const Fonts::Face &Fonts::faceOf(int font) const
{
    const Face *face = m_numbered.at(static_cast<std::size_t>(font)).load(std::memory_order_acquire);
    if (!face)
        throw std::out_of_range("no font of this number");
    return *face;
}

/// By the ending of a file; without one by what there is.
bool Fonts::isStrokeRequest(const FontRequest &request)
{
    const QString file = fileOf(request.name);
    if (file.endsWith(".shx"_L1, Qt::CaseInsensitive) || file.endsWith(".shp"_L1, Qt::CaseInsensitive))
        return true;
    if (file.isEmpty() || file.contains(u'.'))
        return file.isEmpty() && request.isFile;
    return strokeFontLook(file) || (request.isFile && !hasFamily(file));
}

std::shared_ptr<const StrokeFont> Fonts::readStrokeFont(const FontRequest &request)
{
    const auto usable = [this](const QString &name) {
        StrokeFont::File file = m_files && !name.isEmpty() ? m_files->share(name) : nullptr;
        return file && StrokeFont::isUsable(*file) ? file : nullptr;
    };
    const StrokeFont::File file = usable(request.name);
    const StrokeFont::File bigFont = usable(request.bigFont);
    if (!file && !bigFont)
        return nullptr;
    const QByteArray page = bigFontCodePage(request.bigFont);
    const drawing::TextCodec codec = bigFont && !page.isEmpty() ? drawing::TextCodec::forCodePage(page) : m_codec;
    return std::make_shared<const StrokeFont>(file, bigFont && bigFont->isBigFont() ? bigFont : nullptr, codec);
}

Fonts::Face Fonts::makeFace(const FontRequest &request)
{
    Face face{.request = request};
    if (isStrokeRequest(request)) {
        face.own = readStrokeFont(request);
        face.strokes = face.own ? face.own.get() : &plainStrokeFont();
        if (!face.own || !face.own->hasOwnFile()) {
            const StrokeFontLook look = strokeFontLook(request.name).value_or(StrokeFontLook{});
            face.widthFactor = look.widthFactor;
            face.slant = look.slant;
            face.pitch = look.pitch;
            face.hasToleranceSigns = look.hasToleranceSigns;
        }
        return face;
    }
    face.font = makeFont(request);
    QPainterPath capital;
    capital.addText(0.0, 0.0, face.font, u"H"_s);
    const double measured = capital.boundingRect().height();
    face.capHeight = measured > 0.0 ? measured : referenceSize * 0.7;
    face.widths = std::make_shared<const LetterWidths>(face.font);
    return face;
}

const StrokeGlyph &Fonts::glyphOf(const Face &face, char32_t letter)
{
    static const StrokeGlyph nothing;
    for (const char32_t shown : {face.hasToleranceSigns ? toleranceSign(letter) : letter, U'?'}) {
        if (const StrokeGlyph *own = face.strokes->find(shown))
            return *own;
        if (const StrokeGlyph *plain = plainStrokeFont().find(shown))
            return *plain;
    }
    return nothing;
}

QString Fonts::standIn(int font) const
{
    const Face &face = faceOf(font);
    if (face.strokes)
        return face.own && face.own->hasOwnFile() ? QString() : u"plain"_s;
    const QString family = familyFor(face.request.name);
    const QString asked = fileOf(face.request.name);
    return family.compare(asked.left(family.size()), Qt::CaseInsensitive) == 0 ? QString() : family;
}

double Fonts::width(int font, const QString &text) const
{
    const Face &face = faceOf(font);
    if (!face.strokes)
        return face.widths->width(QStringView(text).left(longestRun)) / face.capHeight;
    double width = 0.0;
    forEachLetter(text, [&](char32_t letter) { width += advanceOf(face, glyphOf(face, letter)); });
    return width;
}

double Fonts::inkWidth(int font, const QString &text) const
{
    const double full = width(font, text);
    const Face &face = faceOf(font);
    if (!face.strokes || text.isEmpty() || face.pitch > 0.0)
        return full;
    const StrokeGlyph &last = glyphOf(face, text.back().unicode());
    const double room = (last.advance - last.right) * face.widthFactor;
    return last.lines.empty() || room <= 0.0 ? full : full - room;
}

drawing::Vec2 Fonts::reach(int font, const QString &text) const
{
    if (!isStroked(font)) {
        const QRectF ink = outline(font, text).boundingRect();
        return {ink.top(), ink.bottom()};
    }
    drawing::Vec2 reach;
    forEachGlyph(font, text, [&reach](const StrokeGlyph &glyph, const Placement &) {
        reach.x = std::min(reach.x, glyph.low);
        reach.y = std::max(reach.y, glyph.high);
    });
    return reach;
}

Fonts::Hanging Fonts::hanging(int font, const QString &letter) const
{
    constexpr double usualDrop = 5.0 / 3.0;
    Hanging result{.start = {-width(font, letter) / 2.0, -1.0}, .drop = usualDrop};
    const Face &face = faceOf(font);
    if (face.strokes && !letter.isEmpty()) {
        const StrokeGlyph &glyph = glyphOf(face, letter.front().unicode());
        result.start = {glyph.hanging.x * face.widthFactor - indentOf(face, glyph), glyph.hanging.y};
        result.drop = glyph.drop;
    }
    return result;
}

std::int64_t Fonts::extraPoints(int font, const QString &text) const
{
    std::int64_t extra = 0;
    const Face &face = faceOf(font);
    if (face.strokes && face.strokes->hasOrnateLetters())
        forEachGlyph(font, text, [&extra](const StrokeGlyph &glyph, const Placement &) {
            extra += std::max<std::int64_t>(0, glyph.points - StrokeFont::usualPoints);
        });
    return extra;
}

QPainterPath Fonts::strokePath(int font, const QString &text) const
{
    constexpr double off = 0.002;
    QPainterPath path;
    forEachGlyph(font, text, [&path](const StrokeGlyph &glyph, const Placement &map) {
        for (const drawing::ShapeLine &line : glyph.lines) {
            bool isFirst = true;
            for (const drawing::Vec2 &point : straightPieces(line, off)) {
                const QPointF at(map.x + map.xx * point.x + map.xy * point.y, point.y);
                isFirst ? path.moveTo(at) : path.lineTo(at);
                isFirst = false;
            }
        }
    });
    return path;
}

QPainterPath Fonts::outline(int font, const QString &text) const
{
    const OutlineKey key(font, text);
    const std::scoped_lock lock(m_outlining);
    if (const QPainterPath *known = m_outlines.object(key))
        return *known;
    QPainterPath made;
    if (isStroked(font)) {
        made = strokePath(font, text);
    } else {
        const Face &face = faceOf(font);
        QPainterPath glyphs;
        glyphs.addText(0.0, 0.0, face.font, text.left(longestRun));
        glyphs.setFillRule(Qt::WindingFill);
        made = QTransform::fromScale(1.0 / face.capHeight, -1.0 / face.capHeight).map(glyphs);
    }
    m_outlines.insert(key, new QPainterPath(made), std::max(1, made.elementCount()));
    return made;
}

} // namespace host::view
