#pragma once

#include "host/drawing/references/ShapeFiles.h"
#include "host/view/text/LetterWidths.h"
#include "host/view/text/StrokeFont.h"

#include <QCache>
#include <QFont>
#include <QHash>
#include <QPainterPath>
#include <QString>

#include <deque>
#include <shared_mutex>
#include <vector>

namespace host::view {

/// What a text asks for; a font is found for every request.
struct FontRequest
{
    QString name{}; ///< family ("Arial") or font file ("romans.shx", "arial.ttf"), empty for any
    bool isBold = false;
    bool isItalic = false;
    bool isFile = false; ///< the name is one of a file, also without its ending
    QString bigFont{};   ///< the file of a big font, for stroke fonts alone

    bool operator==(const FontRequest &) const = default;
};
size_t qHash(const FontRequest &request, size_t seed = 0);

/// Fonts of the machine and stroke fonts as a drawing needs them: measured in heights of a capital letter, and given as
/// outlines or strokes, so that text can be stretched, slanted and mirrored. Needs a QGuiApplication.
///
/// A font is named by a number from find(), which stays good as long as this object; other numbers are refused by an
/// exception. Everything but readFilesBy() and readAnew() may be called from several threads at once; a width costs no
/// lock where all letters were met before.
class Fonts
{
public:
    Fonts();
    Fonts(const Fonts &) = delete;
    Fonts &operator=(const Fonts &) = delete;

    /// Where the files of stroke fonts come from, for requests from now on; `codePage` (a value of $DWGCODEPAGE) is
    /// what fonts that are older than Unicode number their letters by. The files must outlive this. Without files all
    /// stroke fonts are drawn in the one that comes with the program.
    void readFilesBy(drawing::ShapeFiles &files, const QByteArray &codePage);
    /// Reads the files of all stroke fonts again. Whether something is different now: then what was measured and made
    /// before is out of date.
    bool readAnew();

    /// A number that stands for the font from now on. Stroke fonts whose files are not found are drawn in the plain one
    /// with the proportions of the one that was asked for; families that the machine lacks get a sans-serif, serif or
    /// fixed-width stand-in by the sound of their name. After 4096 different ones all others are drawn like the first.
    int find(const FontRequest &request);
    /// What is drawn in place of a font that is not there: the stand-in's family, "plain" for the stroke font that
    /// comes with the program; empty where the font itself is drawn.
    QString standIn(int font) const;
    /// Advance of the text in capital heights; characters behind the first 4096 are left out.
    double width(int font, const QString &text) const;
    /// As width(), but a stroke font's last letter counts without the room behind it: what texts are aligned by.
    double inkWidth(int font, const QString &text) const;
    /// How low and how high the letters reach, as x and y; 0 and 0 for a text without letters.
    drawing::Vec2 reach(int font, const QString &text) const;

    /// Where a letter stands in a text that runs downwards: from the pen to where the letter starts, and how far below
    /// the next one is. Letters hang by their middle.
    struct Hanging
    {
        drawing::Vec2 start{};
        double drop = 0.0;
    };
    Hanging hanging(int font, const QString &letter) const;

    /// Whether letters are lines and not areas.
    bool isStroked(int font) const { return faceOf(font).strokes != nullptr; }
    /// The letters of a text in a stroke font, as many as of width(): visit(glyph, map) with the map from the glyph's
    /// coordinates, x' = map.x + map.xx * x + map.xy * y.
    struct Placement
    {
        double x = 0.0;
        double xx = 1.0;
        double xy = 0.0;
    };
    template <typename Visit>
    void forEachGlyph(int font, const QString &text, Visit visit) const
    {
        const Face &face = faceOf(font);
        double x = 0.0;
        forEachLetter(text, [&](char32_t letter) {
            const StrokeGlyph &glyph = glyphOf(face, letter);
            visit(glyph, Placement{.x = x + indentOf(face, glyph), .xx = face.widthFactor, .xy = face.slant});
            x += advanceOf(face, glyph);
        });
    }
    /// Points to draw beyond those that letters have as a rule; damaged and very ornate fonts have such.
    std::int64_t extraPoints(int font, const QString &text) const;

    /// The font itself, at the size it is kept here, and the height of its capitals at that size. Not for stroke fonts.
    const QFont &face(int font) const { return faceOf(font).font; }
    double capHeight(int font) const { return faceOf(font).capHeight; }
    /// The glyphs from the origin along x, y up, in capital heights; as many as of width(). Of a stroke font its lines,
    /// which are open. Outlines are kept, up to two million points together.
    QPainterPath outline(int font, const QString &text) const;

private:
    struct Face
    {
        FontRequest request{};
        std::shared_ptr<const LetterWidths> widths{}; ///< of a font of the machine
        QFont font{};
        double capHeight = 1.0; ///< in units of the font as it is kept here
        // Of a stroke font.
        std::shared_ptr<const StrokeFont> own{};
        const StrokeFont *strokes = nullptr; ///< that one or the plain one
        double widthFactor = 1.0;
        double slant = 0.0; ///< to the right for each unit upwards
        double pitch = 0.0; ///< advance of each letter; 0: its own
        bool hasToleranceSigns = false;
    };
    using OutlineKey = std::pair<int, QString>;

    static constexpr std::size_t mostFaces = 4096;

    const Face &faceOf(int font) const;
    Face makeFace(const FontRequest &request);
    std::shared_ptr<const StrokeFont> readStrokeFont(const FontRequest &request);
    bool isStrokeRequest(const FontRequest &request);
    template <typename Visit>
    static void forEachLetter(const QString &text, Visit visit)
    {
        constexpr qsizetype longestRun = 4096;
        const qsizetype end = std::min(longestRun, text.size());
        for (qsizetype i = 0; i < end; ++i) {
            const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
            visit(isPair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : char32_t(text[i].unicode()));
            i += isPair ? 1 : 0;
        }
    }
    /// The letter, or what is drawn in its place.
    static const StrokeGlyph &glyphOf(const Face &face, char32_t letter);
    static double advanceOf(const Face &face, const StrokeGlyph &glyph)
    {
        return face.pitch > 0.0 ? face.pitch : glyph.advance * face.widthFactor;
    }
    /// Letters stand in the middle of a fixed pitch.
    static double indentOf(const Face &face, const StrokeGlyph &glyph)
    {
        return face.pitch > 0.0 ? (face.pitch - glyph.advance * face.widthFactor) / 2.0 : 0.0;
    }
    QPainterPath strokePath(int font, const QString &text) const;

    drawing::ShapeFiles *m_files = nullptr;
    drawing::TextCodec m_codec;
    std::deque<Face> m_faces;                          ///< they keep their place in memory
    std::vector<std::atomic<const Face *>> m_numbered; ///< by number, to be read while another one is made
    QHash<FontRequest, int> m_found;
    mutable std::shared_mutex m_finding;
    mutable std::mutex m_outlining;
    mutable QCache<OutlineKey, QPainterPath> m_outlines; ///< each counts with its points
};

} // namespace host::view
