#pragma once

#include "host/dwg/drawing/DrawingObjects.h"

namespace host::dwg {

/// The sizes of arrows that objects draw by dimension styles. Each style is read once, when it is first asked for.
class ArrowSizes
{
public:
    /// `objects` and `names` must outlive this.
    ArrowSizes(const DrawingObjects &objects, const Names &names) : m_objects(objects), m_names(names) {}

    /// The size by this style or, where the object with this head has its own, by its extended data, at the style's
    /// scale. 0 where the scale is that of the view, or there is no such style.
    double sizeOf(std::uint64_t style, const ObjectHead &head);

private:
    struct Size
    {
        double scale = 1.0;
        double arrow = 0.18;

        void set(int code, std::string_view value);
    };

    Size sizeOfStyle(std::uint64_t style) const;
    void readOwn(const ObjectHead &head, Size &size) const;

    const DrawingObjects &m_objects;
    const Names &m_names;
    std::unordered_map<std::uint64_t, Size> m_styles;
};

} // namespace host::dwg
