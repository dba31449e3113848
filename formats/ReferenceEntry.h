#pragma once

#include <QString>

namespace ortakit {

/// A file that a drawing refers to, as Lisp programs tell of it: "type^name^path", with "\U+005E" for a "^" in the
/// name.
struct ReferenceEntry
{
    QString type;
    QString name;
    QString path;

    bool operator==(const ReferenceEntry &) const = default;
};

/// Takes `text` apart; what it lacks is empty, and a further "^" belongs to the path.
ReferenceEntry referenceOf(const QString &text);

QString writtenReference(const ReferenceEntry &entry);

/// `path` with every "/" replaced by "\".
QString withBackslashes(QString path);

/// `path` with every `found`, spelled in exactly this way, replaced; with the replacement in front of it when `found`
/// is empty.
QString redefinedPath(const QString &path, const QString &found, const QString &replacement);

} // namespace ortakit
