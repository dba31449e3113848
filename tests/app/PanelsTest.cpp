// The panels and bars of the window, worked in by sessions and by hand.

#include "host/app/playback/DrawingAudit.h"
#include "host/app/window/MainWindow.h"
#include "host/app/window/panels/LayerModel.h"
#include "host/app/window/panels/LayerOrders.h"
#include "host/app/window/panels/PropertySurvey.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "tests/app/AppFixture.h"
#include "tests/support/QtTestPrinters.h"

#include <QComboBox>
#include <QDeadlineTimer>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QKeyEvent>

#include <gtest/gtest.h>

using namespace host::app;
using namespace host::app::test;
using namespace Qt::StringLiterals;

namespace {

TEST(LayerOrdersTest, WordsThatPromptsWouldTakeOtherwiseAreSaidInLisp)
{
    const std::pair<QStringList, QString> rows[] = {
        {{u"_-LAYER"_s, u"_OFF"_s, u"Walls,A 2"_s, {}}, u"_-LAYER\n_OFF\nWalls,A 2\n\n"_s},
        {{u"_-LAYER"_s, u"_Freeze"_s, u"x|Wände`#1"_s}, u"_-LAYER\n_Freeze\nx|Wände`#1\n"_s},
        {{u"_-LAYER"_s, u"(a)"_s}, u"(command \"_-LAYER\" \"(a)\")"_s},
        {{u"_-LAYER"_s, u"a\"b\\c"_s}, u"(command \"_-LAYER\" \"a\\\"b\\\\c\")"_s},
        {{u"_-LAYER"_s, u"!x"_s}, u"(command \"_-LAYER\" \"!x\")"_s},
        {{u"_-LAYER"_s, u"two  blanks"_s}, u"(command \"_-LAYER\" \"two  blanks\")"_s}};
    for (const auto &[words, line] : rows)
        EXPECT_EQ(typedLine(words), line);
}

TEST(LayerOrdersTest, NamesMatchThemselvesAlone)
{
    for (const QString &name : {u"A#1"_s, u"*"_s, u"a,b"_s, u"[x]~y"_s, u" blank"_s, u"`"_s, u"plain-1.2"_s}) {
        const QString pattern = host::drawing::literalPattern(name);
        EXPECT_TRUE(host::drawing::matchesWildcard(name, pattern)) << name.toStdString();
        EXPECT_FALSE(host::drawing::matchesWildcard(u'x' + name, pattern)) << name.toStdString();
        EXPECT_EQ(host::drawing::literalTexts(pattern + u",Z"_s), (QStringList{name, u"Z"_s}));
    }
    EXPECT_FALSE(host::drawing::literalTexts(u"A*"));
    EXPECT_FALSE(host::drawing::literalTexts(u"~A"));
}

TEST(LayerModelTest, NamesAreSortedByTheirNumbers)
{
    const QStringList names = {u"0"_s, u"a"_s, u"A2"_s, u"a 2"_s, u"a10"_s, u"B"_s, u"b007"_s, u"b8"_s};
    QStringList sorted = names;
    std::ranges::sort(sorted, [](const QString &left, const QString &right) { return isNaturallyLess(left, right); });
    EXPECT_EQ(sorted, (QStringList{u"0"_s, u"a"_s, u"a 2"_s, u"A2"_s, u"a10"_s, u"B"_s, u"b007"_s, u"b8"_s}));
}

/// A window without module and tools.
struct PanelsTest : testing::Test, TestFolder
{
    PanelsTest()
        : window(WorkbenchOptions{.home = path(u"home"_s), .module = path(u"none.so"_s), .tools = path(u"tools"_s)})
    {
        window.resize(1400, 900);
        window.show();
    }
    PlaybackResult play(const QString &session)
    {
        PlaybackOptions options;
        options.timeLimit = std::chrono::seconds(60);
        return window.play(parsePlayback(session), options);
    }

