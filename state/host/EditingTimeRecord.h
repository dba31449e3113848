#pragma once

#include "platform/kernel/OdResBuf.h"

#include <optional>

namespace ortakit {

/// The time that a user has worked on one drawing.
struct EditingTime
{
    bool isTracked = false;
    /// A longer pause between two activities is not counted; 0 or less counts every pause.
    qint32 idleLimitMinutes = 0;
    double hours = 0;
    /// Milliseconds since the epoch.
    qint64 lastActivity = 0;

    bool operator==(const EditingTime &) const = default;
};

/// A drawing keeps its editing time in the extension record of this name in the named-object dictionary, found without
/// regard to case. The record has four links, in this order:
///
/// | code | value |
/// |---|---|
/// | 280 | 1 when the time is tracked, else 0 |
/// | 90 | idle limit in minutes |
/// | 40 | hours worked |
/// | 1 | last activity, milliseconds since the epoch, as decimal text: wider than the file's integers |
inline OdString editingTimeRecordName()
{
    return QStringLiteral("KORA_TRACKTIME");
}

/// More hours than anybody works on a drawing, some 114 years: a record with more is damaged.
inline constexpr double mostEditingHours = 1'000'000;

/// The links of the record. Hours beyond what a record may have, as when the clock was put back, come as the nearest
/// that it may.
OdResBufPtr editingTimeChain(const EditingTime &time);

/// What the record says; links behind the fourth are left to those who wrote them. Nothing for a damaged one: a link
/// missing or in another place, a value of another type, hours that are negative, no number or beyond any life.
std::optional<EditingTime> editingTimeFromChain(const OdResBuf *chain);

/// What a user wants changed about a drawing's editing time.
struct EditingTimeChange
{
    std::optional<bool> isTracked = {};
    std::optional<qint32> idleLimitMinutes = {};
    bool isReset = false; ///< the hours become 0

    bool operator==(const EditingTimeChange &) const = default;

    /// `time` so changed at `now` (milliseconds since the epoch). What passed before the time is tracked is not
    /// counted.
    EditingTime applied(EditingTime time, qint64 now) const;
};

} // namespace ortakit
