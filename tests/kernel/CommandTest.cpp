#include "host/drawing/file/Recovery.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/kernel/running/CommandStack.h"
#include "host/kernel/running/CommandTable.h"
#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvLispEngine.h"
#include "platform/kernel/CKvUserInput.h"
#include "tests/kernel/Bench.h"
#include "tests/support/Texts.h"

using namespace host::kernel;

namespace {

const char *const entityTypes = "(progn (setq e nil all nil) (while (setq e (if e (entnext e) (entnext)))"
                                " (setq all (cons (cdr (assoc 0 (entget e))) all))) (reverse all))";

/// A command as a module brings it: asks for a name and a number and prints them.
class LabelCommand final : public OdStaticRxObject<OdEdCommand>
{
public:
    OdString groupName() const override { return QStringLiteral("TEST"); }
    OdString globalName() const override { return QStringLiteral("Label"); }
    void execute(OdEdCommandContext *) override
    {
        CKvUserInput &input = *ACTIVE_DOCUMENT()->userInput();
        OdString name;
        qint32 number = 0;
        if (input.getString(QStringLiteral("Name: "), true, name) != kRtNormal ||
            input.getInteger(QStringLiteral("Number: "), false, number) != kRtNormal)
            name = QStringLiteral("nothing");
        ACTIVE_DOCUMENT()->lispEngine()->print(QStringLiteral("[%1 %2 %3]")
                                                   .arg(name)
                                                   .arg(number)
                                                   .arg(ACTIVE_DOCUMENT()->systemVariable(QStringLiteral("CMDNAMES"))));
    }
};

TEST_F(Bench, commandsOfAModuleTakeTheirAnswersFromProgramAndUser)
{
    LabelCommand label;
    ASSERT_TRUE(session.commandStack().addCommand(&label));
    EXPECT_FALSE(session.commandStack().addCommand(&label)) << "the name is taken";
    const struct
    {
        const char *typed;
        const char *lisp;
        const char *printed;
    } rows[] = {
        {"label a door\n7\n", nullptr, "[a door 7 LABEL]"},
        {nullptr, "(command \"_.LABEL\" \"a door\" 7)", "[a door 7 LABEL]"},
        {"8\n", "(command \"label\" \"gate\" pause)", "[gate 8 LABEL]"},
        {"9\n", "(command \"label\" \"gate\")", "[gate 9 LABEL]"},
        {nullptr, "(command \"label\" nil)", "[nothing 0 LABEL]"},
        {nullptr, "(command \"label\" \"x\" \"no number\" 3)", "[x 3 LABEL]"},
        {nullptr, "(command \"label\" \"x\" 3 \"POINT\" '(1 2) \"label\" \"y\" 4)", "[y 4 LABEL]"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.lisp ? row.lisp : row.typed);
        takePrinted();
        if (row.typed)
            type(row.typed);
        if (row.lisp)
            lisp(row.lisp);
        else
            document().runQueued();
        EXPECT_NE(takePrinted().find(row.printed), std::string::npos);
        EXPECT_TRUE(session.input().isEmpty());
    }
    EXPECT_EQ(lisp(entityTypes), "(\"POINT\")") << "the next command follows in the same call";
    lisp("(setvar \"CMDECHO\" 0)");
    takePrinted();
    lisp("(command \"label\" \"quiet\" 7)");
    EXPECT_EQ(takePrinted(), "[quiet 7 LABEL]");

    session.commandStack().removeCommand(&label);
    lisp("(command \"label\" \"x\" 3)");
    EXPECT_NE(takePrinted().find("Unknown command \"LABEL\"."), std::string::npos);
}

/// One that finds no memory when it is half done.
class GreedyCommand final : public OdStaticRxObject<OdEdCommand>
{
public:
    OdString groupName() const override { return QStringLiteral("TEST"); }
    OdString globalName() const override { return QStringLiteral("GREEDY"); }
    void execute(OdEdCommandContext *) override
    {
        ACTIVE_DOCUMENT()->lispEngine()->loadFile(half);
        std::vector<int>().reserve(std::numeric_limits<std::size_t>::max());
    }
    OdString half;
};

TEST_F(Bench, aCommandThatFindsNoMemoryIsTakenBack)
{
    GreedyCommand greedy;
    greedy.half = write("half.lsp", "(entmake '((0 . \"POINT\") (10 1 1 0)))");
    ASSERT_TRUE(session.commandStack().addCommand(&greedy));
    runTyped("greedy\n");
    EXPECT_NE(takePrinted().find("GREEDY: out of memory; nothing was changed."), std::string::npos);
    EXPECT_EQ(lisp("(command \"greedy\")"), "error: out of memory in (COMMAND)");
    EXPECT_EQ(lisp("(+ 1 2)"), "3");
    session.commandStack().removeCommand(&greedy);
    EXPECT_EQ(lisp(entityTypes), "(\"POINT\")") << "a program may go on with what there is";
}

TEST_F(Bench, noObjectOfAPurgedBlockStaysBehind)
{
    using namespace host::drawing;
    const auto objects = [this] { return drawing().children(drawing().sectionRecord(Section::Objects)).size(); };
    const auto before = objects();
    lisp("(entmake '((0 . \"BLOCK\") (2 . \"A\") (70 . 0) (10 0.0 0.0 0.0)))(entmake '((0 . \"POINT\") (10 0 0 0)))"
         "(entmake '((0 . \"ENDBLK\")))");
    Dictionaries &dictionaries = drawing().dictionaries();
    const RecordId block = drawing().blocks().find(u"A");
    for (const RecordId owner : {drawing().blocks().read(block).tableEntry, drawing().firstChild(block)}) {
        const RecordId extension = dictionaries.ensureExtensionDictionary(owner);
        dictionaries.setXrecord(dictionaries.ensureDictionary(extension, QStringLiteral("DATA")), QStringLiteral("X"),
                                {{1, QStringLiteral("a")}});
    }
    EXPECT_EQ(objects(), before + 6);
    lisp("(command \"_.-PURGE\" \"_Blocks\" \"*\" \"_No\")");
    EXPECT_EQ(objects(), before);
    lisp("(command \"_.UNDO\" 1)");
    EXPECT_EQ(objects(), before + 6);
}

TEST_F(Bench, aDrawingThatKeepsNoDrawOrderSaysSo)
{
    session.documents().open(
        write("old.dxf", ortakit::test::dxfText("0 SECTION 2 ENTITIES 0 POINT 5 1 8 0 10 1 20 0 0 ENDSEC 0 EOF")));
    lisp("(command \"_.DRAWORDER\" (entlast) \"\" \"_Front\")");
    EXPECT_NE(takePrinted().find("A drawing of this version keeps no draw order."), std::string::npos);
    EXPECT_FALSE(document().isModified());
}

TEST_F(Bench, auditMendsTheOpenDrawing)
{
    session.documents().open(write(
        "odd.dxf",
        ortakit::test::dxfText("0 SECTION 2 ENTITIES 0 LINE 8 0 62 red 10 0 20 0 11 1 21 0 0 POINT 8 0 10 5 20 wide"
                               " 0 CIRCLE 8 0 10 1 20 2 40 3 0 ENDSEC 0 EOF")));
    const QByteArray before = drawing().toBytes();
    lisp("(command \"_.AUDIT\" \"_No\")");
    EXPECT_NE(takePrinted().find("fixed 0"), std::string::npos);
    EXPECT_EQ(drawing().toBytes(), before);
    lisp("(command \"_.AUDIT\" \"_Yes\")");
    EXPECT_EQ(takePrinted().find("fixed 0"), std::string::npos);
    EXPECT_EQ(drawing().toBytes(), host::drawing::recoverDrawing(before).drawing->toBytes());
    EXPECT_NE(lisp(entityTypes).find("CIRCLE"), std::string::npos);
    lisp("(command \"_.AUDIT\" \"_Yes\")");
    EXPECT_NE(takePrinted().find("Total errors found 0 fixed 0"), std::string::npos);
    lisp("(command \"_.UNDO\" 2)");
    EXPECT_EQ(drawing().toBytes(), before);
}

TEST_F(Bench, anOldDrawingGetsBoundariesOfItsOwnForm)
{
    session.documents().open(
        write("old.dxf", ortakit::test::dxfText("0 SECTION 2 ENTITIES 0 CIRCLE 8 0 10 1 20 2 40 5 0 ENDSEC 0 EOF")));
    document().setView({});
    const QByteArray before = drawing().toBytes();
    lisp("(command \"_.-BOUNDARY\" \"1,2\" \"\")");
    EXPECT_EQ(lisp(entityTypes), "(\"CIRCLE\" \"POLYLINE\" \"VERTEX\" \"VERTEX\" \"SEQEND\")");
    EXPECT_EQ(lisp("(equal (vlax-curve-getArea (entlast)) (* 25.0 pi) 1e-6)"), "T");
    lisp("(command \"_.U\")");
    EXPECT_EQ(drawing().toBytes(), before);
}

TEST_F(Bench, aScriptIsReadWhereTheNextAnswersCome)
{
    write("draw.scr", "; two shapes\nline 0,0 1,0 \ncircle 5,5\n2\n");
    document().run(QStringLiteral("(command \"SCRIPT\" \"%1\")").arg(path("draw.scr")));
    runQueued();
    EXPECT_EQ(lisp(entityTypes), "(\"LINE\" \"CIRCLE\")");
}

TEST(CommandTable, namesAsPeopleTypeThem)
{
    for (const char *typed : {"LINE", "line", "_.LINE", "._line", "'_LINE"}) {
        const CommandRow *row = CommandTable::find(QString::fromLatin1(typed));
        ASSERT_NE(row, nullptr) << typed;
        EXPECT_STREQ(row->name, "LINE");
    }
    EXPECT_EQ(CommandTable::find(u"-line"), nullptr);
    EXPECT_EQ(CommandTable::find(u"l"), nullptr) << "aliases are the user's";
    EXPECT_EQ(CommandTable::find(u""), nullptr);
}

} // namespace
