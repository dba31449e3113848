#include "host/drawing/editing/ExternalReferences.h"

#include "host/drawing/editing/DrawingCopier.h"
#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/editing/UnusedNames.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/GroupCodes.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace host::drawing {

namespace {

constexpr qint64 dependentFlags = 16 | 32; ///< of another drawing, which was found
constexpr qint64 usedFlag = 64;            ///< something of the file refers to it
constexpr TableKind dependentKinds[] = {TableKind::Layer, TableKind::Linetype, TableKind::Style, TableKind::DimStyle};

void addFlags(Drawing &drawing, RecordId record, qint64 flags)
{
    FieldList fields = drawing.fields(record);
    setField(fields, 70, drawing.tags(record).integer(70) | flags);
    drawing.setFields(record, fields);
}

/// The entries of the table, or the blocks, whose names begin so.
std::vector<RecordId> entriesWith(const Drawing &drawing, TableKind kind, const QString &prefix)
{
    std::vector<RecordId> found =
        kind == TableKind::BlockRecord ? drawing.blocks().all() : drawing.tables().entries(kind);
    std::erase_if(
        found, [&](RecordId entry) { return !drawing.tables().name(entry).startsWith(prefix, Qt::CaseInsensitive); });
    return found;
}

bool isDependentBlock(const Block &block)
{
    return !block.isLayout() && !block.isAnonymous() && !block.isExternal() && !block.name.contains(u'|');
}

/// Takes over how the layer looks in its own drawing.
void copyLook(Drawing &target, RecordId entry, const FieldList &fields)
{
    FieldList present = target.fields(entry);
    for (const int code : {62, 70, 290, 370, 420}) {
        const Field *given = findField(fields, code);
        if (given && (code != 70))
            setField(present, code, given->value);
        else if (given)
            setField(present, code, given->integer() | dependentFlags);
        else if (code == 420)
            std::erase_if(present, [](const Field &field) { return field.code == 420; });
    }
    target.tables().modify(entry, present);
}

void addEntries(Drawing &target, DrawingCopier &copier, const Drawing &source, TableKind kind, const QString &prefix,
                DependentLook look)
{
    for (const RecordId entry : source.tables().entries(kind)) {
        const QString name = source.tables().name(entry);
        const bool wasKnown = isValid(target.tables().find(kind, prefix + name));
        if (name.isEmpty() || name.contains(u'|'))
            continue;
        const RecordId copy = copier.copyTableEntry(entry);
        if (!isValid(copy) || !target.tables().name(copy).startsWith(prefix))
            continue;
        if (!wasKnown)
            addFlags(target, copy, dependentFlags);
        else if (kind == TableKind::Layer && look == DependentLook::OfFile)
            copyLook(target, copy, source.fields(entry));
    }
}

/// Those that the file had when it was last looked at.
void eraseGoneEntries(Drawing &target, const Drawing &source, const QString &reference)
{
    eraseDependents(target, reference, [&](RecordId record) {
        const QString name = target.tables().name(record).mid(reference.size() + 1);
        if (target.kind(record) == RecordKind::Block)
            return !isValid(source.blocks().find(name));
        const auto kind = tableKindOf(QString::fromLatin1(target.typeName(record)));
        return kind && !isValid(source.tables().find(*kind, name));
    });
}

QString freePrefix(const Drawing &target, const QString &reference)
{
    const auto isTaken = [&](const QString &prefix) {
        return std::ranges::any_of(dependentKinds,
                                   [&](TableKind kind) { return !entriesWith(target, kind, prefix).empty(); }) ||
               !entriesWith(target, TableKind::BlockRecord, prefix).empty();
    };
    int number = 0;
    while (isTaken(u"%1$%2$"_s.arg(reference).arg(number)))
        ++number;
    return u"%1$%2$"_s.arg(reference).arg(number);
}

/// What entries of a reference are called from now on, by their folded names, and which handles stand for them where
/// another one has the name already.
struct Adoption
{
    QHash<QString, QString> layers;
    QHash<QString, QString> linetypes;
    QHash<quint64, Handle> merged;
};

/// Gives the entry a name of this drawing, unless one has it.
void adoptEntry(Drawing &target, TableKind kind, RecordId entry, const QString &wanted, Adoption &adoption)
{
    const QString key = target.tables().name(entry).toCaseFolded();
    const RecordId present = target.tables().find(kind, wanted);
    if (kind == TableKind::Layer)
        adoption.layers.insert(key, wanted);
    if (kind == TableKind::Linetype)
        adoption.linetypes.insert(key, wanted);
    if (isValid(present)) {
        adoption.merged.insert(target.handle(entry).value, target.handle(present));
        return;
    }
    FieldList fields = target.fields(entry);
    setField(fields, 2, wanted);
    setField(fields, 70, target.tags(entry).integer(70) & ~(dependentFlags | usedFlag));
    target.setFields(entry, fields);
}

/// Entries of tables refer to each other: layers to linetypes by name, styles of dimensions to those of texts by
/// handle.
void followAdoption(Drawing &target, TableKind kind, const Adoption &adoption)
{
    for (const RecordId entry : target.tables().entries(kind)) {
        FieldList fields = target.fields(entry);
        for (Field &field : fields) {
            const auto *handle = std::get_if<Handle>(&field.value);
            if (handle && field.code > ownerCode && adoption.merged.contains(handle->value))
                field.value = adoption.merged[handle->value];
            else if (kind == TableKind::Layer && field.code == 6)
                field.value = adoption.linetypes.value(field.text().toCaseFolded(), field.text());
        }
        target.setFields(entry, fields);
    }
}

void adoptEntries(Drawing &target, const QString &reference, const QString &prefix)
{
    Adoption adoption;
    for (const TableKind kind : dependentKinds)
        for (const RecordId entry : entriesWith(target, kind, reference + u'|'))
            adoptEntry(target, kind, entry, prefix + target.tables().name(entry).mid(reference.size() + 1), adoption);
    for (const TableKind kind : dependentKinds)
        followAdoption(target, kind, adoption);
    // Layers of other drawings are named on nothing but in viewports, by handle, and in stored layer states.
    if (!adoption.layers.isEmpty())
        replaceLayerNames(target, adoption.layers);
}

} // namespace

