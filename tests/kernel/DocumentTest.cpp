#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Entities.h"
#include "host/kernel/platform/Editor.h"
#include "platform/db/OdDbDatabase.h"
#include "platform/ed/OdEditor.h"
#include "platform/kernel/CKvEditorReactor.h"
#include "platform/kernel/CKvHelp.h"
#include "platform/kernel/CKvLispEngine.h"
#include "platform/kernel/CKvSystemServices.h"
#include "tests/kernel/Bench.h"
#include "tests/support/Texts.h"

using namespace host::kernel;

namespace {

QByteArray r12File()
{
    return ortakit::test::dxfText("0 SECTION 2 ENTITIES 0 LINE 8 0 10 0.0 20 0.0 11 1.0 21 1.0 0 ENDSEC 0 EOF");
}

class DocumentListener final : public CKvDocumentManagerReactor
{
public:
    void DocumentCreated(CKvDocument *document) override { log("created", document->lispEngine()); }
    void LispDocumentReady(CKvDocument *document) override
    {
        log("ready", document->lispEngine());
        EXPECT_EQ(ACTIVE_DOCUMENT(), document);
    }
    void LispDocumentClosing(CKvDocument *document) override { log("closing", document->lispEngine()); }
    void DocumentToBeDestroyed(CKvDocument *document) override { log("destroy", document->lispEngine()); }
    void DocumentDestroyed(CKvDocument *) override { events.append(QStringLiteral("destroyed")); }

