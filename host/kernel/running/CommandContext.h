#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/drawing/records/Entities.h"
#include "host/kernel/input/SelectionBuilder.h"
#include "host/kernel/running/CommandTask.h"

namespace host::kernel {

struct CommandRow;
class Document;

/// What a command's body works with. The asking functions give something to co_await.
///
/// A body is a coroutine that stops at each prompt, so the same one is answered by a window, a script or a Lisp program
/// that calls (command) piece by piece. Esc destroys it where it waits; what it changed is taken back unless
/// its row says that each answer is a step of its own (WhenCancelled). Points are in world coordinates, angles in
/// radians.
class CommandContext
{
public:
    /// Waits for the reply to a request. The body gets only replies that the request takes: a value, a keyword, or
    /// nothing where an empty answer is allowed; being cancelled it never sees.
    class Reply
    {
    public:
        explicit Reply(CommandContext &context) : m_context(context) {}
        bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> waiting) const noexcept { m_context.m_waiting = waiting; }
        PromptReply await_resume() const { return m_context.m_reply; }
        /// Has this hang at the pointer while the prompt waits.
        Reply dragging(Dragged shape) const
        {
            m_context.m_request.dragged = std::move(shape);
            return *this;
        }

        /// The point is to be the corner opposite to the base.
        Reply asBox() const
        {
            m_context.m_request.isForBox = true;
            return *this;
        }

    protected:
        CommandContext &m_context;
    };

    /// Waits for a whole selection; what was chosen before the command started is taken without asking.
    class Selection : public Reply
    {
    public:
        explicit Selection(CommandContext &context, bool isImplied) : Reply(context), m_isImplied(isImplied) {}
        bool await_ready() const noexcept { return m_isImplied; }
        /// What was chosen is shown so while the command asks on.
        PromptReply await_resume() const
        {
            m_context.m_chosen = std::make_shared<const std::vector<drawing::RecordId>>(m_context.m_reply.entities);
            return m_context.m_reply;
        }

    private:
        bool m_isImplied;
    };

    /// Made by CommandRun for each run of a command.
    explicit CommandContext(Document &document) : m_document(document) {}

    Document &document() { return m_document; }
    /// What is changed through it is a part of the command's undo step.
    drawing::Drawing &drawing();
    /// Prints on the command line; texts bring their own line feeds, by custom in front.
    void print(const QString &text);
    /// Prints why the command ends without having done what it was asked for; what it has changed is taken back then.
    /// The body ends behind it.
    void fail(const QString &reason);
    /// Prints why an answer cannot be taken. True when the command fails with that, as more was typed behind it; false
    /// when it is asked for again: the user is there, or a Lisp program's next answer may do.
    bool refuse(const QString &reason);
    bool hasFailed() const { return m_hasFailed; }
    /// Has a built-in command follow when the body has ended, and again after itself until it is cancelled or fails;
    /// each time is an undo step. One that asks for nothing runs once. False when there is no such command.
    bool repeat(const QString &name);
    /// Whether the last answer was an argument of a Lisp program's (command).
    bool isAnsweredByProgram() const { return m_isAnsweredByProgram; }

    /// A length and an angle (radians) as the drawing shows them, in its units and decimals: for default values.
    QString shownLength(double length) const;
    QString shownAngle(double angle) const;

    // The options of a prompt are what it lists in brackets ("or [Close/Undo]", see optionsIn()); `options` are taken
    // instead when there are some: keywords with a blank between, as (initget) has them. `bits`: InputBit.
    // `prompt` comes without the line feed in front and with a blank behind its colon.
    //
    // `base`: where a rubber band starts, and what relative coordinates count from. `defaultText`: what an empty answer
    // means, as shown; the body puts the value in itself when the reply is empty.

    /// Any request; the functions below are short for the usual ones.
    Reply ask(PromptRequest request);
    /// A point.
    Reply point(const QString &prompt, const QString &options = {}, const std::optional<drawing::Vec3> &base = {},
                const QString &defaultText = {}, int bits = 0);
    /// A point, or an option, that the command cannot do without: an empty answer is not taken.
    Reply neededPoint(const QString &prompt, const std::optional<drawing::Vec3> &base = {},
                      const QString &options = {});
    /// A length in drawing units, typed or by one or two points; what it may be is said by `bits`.
    Reply distance(const QString &prompt, const QString &options = {}, const std::optional<drawing::Vec3> &base = {},
                   const QString &defaultText = {}, int bits = 0);
    /// An angle from the user's x axis, in radians.
    Reply orientation(const QString &prompt, const QString &options = {}, const std::optional<drawing::Vec3> &base = {},
                      const QString &defaultText = {}, int bits = 0);
    /// An angle to turn by, in radians: typed angles count from where they stand, whatever ANGBASE is.
    Reply angle(const QString &prompt, const QString &options = {}, const std::optional<drawing::Vec3> &base = {},
                const QString &defaultText = {}, int bits = 0);
    /// A number without unit.
    Reply real(const QString &prompt, const QString &options = {}, const QString &defaultText = {}, int bits = 0);
    /// A whole number of 32 bits.
    Reply integer(const QString &prompt, const QString &options = {}, const QString &defaultText = {}, int bits = 0);
    /// One of the options and nothing else.
    Reply keyword(const QString &prompt, const QString &options = {}, const QString &defaultText = {});
    /// Text, with blanks. Its options are `options` alone.
    Reply text(const QString &prompt, const QString &defaultText = {}, const QString &options = {});
    /// Text up to a blank: a name.
    Reply name(const QString &prompt, const QString &defaultText = {});
    /// One entity, with the point it was picked at.
    Reply entity(const QString &prompt);

    /// The entities that the command works on; they become the previous selection. `prompt` stands in place of "Select
    /// objects: "; an option that it lists in brackets ends the selection as a keyword, with what was chosen so far.
    Selection selection(const QString &prompt = {});

    /// Makes an entity in the current space with the current layer, colour, linetype, scale, weight, thickness and
    /// transparency where `fields` do not say others, and prints the reason when that fails.
    /// noRecord then. Fields with subclass markers stay in their order, which is that of the record then.
    drawing::RecordId create(const drawing::FieldList &fields);
    /// The same for an entity with parts that end in a SEQEND, which is made too.
    drawing::RecordId createComplex(const drawing::FieldList &head, const std::vector<drawing::FieldList> &children);

private:
    friend class CommandRun;
    Reply askFor(PromptKind kind, const QString &prompt, const QString &options,
                 const std::optional<drawing::Vec3> &base, const QString &defaultText, int bits = 0);

    Document &m_document;
    PromptRequest m_request;           ///< what the body waits for
    PromptReply m_reply;               ///< what it gets when it goes on
    std::coroutine_handle<> m_waiting; ///< the body, or the part of it, that stopped for the reply
    bool m_hasFailed = false;
    const CommandRow *m_repeated = nullptr; ///< what follows
    bool m_isRefused = false;               ///< the body did not take the last answer
    bool m_isAnsweredAhead = false;         ///< more is typed behind the last answer
    bool m_isAnsweredByProgram = false;
    std::optional<SelectionBuilder> m_selection;                    ///< while a selection grows
    std::shared_ptr<const std::vector<drawing::RecordId>> m_chosen; ///< of the last selection
};

} // namespace host::kernel
