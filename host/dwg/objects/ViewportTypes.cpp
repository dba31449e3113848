#include "host/dwg/objects/ObjectHead.h"
#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// Of all layouts one is shown, or was shown last: its block has no number behind its name.
bool isInHiddenLayout(const Fields &f)
{
    constexpr std::string_view shown = "*Paper_Space";
    const std::string_view name = f.nameOf(f.relations().owner);
    return isPaperSpace(name) && name.size() > shown.size();
}

/// Files of R2000 refer to it in another way, under another code.
void readFrozenLayer(Fields &f)
{
    const HandleReference layer = f.references().handle();
    f.noteHandle(layer.kind == HandleReference::HardPointer ? 341 : 331, f.reference(layer));
}

void readViewportEntity(Fields &f)
{
    f.subclass("AcDbViewport");
    if (f.until(Release::R14))
        f.note(68, 1); // and once more where it belongs
    const std::size_t begin = f.mark();
    f.point(10);
    f.real(40);
    f.real(41);
    // Programs number the viewports of a layout when they show it; the first one is the paper itself.
    const int number = isInHiddenLayout(f) ? 0 : f.takeNumber();
    f.note(69, number);
    if (f.until(Release::R14)) {
        f.note(68, number);
        f.arrange(begin, {10, 20, 30, 40, 41, 68, 69});
        f.reference(); // its entry in a table that the text form does not have
        return;
    }
    f.point(17);
    f.point(16);
    f.angle(51);
    f.real(45);
    f.real(42);
    f.real(43);
    f.real(44);
    f.angle(50);
    for (int code = 12; code <= 15; ++code)
        f.rawFlatPoint(code);
    f.int16(72);
    if (f.since(Release::R2007))
        f.int16(61);
    const std::size_t frozen = f.checkedCount(f.int32(), 8, f.references());
    const int status = f.int32(90);
    constexpr int isOff = 0x20000;
    f.note(68, (status & isOff) != 0 ? 0 : number);
    f.text(1);
    f.small(281);
    f.flag(74);
    f.flag(71);
    for (int code = 110; code <= 112; ++code)
        f.point(code);
    f.real(146);
    f.int16(79);
    if (f.since(Release::R2004))
        f.int16(170);
    if (f.since(Release::R2007)) {
        f.flag(292);
        f.small(282);
        f.real(141);
        f.real(142);
        f.colour(63);
    }
    for (std::size_t i = 0; i < frozen; ++i)
        readFrozenLayer(f);
    f.referenceUnlessNull(340);
    if (f.until(Release::R2000))
        f.reference();
    f.referenceUnlessNull(345);
    f.referenceUnlessNull(346);
    if (f.since(Release::R2007)) {
        f.referenceUnlessNull(332);
        f.referenceUnlessNull(348);
        f.referenceUnlessNull(333);
        f.referenceUnlessNull(361);
    }
    f.arrange(begin,
              {10,  20,  30,  40,  41,  68, 69,  12,  22,  13,  23,  14,  24,  15,  25,  16,  26,  36,  17,  27,  37,
               42,  43,  44,  45,  50,  51, 72,  331, 341, 90,  340, 1,   281, 71,  74,  110, 120, 130, 111, 121, 131,
               112, 122, 132, 345, 346, 79, 146, 170, 61,  332, 333, 348, 292, 282, 141, 142, 63,  421, 361});
}

} // namespace

std::span<const ObjectType> viewportTypes()
{
    static constexpr ObjectType rows[] = {{0x22, "VIEWPORT", readViewportEntity, true}};
    return rows;
}

} // namespace host::dwg
