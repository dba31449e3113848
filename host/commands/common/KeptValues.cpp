#include "host/commands/common/KeptValues.h"

#include "host/kernel/documents/Document.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

void keepValue(CommandContext &context, QStringView variable, const VariableValue &value)
{
    SystemVariables &variables = context.document().variables();
    const std::optional<VariableValue> present = variables.get(variable);
    if (present && *present != value)
        variables.setInternally(variable, value);
}

Dialogue<double> askUsualLength(CommandContext &context, QString prompt, double usual, int bits,
                                std::optional<drawing::Vec3> base)
{
    const QString shown = context.shownLength(usual);
    const PromptReply reply = co_await context.distance(u"%1 <%2>: "_s.arg(prompt, shown), {}, base, shown, bits);
    co_return reply.hasValue() ? reply.real : usual;
}

Dialogue<QString> askUsualOption(CommandContext &context, QString prompt, QString usual, QString options)
{
    const PromptReply reply = co_await context.keyword(u"%1 <%2>: "_s.arg(prompt, usual), options, usual);
    co_return reply.hasValue() ? reply.text : usual;
}

Dialogue<bool> askYesNo(CommandContext &context, QString prompt, bool usual)
{
    const QString answer = co_await askUsualOption(context, prompt + u" [Yes/No]"_s, usual ? u"Yes"_s : u"No"_s);
    co_return answer == u"Yes";
}

} // namespace host::kernel
