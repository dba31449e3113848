#include "host/drawing/Blocks.h"
#include "host/drawing/CopyBetweenDrawings.h"
#include "host/drawing/EntityGeometry.h"
#include "host/drawing/Save.h"
#include "host/kernel/Document.h"
#include "host/kernel/SystemVariables.h"
#include "host/kernel/commands/CommandContext.h"
#include "host/kernel/commands/Commands.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::Matrix;
using drawing::RecordId;
using drawing::TagList;
using drawing::Vec3;

/// Makes the drawing file at `path` a block, as `name`. Empty when all went well, else the reason.
QString readBlock(CommandContext &context, const QString &name, const QString &path)
{
    const drawing::ReadResult source = drawing::Drawing::open(path);
    if (!source)
        return u"%1: %2"_s.arg(path, source.error.message());
    return drawing::insertAsBlock(*source.drawing, context.drawing(), name).error;
}

/// The block that an answer to INSERT means: "name", "file" or "name=file", where a file makes or redefines the block.
/// Empty, with the reason printed, when there is none.
QString blockFor(CommandContext &context, const QString &answer)
{
    const bool namesFile = answer.contains(u'=');
    const QString name = namesFile ? answer.section(u'=', 0, 0) : QFileInfo(answer).completeBaseName();
    const QString file = namesFile ? answer.section(u'=', 1) : answer;
    if (!namesFile && isValid(context.drawing().blocks().find(answer)))
        return answer;
    QString path = context.document().findFile(file);
    for (const QString &ending : {u".dxf"_s, u".dwg"_s})
        if (path.isEmpty())
            path = context.document().findFile(file + ending);
    const QString problem =
        path.isEmpty() ? u"Cannot find block or file \"%1\"."_s.arg(file) : readBlock(context, name, path);
    if (problem.isEmpty())
        return name;
    context.print(u'\n' + problem);
    return {};
}

struct Placement
{
    Vec3 point;
    double xScale = 1.0;
    double yScale = 1.0;
    double rotation = 0.0; ///< radians
};

/// An attribute definition of the block that asks for a value.
struct Definition
{
    FieldList fields;
    QString tag;
    QString prompt;
    QString value;
};

std::vector<Definition> attributeDefinitions(const drawing::Drawing &drawing, const QString &block)
{
    constexpr qint64 constant = 2;
    std::vector<Definition> definitions;
    for (RecordId id : drawing.children(drawing.blocks().find(block))) {
        if (!drawing.isType(id, "ATTDEF"))
            continue;
        const TagList tags = drawing.tags(id);
        if (!(tags.integer(70) & constant))
            definitions.push_back({drawing.fields(id), tags.text(2), tags.text(3), tags.text(1)});
    }
    return definitions;
}

/// The attribute that a definition becomes where the block is inserted.
FieldList attributeFor(const Definition &definition, const Placement &placement, const Matrix &toDrawing)
{
    FieldList fields = {{0, u"ATTRIB"_s}};
    for (const drawing::Field &field : definition.fields) {
        const bool isPosition = field.code == 10 || field.code == 11;
        const bool isKept = field.code == 7 || field.code == 8 || field.code == 41 || field.code == 51 ||
                            field.code == 62 || field.code == 6 || (field.code >= 70 && field.code <= 74);
        if (isPosition)
            fields.push_back({field.code, toDrawing.point(field.point())});
        else if (isKept)
            fields.push_back(field);
        else if (field.code == 40)
            fields.push_back({40, field.real() * std::abs(placement.yScale)});
    }
    const drawing::Field *turn = drawing::findField(definition.fields, 50);
    fields.push_back({50, (turn ? turn->real() : 0.0) + placement.rotation * 180.0 / M_PI});
    fields.push_back({1, definition.value});
    fields.push_back({2, definition.tag});
    return fields;
}

void createInsert(CommandContext &context, const QString &block, const Placement &placement,
                  const std::vector<Definition> &attributes)
{
    FieldList head = {{0, u"INSERT"_s},
                      {2, block},
                      {10, placement.point},
                      {41, placement.xScale},
                      {42, placement.yScale},
                      {43, placement.xScale},
                      {50, placement.rotation * 180.0 / M_PI}};
    if (attributes.empty()) {
        context.create(head);
        return;
    }
    head.push_back({66, qint64(1)});
    const Vec3 base = context.drawing().blocks().get(block)->basePoint;
    const Matrix toDrawing = Matrix::translation(placement.point) * Matrix::rotation(placement.rotation) *
                             Matrix::scaling({placement.xScale, placement.yScale, placement.xScale}) *
                             Matrix::translation(base * -1.0);
    std::vector<FieldList> children;
    for (const Definition &definition : attributes)
        children.push_back(attributeFor(definition, placement, toDrawing));
    context.createComplex(head, children);
}

