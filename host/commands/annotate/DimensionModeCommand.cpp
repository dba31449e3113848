// The dimension mode: subcommands of one word each, which programs of all ages call as DIM1.

#include "host/commands/Commands.h"
#include "host/commands/annotate/DimensionDialogues.h"
#include "host/commands/annotate/TextStyles.h"
#include "host/commands/common/EntityEdits.h"
#include "host/drawing/annotation/DimensionText.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/DimensionVariables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Keywords.h"
#include "host/kernel/languages/Texts.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::RecordId;

namespace {

/// What the dimension that was made last shows: the default text of a leader.
QString lastMeasured(CommandContext &context)
{
    const drawing::Drawing &drawing = context.drawing();
    const std::vector<RecordId> entities = currentEntities(drawing);
    const auto last =
        std::find_if(entities.rbegin(), entities.rend(), [&](RecordId id) { return isDimension(drawing, id); });
    if (last == entities.rend())
        return {};
    const auto data = readDimension(drawing, *last, drawing.tags(*last));
    return data ? dimensionText(*data, readDimensionStyle(drawing, drawing.tags(*last))) : QString();
}

Dialogue<bool> leaderInMode(CommandContext &context)
{
    co_return co_await drawDimensionLeader(context, lastMeasured(context));
}

Dialogue<bool> dimensionTextStyle(CommandContext &context)
{
    const QString name = co_await askTextStyleName(context, Commands::tr("Enter new text style name"));
    co_return !name.isEmpty() && context.document().variables().set(u"DIMTXSTY", name) == SetOutcome::Done;
}

Dialogue<bool> redrawInMode(CommandContext &)
{
    // The window follows every change by itself.
    co_return true;
}

using Subdialogue = Dialogue<bool> (*)(CommandContext &);

template <LengthForm form>
Dialogue<bool> lengthInMode(CommandContext &context)
{
    return dimensionLength(context, form, TextAsked::Behind);
}

template <RoundMeasure measure>
Dialogue<bool> roundInMode(CommandContext &context)
{
    return dimensionRound(context, measure, TextAsked::Behind);
}

template <Chain chain>
Dialogue<bool> chainInMode(CommandContext &context)
{
    return dimensionOn(context, chain);
}

Dialogue<bool> angleInMode(CommandContext &context)
{
    return dimensionAngle(context, TextAsked::Behind);
}

Dialogue<bool> ordinateInMode(CommandContext &context)
{
    return dimensionOrdinate(context, TextAsked::Behind);
}

/// An option of DIMEDIT or -DIMSTYLE, by its place among these.
constexpr QStringView optionNames[] = {u"Home",    u"New",    u"Rotate",    u"Oblique", u"Save",
                                       u"Restore", u"STatus", u"Variables", u"Apply"};

template <int option>
Dialogue<bool> editInMode(CommandContext &context)
{
    return editDimensions(context, optionNames[option].toString());
}

template <int option>
Dialogue<bool> styleInMode(CommandContext &context)
{
    return takeDimensionStyleOption(context, optionNames[option].toString());
}

struct Subcommand
{
    const char *name; ///< capital letters abbreviate it
    Subdialogue run;  ///< null for those that the mode itself deals with
};

constexpr Subcommand subcommands[] = {
    {"ALigned", lengthInMode<LengthForm::Aligned>},
    {"ANgular", angleInMode},
    {"Baseline", chainInMode<Chain::Baseline>},
    {"CEnter", markCenter},
    {"COntinue", chainInMode<Chain::Continued>},
    {"Diameter", roundInMode<RoundMeasure::Diameter>},
    {"Exit", nullptr},
    {"HOMetext", editInMode<0>},
    {"HORizontal", lengthInMode<LengthForm::Horizontal>},
    {"Leader", leaderInMode},
    {"Newtext", editInMode<1>},
    {"OBlique", editInMode<3>},
    {"ORdinate", ordinateInMode},
    {"OVerride", overrideDimensionVariables},
    {"RADius", roundInMode<RoundMeasure::Radius>},
    {"REDraw", redrawInMode},
    {"REStore", styleInMode<5>},
    {"ROtated", lengthInMode<LengthForm::Rotated>},
    {"SAve", styleInMode<4>},
    {"STAtus", styleInMode<6>},
    {"STYle", dimensionTextStyle},
    {"TEdit", placeDimensionText},
    {"TRotate", editInMode<2>},
    {"Undo", nullptr},
    {"UPdate", styleInMode<8>},
    {"VAriables", styleInMode<7>},
    {"VErtical", lengthInMode<LengthForm::Vertical>},
};

/// What was typed: a subcommand, or a variable that gets a new value.
struct ModeWord
{
    const Subcommand *subcommand = nullptr;
    QString variable{}; ///< upper case; empty for none
};

ModeWord modeWord(const QString &typed)
{
    QStringList names;
    for (const Subcommand &row : subcommands)
        names.append(QLatin1StringView(row.name));
    if (const auto name = matchKeyword(typed, names))
        return {&subcommands[names.indexOf(*name)], {}};
    const QString plain = (typed.startsWith(u'_') ? typed.mid(1) : typed).toUpper();
    const drawing::DimensionVariable *variable = drawing::dimensionVariable(plain);
    return {nullptr, variable ? plain : QString()};
}

Dialogue<bool> runWord(CommandContext &context, ModeWord word)
{
    if (word.subcommand)
        co_return co_await word.subcommand->run(context);
    co_return co_await setDimensionVariable(context, word.variable);
}

/// The next word, asked for until there is one. An empty answer is the word before; where there is none yet, and where
/// the command fails, the result is empty.
Dialogue<ModeWord> askModeWord(CommandContext &context, ModeWord before)
{
    for (;;) {
        const PromptReply typed = co_await context.name(Commands::tr("Dim: "));
        if (!typed.hasValue() || typed.text.isEmpty())
            co_return before;
        const ModeWord word = modeWord(typed.text.trimmed());
        if (word.subcommand || !word.variable.isEmpty())
            co_return word;
        if (context.refuse(Commands::tr("Unknown dimension subcommand \"%1\".").arg(typed.text)))
            co_return ModeWord{};
    }
}

bool isWord(const ModeWord &word, const char *name)
{
    return word.subcommand && qstrcmp(word.subcommand->name, name) == 0;
}

/// Takes out what the last subcommand made.
void undoInMode(CommandContext &context, std::vector<std::vector<RecordId>> &steps)
{
    drawing::Drawing &drawing = context.drawing();
    if (steps.empty())
        return context.print(Commands::tr("\nNothing that was made here is left to undo."));
    for (const RecordId made : steps.back()) {
        const RecordId picture =
            isDimension(drawing, made) ? drawing.blocks().find(drawing.tags(made).text(2)) : drawing::noRecord;
        eraseAll(context, {made});
        if (isValid(picture))
            drawing.blocks().erase(picture);
    }
    steps.pop_back();
}

// Subcommands until Exit.
CommandTask dimensionMode(CommandContext &context)
{
    std::vector<std::vector<RecordId>> steps;
    ModeWord last;
    for (;;) {
        const ModeWord word = co_await askModeWord(context, last);
        if ((!word.subcommand && word.variable.isEmpty()) || isWord(word, "Exit"))
            co_return;
        if (isWord(word, "Undo")) {
            undoInMode(context, steps);
            continue;
        }
        const std::size_t before = currentEntities(context.drawing()).size();
        co_await runWord(context, word);
        if (context.hasFailed())
            co_return;
        const std::vector<RecordId> entities = currentEntities(context.drawing());
        if (entities.size() > before)
            steps.emplace_back(entities.begin() + qsizetype(before), entities.end());
        last = word;
    }
}

// One subcommand.
CommandTask dimensionOnce(CommandContext &context)
{
    const ModeWord word = co_await askModeWord(context, {});
    const bool isSomething = word.subcommand ? word.subcommand->run != nullptr : !word.variable.isEmpty();
    if (isSomething)
        co_await runWord(context, word);
}

} // namespace

std::vector<CommandRow> dimensionModeCommands()
{
    return {{"DIM", dimensionMode, "Dimensions by subcommands until Exit", WhenCancelled::KeepDone},
            {"DIM1", dimensionOnce, "Runs one subcommand of the dimension mode"}};
}

} // namespace host::kernel
