#pragma once

#include "host/dcl/Problem.h"
#include "host/dcl/Syntax.h"
#include "host/dcl/Tile.h"

#include <QSet>
#include <QStringList>

#include <functional>
#include <optional>

namespace host::dcl {

/// The text of a file, or why there is none.
struct SourceText
{
    QString text;
    QString reason; ///< for people; empty when the file was read

    explicit operator bool() const { return reason.isEmpty(); }
};

/// Where files come from: this room opens none.
struct SourceAccess
{
    /// The full path of the file that `@include` means by a name in the file `from`; empty when there is none.
    std::function<QString(const QString &name, const QString &from)> find;
    std::function<SourceText(const QString &path)> read;
};

/// The dialogs of one file, with what it includes and what every file may use without saying so (see base.dcl).
///
/// A name means the nearest definition in front of the place that uses it, so that a tile may be redefined from itself;
/// else that of base.dcl or the kind of this name; else the first definition behind the place.
class DialogFile
{
public:
    /// Files that include each other are read this deep, once each.
    static constexpr int mostIncludes = 32;
    /// What a definition may come to with all that it is derived from; beyond is an error.
    static constexpr int mostTiles = 5000;

    /// Reads a file. One with errors has no dialogs; warnings do no harm. Takes time with the length of the texts,
    /// whatever they say.
    static DialogFile read(const QString &path, const SourceAccess &access);

    /// In the order of reading.
    const QList<Problem> &problems() const { return m_problems; }
    bool isUsable() const { return !hasError(m_problems); }
    /// What `dcl_settings` says: from 2 on the file's author wants to see warnings.
    int auditLevel() const { return m_auditLevel; }
    /// The names of its dialogs, of those that it includes too, in their order.
    QStringList dialogs() const;
    /// The dialog of this name; nothing when there is none. Letter case counts. A name that is not one of a dialog but
    /// of another tile has none.
    std::optional<Tile> dialog(const QString &name) const;
    /// All that were read, in their order, itself first.
    const QStringList &files() const { return m_files; }

private:
    friend class DefinitionCheck;
    using Definitions = std::vector<TileSource>;

    static const DialogFile &base();
    void readInto(const QString &path, const SourceAccess &access, int depth);
    void include(const Syntax::Item &item, const QString &from, const SourceAccess &access, int depth);
    void add(TileSource definition);
    /// Checks that all is there and of a size that can be shown.
    void check();
    /// The name means something without any definition here.
    bool isKnownOutside(const QString &name) const;
    /// Of a definition that was checked.
    TileKind kindOf(const TileSource &source) const;
    /// The definition that `name` means within number `user`; null when it is none of these.
    const TileSource *meant(const QString &name, qsizetype user) const;
    Tile expanded(const TileSource &source, qsizetype user) const;
    Tile prototype(const QString &name, qsizetype user) const;

    Definitions m_definitions;
    QHash<QString, QList<qsizetype>> m_byName; ///< indices, ascending
    QStringList m_files;
    QList<Problem> m_problems;
    int m_auditLevel = 1;
};

} // namespace host::dcl
