#pragma once

#include "host/drawing/records/Drawing.h"

#include <QHash>

#include <array>
#include <optional>

namespace host::drawing {

enum class TableKind
{
    Viewport,
    Linetype,
    Layer,
    Style,
    View,
    Ucs,
    AppId,
    DimStyle,
    BlockRecord
};

/// The type name of a table and of its entries ("LAYER").
QByteArrayView tableTypeName(TableKind kind);
std::optional<TableKind> tableKindOf(QStringView typeName);

/// The symbol tables. Names are compared without regard to letter case.
class Tables
{
public:
    explicit Tables(Drawing &drawing) : m_drawing(drawing) {}

    /// The TABLE record; noRecord when the file has none of this kind.
    RecordId table(TableKind kind) const;
    /// The same, made when the file lacks it.
    RecordId ensureTable(TableKind kind);
    std::vector<RecordId> entries(TableKind kind) const;
    /// Constant cost once the table was looked at.
    RecordId find(TableKind kind, QStringView name) const;
    QString name(RecordId entry) const;

    /// Adds an entry, with the table itself when the file lacks it. `fields` need neither type, handle nor subclass
    /// markers; what the kind requires and they do not say is filled in (a layer: colour 7, linetype Continuous).
    /// An entry of that name that exists comes back unchanged. noRecord when the version has no such table, or the name
    /// is empty; only the styles that stand for shape files (flag 1) have no name. Groups that the version does not
    /// have are left out (see hasCode()), registered applications that are missing are made.
    RecordId add(TableKind kind, const QString &name, const FieldList &fields = {});
    /// Gives an entry these fields, without groups that the version does not have unless the entry had them before.
    /// False when nothing changed.
    bool modify(RecordId entry, const FieldList &fields);

private:
    using NameMap = QHash<QString, RecordId>;
    const NameMap &names(TableKind kind) const;
    void noteEntry(TableKind kind, const QString &name, RecordId entry, quint64 revisionBefore);
    RecordId createTable(TableKind kind);

    Drawing &m_drawing;
    struct Cache
    {
        NameMap names;
        quint64 revision = ~quint64(0);
    };
    mutable std::array<Cache, 9> m_caches;
};

} // namespace host::drawing
