#include "host/kernel/documents/CurrentSpace.h"

#include "host/drawing/editing/Viewports.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Layouts.h"

namespace host::kernel {

namespace {

QString model()
{
    return QStringLiteral("Model");
}

} // namespace

bool isModelTab(const drawing::Drawing &drawing)
{
    return drawing.header().integer(u"$TILEMODE", 1) != 0;
}

drawing::RecordId currentViewport(const drawing::Drawing &drawing)
{
    return isModelTab(drawing) ? drawing::noRecord : drawing.layouts().currentViewport();
}

int currentViewportNumber(const drawing::Drawing &drawing)
{
    constexpr int sheetItself = 1;
    constexpr int firstOther = 2;
    const drawing::RecordId viewport = currentViewport(drawing);
    if (isValid(viewport))
        return int(drawing::viewportNumber(drawing, viewport));
    return isModelTab(drawing) ? firstOther : sheetItself;
}

std::optional<drawing::RecordId> viewportNumbered(const drawing::Drawing &drawing, int number)
{
    if (number == (isModelTab(drawing) ? 2 : 1))
        return drawing::noRecord;
    const auto sheet = drawing::findLayout(drawing, currentLayout(drawing));
    if (isModelTab(drawing) || !sheet)
        return std::nullopt;
    for (const drawing::RecordId viewport : drawing::viewportsOf(drawing, *sheet))
        if (drawing::viewportNumber(drawing, viewport) == number &&
            !drawing::hasViewportFlag(drawing, viewport, drawing::SwitchedOffViewport))
            return viewport;
    return std::nullopt;
}

drawing::Space currentSpace(const drawing::Drawing &drawing)
{
    return isModelTab(drawing) || isValid(currentViewport(drawing)) ? drawing::Space::Model : drawing::Space::Paper;
}

QString currentLayout(const drawing::Drawing &drawing)
{
    return isModelTab(drawing) ? model() : drawing.layouts().currentName();
}

QString layoutName(const drawing::Drawing &drawing, const QString &name)
{
    for (const QString &known : {model(), drawing.layouts().paperName()})
        if (known.compare(name, Qt::CaseInsensitive) == 0)
            return known;
    for (const drawing::RecordId block : drawing.layouts().blocks())
        if (const QString known = drawing.layouts().ofBlock(block);
            !known.isEmpty() && known.compare(name, Qt::CaseInsensitive) == 0)
            return known;
    return {};
}

bool setCurrentLayout(drawing::Drawing &drawing, const QString &name)
{
    const bool isModel = model().compare(name, Qt::CaseInsensitive) == 0;
    if (!isModel && !drawing.layouts().setCurrentSheet(name))
        return false;
    drawing.layouts().setCurrentViewport(drawing::noRecord);
    drawing.header().set(u"$TILEMODE", drawing::Field{70, qint64(isModel)});
    return true;
}

drawing::RecordId restingSheet(const drawing::Drawing &drawing)
{
    return currentSpace(drawing) == drawing::Space::Paper ? drawing.layouts().currentSheet() : drawing::noRecord;
}

QString currentSpaceBlock(const drawing::Drawing &drawing)
{
    const drawing::RecordId sheet = restingSheet(drawing);
    if (isValid(sheet))
        return drawing.blocks().name(sheet);
    return currentSpace(drawing) == drawing::Space::Model ? QStringLiteral("*Model_Space")
                                                          : QStringLiteral("*Paper_Space");
}

std::vector<drawing::RecordId> currentEntities(const drawing::Drawing &drawing)
{
    const drawing::RecordId sheet = restingSheet(drawing);
    return isValid(sheet) ? drawing.children(sheet) : drawing.entities().inSpace(currentSpace(drawing));
}

drawing::CreateResult createOnCurrent(drawing::Drawing &drawing, const drawing::FieldList &fields,
                                      const std::vector<drawing::FieldList> &children)
{
    drawing::Entities &entities = drawing.entities();
    const drawing::RecordId sheet = restingSheet(drawing);
    if (isValid(sheet))
        return children.empty() ? entities.createInBlock(sheet, fields)
                                : entities.createComplexInBlock(sheet, fields, children);
    return children.empty() ? entities.create(fields, currentSpace(drawing))
                            : entities.createComplex(fields, children, currentSpace(drawing));
}

drawing::RecordId copyToCurrent(drawing::Drawing &drawing, drawing::RecordId entity)
{
    const drawing::RecordId sheet = restingSheet(drawing);
    return isValid(sheet) ? drawing::copyEntityInto(drawing, entity, sheet)
                          : drawing::copyEntityTo(drawing, entity, currentSpace(drawing));
}

std::optional<drawing::Vec2> layoutLimit(const drawing::Drawing &drawing, int code)
{
    const drawing::RecordId layout = drawing.layouts().currentLayout();
    if (!isValid(layout))
        return {};
    return drawing.tags(layout).point(code).xy();
}

void setLayoutLimit(drawing::Drawing &drawing, int code, const drawing::Vec2 &corner)
{
    const drawing::RecordId layout = drawing.layouts().currentLayout();
    if (!isValid(layout))
        return;
    drawing::FieldList fields = drawing.fields(layout);
    drawing::setField(fields, code, corner);
    drawing.setFields(layout, fields);
}

bool isSheetInHeader(const drawing::Drawing &drawing)
{
    return !isValid(drawing.layouts().currentSheet());
}

} // namespace host::kernel
