#pragma once

#include <QCache>
#include <QFont>
#include <QHash>
#include <QPainterPath>
#include <QString>

#include <vector>

namespace host::view {

/// What a text asks for; a font that the machine has is found for every request.
struct FontRequest
{
    QString name{}; ///< family ("Arial") or font file ("romans.shx", "arial.ttf"), empty for any
    bool isBold = false;
    bool isItalic = false;

    bool operator==(const FontRequest &) const = default;
};
size_t qHash(const FontRequest &request, size_t seed = 0);

/// Fonts of the machine as a drawing needs them: measured in heights of a capital letter, given as outlines, so that
/// text can be stretched, slanted and mirrored. User-interface thread only; needs a QGuiApplication.
///
/// A font is named by a number from find(), which stays good as long as this object; other numbers are refused by an
/// exception.
class Fonts
{
public:
    Fonts();

    /// A number that stands for the font from now on. Family names that the machine lacks and stroke fonts get a
    /// sans-serif, serif or fixed-width stand-in by the sound of their name.
    int find(const FontRequest &request);
    /// Advance of the text in capital heights; characters behind the first 4096 are left out.
    double width(int font, const QString &text);
    /// The font itself, at the size it is kept here, and the height of its capitals at that size. References hold until
    /// the next find().
    const QFont &face(int font) const { return m_faces.at(static_cast<std::size_t>(font)).font; }
    double capHeight(int font) const { return m_faces.at(static_cast<std::size_t>(font)).capHeight; }
    /// The glyphs from the origin along x, y up, in capital heights; as many as of width(). Outlines are kept, up to
    /// two million points together. The reference holds until the next call.
    const QPainterPath &outline(int font, const QString &text);

private:
    struct Face
    {
        QFont font{};
        double capHeight = 1.0; ///< in units of the font as it is kept here
    };
    using OutlineKey = std::pair<int, QString>;

    std::vector<Face> m_faces;
    QHash<FontRequest, int> m_found;
    QCache<OutlineKey, QPainterPath> m_outlines; ///< each counts with its points
    QPainterPath m_uncached;                     ///< the last one that was made, which the cache may not have taken
};

} // namespace host::view
