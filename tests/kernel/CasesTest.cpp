// The files of cases/ and dialogues/: Lisp, typed answers, and what comes of them.

#include "host/drawing/records/Entities.h"
#include "host/kernel/input/InputFeeder.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Arguments.h"
#include "host/lisp/Interpreter.h"
#include "host/view/display/DrawOrder.h"
#include "tests/kernel/Bench.h"
#include "tests/support/CaseFile.h"

#include <QTranslator>

using namespace host::kernel;
using ortakit::test::CaseRow;
using namespace Qt::StringLiterals;

namespace {

/// A bench that lives as long as a group of cases.
class CaseHost final : public Bench
{
public:
    CaseHost()
    {
        document().setView({});
        host::lisp::Interpreter &interpreter = document().interpreter();
        interpreter.setVariable("dir", host::lisp::Value::string(folder.path().toStdString() + "/"));
        const auto define = [&](const char *name, const std::function<void()> &body) {
            interpreter.define(
                name, [body](host::lisp::Arguments &) { return body(), host::lisp::Value(); },
                host::lisp::Arity::exactly(0));
        };
        define("turned", [this] { setAxes({10.0, 20.0, 0.0}, {0.0, 1.0, 0.0}, {-1.0, 0.0, 0.0}); });
        define("tilted", [this] { setAxes({0.0, 0.0, 5.0}, {1.0, 0.0, 0.0}, {0.0, 0.0, 1.0}); });
        interpreter.define(
            "order", [this](host::lisp::Arguments &) { return host::lisp::Value::string(drawOrder()); },
            host::lisp::Arity::exactly(0));
    }

    /// One row of a file of cases.
    void check(const CaseRow &row)
    {
        SCOPED_TRACE(row.place + ' ' + row.source);
        takePrinted();
        if (row.has('!'))
            runTyped(row.lines('!').c_str());
        if (row.has('<'))
            type(row.lines('<').c_str());
        EXPECT_EQ(lisp(row.source), row.text('='));
        EXPECT_TRUE(session.input().isEmpty()) << "left over";
        const std::string printed = takePrinted();
        EXPECT_NE(printed.find(row.lines('>')), std::string::npos) << printed;
        session.input().clear();
    }
    /// One of a file of dialogues: the same comes of it in every way, undo gives back the bytes that were, and so does
    /// Esc at every prompt.
    void playDialogue(const CaseRow &row)
    {
        SCOPED_TRACE(row.place + ' ' + row.text('!'));
        if (!row.source.empty()) {
            EXPECT_NE(lisp(row.source).substr(0, 5), "error");
        }
        const QByteArray before = drawing().toBytes();
        const QStringList answers = QString::fromStdString(row.text('!')).split(u'|');
        for (qsizetype count = 1; count < answers.size() && !row.has('~'); ++count) {
            lisp("(command" + arguments(answers.mid(0, count)) + " nil)");
            EXPECT_EQ(drawing().toBytes(), before) << "Esc behind " << count << " answers";
        }
        takePrinted();
        lisp("(command" + arguments(answers) + ")");
        EXPECT_EQ(lisp("(getvar \"CMDNAMES\")"), "\"\"");
        expectResult(row, before, "(command)");
        runTyped((answers.join(u'\n') + u'\n').toUtf8().constData());
        expectResult(row, before, "a script");
        // Asked again, the user may well get further.
        if (row.has('>'))
            return;
        playInWindow(answers);
        expectResult(row, before, "the window");
    }
    using Bench::lisp;

private:
    void TestBody() override {}

