#include "host/commands/annotate/NewMultiLeader.h"

#include "host/commands/common/UserPlane.h"
#include "host/drawing/annotation/AnnotationScale.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/CurrentProperties.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::Handle;
using drawing::RecordId;
using drawing::TableKind;
using drawing::Vec3;

namespace {

constexpr qint64 colourByBlock = -1056964608; ///< as such records pack it
constexpr qint64 noFillColour = -939524096;

/// Sizes on paper, and what they become in the drawing.
struct NoteSizes
{
    double text = 4.0;
    double arrow = 4.0;
    double gap = 2.0;
    double dogleg = 8.0;
    double scale = 1.0;
    Handle textStyle{};
    Handle linetype{};
};

Handle handleOf(drawing::Drawing &drawing, TableKind kind, const QString &name)
{
    const RecordId entry = drawing.tables().find(kind, name);
    return isValid(entry) ? drawing.handle(entry) : Handle{};
}

FieldList styleBody(const NoteSizes &sizes)
{
    const auto whole = [](qint64 value) { return value; };
    return {{100, u"AcDbMLeaderStyle"_s},
            {179, whole(2)},
            {170, whole(2)},
            {171, whole(1)},
            {172, whole(0)},
            {90, whole(2)},
            {40, 0.0},
            {41, 0.0},
            {173, whole(1)},
            {91, colourByBlock},
            {340, sizes.linetype},
            {92, whole(-2)},
            {290, whole(1)},
            {42, sizes.gap},
            {291, whole(1)},
            {43, sizes.dogleg},
            {3, u"Standard"_s},
            {44, sizes.arrow},
            {300, QString()},
            {342, sizes.textStyle},
            {174, whole(1)},
            {178, whole(1)},
            {175, whole(1)},
            {176, whole(0)},
            {93, colourByBlock},
            {45, sizes.text},
            {292, whole(0)},
            {297, whole(0)},
            {46, sizes.text},
            {94, colourByBlock},
            {47, 1.0},
            {49, 1.0},
            {140, 1.0},
            {293, whole(1)},
            {141, 0.0},
            {294, whole(1)},
            {177, whole(0)},
            {142, 1.0},
            {295, whole(0)},
            {296, whole(1)},
            {143, 3.75}};
}

/// The style, made where there is none, and its sizes.
RecordId noteStyle(drawing::Drawing &drawing, NoteSizes &sizes)
{
    drawing::Dictionaries &dictionaries = drawing.dictionaries();
    const RecordId styles = dictionaries.ensureDictionary(dictionaries.ensureRoot(), u"ACAD_MLEADERSTYLE"_s);
    RecordId style = dictionaries.find(styles, u"Standard"_s);
    if (!isValid(style)) {
        drawing::ensureClass(drawing, u"MLEADERSTYLE"_s);
        style = drawing::insertObject(drawing, u"MLEADERSTYLE"_s, drawing.handle(styles), styleBody(sizes));
        dictionaries.set(styles, u"Standard"_s, style);
        return style;
    }
    const drawing::TagList tags = drawing.tags(style);
    sizes.text = tags.real(45, sizes.text);
    sizes.arrow = tags.real(44, sizes.arrow);
    sizes.gap = tags.real(42, sizes.gap);
    sizes.dogleg = tags.real(43, sizes.dogleg);
    if (const Handle textStyle = tags.handle(342); !textStyle.isNull())
        sizes.textStyle = textStyle;
    return style;
}

NoteSizes usualNoteSizes(drawing::Drawing &drawing)
{
    NoteSizes sizes;
    if (drawing.header().integer(u"$MEASUREMENT") == 0)
        sizes = {.text = 0.18, .arrow = 0.18, .gap = 0.09, .dogleg = 0.36};
    sizes.textStyle = handleOf(drawing, TableKind::Style, u"Standard"_s);
    sizes.linetype = handleOf(drawing, TableKind::Linetype, u"ByBlock"_s);
    const double scale = drawing.header().real(u"$DIMSCALE", 1.0);
    sizes.scale = scale > 0.0 ? scale : drawing::annotationFactor(drawing);
    return sizes;
}

/// Where everything is, in world coordinates.
struct NotePlace
{
    Vec3 arrow;
    Vec3 landing;
    Vec3 base; ///< the dogleg's end
    Vec3 text;
    Vec3 along; ///< the user's axes
    Vec3 up;
    Vec3 normal;
    Vec3 origin;
    double side = 1.0;
};

NotePlace notePlace(const UserPlane &plane, const NoteSizes &sizes, const Vec3 &arrow, const Vec3 &landing)
{
    NotePlace place;
    place.arrow = arrow;
    place.landing = landing;
    place.origin = plane.worldFromUser({});
    place.along = plane.worldFromUser({1.0, 0.0, 0.0}) - place.origin;
    place.up = plane.worldFromUser({0.0, 1.0, 0.0}) - place.origin;
    place.normal = plane.worldFromUser({0.0, 0.0, 1.0}) - place.origin;
    place.side = dot(landing - arrow, place.along) < 0.0 ? -1.0 : 1.0;
    place.base = landing + place.along * (place.side * sizes.dogleg * sizes.scale);
    place.text =
        place.base + place.along * (place.side * sizes.gap * sizes.scale) + place.up * (sizes.text * sizes.scale / 2.0);
    return place;
}

FieldList leaderData(const NotePlace &place, const NoteSizes &sizes)
{
    return {{302, u"LEADER{"_s},
            {290, qint64(1)},
            {291, qint64(1)},
            {10, place.landing},
            {11, place.along * place.side},
            {90, qint64(0)},
            {40, sizes.dogleg * sizes.scale},
            {304, u"LEADER_LINE{"_s},
            {10, place.arrow},
            {91, qint64(0)},
            {305, u"}"_s},
            {303, u"}"_s}};
}

FieldList contextData(const NotePlace &place, const NoteSizes &sizes, const QString &content)
{
    const auto whole = [](qint64 value) { return value; };
    FieldList fields = {{300, u"CONTEXT_DATA{"_s},
                        {40, sizes.scale},
                        {10, place.base},
                        {41, sizes.text * sizes.scale},
                        {140, sizes.arrow * sizes.scale},
                        {145, sizes.gap * sizes.scale},
                        {174, whole(1)},
                        {175, whole(1)},
                        {176, whole(0)},
                        {177, whole(0)},
                        {290, whole(1)},
                        {304, content},
                        {11, place.normal},
                        {340, sizes.textStyle},
                        {12, place.text},
                        {13, place.along},
                        {42, 0.0},
                        {43, 0.0},
                        {44, 0.0},
                        {45, 1.0},
                        {170, whole(1)},
                        {90, colourByBlock},
                        {171, whole(place.side < 0.0 ? 3 : 1)},
                        {172, whole(1)},
                        {91, noFillColour},
                        {141, 1.5},
                        {92, whole(0)},
                        {291, whole(0)},
                        {292, whole(0)},
                        {173, whole(0)},
                        {293, whole(0)},
                        {142, 0.0},
                        {143, 0.0},
                        {294, whole(0)},
                        {295, whole(0)},
                        {296, whole(0)},
                        {110, place.origin},
                        {111, place.along},
                        {112, place.up},
                        {297, whole(0)}};
    const FieldList leader = leaderData(place, sizes);
    fields.insert(fields.end(), leader.begin(), leader.end());
    fields.push_back({301, u"}"_s});
    return fields;
}

/// What the entity has in place of its style, with nothing of it in force.
FieldList ownData(const NoteSizes &sizes, Handle style)
{
    const auto whole = [](qint64 value) { return value; };
    return {{340, style},     {90, whole(0)},         {170, whole(1)}, {91, colourByBlock}, {341, sizes.linetype},
            {171, whole(-2)}, {290, whole(1)},        {291, whole(1)}, {41, sizes.dogleg},  {42, sizes.arrow},
            {172, whole(2)},  {343, sizes.textStyle}, {173, whole(1)}, {95, whole(1)},      {174, whole(1)},
            {175, whole(0)},  {92, colourByBlock},    {292, whole(0)}, {93, colourByBlock}, {10, Vec3{1.0, 1.0, 1.0}},
            {43, 0.0},        {176, whole(0)},        {293, whole(0)}, {294, whole(0)},     {178, whole(0)},
            {179, whole(1)},  {45, sizes.scale}};
}

} // namespace

