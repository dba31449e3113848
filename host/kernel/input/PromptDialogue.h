#pragma once

#include "host/kernel/input/PromptReply.h"

namespace host::kernel {

class Document;

/// One prompt from its question to a checked answer. It does not fetch answers: who has one offers it, be it the user's
/// queue or the arguments of a Lisp program's (command ...).
///
/// A refused answer is told on the command line and the question stands. A distance or angle that begins with a point
/// turns into the question for the second one. Points become LASTPOINT.
class PromptDialogue
{
public:
    PromptDialogue(Document &document, PromptRequest request);

    /// What is asked now.
    const PromptRequest &request() const { return m_request; }
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

    Reading readEmpty();
    Reading readEvaluated(const QString &expression);
    Reading readValue(const QString &text);
    Reading readInteger(const QString &text);
    Reading readReal(const QString &text);
    Reading readAngle(const QString &text);
    Reading checkNumber(double value, PromptReply reply);
    Reading takePoint(const drawing::Vec3 &world);
    Reading takeSecondPoint(const drawing::Vec3 &world);
    Reading pickAt(const drawing::Vec3 &world);
    std::optional<drawing::Vec3> typedPoint(const QString &text) const;
    Reading refuse() const;
    bool isOutsideLimits(const drawing::Vec3 &world) const;

    Document &m_document;
    PromptRequest m_request;
    bool m_wasRefused = false;
};

} // namespace host::kernel