// Name, insertion point, scales, rotation, then the values of the attributes (ATTREQ 0: their defaults).
CommandTask insert(CommandContext &context)
{
    SystemVariables &variables = context.document().variables();
    const QString last = variables.text(u"INSNAME");
    // GCC 12 destroys a temporary twice that one branch of a condition makes within a co_await.
    const QString prompt = last.isEmpty() ? u"Enter block name: "_s : u"Enter block name <%1>: "_s.arg(last);
    const PromptReply name = co_await context.text(prompt, last);
    const QString block = blockFor(context, name.hasValue() ? name.text.trimmed() : last);
    if (block.isEmpty())
        co_return;
    variables.setInternally(u"INSNAME", block);
    const PromptReply point = co_await context.point(u"Specify insertion point: "_s);
    if (!point.hasValue())
        co_return;
    Placement placement{point.point};
    const PromptReply x = co_await context.real(u"Enter X scale factor <1>: "_s, {}, u"1"_s);
    placement.xScale = x.hasValue() ? x.real : 1.0;
    const PromptReply y = co_await context.real(u"Enter Y scale factor <use X scale factor>: "_s, {}, u"X"_s);
    placement.yScale = y.hasValue() ? y.real : placement.xScale;
    const PromptReply turn = co_await context.orientation(u"Specify rotation angle <0>: "_s, {}, point.point, u"0"_s);
    placement.rotation = turn.hasValue() ? turn.real : 0.0;
    if (placement.xScale == 0.0 || placement.yScale == 0.0) {
        context.print(u"\nValue must be nonzero."_s);
        co_return;
    }
    std::vector<Definition> attributes = attributeDefinitions(context.drawing(), block);
    if (variables.integer(u"ATTREQ") != 0) {
        for (Definition &definition : attributes) {
            const QString asked = definition.prompt.isEmpty() ? definition.tag : definition.prompt;
            const PromptReply value =
                co_await context.text(u"%1 <%2>: "_s.arg(asked, definition.value), definition.value);
            if (value.hasValue())
                definition.value = value.text;
        }
    }
    createInsert(context, block, placement, attributes);
}

/// Writes a new drawing under a name; a name ending in .dwg is what the tools call their symbol files.
void writeDrawing(CommandContext &context, const std::unique_ptr<drawing::Drawing> &made, const QString &path)
{
    if (!made) {
        context.print(u"\nNothing to write."_s);
        return;
    }
    const bool isSymbol = path.endsWith(u".dwg"_s, Qt::CaseInsensitive);
    const drawing::SaveResult result = isSymbol ? drawing::saveSymbolCopy(*made, path) : drawing::saveCopy(*made, path);
    context.print(!result    ? u'\n' + result.error
                  : isSymbol ? u"\n%1 was written as DXF text."_s.arg(path)
                             : u"\n%1 was written."_s.arg(path));
}

// File name, then a block's name, "*" for the whole drawing, or an empty answer to choose entities and their base
// point. What is chosen stays in the drawing.
CommandTask writeBlock(CommandContext &context)
{
    Document &document = context.document();
    const PromptReply file = co_await context.text(u"Enter name of output file: "_s);
    if (!file.hasValue() || file.text.trimmed().isEmpty())
        co_return;
    QString path = QFileInfo(QDir::current(), file.text.trimmed()).absoluteFilePath();
    if (QFileInfo(path).suffix().isEmpty())
        path += u".dxf"_s;
    if (QFileInfo::exists(path) && document.variables().integer(u"EXPERT") < 2) {
        const PromptReply replace = co_await context.keyword(
            u"%1 already exists. Replace it? [Yes/No] <No>: "_s.arg(path), u"Yes No"_s, u"No"_s);
        if (replace.text != u"Yes"_s)
            co_return;
    }
    const PromptReply name =
        co_await context.text(u"Enter name of existing block, [= (same name)/* (whole drawing)] <choose entities>: "_s);
    const QString typed = name.hasValue() ? name.text.trimmed() : QString();
    if (typed == u"*"_s) {
        writeDrawing(context,
                     drawing::wblock(context.drawing(), context.drawing().entities().inSpace(drawing::Space::Model),
                                     document.variables().point(u"INSBASE")),
                     path);
        co_return;
    }
    if (!typed.isEmpty()) {
        const QString wanted = typed == u"="_s ? QFileInfo(path).completeBaseName() : typed;
        const RecordId block = context.drawing().blocks().find(wanted);
        if (isValid(block))
            writeDrawing(context, drawing::wblock(context.drawing(), block), path);
        else
            context.print(u"\nBlock \"%1\" not found."_s.arg(wanted));
        co_return;
    }
    const PromptReply base = co_await context.point(u"Specify insertion base point: "_s);
    const PromptReply chosen = co_await context.selection();
    writeDrawing(context, drawing::wblock(context.drawing(), chosen.entities, base.point), path);
}

} // namespace

std::vector<CommandRow> blockCommands()
{
    return {{"-INSERT", insert, "Inserts a block or drawing file"},
            {"INSERT", insert, "Inserts a block or drawing file"},
            {"-WBLOCK", writeBlock, "Writes a block or entities to a drawing file"},
            {"WBLOCK", writeBlock, "Writes a block or entities to a drawing file"}};
}

} // namespace host::kernel