RecordId createMultiLeader(CommandContext &context, Vec3 arrow, Vec3 landing, const QString &content)
{
    drawing::Drawing &drawing = context.drawing();
    if (drawing.version() < drawing::Version::R2000) {
        context.fail(u"A drawing of this version has no multileaders."_s);
        return drawing::noRecord;
    }
    NoteSizes sizes = usualNoteSizes(drawing);
    const RecordId style = noteStyle(drawing, sizes);
    const NotePlace place = notePlace(UserPlane(context.document()), sizes, arrow, landing);
    // The order of the record is its meaning: what all entities have stands in front.
    FieldList fields = {{0, u"MULTILEADER"_s}, {100, u"AcDbEntity"_s}};
    const FieldList common = withCurrentProperties(drawing, {});
    fields.insert(fields.end(), common.begin(), common.end());
    if (!drawing::findField(fields, 8))
        fields.insert(fields.begin() + 2, {8, u"0"_s});
    fields.push_back({100, u"AcDbMLeader"_s});
    if (drawing.version() >= drawing::Version::R2010)
        fields.push_back({270, qint64(2)});
    for (const FieldList &part : {contextData(place, sizes, content), ownData(sizes, drawing.handle(style))})
        fields.insert(fields.end(), part.begin(), part.end());
    const drawing::CreateResult made = createOnCurrent(drawing, fields);
    if (!made)
        context.fail(made.error);
    return made.record;
}

} // namespace host::kernel
