#pragma once

#include "host/drawing/math/Vec.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace host::drawing {

/// The hexadecimal name of a record inside a drawing file. 0 names nothing.
struct Handle
{
    quint64 value = 0;

    bool isNull() const { return value == 0; }
    bool operator==(const Handle &) const = default;
    /// Upper-case hexadecimal digits without leading zeros, as files have it.
    QByteArray toHex() const;
    QString toString() const;
    /// Blanks around are allowed; nothing when the text is not a handle.
    static std::optional<Handle> fromText(QByteArrayView text);
    static std::optional<Handle> fromText(QStringView text);
};

/// What the value of a group code is.
enum class TagType
{
    Text,
    Real,
    Int16,
    Int32,
    Int64,
    Bool,
    Handle,
    Binary
};

/// The type that goes with a group code, extended data (1000-1071) included. Unknown codes are text.
TagType tagType(int code);

/// Whether the code is the x of a point, whose y and z have the codes +10 and +20 (10-18, 110-112, 210-212, 1010-1013).
/// Some records use such a code for a single number; a point is made only when the y follows.
bool isPointCode(int code);

/// One tag of a record: a group code and its value exactly as the file has it. A view: valid as long as the record it
/// was read from is not changed and its drawing lives.
struct Tag
{
    int code = 0;
    QByteArrayView value; ///< the value's line without its line end; blanks in front and behind are kept
    QByteArrayView whole; ///< both lines with their line ends

    /// Locale-free; blanks around and a leading '+' are allowed, and a number may stop at the first odd character, as
    /// existing files have it. Nothing when there is no number.
    std::optional<double> real() const;
    /// As real(); a number with a fraction is rounded towards zero, one too large gives nothing.
    std::optional<qint64> integer() const;
    std::optional<Handle> handle() const;
    /// The bytes that a binary tag's hexadecimal digits stand for; nothing when they are not such digits.
    std::optional<QByteArray> binary() const;
    QByteArrayView trimmed() const { return value.trimmed(); }
};

/// A value as a program gives and takes it: text decoded, points in one piece. Bool and integer codes hold qint64.
using FieldValue = std::variant<QString, double, qint64, Vec2, Vec3, Handle, QByteArray>;

/// A group code with its typed value: the form that entity lists of Lisp have. Unlike a Tag it owns what it holds.
struct Field
{
    int code = 0;
    FieldValue value;

    bool operator==(const Field &) const = default;

    /// Empty for anything but text (a handle gives its hexadecimal form).
    QString text() const;
    /// Numbers of both kinds; 0 for anything else.
    double real() const;
    qint64 integer() const;
    /// z is 0 for a flat point; the origin for anything that is no point.
    Vec3 point() const;
    Handle handle() const;
};

using FieldList = std::vector<Field>;

/// Whether the record's own groups end here: an object embedded in it (101) uses their codes again for its own, and
/// extended data, which begins with an application's name (1001), follows. An extension record has other groups of
/// 1000 and above as its own.
template <typename TagOrField>
bool endsOwnGroups(const TagOrField &item)
{
    return item.code == 101 || item.code == 1001;
}

/// The end of the record's own fields.
FieldList::const_iterator ownEnd(const FieldList &fields);
FieldList::iterator ownEnd(FieldList &fields);

/// Follows the {...} groups of 102, which hold what other programs note about a record, while tags or fields go by.
class BraceDepth
{
public:
    /// Whether what comes next is within braces; the braces themselves are.
    bool isInside(const Tag &tag) { return tag.code == braceCode ? pass(tag.trimmed().startsWith('{')) : m_isInside; }
    bool isInside(const Field &field)
    {
        return field.code == braceCode ? pass(field.text().startsWith(u'{')) : m_isInside;
    }

private:
    static constexpr int braceCode = 102;
    bool pass(bool isOpening)
    {
        const bool wasInside = std::exchange(m_isInside, isOpening);
        return wasInside || isOpening;
    }

    bool m_isInside = false;
};

/// The first field with this code, null when there is none. For codes below 1000 only the record's own count: neither
/// those of an embedded object nor those in {...} groups.
const Field *findField(const FieldList &fields, int code);
Field *findField(FieldList &fields, int code);
/// The real number of the field that findField() gives, `otherwise` when there is none.
double realOf(const FieldList &fields, int code, double otherwise = 0.0);
/// Whether the value is a point, of two or three coordinates.
bool isPoint(const Field &field);
/// Changes the field that findField() gives, or adds one behind the last own one; extended data goes to the end.
void setField(FieldList &fields, int code, FieldValue value);

} // namespace host::drawing
