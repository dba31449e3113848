#pragma once

#include "host/drawing/tags/Tag.h"
#include "host/view/display/Display.h"

#include <memory>

namespace host::drawing {
class Drawing;
}

namespace host::view {

class Scene;

/// How much room the texts of a drawing take in the fonts that they are drawn with. Keeps the fonts it has met. The
/// machine's fonts decide, so results differ from one machine to another. Needs a QGuiApplication.
class TextMeasure
{
public:
    /// The drawing may change; it must outlive this.
    explicit TextMeasure(const drawing::Drawing &drawing);
    ~TextMeasure();

    /// What the letters of a TEXT, ATTRIB or ATTDEF cover (of the last its tag, which is what it shows), wherever they
    /// are anchored: seen from the insertion point (group 10), x along the text. It reaches from the base line to the
    /// top of capitals, and farther where letters have tails or accents. `fields` begin with the type; angles are
    /// degrees. Empty when nothing is shown.
    Box lineBox(const drawing::FieldList &fields);
    /// Of an MTEXT: the length of its longest line, and the height from the top of the first line to the base of the
    /// last, both in drawing units. 0 and 0 when nothing is shown.
    Vec2 paragraphSize(const drawing::FieldList &fields);

private:
    const drawing::Drawing &m_drawing;
    std::unique_ptr<Scene> m_scene; ///< for its fonts: nothing is shown in it
};

} // namespace host::view
