#include "host/kernel/commands/CommandContext.h"

#include "host/kernel/CurrentProperties.h"
#include "host/kernel/CurrentSpace.h"
#include "host/kernel/Document.h"
#include "host/kernel/SystemVariables.h"

namespace host::kernel {

using drawing::FieldList;
using drawing::Vec3;

drawing::Drawing &CommandContext::drawing()
{
    return m_document.drawing();
}

void CommandContext::print(const QString &text)
{
    m_document.print(text);
}

CommandContext::Reply CommandContext::ask(PromptRequest request)
{
    m_request = std::move(request);
    m_request.forCommand = true;
    return Reply(*this);
}

CommandContext::Reply CommandContext::askFor(PromptKind kind, const QString &prompt, const QString &options,
                                             const std::optional<Vec3> &base, const QString &defaultText)
{
    PromptRequest request;
    request.kind = kind;
    request.prompt = u'\n' + prompt;
    request.keywords = options.split(u' ', Qt::SkipEmptyParts);
    request.base = base;
    request.defaultText = defaultText;
    return ask(std::move(request));
}

CommandContext::Reply CommandContext::point(const QString &prompt, const QString &options,
                                            const std::optional<Vec3> &base)
{
    return askFor(PromptKind::Point, prompt, options, base, {});
}

CommandContext::Reply CommandContext::distance(const QString &prompt, const QString &options,
                                               const std::optional<Vec3> &base, const QString &defaultText)
{
    return askFor(PromptKind::Distance, prompt, options, base, defaultText);
}

CommandContext::Reply CommandContext::orientation(const QString &prompt, const QString &options,
                                                  const std::optional<Vec3> &base, const QString &defaultText)
{
    return askFor(PromptKind::Orientation, prompt, options, base, defaultText);
}

CommandContext::Reply CommandContext::real(const QString &prompt, const QString &options, const QString &defaultText)
{
    return askFor(PromptKind::Real, prompt, options, {}, defaultText);
}

CommandContext::Reply CommandContext::integer(const QString &prompt, const QString &options, const QString &defaultText)
{
    return askFor(PromptKind::Integer, prompt, options, {}, defaultText);
}

CommandContext::Reply CommandContext::keyword(const QString &prompt, const QString &options, const QString &defaultText)
{
    return askFor(PromptKind::Keyword, prompt, options, {}, defaultText);
}

CommandContext::Reply CommandContext::text(const QString &prompt, const QString &defaultText)
{
    PromptRequest request;
    request.kind = PromptKind::String;
    request.prompt = u'\n' + prompt;
    request.defaultText = defaultText;
    request.allowSpaces = true;
    return ask(std::move(request));
}

CommandContext::Reply CommandContext::name(const QString &prompt, const QString &defaultText)
{
    return askFor(PromptKind::String, prompt, {}, {}, defaultText);
}

CommandContext::Selection CommandContext::selection()
{
    const std::vector<drawing::RecordId> implied = m_document.impliedSelection();
    if (!implied.empty() && m_document.variables().integer(u"PICKFIRST") != 0) {
        m_document.setImpliedSelection({});
        m_document.setPreviousSelection(implied);
        m_reply = {};
        m_reply.entities = implied;
        return Selection(*this, true);
    }
    m_selection.emplace(m_document);
    m_request = m_selection->request();
    return Selection(*this, false);
}

drawing::RecordId CommandContext::create(const FieldList &fields)
{
    drawing::Entities &entities = drawing().entities();
    const drawing::CreateResult made =
        entities.create(withCurrentProperties(drawing(), fields), currentSpace(drawing()));
    if (!made)
        print(u'\n' + made.error);
    return made.record;
}

drawing::RecordId CommandContext::createComplex(const FieldList &head, const std::vector<FieldList> &children)
{
    drawing::Entities &entities = drawing().entities();
    const drawing::CreateResult made =
        entities.createComplex(withCurrentProperties(drawing(), head), children, currentSpace(drawing()));
    if (!made)
        print(u'\n' + made.error);
    return made.record;
}

} // namespace host::kernel
