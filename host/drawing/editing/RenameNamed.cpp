#include "host/drawing/editing/RenameNamed.h"

#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/tags/DrawingTexts.h"
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
    const char *what;                                                ///< as a sentence begins
    const char *within;                                              ///< and within one
    bool (*namesIt)(RecordKind kind, QByteArrayView type, int code); ///< null: nothing but the entry has the name
    QStringList fixed;                                               ///< names that stay
};

const RenameRule *renameRuleOf(TableKind kind)
{
    static const std::vector<RenameRule> rules = {
        {TableKind::BlockRecord,
         QT_TRANSLATE_NOOP("DrawingTexts", "Block"),
         QT_TRANSLATE_NOOP("DrawingTexts", "block"),
         namesBlock,
         {}},
        {TableKind::DimStyle,
         QT_TRANSLATE_NOOP("DrawingTexts", "Dimension style"),
         QT_TRANSLATE_NOOP("DrawingTexts", "dimension style"),
         namesDimensionStyle,
         {}},
        {TableKind::Linetype,
         QT_TRANSLATE_NOOP("DrawingTexts", "Linetype"),
         QT_TRANSLATE_NOOP("DrawingTexts", "linetype"),
         namesLinetype,
         {u"ByLayer"_s, u"ByBlock"_s, u"Continuous"_s}},
        {TableKind::Style,
         QT_TRANSLATE_NOOP("DrawingTexts", "Text style"),
         QT_TRANSLATE_NOOP("DrawingTexts", "text style"),
         namesTextStyle,
         {}},
        {TableKind::Ucs,
         QT_TRANSLATE_NOOP("DrawingTexts", "UCS"),
         QT_TRANSLATE_NOOP("DrawingTexts", "ucs"),
         namesUserSystem,
         {}},
        {TableKind::View,
         QT_TRANSLATE_NOOP("DrawingTexts", "View"),
         QT_TRANSLATE_NOOP("DrawingTexts", "view"),
         namesView,
         {}},
        {TableKind::Viewport,
         QT_TRANSLATE_NOOP("DrawingTexts", "Viewport configuration"),
         QT_TRANSLATE_NOOP("DrawingTexts", "viewport configuration"),
         nullptr,
         {}},
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
    const QString what = DrawingTexts::tr(rule.what);
    if (from.isEmpty() || !hasEntry(drawing, rule.kind, from))
        return DrawingTexts::tr("Cannot find %1 \"%2\".").arg(DrawingTexts::tr(rule.within), from);
    if (from.startsWith(u'*') || from.contains(u'|') || rule.fixed.contains(from, Qt::CaseInsensitive))
        return DrawingTexts::tr("%1 \"%2\" cannot be renamed.").arg(what, from);
    if (!isSymbolName(to, drawing.version()))
        return DrawingTexts::tr("\"%1\" cannot be a name.").arg(to);
    const bool isOtherCase = from.compare(to, Qt::CaseInsensitive) == 0;
    if (!isOtherCase && hasEntry(drawing, rule.kind, to))
        return DrawingTexts::tr("%1 \"%2\" already exists.").arg(what, to);
    return {};
}

} // namespace

QString renameEntry(Drawing &drawing, TableKind kind, const QString &from, const QString &to)
{
    if (kind == TableKind::Layer)
        return renameLayer(drawing, from, to);
    const RenameRule *rule = renameRuleOf(kind);
    if (!rule)
        return DrawingTexts::tr("Registered applications cannot be renamed.");
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
        return DrawingTexts::tr("Cannot find \"%1\".").arg(from);
    if (!isSymbolName(to, drawing.version()))
        return DrawingTexts::tr("\"%1\" cannot be a name.").arg(to);
    const bool isOtherCase = from.compare(to, Qt::CaseInsensitive) == 0;
    if (!isOtherCase && isValid(drawing.dictionaries().find(names, to)))
        return DrawingTexts::tr("\"%1\" already exists.").arg(to);
    FieldList fields = drawing.fields(names);
    for (Field &field : fields)
        if (field.code == entryNameCode && field.text().compare(from, Qt::CaseInsensitive) == 0)
            field.value = to;
    drawing.setFields(names, fields);
    return {};
}

} // namespace host::drawing
