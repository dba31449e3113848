#include "host/kernel/running/CommandContext.h"

#include "host/drawing/math/Finite.h"
#include "host/kernel/documents/CurrentProperties.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Keywords.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/languages/KeywordCatalogue.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandTable.h"
#include "host/kernel/variables/SystemVariables.h"

namespace host::kernel {

using drawing::FieldList;
using drawing::Vec3;

drawing::Drawing &CommandContext::drawing()
{
    return m_document.drawing();
}

void CommandContext::print(const QString &text)
{
    m_document.mutter(text);
}

void CommandContext::fail(const QString &reason)
{
    m_document.print(u'\n' + reason);
    m_hasFailed = true;
}

bool CommandContext::repeat(const QString &name)
{
    m_repeated = CommandTable::find(name);
    if (!m_repeated)
        m_repeated = CommandTable::find(m_document.commandOfAlias(name));
    return m_repeated != nullptr;
}

bool CommandContext::refuse(const QString &reason)
{
    m_isRefused = true;
    if (m_isAnsweredAhead)
        fail(reason);
    else
        print(u'\n' + reason);
    return m_isAnsweredAhead;
}

QString CommandContext::shownLength(double length) const
{
    return UnitFormat::of(m_document.variables()).length(length);
}

QString CommandContext::shownAngle(double angle) const
{
    return UnitFormat::of(m_document.variables()).angle(angle);
}

CommandContext::Reply CommandContext::ask(PromptRequest request)
{
    m_request = inLanguage(std::move(request), m_document.commandName());
    m_request.forCommand = true;
    m_request.chosen = m_chosen;
    return Reply(*this);
}

CommandContext::Reply CommandContext::askFor(PromptKind kind, const QString &prompt, const QString &options,
                                             const std::optional<Vec3> &base, const QString &defaultText, int bits)
{
    PromptRequest request;
    request.kind = kind;
    request.prompt = u'\n' + prompt;
    request.keywords = options.isEmpty() ? optionsIn(prompt) : options.split(u' ', Qt::SkipEmptyParts);
    request.base = base;
    request.defaultText = defaultText;
    request.bits = bits;
    return ask(std::move(request));
}

CommandContext::Reply CommandContext::point(const QString &prompt, const QString &options,
                                            const std::optional<Vec3> &base, const QString &defaultText, int bits)
{
    return askFor(PromptKind::Point, prompt, options, base, defaultText, bits);
}

CommandContext::Reply CommandContext::neededPoint(const QString &prompt, const std::optional<Vec3> &base,
                                                  const QString &options)
{
    return askFor(PromptKind::Point, prompt, options, base, {}, NoEmptyAnswer);
}

CommandContext::Reply CommandContext::distance(const QString &prompt, const QString &options,
                                               const std::optional<Vec3> &base, const QString &defaultText, int bits)
{
    return askFor(PromptKind::Distance, prompt, options, base, defaultText, bits);
}

CommandContext::Reply CommandContext::orientation(const QString &prompt, const QString &options,
                                                  const std::optional<Vec3> &base, const QString &defaultText, int bits)
{
    return askFor(PromptKind::Orientation, prompt, options, base, defaultText, bits);
}

CommandContext::Reply CommandContext::angle(const QString &prompt, const QString &options,
                                            const std::optional<Vec3> &base, const QString &defaultText, int bits)
{
    return askFor(PromptKind::Angle, prompt, options, base, defaultText, bits);
}

CommandContext::Reply CommandContext::real(const QString &prompt, const QString &options, const QString &defaultText,
                                           int bits)
{
    return askFor(PromptKind::Real, prompt, options, {}, defaultText, bits);
}

CommandContext::Reply CommandContext::integer(const QString &prompt, const QString &options, const QString &defaultText,
                                              int bits)
{
    return askFor(PromptKind::Integer, prompt, options, {}, defaultText, bits);
}

CommandContext::Reply CommandContext::keyword(const QString &prompt, const QString &options, const QString &defaultText)
{
    return askFor(PromptKind::Keyword, prompt, options, {}, defaultText);
}

CommandContext::Reply CommandContext::text(const QString &prompt, const QString &defaultText, const QString &options)
{
    PromptRequest request;
    request.kind = PromptKind::String;
    request.prompt = u'\n' + prompt;
    request.keywords = options.split(u' ', Qt::SkipEmptyParts);
    request.defaultText = defaultText;
    request.allowSpaces = true;
    return ask(std::move(request));
}

CommandContext::Reply CommandContext::name(const QString &prompt, const QString &defaultText)
{
    return askFor(PromptKind::String, prompt, {}, {}, defaultText);
}

CommandContext::Reply CommandContext::entity(const QString &prompt)
{
    return askFor(PromptKind::Entity, prompt, {}, {}, {});
}

CommandContext::Selection CommandContext::selection(const QString &prompt)
{
    const std::vector<drawing::RecordId> implied = m_document.impliedSelection();
    if (!implied.empty() && m_document.variables().integer(u"PICKFIRST") != 0) {
        m_document.setImpliedSelection({});
        m_document.setPreviousSelection(implied);
        m_reply = {};
        m_reply.entities = implied;
        return Selection(*this, true);
    }
    // With PICKFIRST 0 it is asked for; what was chosen before must not look chosen then.
    if (!implied.empty())
        m_document.setImpliedSelection({});
    m_selection.emplace(m_document);
    if (!prompt.isEmpty()) {
        m_selection->setPrompt(u'\n' + prompt);
        m_selection->setOptions(optionsIn(prompt));
    }
    m_request = m_selection->request();
    return Selection(*this, false);
}

namespace {

/// Whether all numbers are such as a file can hold.
bool isFinite(const FieldList &fields)
{
    return std::ranges::all_of(fields, [](const drawing::Field &field) {
        return std::isfinite(field.real()) && drawing::isFinite(field.point());
    });
}

/// What the session adds to withCurrentProperties(): a transparency of its own, and where lines and points, which lie
/// in space, rise to.
FieldList asNewEntity(Document &document, const FieldList &given)
{
    FieldList fields = withCurrentProperties(document.drawing(), given);
    bool isNumber = false;
    const QString usual = document.variables().text(u"CETRANSPARENCY");
    const int percent = usual.toInt(&isNumber);
    const bool isByBlock = usual.compare(u"ByBlock", Qt::CaseInsensitive) == 0;
    const bool isPossible = document.drawing().version() >= drawing::Version::R2004;
    if (isPossible && (isByBlock || (isNumber && percent >= 0 && percent <= 90)) && !drawing::findField(fields, 440))
        fields.push_back({440, isByBlock ? transparencyByBlock : transparencyValue(percent)});
    const QString type = fields.front().text();
    const bool isInSpace = type == QStringLiteral("LINE") || type == QStringLiteral("POINT");
    const Vec3 up = document.userAxes().zAxis;
    if (isInSpace && drawing::findField(fields, 39) && !drawing::findField(fields, 210) && up != Vec3{0, 0, 1})
        fields.push_back({210, up});
    // A list with markers is in the order of the record: what all entities have stands behind its own.
    const auto marker = std::ranges::find(fields, drawing::Field{100, QStringLiteral("AcDbEntity")});
    if (marker != fields.end())
        std::rotate(marker + 1, fields.begin() + qsizetype(given.size()), fields.end());
    return fields;
}

} // namespace

drawing::RecordId CommandContext::create(const FieldList &fields)
{
    if (!isFinite(fields)) {
        fail(Kernel::tr("The numbers are too large."));
        return drawing::noRecord;
    }
    const drawing::CreateResult made = createOnCurrent(drawing(), asNewEntity(m_document, fields));
    if (!made)
        print(u'\n' + made.error);
    return made.record;
}

drawing::RecordId CommandContext::createComplex(const FieldList &head, const std::vector<FieldList> &children)
{
    const drawing::CreateResult made = createOnCurrent(drawing(), asNewEntity(m_document, head), children);
    if (!made)
        print(u'\n' + made.error);
    return made.record;
}

} // namespace host::kernel