    MainWindow window;
};

TEST_F(PanelsTest, SessionsWorkInThem)
{
    const QDir sessions(QStringLiteral(PANEL_SESSIONS));
    const QStringList files = sessions.entryList({u"*.session"_s}, QDir::Files);
    ASSERT_FALSE(files.isEmpty());
    for (const QString &name : files) {
        QFile file(sessions.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        window.start({});
        window.workbench().documents().create();
        const PlaybackResult result = play(QString::fromUtf8(file.readAll()));
        EXPECT_TRUE(result.ok) << name.toStdString() << ": " << result.message.toStdString();
    }
}

TEST_F(PanelsTest, LayersOfOldDrawingsHaveWhatTheirVersionHas)
{
    window.start({write(u"old.dxf"_s, QByteArray(smallDrawing()).replace("AC1015", "AC1009"))});
    const PlaybackResult result = play(uR"(
panel layersPanel
expect-items layers "0;on;thawed;unlocked;;white;CONTINUOUS;;;;thawed"
cell layers 0 5 3
expect-undo
expect-lisp (= (cdr (assoc 62 (tblsearch "LAYER" "0"))) 3)
cell layers 0 5 "1,2,3"
expect layerMessage "A drawing of this version has no such property of layers."
cell layers 0 2 frozen
expect layerMessage "\"0\" is the current layer and cannot be frozen."
cell layers 0 0 other
expect layerMessage "Layer \"0\" keeps its name.")"_s);
    EXPECT_TRUE(result.ok) << result.message.toStdString();
}

TEST_F(PanelsTest, CommandsEnteredByHandOpenThemAndProgramsAreAsked)
{
    window.start({});
    const auto isShown = [this](const QString &name) { return window.findChild<QDockWidget *>(name)->isVisible(); };
    window.enter(u"(command \"LAYER\" \"_New\" \"Made\" \"\")"_s);
    EXPECT_FALSE(isShown(u"layersPanel"_s));
    EXPECT_EQ(window.document()->run(u"(null (tblsearch \"LAYER\" \"Made\"))"_s).value, u"nil"_s);
    window.enter(u"la"_s);
    EXPECT_TRUE(isShown(u"layersPanel"_s));
    EXPECT_FALSE(isShown(u"propertiesPanel"_s));
    window.enter(u"_PROPERTIES"_s);
    EXPECT_TRUE(isShown(u"propertiesPanel"_s));
    window.document()->run(u"(defun c:layer () (setq *mine* T))"_s);
    window.enter(u"LAYER"_s);
    EXPECT_EQ(window.document()->run(u"*mine*"_s).value, u"T"_s) << "a program's command of the name goes first";
}

TEST_F(PanelsTest, RenamingKeyIsTheirsWhileTheyHaveTheFocus)
{
    window.start({});
    window.enter(u"la"_s);
    window.enter(u"_PROPERTIES"_s);
    for (const QString &name : {u"layers"_s, u"properties"_s, u"commandInput"_s}) {
        auto *widget = window.findChild<QWidget *>(name);
        ASSERT_TRUE(widget) << name.toStdString();
        QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_F2, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(widget, &event);
        EXPECT_EQ(event.isAccepted(), name != u"commandInput"_s) << name.toStdString();
    }
}

TEST_F(PanelsTest, ManyEntitiesAreLookedThroughInPieces)
{
    window.start({});
    ASSERT_TRUE(window.document()
                    ->run(uR"((repeat (setq i 3000)
        (entmake (list '(0 . "CIRCLE") (list 10 (setq i (1- i)) 0.0 0.0) '(40 . 2.5)))))"_s)
                    .ok);
    const host::drawing::Drawing &drawing = window.document()->drawing();
    PropertySurvey survey(drawing, host::kernel::currentEntities(drawing));
    EXPECT_FALSE(survey.goOn(QDeadlineTimer(0)));
    EXPECT_LT(survey.counts().value("CIRCLE"), 3000);
    while (!survey.goOn(QDeadlineTimer(0))) {
    }
    EXPECT_EQ(survey.counts().value("CIRCLE"), 3000);
    const auto properties = host::drawing::entityProperties();
    const auto property = [&](const char *name) {
        const auto row = std::ranges::find_if(properties, [name](const auto &candidate) {
            return QByteArrayView(candidate.type) == "CIRCLE" && QByteArrayView(candidate.name) == name;
        });
        return survey.value("CIRCLE", std::size_t(row - properties.begin()));
    };
    EXPECT_EQ(property("Radius").common, host::drawing::FieldValue(2.5));
    EXPECT_TRUE(property("Center").varies);
}

TEST_F(PanelsTest, TheWindowAnswersWhileManyAreChosen)
{
    window.start({});
    host::kernel::Document &document = *window.document();
    ASSERT_TRUE(document
                    .run(uR"((repeat (setq i 33334)
        (entmake (list '(0 . "LINE") (list 10 (setq i (1- i)) 0.0 0.0) (list 11 i 5.0 0.0)))
        (entmake (list '(0 . "ARC") (list 10 i 0.0 0.0) '(40 . 2.5) '(50 . 10.0) '(51 . 100.0)))
        (entmake (list '(0 . "CIRCLE") (list 10 i 0.0 0.0) '(40 . 2.5)))))"_s)
                    .ok);
    ASSERT_TRUE(play(u"panel propertiesPanel"_s).ok);
    const auto *types = window.findChild<QComboBox *>(u"propertyType"_s);
    ASSERT_TRUE(types);
    document.setImpliedSelection(host::kernel::currentEntities(document.drawing()));
    // Each turn of the event loop looks through a piece; what was chosen is not known after the first ones.
    int turns = 0;
    for (const QDeadlineTimer limit(60'000); types->itemText(0) != u"All (100002)"_s && !limit.hasExpired(); ++turns)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 0);
    EXPECT_EQ(types->itemText(0), u"All (100002)"_s);
    EXPECT_GT(turns, 5);
}

TEST_F(PanelsTest, ManyLayersStayQuick)
{
    window.start({});
    ASSERT_TRUE(window.document()
                    ->run(uR"((repeat (setq i 10000)
        (entmake (list '(0 . "LAYER") '(100 . "AcDbSymbolTableRecord") '(100 . "AcDbLayerTableRecord")
            (cons 2 (strcat "L" (itoa (setq i (1- i))))) '(70 . 0) '(62 . 7) '(6 . "Continuous")))))"_s)
                    .ok);
    ASSERT_TRUE(play(u"panel layersPanel ~ expect layerMessage \"10001 of 10001 layers\""_s).ok);
    const PlaybackResult result =
        play(u"panel layersPanel ~ set layerFilter L99?? ~ expect layerMessage \"100 of 10001 layers\" ~ "
             "set layerFilter \"\" ~ key layers Ctrl+A ~ cell layers 7 1 off ~ "
             "expect-lisp (minusp (cdr (assoc 62 (tblsearch \"LAYER\" \"L9999\"))))"_s);
    EXPECT_TRUE(result.ok) << result.message.toStdString();
    // A walk over all pairs of layers takes minutes.
}

/// All layers of a drawing, one state after the other, and all taken back.
constexpr char everyState[] = R"(
panel layersPanel
set layerKind All
set layerFilter ""
key layers Ctrl+A
cell layers 0 1 off ~ cell layers 0 1 on ~ cell layers 0 1 off
cell layers 0 3 locked ~ cell layers 0 3 unlocked ~ cell layers 0 3 locked
cell layers 0 2 frozen
)";

/// Drawings made elsewhere, of all versions.
QStringList drawingsOfCorpus()
{
    const QDir corpus(qEnvironmentVariable("ORTAKIT_CORPUS"));
    QStringList paths;
    for (const QString &folder : {corpus.path(), corpus.filePath(u"../dwg"_s)})
        for (const QFileInfo &file : QDir(folder).entryInfoList({u"*.dxf"_s}, QDir::Files, QDir::Size | QDir::Reversed))
            paths.append(file.filePath());
    constexpr qsizetype mostDrawings = 40;
    return paths.mid(0, mostDrawings);
}

TEST_F(PanelsTest, LayersOfOtherPeoplesDrawingsComeBack)
{
    if (!qEnvironmentVariableIsSet("ORTAKIT_CORPUS"))
        GTEST_SKIP() << "ORTAKIT_CORPUS does not name a folder of drawings";
    DrawingAudit audit(qEnvironmentVariable("ORTAKIT_AUDIT"));
    const bool isAudited = qEnvironmentVariableIsSet("ORTAKIT_AUDIT");
    int played = 0;
    for (const QString &file : drawingsOfCorpus()) {
        // Beside the original no lock is left.
        const QString own = path(u"%1.dxf"_s.arg(played));
        if (!QFile::copy(file, own))
            continue;
        const host::kernel::OpenOutcome opened = window.workbench().documents().open(own);
        if (!opened)
            continue;
        host::kernel::Document &document = *opened.document;
        const QByteArray before = document.drawing().toBytes();
        const PlaybackResult result = play(QString::fromLatin1(everyState));
        EXPECT_TRUE(result.ok) << file.toStdString() << ": " << result.message.toStdString();
        ++played;
        const auto layers = host::drawing::allLayers(document.drawing());
        const bool areAll =
            std::ranges::all_of(layers, [](const auto &layer) { return layer.isOff && layer.isLocked; });
        EXPECT_TRUE(areAll) << file.toStdString();
        if (const QString copy = path(u"changed.dxf"_s);
            isAudited && audit.complaints(file).isEmpty() && document.saveCopy(copy)) {
            EXPECT_EQ(audit.complaints(copy), QString()) << file.toStdString();
        }
        while (document.undoSteps().canUndo())
            document.undoSteps().undo();
        EXPECT_TRUE(document.drawing().toBytes() == before) << file.toStdString();
        window.workbench().documents().close(&document);
    }
    EXPECT_GT(played, 0);
}

} // namespace
