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
    /// Up to 64 bits in digits of either case; blanks around are allowed. Nothing when the text is not a handle.
    static std::optional<Handle> fromText(QByteArrayView text);
    static std::optional<Handle> fromText(QStringView text);
};

/// What the value of a group code is. The sizes of integers are those of the format's binary form: as text they are
/// read and written alike, and larger numbers are kept.
enum class TagType
{
    Text,
    Real,
    Int16,
    Int32,
    Int64,
    Bool, ///< 0 or 1
    Handle,
    Binary ///< pairs of hexadecimal digits
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
    int code = 0;         ///< -5 to 1071
    QByteArrayView value; ///< the value's line without its line end; blanks in front and behind are kept
    QByteArrayView whole; ///< both lines with their line ends

    // Each reads the value in its own way, whatever type goes with the code.
    /// Locale-free; blanks around and a leading '+' are allowed, and a number may stop at the first odd character, as
    /// existing files have it. One beyond all doubles is 0. Nothing when there is no number; "nan" and "inf" are none.
    std::optional<double> real() const;
    /// As real(); a number with a fraction is rounded towards zero, one too large gives nothing.
    std::optional<qint64> integer() const;
    /// As Handle::fromText().
    std::optional<Handle> handle() const;
    /// The bytes that a binary tag's hexadecimal digits stand for; nothing when they are not such digits, or one is
    /// left over.
    std::optional<QByteArray> binary() const;
    /// The value without blanks around: right for codes and keywords, while texts keep theirs.
    QByteArrayView trimmed() const { return value.trimmed(); }
};

/// A value as a program gives and takes it: text decoded, points in one piece. Bool and integer codes hold qint64,
/// reals double, handles Handle, binary data QByteArray; two coordinates are a Vec2, three a Vec3. What does not read
/// as the type of its code is the text that the file has.
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
    /// A real is rounded towards zero; one that no integer can hold gives 0.
    qint64 integer() const;
    /// z is 0 for a flat point; the origin for anything that is no point.
    Vec3 point() const;
    /// A text that spells a handle counts as one; null for anything else.
    Handle handle() const;
};

/// A record as a program has it, group 0 first where the whole of it is meant. Searching one costs a pass over it.
using FieldList = std::vector<Field>;

/// Whether the record's own groups end here: an object embedded in it (101) uses their codes again for its own, and
/// extended data, which begins with an application's name (1001), follows. An extension record has other groups of
/// 1000 and above as its own.
template <typename TagOrField>
bool endsOwnGroups(const TagOrField &item)
{
    return item.code == 101 || item.code == 1001;
}

/// Where endsOwnGroups() first holds; the list's end when nothing follows the record's own fields.
FieldList::const_iterator ownEnd(const FieldList &fields);
FieldList::iterator ownEnd(FieldList &fields);

/// Follows the {...} groups of 102, which hold what other programs note about a record, while tags or fields go by. One
/// serves one record.
class BraceDepth
{
public:
    /// Whether what comes next is within braces; the braces themselves are. To be asked of every item, in order.
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
/// those of an embedded object nor those in {...} groups; the braces' own code 102 is found everywhere. The pointer
/// holds until the list changes its length.
const Field *findField(const FieldList &fields, int code);
Field *findField(FieldList &fields, int code);
/// The real number of the field that findField() gives, `otherwise` when there is none.
double realOf(const FieldList &fields, int code, double otherwise = 0.0);
/// Whether the value is a point, of two or three coordinates.
bool isPoint(const Field &field);
/// Changes the field that findField() gives, whatever type it had, or adds one behind the last own one; extended data
/// goes to the end.
void setField(FieldList &fields, int code, FieldValue value);

} // namespace host::drawing
