#pragma once

#include "host/kernel/input/PointAssembly.h"
#include "host/kernel/input/PromptReply.h"

namespace host::kernel {

class Document;

/// One prompt from its question to a checked answer. It does not fetch answers: who has one offers it, be it the user's
/// queue or the arguments of a Lisp program's (command ...).
///
/// A refused answer is told on the command line and the question stands. A distance or angle that begins with a point
/// turns into the question for the second one. Points become LASTPOINT.
///
/// Wherever a point may answer, so may words that put one together (see PointAssembly), and at a prompt for points with
/// a base a number: that far from the base towards the place that the pointer shows (see HandAim), or, where nobody has
/// moved one, in the direction in which the last point with a base lay from it (at first along the user's x axis).
///
/// Words of object snap (see parseSnapModes()) are for the next point, wherever it comes from, here and where entities
/// are picked; when nothing is found, the point is refused. The kinds of OSMODE move points that are shown by hand,
/// and by OSNAPCOORD: 0 all points, 1 no others, 2 those that scripts type. Points that programs give are the places
/// they mean.
class PromptDialogue
{
public:
    PromptDialogue(Document &document, PromptRequest request);

    /// What is asked now.
    const PromptRequest &request() const { return m_part ? *m_part : m_request; }
    /// The reply when `answer` ends the prompt; nothing when it was refused or more is needed.
    std::optional<PromptReply> offer(const InputAnswer &answer);
    /// Whether the answer offered last was refused.
    bool wasRefused() const { return m_wasRefused; }

private:
    /// The reply, or why there is none.
    struct Reading
    {
        std::optional<PromptReply> reply;
        QString refusal;
    };
    Reading read(const TextAnswer &answer);
    Reading read(const PointAnswer &answer);
    Reading read(const EntityAnswer &answer);
    Reading read(const EntitiesAnswer &answer);
    Reading read(const WindowAnswer &answer);
    Reading read(const CancelAnswer &answer);
    Reading read(const KeyAnswer &) { return refuse(); }
    Reading read(const PointerAnswer &) { return refuse(); }

    Reading readText(const QString &text);
    Reading readEmpty();
    Reading readEvaluated(const QString &expression);
    Reading readValue(const QString &text);
    Reading readInteger(const QString &text);
    Reading readReal(const QString &text);
    Reading readAngle(const QString &text);
    Reading checkNumber(double value, PromptReply reply);
    // Points, as they are given and as they are put together.
    enum class Origin
    {
        Pointer,
        Keyboard,
        Script,
        Program
    };
    bool takePointWord(const QString &text);
    bool lockDirection(const QString &text);
    bool takeSnapWord(const QString &text);
    bool isSnapped(Origin origin) const;
    /// Moves the place where snaps want it. What is refused; empty when nothing is. `hasMoved` tells.
    QString snap(drawing::Vec3 &world, Origin origin, bool &hasMoved);
    Reading readPart(const QString &text);
    std::optional<drawing::Vec3> directDistance(const QString &text) const;
    /// Where distances alone go from a base; both in user coordinates, of length 1.
    drawing::Vec3 aimedDirection(const drawing::Vec3 &base) const;
    Reading takeGiven(const drawing::Vec3 &world, Origin origin);
    /// When `user` completes the point; nothing: more is asked for.
    Reading takeAssembled(const std::optional<drawing::Vec3> &user);
    void askForPart();
    std::optional<drawing::Vec3> userBase() const;
    void keepDirection(const drawing::Vec3 &user);
    Reading takePoint(const drawing::Vec3 &world);
    Reading takeSecondPoint(const drawing::Vec3 &world);
    Reading pickAt(const drawing::Vec3 &world);
    std::optional<drawing::Vec3> typedPoint(const QString &text) const;
    Reading refuse() const;
    bool isOutsideLimits(const drawing::Vec3 &world) const;

    Document &m_document;
    PromptRequest m_request;
    PointAssembly m_assembly;
    std::optional<int> m_snaps;          ///< of words, for the next point
    Origin m_typedBy = Origin::Keyboard; ///< of the text that is being read
    std::optional<PromptRequest> m_part; ///< what is asked while a point is put together
    bool m_wasRefused = false;
};

} // namespace host::kernel