void refreshDependents(Drawing &target, const QString &reference, const Drawing &source, DependentLook look)
{
    const JournalGroup group(target.journal(), {});
    const QString prefix = reference + u'|';
    eraseGoneEntries(target, source, reference);
    DrawingCopier copier(source, target, {NameClash::Rename, prefix});
    for (const TableKind kind : dependentKinds)
        addEntries(target, copier, source, kind, prefix, look);
    for (const RecordId id : source.blocks().all()) {
        const Block block = source.blocks().read(id);
        if (isDependentBlock(block) && !isValid(target.blocks().find(QString(prefix + block.name))))
            target.blocks().create(prefix + block.name, block.basePoint, block.flags);
    }
    for (const RecordId block : entriesWith(target, TableKind::BlockRecord, prefix))
        addFlags(target, block, dependentFlags);
}

CopyResult bindReference(Drawing &target, const Block &reference, const Drawing &source, BindNames names)
{
    const JournalGroup group(target.journal(), {});
    const bool isPrefixed = names == BindNames::Prefixed;
    const QString prefix = isPrefixed ? freePrefix(target, reference.name) : QString();
    eraseDependents(target, reference.name, [&](RecordId record) { return target.kind(record) == RecordKind::Block; });
    adoptEntries(target, reference.name, prefix);
    FieldList fields = target.fields(reference.record);
    setField(fields, 1, QString());
    target.setFields(reference.record, fields);
    target.blocks().setUnloaded(reference.record, false);
    const CopyRules rules{isPrefixed ? NameClash::Rename : NameClash::Keep, prefix};
    const CopyResult made = insertAsBlock(source, target, reference.name, rules);
    eraseDependents(target, reference.name);
    return made;
}

void eraseReference(Drawing &drawing, const Block &reference)
{
    const JournalGroup group(drawing.journal(), {});
    for (const RecordId insert : insertionsOf(drawing, reference.name))
        drawing.dictionaries().setErasedWithOwned(insert, true);
    drawing.blocks().erase(reference.record);
    eraseDependents(drawing, reference.name);
}

std::vector<RecordId> insertionsOf(const Drawing &drawing, const QString &block)
{
    std::vector<RecordId> inserts;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
        if (drawing.isType(id, "INSERT") && drawing.tags(id).text(2).compare(block, Qt::CaseInsensitive) == 0)
            inserts.push_back(id);
    return inserts;
}

} // namespace host::drawing
