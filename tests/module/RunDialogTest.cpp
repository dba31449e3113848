#include "module/RunDialog.h"

#include "module/CommandDialog.h"
#include "module/DialogRegistry.h"
#include "module/ExceptionGuard.h"
#include "tests/module/SampleDialog.h"
#include "tests/support/ModuleTest.h"

#include <stdexcept>

namespace {

using testing::IsEmpty;

int plain()
{
    return runDialog<SampleDialog>(DialogSlot::BreakLine, {});
}

int listIn()
{
    return runDialog<SampleDialog>(
        DialogSlot::RedefinePaths,
        {.extraArguments = ExtraArguments::List,
         .takeExtra = [](auto &dialog, const OdResBuf *rest) { dialog.entries = strings(rest); },
         .giveResult = [](auto &dialog, auto &lisp) { lisp.returnString(dialog.entries.join(u',')); }});
}

int anyFirst()
{
    return runDialog<SampleDialog>(DialogSlot::MergeSheets, {.firstArgument = FirstArgument::Present});
}

int loadOnly()
{
    return runDialog<SampleDialog>(
        DialogSlot::PatternHatch,
        {.stateFile = StateFile::LoadOnly,
         .extraArguments = ExtraArguments::OptionalSecond,
         .takeExtra = [](auto &dialog, const OdResBuf *rest) { dialog.entries = strings(rest); },
         .giveResult = [](auto &dialog, auto &lisp) { lisp.returnString(dialog.name->text()); }});
}

int refused()
{
    return runDialog<SampleDialog>(DialogSlot::PatternHatch, {.isRefused = [](CKvDocument &) { return true; }});
}

int twoTexts()
{
    return runDialog<SampleDialog>(
        DialogSlot::ExportSettings,
        {.stateFile = StateFile::None,
         .extraArguments = ExtraArguments::RequiredSecond,
         .takeFirst = [](auto &dialog, const OdResBuf *first) { dialog.name->setText(first->getString()); },
         .takeExtra = [](auto &dialog, const OdResBuf *rest) { dialog.entries = {rest->getString()}; }});
}

int noResult()
{
    return runDialog<SampleDialog>(
        DialogSlot::LispExplorer,
        {.firstArgument = FirstArgument::Optional,
         .stateFile = StateFile::None,
         .extraArguments = ExtraArguments::OptionalSecond,
         .takeFirst = [](auto &dialog, const OdResBuf *first) { dialog.entries = strings(first); },
         .giveResult = [](auto &, auto &lisp) { lisp.print(u"accepted"_s); },
         .giveRejection = [](auto &, auto &lisp) { lisp.print(u"rejected"_s); }});
}

int failing()
{
    throw std::runtime_error("out of something");
}

int refusedByDatabase()
{
    throw OdError(u"There is no room for it."_s);
}

constexpr std::pair<const char *, CKvLispEngine::Handler> sampleFunctions[] = {
    {"plain", guarded<plain>},       {"listIn", guarded<listIn>},   {"anyFirst", guarded<anyFirst>},
    {"loadOnly", guarded<loadOnly>}, {"refused", guarded<refused>}, {"twoTexts", guarded<twoTexts>},
    {"noResult", guarded<noResult>}, {"failing", guarded<failing>}, {"refusedByDatabase", guarded<refusedByDatabase>},
};

SampleDialog *sample(QWidget *window)
{
    return dynamic_cast<SampleDialog *>(window);
}

class RunDialog : public testing::Test
{
protected:
    RunDialog() { addDocument(m_host.document()); }
    ~RunDialog() override { DialogRegistry::instance().records().clear(); }

    static void addDocument(FakeDocument &document)
    {
        for (const auto &[name, handler] : sampleFunctions)
            document.lisp().defineFunction(QString::fromLatin1(name), handler);
        DialogRegistry::instance().append(&document);
    }

    /// The user finds the field's text, puts `text` into it and accepts.
    void userAccepts(const QString &text)
    {
        m_user.drive([this, text](QWidget *window) {
            m_found.append(sample(window)->name->text());
            m_dialogs.append(sample(window));
            sample(window)->name->setText(text);
            sample(window)->accept();
        });
    }

    /// The user changes the field and cancels.
    void userCancels()
    {
        m_user.drive([](QWidget *window) {
            sample(window)->name->setText(u"thrown away"_s);
            sample(window)->reject();
        });
    }

    int call(const QString &name, const QVariantList &arguments) { return lisp().call(name, arguments); }
    test::FakeLispEngine &lisp() { return m_host.document().lisp(); }
    QString stateFile(const QByteArray &content) { return m_host.writeFile(u"state.txt"_s, content); }

