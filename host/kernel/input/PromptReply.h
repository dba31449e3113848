#pragma once

#include "host/kernel/input/PromptRequest.h"

namespace host::kernel {

/// How a prompt ended.
enum class ReplyKind
{
    Value,    ///< the value asked for
    Empty,    ///< an empty answer: the default, where there is one
    Keyword,  ///< text has the keyword as (initget) spelled it, or any text where that is allowed
    Cancelled ///< Esc, or nobody there
};

// Values of ERRNO that programs look at behind a pick.
constexpr qint32 pickMissed = 7;
constexpr qint32 emptyAnswer = 52;

/// A checked answer. Which member holds the value depends on the request's kind.
struct PromptReply
{
    ReplyKind kind = ReplyKind::Value;
    qint32 integer = 0;
    double real = 0.0;                             ///< Real, Distance; Angle and Orientation in radians
    drawing::Vec3 point;                           ///< Point, Corner, and where an Entity was picked; world coordinates
    QString text;                                  ///< String, Keyword, Command
    std::vector<drawing::RecordId> entities;       ///< Entity, Selection
    std::shared_ptr<const SelectionSteps> steps{}; ///< Selection by a set: how that was chosen; null when unknown
    bool isRefused = false;                        ///< Cancelled: by an answer that the prompt does not take
    bool isMiss = false;                           ///< Entity: empty because nothing was where the user picked
    bool isShown = false;                          ///< Distance, Angle, Orientation: by points rather than typed
    bool isSet = false;                            ///< Selection: of entities chosen before, to be taken as they are
    bool isWindow = false;                         ///< Selection: two corners follow in `point` and `corner`
    drawing::Vec3 corner;

    bool hasValue() const { return kind == ReplyKind::Value; }
    bool isEmpty() const { return kind == ReplyKind::Empty; }
    /// Whether this option was chosen; of a prompt for a keyword alone it is the value.
    bool isKeyword(QStringView keyword) const
    {
        const bool hasWord = kind == ReplyKind::Keyword || kind == ReplyKind::Value;
        return hasWord && text.compare(keyword, Qt::CaseInsensitive) == 0;
    }
};

} // namespace host::kernel