    void log(const char *event, bool hasLisp)
    {
        events.append(QString::fromLatin1(event) + (hasLisp ? QStringLiteral("+lisp") : QString()));
    }
    QStringList events;
};

TEST_F(Bench, reactorsHearOfADocumentsLifeInOrder)
{
    DocumentListener listener;
    session.documents().addReactor(&listener);
    Document *made = session.documents().create();
    EXPECT_EQ(session.documents().documentCount(), 2);
    EXPECT_TRUE(session.documents().close(made));
    EXPECT_EQ(listener.events.join(u' '), QStringLiteral("created ready+lisp closing+lisp destroy destroyed"));
    session.documents().removeReactor(&listener);
    session.documents().create();
    EXPECT_EQ(listener.events.size(), 5);
}

TEST_F(Bench, theActiveDocumentFollows)
{
    Document *first = &document();
    lisp("(setq a 1)");
    Document *second = session.documents().create();
    EXPECT_EQ(ACTIVE_DOCUMENT(), second);
    EXPECT_EQ(lisp("a"), "nil") << "engines of their own";
    session.documents().setActive(first);
    EXPECT_EQ(ACTIVE_DOCUMENT(), first);
    session.documents().close(first);
    EXPECT_EQ(ACTIVE_DOCUMENT(), second);
    session.documents().close(second);
    EXPECT_EQ(ACTIVE_DOCUMENT(), nullptr);
    EXPECT_EQ(session.documents().document(0), nullptr);
}

TEST_F(Bench, aRunningDocumentIsNotClosed)
{
    class ClosingFeeder final : public InputFeeder
    {
    public:
        explicit ClosingFeeder(Session &owner) : session(owner) {}
        FeedResult feed(const PromptRequest &, InputQueue &) override
        {
            closed = session.documents().close(session.documents().active());
            return FeedResult::NobodyThere;
        }
        Session &session;
        bool closed = true;
    } feeder(session);
    session.setFeeder(&feeder);
    lisp("(getpoint)");
    EXPECT_FALSE(feeder.closed);
    session.setFeeder(nullptr);
}

TEST_F(Bench, aFileIsOpenedOnceAndWhatIsWrongIsTold)
{
    for (const QString &name : {path("none.dxf"), write("bad.dxf", "0\nSECTION\nnonsense")}) {
        const OpenOutcome failed = session.documents().open(name);
        EXPECT_FALSE(failed);
        EXPECT_TRUE(failed.error.contains(QFileInfo(name).fileName())) << failed.error.toStdString();
    }
    EXPECT_EQ(session.documents().documentCount(), 1);
    const QString file = write("a.dxf", r12File());
    Document *first = session.documents().open(file).document;
    session.documents().create();
    EXPECT_EQ(session.documents().open(file).document, first);
    EXPECT_EQ(session.documents().active(), first);
    EXPECT_EQ(first->title(), QStringLiteral("a.dxf"));
    EXPECT_EQ(first->database()->getFilename(), first->path());
    // So old a drawing has no named objects.
    EXPECT_EQ(document().database()->getNamedObjectsDictionary(), nullptr);
    EXPECT_EQ(lisp("(namedobjdict)"), "nil");
    EXPECT_EQ(lisp("(setvar \"LUNITS\" 4)(list (getvar \"LUNITS\") (getvar \"CLAYER\") (getvar \"AUPREC\"))"),
              "(4 \"0\" 0)");
}

class SaveListener final : public OdStaticRxObject<CKvEditorReactor>
{
public:
    void beginSave(OdDbDatabase *database, const OdString &intendedName) override
    {
        events.append(QStringLiteral("save ") + QFileInfo(intendedName).fileName());
        OdDbDictionary *objects = database->getNamedObjectsDictionary();
        if (objects)
            objects->setAt(QStringLiteral("TIME"))->setFromRbChain(OdResBuf::newReal(40, 1.5).get());
    }
    void commandWillStart(OdEdCommand *, OdEdCommandContext *) override { events.append(QStringLiteral("command")); }
    void lispWillStart(OdEdCommandContext *, const OdString &firstLine) override
    {
        events.append(QStringLiteral("lisp ") + firstLine);
    }
    QStringList events;
};

TEST_F(Bench, whatReactorsStoreAtSavingIsInTheFile)
{
    SaveListener listener;
    odedEditor()->addReactor(&listener);
    ASSERT_TRUE(document().saveAs(path("a.dxf"))) << document().saveAs(path("a.dxf")).error.toStdString();
    odedEditor()->removeReactor(&listener);
    EXPECT_EQ(listener.events, QStringList({QStringLiteral("save a.dxf")}));
    EXPECT_FALSE(document().isModified());
    const host::drawing::ReadResult read = host::drawing::Drawing::open(path("a.dxf"));
    ASSERT_TRUE(read);
    const auto &objects = read.drawing->dictionaries();
    const auto data = objects.xrecord(objects.root(), u"time");
    ASSERT_TRUE(data.has_value());
    EXPECT_EQ(data->at(0).real(), 1.5);
}

TEST_F(Bench, reactorsHearOfCommandsAndPrograms)
{
    SaveListener listener;
    odedEditor()->addReactor(&listener);
    lisp("(setq a 1)\n(setq b 2)");
    document().runCommand(QStringLiteral("REGEN"));
    lisp("(defun c:tool () nil)");
    document().runCommand(QStringLiteral("tool"));
    odedEditor()->removeReactor(&listener);
    EXPECT_EQ(listener.events,
              QStringList({QStringLiteral("lisp (setq a 1)"), QStringLiteral("command"),
                           QStringLiteral("lisp (defun c:tool () nil)"), QStringLiteral("lisp (C:TOOL)")}));
}

TEST_F(Bench, aFailedSaveLeavesTheDrawingChanged)
{
    lisp("(entmake '((0 . \"POINT\") (10 0 0 0)))");
    EXPECT_FALSE(document().save()) << "it has no name";
    EXPECT_FALSE(document().saveAs(path("no/such/folder/a.dxf")));
    EXPECT_FALSE(document().saveAs(path("a.dwg")));
    EXPECT_FALSE(QFileInfo::exists(path("a.dwg")));
    EXPECT_TRUE(document().isModified());
    EXPECT_TRUE(document().path().isEmpty());
    EXPECT_TRUE(document().saveAs(path("a.dxf")));
    EXPECT_FALSE(document().isModified());
    EXPECT_EQ(document().title(), QStringLiteral("a.dxf"));
}

TEST_F(Bench, savingAsksBeforeReplacing)
{
    for (const std::string name : {"_.QSAVE", "_.SAVE", "_.SAVEAS"}) {
        SCOPED_TRACE(name);
        session.documents().create();
        // One of its own each: a drawing that is open is not written over.
        const std::string other = "other" + name.substr(2);
        const QString file = write((other + ".dxf").c_str(), "not a drawing");
        // The name is completed before it is asked about.
        const std::string command = "(command \"" + name + "\" \"" + path(other.c_str()).toStdString() + "\" ";
        lisp(command + "\"_N\")");
        EXPECT_TRUE(document().path().isEmpty());
        lisp(command + "\"_Y\")");
        EXPECT_EQ(document().path(), file);
    }
}

TEST_F(Bench, theDatabaseKeepsRecordsByName)
{
    OdDbDictionary *objects = document().database()->getNamedObjectsDictionary();
    ASSERT_NE(objects, nullptr);
    EXPECT_EQ(objects->getAt(QStringLiteral("DATA")), nullptr);
    OdDbXrecord *record = objects->setAt(QStringLiteral("Data"));
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->rbChain(), nullptr);
    OdResBufPtr chain = OdResBuf::newString(1, QStringLiteral("Größe"));
    chain->setNext(OdResBuf::newReal(40, 2.5))
        ->setNext(OdResBuf::newInteger(70, -3))
        ->setNext(OdResBuf::newPoint(10, {1.0, 2.0, 3.0}));
    EXPECT_TRUE(record->setFromRbChain(chain.get()));
    EXPECT_EQ(objects->getAt(QStringLiteral("DATA")), record);
    const OdResBufPtr back = record->rbChain();
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(back->getString(), QStringLiteral("Größe"));
    EXPECT_EQ(back->next()->getDouble(), 2.5);
    EXPECT_EQ(back->next()->next()->getInteger(), -3);
    EXPECT_EQ(back->next()->next()->next()->getPoint3d(), (OdGePoint3d{1.0, 2.0, 3.0}));
    document().undoSteps().undo();
    EXPECT_EQ(record->rbChain(), nullptr);
}

