#pragma once

#include "host/drawing/records/Entities.h"
#include "host/kernel/input/InputFeeder.h"
#include "host/kernel/input/PromptRequest.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Arguments.h"
#include "host/lisp/Interpreter.h"
#include "host/view/display/DrawOrder.h"
#include "tests/kernel/Bench.h"
#include "tests/support/CaseFile.h"

#include <QCoreApplication>
#include <QTranslator>

#include <functional>

/// A bench that lives as long as a group of cases.
class CaseHost final : public Bench
{
public:
    /// What is typed for an answer at a prompt.
    using Spelling = std::function<QString(const host::kernel::PromptRequest &, const QString &)>;

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
    void check(const ortakit::test::CaseRow &row)
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
    void playDialogue(const ortakit::test::CaseRow &row)
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
        playInWindow(answers, [](const host::kernel::PromptRequest &, const QString &answer) { return answer; });
        expectResult(row, before, "the window");
    }
    /// The same once, in the window and with a translator; each answer as `spelled` gives it for its prompt. What was
    /// printed.
    std::string playTranslated(const ortakit::test::CaseRow &row, QTranslator &language, const Spelling &spelled)
    {
        SCOPED_TRACE(row.place + ' ' + row.text('!'));
        lisp(row.source);
        const QByteArray before = drawing().toBytes();
        takePrinted();
        QCoreApplication::installTranslator(&language);
        playInWindow(QString::fromStdString(row.text('!')).split(u'|'), spelled);
        QCoreApplication::removeTranslator(&language);
        const std::string printed = takePrinted();
        if (!row.has('>'))
            expectResult(row, before, "translated");
        return printed;
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
            text += QStringLiteral(" \"%1\"").arg(
                answer.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\"")));
        return text.toStdString();
    }
    /// One answer at a time, when it is asked for.
    void playInWindow(QStringList answers, const Spelling &spelled)
    {
        struct OneByOne final : host::kernel::InputFeeder
        {
            host::kernel::FeedResult feed(const host::kernel::PromptRequest &request,
                                          host::kernel::InputQueue &queue) override
            {
                if (left.isEmpty())
                    return host::kernel::FeedResult::NobodyThere;
                queue.push(host::kernel::TextAnswer{spelled(request, left.takeFirst())});
                return host::kernel::FeedResult::Supplied;
            }
            QStringList left;
            Spelling spelled;
        } feeder;
        const QString command = answers.takeFirst();
        feeder.left = std::move(answers);
        feeder.spelled = spelled;
        session.setFeeder(&feeder);
        document().runCommand(command);
        session.setFeeder(nullptr);
    }
    void expectResult(const ortakit::test::CaseRow &row, const QByteArray &before, const char *way)
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