    FakeHost m_host;
    ModalAnswers m_user;
    /// What the user found in the field, and the dialogs that were shown.
    QStringList m_found;
    QList<SampleDialog *> m_dialogs;
};

TEST_F(RunDialog, AcceptingSavesCancellingLeavesTheFile)
{
    const QString path = stateFile("name=door\n");
    userAccepts(u"gate"_s);
    EXPECT_EQ(call(u"plain"_s, {path}), kRtNormal);
    EXPECT_EQ(lisp().result(), u"T");
    EXPECT_EQ(FakeHost::readFile(path), "\xEF\xBB\xBFname=gate\n!action!=\n");

    const QByteArray content = "\xEF\xBB\xBFname=fence\r\nsomething else\n!action!=OK";
    stateFile(content);
    userCancels();
    EXPECT_EQ(call(u"plain"_s, {path}), kRtNormal);
    EXPECT_EQ(lisp().result(), u"nil");
    EXPECT_EQ(FakeHost::readFile(path), content);

    userAccepts({});
    call(u"plain"_s, {path});
    EXPECT_EQ(m_found, (QStringList{u"door"_s, u"fence"_s}));
    EXPECT_EQ(m_dialogs.value(0), m_dialogs.value(1)) << "the same dialog comes back";
}

TEST_F(RunDialog, ArgumentsAreChecked)
{
    const std::tuple<const char *, QString, QVariantList, int, int> rows[] = {
        {"nothing", u"plain"_s, {}, kRtError, -1},
        {"an integer", u"plain"_s, {3}, kRtError, -1},
        {"nil before a string", u"plain"_s, {QVariant(), u"x"_s}, kRtError, -1},
        {"more than wanted", u"plain"_s, {u"x"_s, u"y"_s, 3}, kRtNormal, 3},
        {"present: nothing", u"anyFirst"_s, {}, kRtError, -1},
        {"present: an integer", u"anyFirst"_s, {3}, kRtNormal, 1},
        {"list: nothing goes early", u"listIn"_s, {u"x"_s, u"a"_s, 3}, kRtNormal, -1},
        {"second string", u"loadOnly"_s, {u"x"_s, u"a"_s, u"b"_s}, kRtNormal, 2},
        {"second string missing", u"loadOnly"_s, {u"x"_s}, kRtNormal, 1},
        {"required second missing", u"twoTexts"_s, {u"x"_s}, kRtError, -1},
        {"required second, first wrong", u"twoTexts"_s, {1, u"x"_s}, kRtError, -1},
        {"required second", u"twoTexts"_s, {u"x"_s, u"y"_s}, kRtNormal, 1},
        {"optional: nothing", u"noResult"_s, {}, kRtNormal, -1},
        {"optional: an integer", u"noResult"_s, {3}, kRtNormal, 1},
    };
    for (const auto &[name, function, arguments, code, released] : rows) {
        SCOPED_TRACE(name);
        const auto shownBefore = m_user.shown().size();
        EXPECT_EQ(call(function, arguments), code);
        EXPECT_EQ(m_user.shown().size() - shownBefore, code == kRtNormal ? 1 : 0);
        EXPECT_EQ(lisp().releasedArguments(), released);
        EXPECT_EQ(lisp().result(), code == kRtNormal && function != u"noResult" ? u"nil" : u"");
    }
}

TEST_F(RunDialog, EachKindGivesItsResultAndLeavesOrWritesTheFile)
{
    const QString path = stateFile({});
    const QByteArray before = "name=door\n";
    const QByteArray after = "\xEF\xBB\xBFname=gate\n!action!=\n";
    const std::tuple<QString, QVariantList, QString, QString, QByteArray> rows[] = {
        {u"listIn"_s, {path, u"a"_s, 7, u"b"_s}, u"door"_s, u"\"a,b\""_s, after},
        {u"loadOnly"_s, {path, u"a"_s}, u"door"_s, u"\"gate\""_s, before},
        {u"twoTexts"_s, {path, u"a"_s}, path, u"T"_s, before},
        {u"noResult"_s, {}, {}, {}, before},
    };
    for (const auto &[function, arguments, found, result, file] : rows) {
        stateFile(before);
        userAccepts(u"gate"_s);
        EXPECT_EQ(call(function, arguments), kRtNormal) << function.toStdString();
        EXPECT_EQ(m_found.takeLast(), found) << function.toStdString();
        EXPECT_EQ(lisp().result(), result) << function.toStdString();
        EXPECT_EQ(FakeHost::readFile(path), file) << function.toStdString();
    }
    userCancels();
    call(u"noResult"_s, {});
    EXPECT_EQ(lisp().printed(), u"acceptedrejected");
}

TEST_F(RunDialog, RefusalIsNilAndAMissingRecordOrAnExceptionAnError)
{
    EXPECT_EQ(call(u"refused"_s, {u"x"_s}), kRtNormal);
    EXPECT_EQ(lisp().result(), u"nil");
    EXPECT_EQ(call(u"failing"_s, {}), kRtError);
    EXPECT_EQ(lisp().printed(), u"");
    EXPECT_EQ(call(u"refusedByDatabase"_s, {}), kRtError);
    EXPECT_EQ(lisp().printed(), u"\nThere is no room for it.");
    DialogRegistry::instance().remove(&m_host.document());
    EXPECT_EQ(call(u"plain"_s, {u"x"_s}), kRtError);
    EXPECT_EQ(lisp().result(), u"");
    m_host.documents().activate(nullptr);
    EXPECT_EQ(plain(), kRtError);
    EXPECT_THAT(m_user.shown(), IsEmpty());
}

TEST_F(RunDialog, DialogsAreChildrenOfTheMainWindow)
{
    QWidget window;
    m_host.setMainWindow(&window);
    m_user.drive([&window](QWidget *shown) {
        EXPECT_EQ(shown->parentWidget(), &window);
        EXPECT_TRUE(shown->isModal());
        shown->close();
    });
    call(u"plain"_s, {u"x"_s});
    EXPECT_TRUE(m_user.isDone());
    DialogRegistry::instance().remove(&m_host.document());
}

TEST_F(RunDialog, ADialogDestroyedWhileItRunsGivesNoResult)
{
    m_user.drive([](QWidget *window) { delete window; });
    EXPECT_EQ(call(u"plain"_s, {m_host.path(u"state"_s)}), kRtNormal);
    EXPECT_EQ(lisp().result(), u"");
    userAccepts({});
    EXPECT_EQ(call(u"plain"_s, {m_host.path(u"state"_s)}), kRtNormal);
    EXPECT_EQ(lisp().result(), u"T");
}

TEST_F(RunDialog, ClosingTheDocumentEndsTheRun)
{
    FakeDocument *second = m_host.documents().open();
    addDocument(*second);
    const int alive = SampleDialog::alive;
    m_user.drive([&](QWidget *) {
        DialogRegistry::instance().remove(second);
        second->setHasLisp(false);
        m_host.documents().close(second);
    });
    // Without the fake engine's call(), which would go on with the engine that is destroyed under it.
    EXPECT_EQ(noResult(), kRtNormal);
    EXPECT_EQ(SampleDialog::alive, alive);
    EXPECT_EQ(DialogRegistry::instance().records().size(), 1u);
}

TEST(ArgumentLists, AreReadAsListsOfTheirStrings)
{
    constexpr int begin = OdResBuf::kRtListBegin;
    constexpr int end = OdResBuf::kRtListEnd;
    constexpr int dotted = OdResBuf::kRtDottedPair;
    constexpr int nil = OdResBuf::kRtNil;
    constexpr int string = OdResBuf::kRtString;
    // types: the strings are "0", "1" and so on by their place
    const std::tuple<const char *, QList<int>, QList<QStringList>> rows[] = {
        {"nothing", {}, {}},
        {"two", {begin, string, string, end, begin, string, end}, {{u"1"_s, u"2"_s}, {u"5"_s}}},
        {"nil is empty", {nil, begin, string, end, nil}, {{}, {u"2"_s}, {}}},
        {"loose strings", {string, begin, string, end, string}, {{u"2"_s}}},
        {"nil and numbers in a list", {begin, nil, OdResBuf::kRtShort, string, end}, {{u"3"_s}}},
        {"a list in a list", {begin, string, begin, string, end, string, end}, {{u"1"_s, u"3"_s, u"5"_s}}},
        {"a dotted pair in a list", {begin, begin, string, string, dotted, string, end}, {{u"2"_s, u"3"_s, u"5"_s}}},
        {"without an end", {begin, string}, {{u"1"_s}}},
        {"an end too many", {end, begin, string, end}, {{u"2"_s}}},
    };
    for (const auto &[name, types, lists] : rows) {
        OdResBuf chain(OdResBuf::kRtString);
        OdResBuf *last = &chain;
        for (qsizetype place = 0; place < types.size(); ++place)
            last = last->setNext(types[place] == string ? OdResBuf::newString(string, QString::number(place))
                                                        : OdResBuf::newRb(types[place]));
        EXPECT_EQ(stringLists(chain.next()), lists) << name;
    }
    EXPECT_EQ(test::chainText(stringList({u"a"_s, {}}).get()), u"( \"a\" \"\" )"_s);
}

TEST_F(RunDialog, CommandsAskForTheStateFileAndMakeTheirDialogAnew)
{
    const auto run = [] {
        runCommandDialog<SampleDialog>(
            {.prepare = [](auto &dialog) { dialog.name->setText(u"prepared"_s); },
             .take = [](auto &dialog) { dialog.name->setText(dialog.name->text() + u'!'); }});
    };
    const QString path = stateFile("name=door\n");
    FakeUserInput &input = m_host.document().input();
    const auto shown = [this] { return m_user.shown().size(); };

    input.answer({.code = kRtNormal, .value = path, .keyword = {}});
    userCancels();
    run();
    EXPECT_EQ(FakeHost::readFile(path), "name=door\n");

    input.answer({.code = kRtNormal, .value = path, .keyword = {}});
    userAccepts(u"gate"_s);
    run();
    EXPECT_EQ(m_found, QStringList{u"door"_s});
    EXPECT_EQ(FakeHost::readFile(path), "\xEF\xBB\xBFname=gate!\n!action!=\n");
    EXPECT_EQ(SampleDialog::alive, 0);

    const auto before = shown();
    input.answer({.code = kRtCancel, .value = {}, .keyword = {}});
    run();
    input.answer({.code = kRtNormal, .value = QString(), .keyword = {}});
    run();
    EXPECT_EQ(shown(), before) << "no state file, no dialog";
}

} // namespace