TEST_F(Bench, filesAreFoundAlongThePath)
{
    QDir(folder.path()).mkpath(QStringLiteral("support/sub"));
    write("support/tool.lsp", "(setq loaded T)");
    session.setSupportFolders({path("support")});
    EXPECT_EQ(lisp("(findfile \"tool.lsp\")"), "\"" + path("support/tool.lsp").toStdString() + "\"");
    EXPECT_EQ(lisp("(findfile \"none.lsp\")"), "nil");
    EXPECT_EQ(lisp("(load \"tool\")loaded"), "T");
    write("support/sub/deep.lsp", "(setq deep T)");
    EXPECT_EQ(lisp("(load \"sub\\\\deep.lsp\")deep"), "T");
}

TEST_F(Bench, errorsSayWhere)
{
    const QString file = write("broken.lsp", "(defun f ()\n  (car 5))\n(f)\n");
    const RunResult result = document().loadLisp(file);
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(result.error.contains(QStringLiteral("broken.lsp:2"))) << result.error.toStdString();
    EXPECT_NE(takePrinted().find("; error: bad argument type"), std::string::npos);
    EXPECT_EQ(lisp("(exit)").rfind("error: quit / exit abort", 0), 0U);
    EXPECT_EQ(takePrinted(), "");
}

TEST_F(Bench, filesAreAskedForWhereThereIsNoWindow)
{
    const QString file = write("plan.txt", "x");
    type(qPrintable(file));
    EXPECT_EQ(lisp("(getfiled \"Choose\" \"\" \"txt\" 0)"), "\"" + file.toStdString() + "\"");
    EXPECT_EQ(lisp("(getfiled \"Choose\" \"\" \"txt\" 0)"), "nil");
}

TEST(SessionTest, servicesAreThereWhileItLives)
{
    const QTemporaryDir folder;
    {
        Session session({.home = folder.path(), .supportFolders = {}, .helpFolder = {}});
        EXPECT_EQ(GetKvSystemServices()->documentManager(), &session.documents());
        EXPECT_EQ(odedEditor(), &session.editor());
        EXPECT_NE(GetKvHelp(), nullptr);
        EXPECT_EQ(GetKvSystemServices()->mainWindow(), nullptr);
    }
    EXPECT_EQ(GetKvSystemServices(), nullptr);
    EXPECT_EQ(odedEditor(), nullptr);
    EXPECT_EQ(ACTIVE_DOCUMENT(), nullptr);
}

TEST_F(Bench, helpNamesThePageWithoutAWindow)
{
    write("index.html", "start");
    write("4711.html", "topic");
    GetKvHelp()->Help(folder.path(), 4711, false, nullptr, 0);
    EXPECT_NE(takePrinted().find("4711.html"), std::string::npos);
    GetKvHelp()->Help(folder.path(), 1, false, nullptr, 0);
    EXPECT_NE(takePrinted().find("index.html"), std::string::npos);
}

} // namespace
