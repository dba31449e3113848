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
class Fonts
{
public:
    Fonts();

    /// A number that stands for the font from now on. Family names that the machine lacks and stroke fonts get a
    /// sans-serif, serif or fixed-width stand-in by the sound of their name.
    int find(const FontRequest &request);
    /// Advance of the text in capital heights.
    double width(int font, const QString &text);
    /// The font itself, at the size it is kept here, and the height of its capitals at that size.
    const QFont &face(int font) const { return m_faces.at(static_cast<std::size_t>(font)).font; }
    double capHeight(int font) const { return m_faces.at(static_cast<std::size_t>(font)).capHeight; }
    /// The glyphs from the origin along x, y up, in capital heights. The reference holds until the next call.
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
    QCache<OutlineKey, QPainterPath> m_outlines;
    QPainterPath m_uncached;
};

} // namespace host::view