    void setAxes(const host::drawing::Vec3 &origin, const host::drawing::Vec3 &x, const host::drawing::Vec3 &y)
    {
        document().variables().setInternally(u"UCSORG", origin);
        document().variables().setInternally(u"UCSXDIR", x);
        document().variables().setInternally(u"UCSYDIR", y);
    }
    /// The points of the drawing by their x, in the order in which they are drawn.
    std::string drawOrder()
    {
        using namespace host::drawing;
        std::string places;
        for (const RecordId id : host::view::drawOrder(drawing(), host::view::readSortHandles(drawing()),
                                                       drawing().entities().inSpace(Space::Model)))
            places += QString::number(drawing().tags(id).point(10).x).toStdString();
        return places;
    }
    static std::string arguments(const QStringList &answers)
    {
        QString text;
        for (QString answer : answers)
            text += QStringLiteral(" \"%1\"").arg(answer.replace(u'\\', QStringLiteral("\\\\")));
        return text.toStdString();
    }
    /// One answer at a time, when it is asked for.
    void playInWindow(QStringList answers)
    {
        struct OneByOne final : InputFeeder
        {
            FeedResult feed(const PromptRequest &, InputQueue &queue) override
            {
                if (left.isEmpty())
                    return FeedResult::NobodyThere;
                queue.push(TextAnswer{left.takeFirst()});
                return FeedResult::Supplied;
            }
            QStringList left;
        } feeder;
        const QString command = answers.takeFirst();
        feeder.left = std::move(answers);
        session.setFeeder(&feeder);
        document().runCommand(command);
        session.setFeeder(nullptr);
    }
    void expectResult(const CaseRow &row, const QByteArray &before, const char *way)
    {
        SCOPED_TRACE(way);
        const std::string printed = takePrinted();
        const bool isChanged = drawing().toBytes() != before;
        EXPECT_EQ(row.has('?') ? lisp(row.text('?')) : dump(), row.text('='));
        EXPECT_NE(printed.find(row.text('>')), std::string::npos) << printed;
        if (isChanged)
            document().undoSteps().undo();
        EXPECT_EQ(drawing().toBytes(), before) << "undone";
    }
    /// "CIRCLE 10=5,0,0 40=5": the entities with their fields, without what all have and without zeros.
    std::string dump();
};

QString shownNumber(double value)
{
    return QString::number(std::abs(value) < 1e-9 ? 0.0 : value, 'g', 6);
}

QString shownField(const host::drawing::Field &field)
{
    using namespace host::drawing;
    if (const auto *flat = std::get_if<Vec2>(&field.value))
        return shownNumber(flat->x) + u',' + shownNumber(flat->y);
    if (const auto *point = std::get_if<Vec3>(&field.value))
        return shownNumber(point->x) + u',' + shownNumber(point->y) + u',' + shownNumber(point->z);
    if (const auto *real = std::get_if<double>(&field.value))
        return shownNumber(*real);
    if (const auto *integer = std::get_if<qint64>(&field.value))
        return QString::number(*integer);
    return field.text();
}

/// Where a justified text begins, and how large a stretched one is, is the font's affair.
bool isOfFont(const host::drawing::Drawing &drawing, host::drawing::RecordId id, int code)
{
    const qint64 horizontal = drawing.isType(id, "TEXT") ? drawing.tags(id).integer(72) : 0;
    const host::drawing::FieldList fields = drawing.fields(id);
    const bool isJustified = drawing.isType(id, "TEXT") && host::drawing::findField(fields, 11);
    return (code == 10 && isJustified) || (code == 40 && horizontal == 3) || (code == 41 && horizontal == 5);
}

std::string CaseHost::dump()
{
    QStringList all;
    for (const host::drawing::RecordId id : drawing().entities().all()) {
        QStringList words = {QString::fromLatin1(drawing().typeName(id))};
        for (const host::drawing::Field &field : drawing().fields(id)) {
            static const QSet<int> left = {0, 5, 8, 38, 67, 90, 100, 330};
            const QString value = isOfFont(drawing(), id, field.code) ? QStringLiteral("0") : shownField(field);
            if (!left.contains(field.code) && value != QStringLiteral("0") && value != QStringLiteral("Standard"))
                words.append(QString::number(field.code) + u'=' + value);
        }
        all.append(words.join(u' '));
    }
    return all.join(QStringLiteral("; ")).toStdString();
}

class KernelCases : public testing::TestWithParam<std::filesystem::path>
{
};

TEST_P(KernelCases, give)
{
    const auto file = ortakit::test::readCases(GetParam());
    EXPECT_FALSE(file.groups.empty()) << GetParam();
    for (const auto &group : file.groups) {
        CaseHost host;
        host.lisp(file.prelude);
        for (const CaseRow &row : group)
            host.check(row);
    }
}

INSTANTIATE_TEST_SUITE_P(Files, KernelCases, testing::ValuesIn(ortakit::test::caseFiles("kernel/cases")),
                         [](const auto &file) { return ortakit::test::caseName(file.param); });

class CommandDialogues : public testing::TestWithParam<std::filesystem::path>
{
};

TEST_P(CommandDialogues, areTheSameInEveryWay)
{
    const auto helpers = ortakit::test::readCases(GetParam().parent_path().parent_path() / "dialogues.lsp").prelude;
    const auto file = ortakit::test::readCases(GetParam());
    EXPECT_FALSE(helpers.empty() || file.groups.empty()) << GetParam();
    for (const auto &group : file.groups) {
        for (const CaseRow &row : group) {
            CaseHost host;
            host.lisp(helpers);
            host.playDialogue(row);
        }
    }
}

/// A few keywords in another language, whatever the translations say.
class GermanKeywords final : public QTranslator
{
public:
    GermanKeywords() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        static const QHash<QByteArray, QString> words = {
            {"Yes", u"Ja"_s},        {"No", u"Nein"_s},      {"Close", u"Schließen"_s},  {"Undo", u"Zurück"_s},
            {"ALL", u"ALle"_s},      {"Last", u"Letztes"_s}, {"Remove", u"Entfernen"_s}, {"Diameter", u"Durchmesser"_s},
            {"Window", u"Fenster"_s}};
        return context == QByteArrayView("Keywords") ? words.value(source) : QString();
    }
};

TEST(CommandDialoguesInGerman, takeItsKeywordsAndEnglishOnes)
{
    const GermanKeywords keywords;
    const std::filesystem::path folder =
        ortakit::test::caseFiles("kernel/dialogues").front().parent_path().parent_path();
    const auto helpers = ortakit::test::readCases(folder / "dialogues.lsp").prelude;
    const auto file = ortakit::test::readCases(folder / "german.lsp");
    ASSERT_FALSE(helpers.empty() || file.groups.empty());
    for (const CaseRow &row : file.groups.front()) {
        CaseHost host;
        host.lisp(helpers);
        host.playDialogue(row);
    }
}

INSTANTIATE_TEST_SUITE_P(Files, CommandDialogues, testing::ValuesIn(ortakit::test::caseFiles("kernel/dialogues")),
                         [](const auto &file) { return ortakit::test::caseName(file.param); });

} // namespace
