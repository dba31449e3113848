#pragma once

#include "platform/Export.h"
#include "platform/rx/OdString.h"

#include <memory>
#include <variant>

/// A point in three dimensions; the meaning of its coordinates (user or world) is said where it is used.
struct OdGePoint3d
{
    double x = 0;
    double y = 0;
    double z = 0;

    bool operator==(const OdGePoint3d &) const = default;
};

/// One link of a result-buffer chain: a type code, a value and the links after it, which it owns. Links are made on
/// either side of the boundary and freed on either, so host and module share one C++ heap.
///
/// Which kind of value a link has follows from its type: those below say it themselves, and a group code has the kind
/// that it has in every DXF file (40 a real, 70 an integer, 10 a point, whose y and z are in it). Who copies a chain
/// goes by that.
///
/// Values of Lisp: a list is a list begin, its items and a list end. One of two or three numbers may come as a point
/// instead, and is the same list to whoever gets it. Integers that fit are kRtShort, others kRtLong.
///
/// Reading a value as another kind than the stored one gives 0, an empty string or the origin; an integer may be read
/// as a real and the other way round (cut towards zero).
class KV_EXPORT OdResBuf
{
public:
    /// What external functions and their arguments use.
    enum Type : int
    {
        kRtReal = 5001,   ///< real
        kRtPoint = 5002,  ///< point in two dimensions
        kRtShort = 5003,  ///< 16-bit integer
        kRtAngle = 5004,  ///< real, radians
        kRtString = 5005, ///< string
        kRtEntityName = 5006,
        kRtPickSet = 5007,
        kRtPoint3d = 5009, ///< point in three dimensions
        kRtLong = 5010,    ///< 32-bit integer
        kRtListBegin = 5016,
        kRtListEnd = 5017,
        kRtDottedPair = 5018, ///< in place of the list end: the last item is what stands behind the dot
        kRtNil = 5019,
        kRtTrue = 5021,
        kRtSymbol = 5022, ///< a symbol other than nil and T; its name as the string
    };

    /// Without a value, as list begins and ends, nil and T are.
    explicit OdResBuf(int type) : m_type(type) {}
    /// Frees the chain without recursion, however long it is.
    ~OdResBuf();
    OdResBuf(const OdResBuf &) = delete;
    OdResBuf &operator=(const OdResBuf &) = delete;

    // A link alone, which is the caller's. No type is checked against the value: group codes of records serve as types,
    // too.
    static std::unique_ptr<OdResBuf> newRb(int type) { return std::make_unique<OdResBuf>(type); }
    static std::unique_ptr<OdResBuf> newString(int type, const OdString &value);
    static std::unique_ptr<OdResBuf> newInteger(int type, qint64 value);
    static std::unique_ptr<OdResBuf> newReal(int type, double value);
    static std::unique_ptr<OdResBuf> newPoint(int type, const OdGePoint3d &value);

    /// A Type, or a DXF group code in the data of records.
    int restype() const { return m_type; }
    // The value, see above for those of another kind. A point in two dimensions has z 0.
    OdString getString() const;
    qint64 getInteger() const;
    double getDouble() const;
    OdGePoint3d getPoint3d() const;

    /// The next link, null at the end.
    OdResBuf *next() const { return m_next.get(); }
    /// Puts `next` behind this link in place of what was there, and returns it.
    OdResBuf *setNext(std::unique_ptr<OdResBuf> next);
    /// Takes off what is behind this link, which is the last one then; null when it was already.
    std::unique_ptr<OdResBuf> takeNext() { return std::move(m_next); }

private:
    int m_type;
    std::variant<std::monostate, qint64, double, OdString, OdGePoint3d> m_value;
    std::unique_ptr<OdResBuf> m_next;
};

/// A chain by its first link; null is an empty one.
using OdResBufPtr = std::unique_ptr<OdResBuf>;

/// Result codes of external functions and of user input. A function that returns kRtError fails the Lisp call,
/// kRtCancel cancels the expression that it stands in, and every other code ends it with the result that was set.
enum KvResult : int
{
    // The numbers are the dialect's, and so are those of the types above.
    kRtNormal = 5100,   ///< done
    kRtNone = 5000,     ///< an empty answer where no default was given
    kRtError = -5001,   ///< wrong arguments
    kRtCancel = -5002,  ///< the user cancelled
    kRtKeyword = -5005, ///< a keyword was entered instead of a value
};
