#include "host/drawing/editing/PageSetupEdit.h"

#include "host/drawing/tags/DrawingTexts.h"
#include "host/drawing/tags/GroupCodes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::drawing {

namespace {

// Of group 70; see readPageSetup().
constexpr qint64 centred = 4;
constexpr qint64 standardScale = 16;
constexpr qint64 plotStyles = 32;
constexpr qint64 scaledWeights = 64;
constexpr qint64 lineweights = 128;

/// The groups of the page's part of a LAYOUT: its other part has the same codes for other things.
class PageFields
{
public:
    explicit PageFields(FieldList &fields) : m_fields(fields) {}

    bool isThere() const { return begin() != m_fields.end(); }
    qint64 flags() const
    {
        const auto at = std::find_if(begin(), end(), [](const Field &field) { return field.code == 70; });
        return at == end() ? 0 : at->integer();
    }
    void set(int code, FieldValue value)
    {
        const auto at = std::find_if(begin(), end(), [code](const Field &field) { return field.code == code; });
        if (at != end())
            at->value = std::move(value);
        else
            m_fields.insert(at, {code, std::move(value)});
    }

private:
    FieldList::iterator begin() const
    {
        return std::ranges::find(m_fields, Field{subclassCode, u"AcDbPlotSettings"_s});
    }
    FieldList::iterator end() const
    {
        const auto from = begin();
        return from == m_fields.end() ? from : std::ranges::find(from + 1, m_fields.end(), subclassCode, &Field::code);
    }

    FieldList &m_fields;
};

qint64 flagsOf(const PageSetup &setup, qint64 before)
{
    qint64 flags = before & ~(centred | standardScale | plotStyles | scaledWeights | lineweights);
    flags |= setup.isCentred ? centred : 0;
    flags |= setup.scale <= 0.0 ? standardScale : 0;
    flags |= setup.hasPlotStyles ? plotStyles : 0;
    flags |= setup.scalesLineweights ? scaledWeights : 0;
    return flags | (setup.hasLineweights ? lineweights : 0);
}

void setPaper(PageFields &page, const PageSetup &setup)
{
    page.set(40, setup.margins.left);
    page.set(41, setup.margins.bottom);
    page.set(42, setup.margins.right);
    page.set(43, setup.margins.top);
    page.set(44, setup.paper.x);
    page.set(45, setup.paper.y);
    page.set(73, qint64(0));
}

void setArea(PageFields &page, const PageSetup &setup)
{
    page.set(74, qint64(setup.area));
    if (setup.area == PlotArea::View)
        page.set(6, setup.view);
    if (setup.area != PlotArea::Window)
        return;
    page.set(48, setup.window.low.x);
    page.set(49, setup.window.low.y);
    page.set(140, setup.window.high.x);
    page.set(141, setup.window.high.y);
}

/// What fits is the first of the standard scales; others are a pair of numbers of their own.
void setScale(PageFields &page, const PageSetup &setup)
{
    constexpr qint64 fits = 0;
    constexpr qint64 millimetres = 1;
    if (setup.scale <= 0.0) {
        page.set(75, fits);
        return;
    }
    page.set(142, setup.scale * setup.unitSize);
    page.set(143, 1.0);
    page.set(147, setup.scale * setup.unitSize);
    page.set(72, millimetres);
}

} // namespace

QString writePageSetup(Drawing &drawing, const LayoutTab &layout, const PageSetup &setup)
{
    FieldList fields = isValid(layout.record) ? drawing.fields(layout.record) : FieldList();
    PageFields page(fields);
    if (!page.isThere())
        return DrawingTexts::tr("A drawing of this version keeps no page setup.");
    const PageSetup before = readPageSetup(drawing, layout);
    if (setup.hasPaper() && before.paper != setup.paper) {
        setPaper(page, setup);
        page.set(4, u"User_(%1_x_%2_MM)"_s.arg(setup.paper.x, 0, 'f', 2).arg(setup.paper.y, 0, 'f', 2));
    }
    setArea(page, setup);
    setScale(page, setup);
    page.set(46, setup.offset.x);
    page.set(47, setup.offset.y);
    page.set(7, setup.styleSheet);
    page.set(70, flagsOf(setup, page.flags()));
    drawing.setFields(layout.record, fields);
    return {};
}

} // namespace host::drawing
