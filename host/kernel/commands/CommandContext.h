#pragma once

#include "host/drawing/Drawing.h"
#include "host/drawing/Entities.h"
#include "host/kernel/commands/CommandTask.h"
#include "host/kernel/input/SelectionBuilder.h"

namespace host::kernel {

class Document;

/// What a command's body works with. The asking functions give something to co_await.
class CommandContext
{
public:
    /// Waits for the reply to a request.
    class Reply
    {
    public:
        explicit Reply(CommandContext &context) : m_context(context) {}
        bool await_ready() const noexcept { return false; }
        void await_suspend(CommandTask::Handle) const noexcept {}
        PromptReply await_resume() const { return m_context.m_reply; }

    private:
        CommandContext &m_context;
    };

    /// Waits for a whole selection; what was chosen before the command started is taken without asking.
    class Selection : public Reply
    {
    public:
        explicit Selection(CommandContext &context, bool isImplied) : Reply(context), m_isImplied(isImplied) {}
        bool await_ready() const noexcept { return m_isImplied; }

    private:
        bool m_isImplied;
    };

    explicit CommandContext(Document &document) : m_document(document) {}

    Document &document() { return m_document; }
    drawing::Drawing &drawing();
    void print(const QString &text);

    /// `options`: keywords with a blank between, as (initget) has them.
    Reply ask(PromptRequest request);
    Reply point(const QString &prompt, const QString &options = {}, const std::optional<drawing::Vec3> &base = {});
    Reply distance(const QString &prompt, const QString &options = {}, const std::optional<drawing::Vec3> &base = {},
                   const QString &defaultText = {});
    /// An angle from the x axis, in radians.
    Reply orientation(const QString &prompt, const QString &options = {}, const std::optional<drawing::Vec3> &base = {},
                      const QString &defaultText = {});
    Reply real(const QString &prompt, const QString &options = {}, const QString &defaultText = {});
    Reply integer(const QString &prompt, const QString &options = {}, const QString &defaultText = {});
    Reply keyword(const QString &prompt, const QString &options, const QString &defaultText = {});
    /// Text, with blanks.
    Reply text(const QString &prompt, const QString &defaultText = {});
    /// Text up to a blank: a name.
    Reply name(const QString &prompt, const QString &defaultText = {});

    /// The entities that the command works on; they become the previous selection.
    Selection selection();

    /// Makes an entity in the current space with the current layer, colour, linetype, scale and weight where `fields`
    /// do not say others, and prints the reason when that fails.
    drawing::RecordId create(const drawing::FieldList &fields);
    drawing::RecordId createComplex(const drawing::FieldList &head, const std::vector<drawing::FieldList> &children);

private:
    friend class CommandRun;
    Reply askFor(PromptKind kind, const QString &prompt, const QString &options,
                 const std::optional<drawing::Vec3> &base, const QString &defaultText);

    Document &m_document;
    PromptRequest m_request;
    PromptReply m_reply;
    std::optional<SelectionBuilder> m_selection; ///< while a selection grows
};

} // namespace host::kernel
