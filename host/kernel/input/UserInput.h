#pragma once

#include "host/kernel/input/PromptReply.h"
#include "platform/kernel/CKvUserInput.h"

#include <deque>

namespace host::kernel {

class Document;
class PromptDialogue;

/// What a program has prepared for the prompts of a command, in order; nothing where the user is to answer ("pause").
using GivenAnswers = std::deque<std::optional<InputAnswer>>;

/// The prompts of one document. Answers come from what a program has given for them, then from the session's queue, and
/// from its feeder when that is empty. Prompts, echoes and what is said of refused answers are printed on the command
/// line, but for answers of a program while CMDECHO is 0.
///
/// All of it blocks until there is an answer: a feeder of a window runs an event loop of its own meanwhile. Points are
/// in world coordinates, lengths in drawing units, angles in radians.
class KV_EXPORT UserInput final : public CKvUserInput
{
public:
    /// The document owns it.
    explicit UserInput(Document &document) : m_document(document) {}

    /// Asks until the answer is acceptable; commands that are called in the middle of it run meanwhile. Cancelled when
    /// nobody is there; refused, which is a kind of cancelled, when the request says that a wrong answer ends it and
    /// more was typed behind that.
    PromptReply ask(const PromptRequest &request);
    /// What a refused answer does while more was typed behind it.
    enum class WhenRefused
    {
        AskAgain,
        EndBeforeMore ///< the prompt is cancelled
    };
    /// The same for a prompt that may have been answered in part.
    PromptReply ask(PromptDialogue &dialogue, WhenRefused whenRefused);
    /// Throws the dialect's error while a dialog of a Lisp program is on the screen: nobody could answer then.
    void refuseInDialog() const;
    /// Forgets what was typed ahead, because it was meant for other questions than those that come now, and prints that
    /// it was. Nothing is printed when there is none.
    void dropTypedAhead();
    /// The next answer for a request whose prompt was printed; nothing checks it. Esc (CancelAnswer) too when the user
    /// wants all to stop, which empties the queue, and when nobody is there, which is printed.
    InputAnswer nextAnswer(const PromptRequest &request);
    /// Answers for the next prompts, in place of those that are left of an earlier call; returns these.
    GivenAnswers give(GivenAnswers answers) { return std::exchange(m_given, std::move(answers)); }
    /// Those that no prompt has taken yet.
    const GivenAnswers &given() const { return m_given; }
    /// Puts bits and keywords of the last initget() into `request` and forgets them.
    void applyOptions(PromptRequest &request);
    /// For what asks nothing after an initget(): its bits and keywords are for one prompt.
    void forgetOptions();
    /// Asks for one entity, with the options of the last initget(); a keyword becomes input(). An empty place picked is
    /// a reply without an entity, not asked again: ERRNO tells programs.
    PromptReply askForEntity(const QString &prompt);
    /// Asks for a point while `entities` hang at the pointer by `base`. Otherwise as getPoint().
    int dragToPoint(const QString &prompt, const drawing::Vec3 &base, std::vector<drawing::RecordId> entities,
                    drawing::Vec3 &point);

    // As CKvUserInput says. Result codes are kRtNormal, kRtNone, kRtKeyword, kRtCancel; `value` stays as it is but for
    // kRtNormal, and for strings that a keyword answers, which are empty then.

    void initget(int bits, const QStringList &keywords) override;
    OdString formatPrompt(const OdString &prompt, const OdString &defaultText) const override;
    OdString lengthText(double length) const override;
    OdString angleText(double angle) const override;
    int getInteger(const OdString &prompt, bool hasDefault, qint32 &value) override;
    int getReal(const OdString &prompt, bool hasDefault, double &value) override;
    int getDistance(const OdString &prompt, const std::optional<OdGePoint3d> &base, bool hasDefault,
                    double &value) override;
    int getAngle(const OdString &prompt, const std::optional<OdGePoint3d> &base, bool hasDefault,
                 double &value) override;
    int getPoint(const OdString &prompt, const std::optional<OdGePoint3d> &base, OdGePoint3d &value) override;
    int getCorner(const OdString &prompt, const OdGePoint3d &base, OdGePoint3d &value) override;
    int getString(const OdString &prompt, bool allowSpaces, OdString &value) override;
    int getKeyword(const OdString &prompt, OdString &value) override;
    OdString input() const override { return m_input; }

private:
    /// With the options of the last initget(); the result code, and input() set for a keyword.
    int askFor(PromptRequest request, PromptReply &reply);
    int askForReal(PromptKind kind, const OdString &prompt, const std::optional<OdGePoint3d> &base, bool hasDefault,
                   double &value);
    int askForPoint(PromptKind kind, const OdString &prompt, const std::optional<OdGePoint3d> &base,
                    OdGePoint3d &value);
    /// Prints an answer behind its prompt; picks end the line.
    void echo(const InputAnswer &answer);
    /// Whether a program has the next answer and wants nothing of it on the command line (CMDECHO 0).
    bool isAnsweredSilently() const;

    /// Nothing when a program has given none, or "pause".
    std::optional<InputAnswer> takeGiven();

    Document &m_document;
    GivenAnswers m_given;
    int m_bits = 0;         ///< InputBit, of the last initget()
    QStringList m_keywords; ///< likewise
    QStringList m_answers;  ///< likewise
    QString m_input;        ///< the keyword or other text that answered last
};

} // namespace host::kernel
