#include "host/dwg/objects/ProxyTypes.h"

namespace host::dwg {

namespace {

/// What is left of the values, filled up with zeros to whole bytes.
std::string restOfValues(BitReader &values)
{
    std::string bytes;
    while (values.left() >= 8 && !values.hasFailed())
        bytes += static_cast<char>(values.byte());
    if (const int left = static_cast<int>(values.left()); left > 0 && !values.hasFailed())
        bytes += static_cast<char>(values.bits(left) << (8 - left));
    return bytes;
}

/// The group code of a reference by its kind.
int referenceCode(int kind)
{
    switch (kind) {
    case HandleReference::SoftOwner:
        return 350;
    case HandleReference::HardOwner:
        return 360;
    case HandleReference::HardPointer:
        return 340;
    default:
        return 330;
    }
}

void noteRest(Fields &f)
{
    const std::size_t bits = f.values().left();
    f.note(93, bits);
    f.noteBinary(310, restOfValues(f.values()));
    while (f.references().left() >= 8 && !f.references().hasFailed()) {
        const HandleReference reference = f.references().handle();
        // The bits behind the last one look like references to nothing.
        if (reference.kind < HandleReference::SoftOwner)
            break;
        f.noteHandle(referenceCode(reference.kind), reference.from(f.relations().handle));
    }
}

void noteHead(Fields &f, int classNumber, bool isEntity)
{
    const bool isOld = f.release() == Release::R13;
    f.subclass(isEntity ? (isOld ? "AcDbZombieEntity" : "AcDbProxyEntity")
                        : (isOld ? "AcDbZombieObject" : "AcDbProxyObject"));
    f.note(90, isEntity ? 498 : 499);
    f.note(91, classNumber);
}

} // namespace

void noteProxy(Fields &f, int classNumber, bool isEntity)
{
    noteHead(f, classNumber, isEntity);
    if (f.since(Release::R2000)) {
        f.note(95, static_cast<int>(f.release()) - 990);
        f.note(70, 0);
    }
    noteRest(f);
    if (f.since(Release::R2000))
        f.note(94, 0);
}

void readProxy(Fields &f, bool isEntity)
{
    if (f.until(Release::R14))
        f.int32(); // the type again
    noteHead(f, f.int32(), isEntity);
    if (f.since(Release::R2018)) {
        f.int32(71);
        f.int32(97);
    } else if (f.since(Release::R2000)) {
        f.int32(95);
    }
    if (f.since(Release::R2000))
        f.flag(70);
    noteRest(f);
}

} // namespace host::dwg
