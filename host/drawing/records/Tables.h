#pragma once

#include "host/drawing/records/Drawing.h"

#include <QHash>

#include <array>
#include <optional>

namespace host::drawing {

enum class TableKind
{
    Viewport, ///< its entries may share a name: together they divide the screen
    Linetype,
    Layer,
    Style, ///< of texts, and one without a name for each shape file
    View,
    Ucs,
    AppId,
    DimStyle,
    BlockRecord ///< not in R12
};

/// The type name of a table and of its entries ("LAYER").
QByteArrayView tableTypeName(TableKind kind);
/// The reverse, in any letter case; nothing for a name of no table.
std::optional<TableKind> tableKindOf(QStringView typeName);

/// The symbol tables. Names are compared without regard to letter case; of entries that share one the first counts.
///
/// Names are collected at the first look and again after any change of a table, but for add(), which only notes the new
/// one: adding many in a row costs constant time each.
class Tables
{
public:
    explicit Tables(Drawing &drawing) : m_drawing(drawing) {}

    /// The TABLE record; noRecord when the file has none of this kind.
    RecordId table(TableKind kind) const;
    /// The same, made when the file lacks it.
    RecordId ensureTable(TableKind kind);
    /// In file order; empty when there is no such table.
    std::vector<RecordId> entries(TableKind kind) const;
    /// The entry of that name; noRecord when there is none. Constant cost once the table was looked at, until an entry
    /// of any table changes.
    RecordId find(TableKind kind, QStringView name) const;
    /// Group 2, as the file spells it.
    QString name(RecordId entry) const;

    /// Adds an entry, with the table itself when the file lacks it. `fields` need neither type, handle nor subclass
    /// markers; what the kind requires and they do not say is filled in (a layer: colour 7, linetype Continuous).
    /// An entry of that name that exists comes back unchanged. noRecord when the version has no such table, or the name
    /// is empty; only the styles that stand for shape files (flag 1) have no name. Groups that the version does not
    /// have are left out (see hasCode()), registered applications that are missing are made.
    RecordId add(TableKind kind, const QString &name, const FieldList &fields = {});
    /// Gives an entry these fields, without groups that the version does not have unless the entry had them before.
    /// Another name in group 2 renames it; nobody looks whether that name is taken, or who refers to the old one. False
    /// when nothing changed.
    bool modify(RecordId entry, const FieldList &fields);

private:
    using NameMap = QHash<QString, RecordId>; ///< by names in folded case
    const NameMap &names(TableKind kind) const;
    void noteEntry(TableKind kind, const QString &name, RecordId entry, quint64 revisionBefore);
    RecordId createTable(TableKind kind);

    Drawing &m_drawing;
    struct Cache
    {
        NameMap names;
        quint64 revision = ~quint64(0); ///< of the section's structure when the names were collected
    };
    mutable std::array<Cache, 9> m_caches;
};

} // namespace host::drawing
