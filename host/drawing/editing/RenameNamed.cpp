#include "host/drawing/editing/RenameNamed.h"

#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/tags/GroupCodes.h"

using namespace Qt::StringLiterals;

namespace host::drawing {

namespace {

bool isDrawn(RecordKind kind)
{
    return kind == RecordKind::Entity || kind == RecordKind::Child || kind == RecordKind::EndChildren ||
           kind == RecordKind::Block || kind == RecordKind::EndBlock;
}

bool isAnyOf(QByteArrayView type, std::initializer_list<QByteArrayView> types)
{
    return std::ranges::find(types, type) != types.end();
}

bool namesBlock(RecordKind kind, QByteArrayView type, int code)
{
    if (kind == RecordKind::Block)
        return code == 2 || code == 3;
    if (kind == RecordKind::Entity)
        return code == 2 && isAnyOf(type, {"INSERT", "DIMENSION"});
    if (kind == RecordKind::Variable)
        return isAnyOf(type, {"$DIMBLK", "$DIMBLK1", "$DIMBLK2", "$DIMLDRBLK"});
    // Arrow heads stand by name in the styles of R12.
    return type == "DIMSTYLE" && code >= 5 && code <= 7;
}

bool namesLinetype(RecordKind kind, QByteArrayView type, int code)
{
    if (kind == RecordKind::Variable)
        return type == "$CELTYPE";
    return code == 6 && (isDrawn(kind) || isAnyOf(type, {"LAYER", "MLINESTYLE"}));
}

bool namesTextStyle(RecordKind kind, QByteArrayView type, int code)
{
    if (kind == RecordKind::Variable)
        return isAnyOf(type, {"$TEXTSTYLE", "$DIMTXSTY"});
    return code == 7 && isDrawn(kind);
}

bool namesDimensionStyle(RecordKind kind, QByteArrayView type, int code)
{
    if (kind == RecordKind::Variable)
        return type == "$DIMSTYLE";
    return code == 3 && kind == RecordKind::Entity && isAnyOf(type, {"DIMENSION", "LEADER", "TOLERANCE"});
}

bool namesUserSystem(RecordKind kind, QByteArrayView type, int)
{
    return kind == RecordKind::Variable && isAnyOf(type, {"$UCSNAME", "$PUCSNAME", "$UCSBASE", "$PUCSBASE"});
}

bool namesView(RecordKind kind, QByteArrayView type, int code)
{
    return kind == RecordKind::Object && code == 6 && isAnyOf(type, {"LAYOUT", "PLOTSETTINGS"});
}

/// What is known of the names of a table's entries.
struct RenameRule
{
    TableKind kind;
    const char *what;
    bool (*namesIt)(RecordKind kind, QByteArrayView type, int code); ///< null: nothing but the entry has the name
    QStringList fixed;                                               ///< names that stay
};

const RenameRule *renameRuleOf(TableKind kind)
{
    static const std::vector<RenameRule> rules = {
        {TableKind::BlockRecord, "Block", namesBlock, {}},
        {TableKind::DimStyle, "Dimension style", namesDimensionStyle, {}},
        {TableKind::Linetype, "Linetype", namesLinetype, {u"ByLayer"_s, u"ByBlock"_s, u"Continuous"_s}},
        {TableKind::Style, "Text style", namesTextStyle, {}},
        {TableKind::Ucs, "UCS", namesUserSystem, {}},
        {TableKind::View, "View", namesView, {}},
        {TableKind::Viewport, "Viewport configuration", nullptr, {}},
    };
    const auto rule = std::ranges::find(rules, kind, &RenameRule::kind);
    return rule == rules.end() ? nullptr : &*rule;
}

void renameReferences(Drawing &drawing, const RenameRule &rule, const QString &from, const QString &to)
{
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id)) {
        const RecordKind kind = drawing.kind(id);
        const QByteArrayView type = drawing.typeName(id);
        FieldList fields = drawing.fields(id);
        bool isChanged = false;
        for (auto field = fields.begin(), end = ownEnd(fields); field != end; ++field) {
            if (!rule.namesIt(kind, type, field->code) || field->text().compare(from, Qt::CaseInsensitive) != 0)
                continue;
            field->value = to;
            isChanged = true;
        }
        if (isChanged)
            drawing.setFields(id, fields);
    }
}

/// Drawings of R12 have no table of blocks: the definition stands for the entry.
bool hasEntry(const Drawing &drawing, TableKind kind, const QString &name)
{
    return kind == TableKind::BlockRecord ? isValid(drawing.blocks().find(name))
                                          : isValid(drawing.tables().find(kind, name));
}

QString obstacleToRenaming(const Drawing &drawing, const RenameRule &rule, const QString &from, const QString &to)
{
    const QString what = QLatin1StringView(rule.what);
    if (from.isEmpty() || !hasEntry(drawing, rule.kind, from))
        return u"Cannot find %1 \"%2\"."_s.arg(what.toLower(), from);
    if (from.startsWith(u'*') || from.contains(u'|') || rule.fixed.contains(from, Qt::CaseInsensitive))
        return u"%1 \"%2\" cannot be renamed."_s.arg(what, from);
    if (!isSymbolName(to, drawing.version()))
        return u"\"%1\" cannot be a name."_s.arg(to);
    const bool isOtherCase = from.compare(to, Qt::CaseInsensitive) == 0;
    if (!isOtherCase && hasEntry(drawing, rule.kind, to))
        return u"%1 \"%2\" already exists."_s.arg(what, to);
    return {};
}

} // namespace

QString renameEntry(Drawing &drawing, TableKind kind, const QString &from, const QString &to)
{
    if (kind == TableKind::Layer)
        return renameLayer(drawing, from, to);
    const RenameRule *rule = renameRuleOf(kind);
    if (!rule)
        return u"Registered applications cannot be renamed."_s;
    if (const QString obstacle = obstacleToRenaming(drawing, *rule, from, to); !obstacle.isEmpty())
        return obstacle;
    const JournalGroup group(drawing.journal(), {});
    for (const RecordId entry : drawing.tables().entries(kind)) {
        if (drawing.tables().name(entry).compare(from, Qt::CaseInsensitive) != 0)
            continue;
        FieldList fields = drawing.fields(entry);
        setField(fields, 2, to);
        drawing.setFields(entry, fields);
    }
    if (rule->namesIt)
        renameReferences(drawing, *rule, from, to);
    return {};
}

QString renameInDictionary(Drawing &drawing, QStringView dictionary, const QString &from, const QString &to)
{
    const RecordId root = drawing.dictionaries().root();
    const RecordId names = isValid(root) ? drawing.dictionaries().find(root, dictionary) : noRecord;
    if (!isValid(names) || !isValid(drawing.dictionaries().find(names, from)))
        return u"Cannot find \"%1\"."_s.arg(from);
    if (!isSymbolName(to, drawing.version()))
        return u"\"%1\" cannot be a name."_s.arg(to);
    const bool isOtherCase = from.compare(to, Qt::CaseInsensitive) == 0;
    if (!isOtherCase && isValid(drawing.dictionaries().find(names, to)))
        return u"\"%1\" already exists."_s.arg(to);
    FieldList fields = drawing.fields(names);
    for (Field &field : fields)
        if (field.code == entryNameCode && field.text().compare(from, Qt::CaseInsensitive) == 0)
            field.value = to;
    drawing.setFields(names, fields);
    return {};
}

} // namespace host::drawing
