#pragma once

#include "host/drawing/references/ShapeFile.h"
#include "host/drawing/tags/TextCodec.h"

#include <array>
#include <atomic>
#include <map>
#include <memory>
#include <mutex>

namespace host::view {

/// A letter that is drawn with a pen, in heights of a capital: from where it starts on the base line, y up.
struct StrokeGlyph
{
    using Polyline = std::vector<drawing::Vec2>;

    std::vector<drawing::ShapeLine> lines{}; ///< exact
    /// Arcs as straight pieces: for letters up to as many pixels high as detailPixels says.
    std::array<std::vector<Polyline>, 3> pieces{};
    double advance = 0.0; ///< to the start of the next letter
    // What the lines reach; all 0 without lines.
    double left = 0.0;
    double right = 0.0;
    double low = 0.0;
    double high = 0.0;
    // In texts that run downwards: from where the pen is to where the letter starts, and how far below the next one is.
    drawing::Vec2 hanging{};
    double drop = 0.0;
    std::int64_t points = 0; ///< of the finest pieces

    static constexpr std::array<double, 3> detailPixels = {12.0, 48.0, 200.0};
};

/// The line with arcs as straight pieces that are off by no more than `tolerance`, or as good as so many pieces an
/// arc make it.
StrokeGlyph::Polyline straightPieces(const drawing::ShapeLine &line, double tolerance, int mostAnArc = 512);

/// The letters of a font file, with those of a big font for East Asian scripts.
///
/// Each letter is made when it is asked for first, and kept. All calls are safe from several threads at once.
class StrokeFont
{
public:
    using File = std::shared_ptr<const drawing::ShapeFile>;

    /// Whether the file is a font whose letters have a height.
    static bool isUsable(const drawing::ShapeFile &file);

    /// Each is usable or null, in which case the plain font has its letters. Letters that the files number by code page
    /// have that of `codec`.
    StrokeFont(File file, File bigFont, const drawing::TextCodec &codec);

    /// What a letter has as a rule, and whether one of those that were made has more.
    static constexpr std::int64_t usualPoints = 256;
    bool hasOrnateLetters() const { return m_hasOrnate.load(std::memory_order_relaxed); }

    bool hasOwnFile() const { return m_file != nullptr; }
    /// Whether what is drawn is the same.
    bool hasSameFiles(const StrokeFont &other) const;

    /// Null when neither file has the letter, and for one whose lines are beyond measure. A few letters are found under
    /// the number of another one that looks alike. Valid as long as the font.
    const StrokeGlyph *find(char32_t letter) const;

private:
    std::unique_ptr<const StrokeGlyph> make(char32_t letter) const;

    static constexpr char32_t quickLetters = 0x180;

    File m_file;
    File m_bigFont;
    drawing::TextCodec m_codec;
    mutable std::atomic<bool> m_hasOrnate = false;
    mutable std::mutex m_making;
    /// By letter; null for one that the files lack. Nothing is ever taken out.
    mutable std::map<char32_t, std::unique_ptr<const StrokeGlyph>> m_glyphs;
    /// Those letters that most texts are made of, found without the lock.
    mutable std::array<std::atomic<const StrokeGlyph *>, quickLetters> m_quick{};
};

/// The stroke font that comes with the program, for what has no font of its own. It has a sign for letters that it
/// lacks.
const StrokeFont &plainStrokeFont();

} // namespace host::view
