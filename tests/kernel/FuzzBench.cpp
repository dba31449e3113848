#include "tests/kernel/FuzzBench.h"

#include "host/drawing/file/Recovery.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/kernel/input/InputFeeder.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Arguments.h"
#include "host/lisp/Interpreter.h"

#include <QDir>
#include <QElapsedTimer>

using namespace host::kernel;
using namespace host::drawing;

namespace {

constexpr double usualSeconds = 2.0;
/// What one step may take, on a machine that has other work as well.
constexpr qint64 longestStep = 20'000;
/// A program is stopped behind it, as a user would.
constexpr qint64 patience = 1'000;
constexpr int mostFailures = 8;

/// What answers and drawings are made of.
const char *const fuzzPrelude = R"a((progn
(setvar "FILEDIA" 0) (setvar "CMDDIA" 0) (setvar "EXPERT" 5)
(setq long "x" wide "Ж日😀é" inf (* 1e200 1e200) nan (- inf inf))
(repeat 13 (setq long (strcat long long))) (repeat 9 (setq wide (strcat wide wide)))
(setq odd (strcat "a" (chr 7) (chr 10) "b" (chr 27) "\t%%c\\P{\\f" (chr 127)))))a";

const char *const fuzzedEntities = R"a((foreach e '(
((0 . "LAYER") (100 . "AcDbSymbolTableRecord") (100 . "AcDbLayerTableRecord") (2 . "A") (70 . 0) (62 . 3) (6 . "Continuous"))
((0 . "BLOCK") (2 . "Door") (70 . 2) (10 0.0 0.0 0.0)) ((0 . "LINE") (10 0.0 0.0 0.0) (11 1.0 0.0 0.0))
((0 . "CIRCLE") (8 . "A") (10 0.0 0.0 0.0) (40 . 2.0))
((0 . "ATTDEF") (10 1.0 0.0 0.0) (40 . 1.0) (1 . "7") (2 . "NO") (3 . "Number") (70 . 0)) ((0 . "ENDBLK"))
((0 . "BLOCK") (2 . "Nest") (70 . 0) (10 1.0 0.0 0.0)) ((0 . "INSERT") (2 . "Door") (10 1.0 1.0 0.0) (41 . -2.0) (50 . 0.5))
((0 . "ENDBLK"))
((0 . "LINE") (10 0.0 0.0 0.0) (11 9.0 9.0 0.0)) ((0 . "LINE") (8 . "A") (10 0.0 9.0 0.0) (11 9.0 0.0 0.0))
((0 . "CIRCLE") (10 5.0 5.0 0.0) (40 . 3.0)) ((0 . "ARC") (8 . "A") (10 5.0 5.0 0.0) (40 . 4.0) (50 . 1.0) (51 . 2.0))
((0 . "LWPOLYLINE") (100 . "AcDbEntity") (100 . "AcDbPolyline") (90 . 3) (70 . 1) (10 0.0 0.0) (42 . 0.5) (10 8.0 0.0) (10 8.0 8.0))
((0 . "LWPOLYLINE") (100 . "AcDbEntity") (8 . "A") (100 . "AcDbPolyline") (90 . 2) (70 . 0) (10 0.0 0.0) (40 . 0.5) (41 . 1.0) (10 4.0 0.0)
 (210 0.0 0.0 -1.0))
((0 . "TEXT") (10 2.0 2.0 0.0) (40 . 1.0) (1 . "Text")) ((0 . "POINT") (10 3.0 4.0 0.0))
((0 . "MTEXT") (100 . "AcDbEntity") (100 . "AcDbMText") (10 1.0 7.0 0.0) (40 . 1.0) (41 . 5.0) (71 . 1) (1 . "One\\Ptwo"))
((0 . "ELLIPSE") (100 . "AcDbEntity") (100 . "AcDbEllipse") (10 5.0 5.0 0.0) (11 3.0 0.0 0.0) (40 . 0.5) (41 . 0.0) (42 . 4.0))
((0 . "POLYLINE") (66 . 1) (10 0.0 0.0 0.0) (70 . 8)) ((0 . "VERTEX") (10 1.0 1.0 1.0) (70 . 32)) ((0 . "VERTEX") (10 2.0 3.0 0.0) (70 . 32))
((0 . "SEQEND"))
((0 . "POLYLINE") (66 . 1) (10 0.0 0.0 0.0) (70 . 1)) ((0 . "VERTEX") (10 1.0 1.0 0.0) (42 . 1.0)) ((0 . "VERTEX") (10 2.0 3.0 0.0))
((0 . "VERTEX") (10 7.0 3.0 0.0)) ((0 . "SEQEND"))
((0 . "3DFACE") (10 0.0 0.0 0.0) (11 1.0 0.0 0.0) (12 1.0 1.0 1.0) (13 0.0 1.0 0.0))
((0 . "SOLID") (10 6.0 0.0 0.0) (11 7.0 0.0 0.0) (12 6.0 1.0 0.0) (13 7.0 1.0 0.0))
((0 . "XLINE") (100 . "AcDbEntity") (100 . "AcDbXline") (10 0.0 5.0 0.0) (11 1.0 0.0 0.0))
((0 . "RAY") (100 . "AcDbEntity") (100 . "AcDbRay") (10 0.0 6.0 0.0) (11 0.6 0.8 0.0))
((0 . "INSERT") (2 . "Door") (10 3.0 3.0 0.0)) ((0 . "INSERT") (2 . "Nest") (10 6.0 3.0 0.0) (42 . 2.0) (210 0.0 0.0 -1.0)))
(entmake e)))a";

/// What commands make for themselves.
const QStringList &fuzzedMaking()
{
    static const QStringList calls =
        QString::fromLatin1(
            R"a("SPLINE" "0,0" "2,3" "5,1" "" "" ""|"-HATCH" "5,5" ""|)a"
            R"a("-HATCH" "_S" (entlast) "" ""|"DIMLINEAR" "0,0" "9,0" "4,-2"|)a"
            R"a("DIMRADIUS" '(8 5) "9,9"|"LEADER" "1,1" "3,3" "" "Note" ""|)a"
            R"a("MLINE" "0,0" "5,0" "5,5" ""|"DONUT" 1 2 "4,4" ""|"-INSERT" "Door" "1,8" 1 1 0 "x"|)a"
            R"a("-GROUP" "_C" "G" "" (ssget "X") ""|"MLEADER" "2,2" "4,5" "Text"|"SOLID" "0,0" "1,0" "0,1" "" "")a")
            .split(u'|');
    return calls;
}

/// Where a drawing is worked on.
const QStringList &fuzzedPlaces()
{
    static const QStringList calls =
        QString::fromLatin1(
            R"a((command "UCS" "Z" 37)|(command "UCS" "X" 60)|(command "UCS" "_3" '(1 2 3) '(4 5 6) '(0 9 1))|)a"
            R"a((command "UCS" "Y" 180)|(setvar "TILEMODE" 0)|(setvar "TILEMODE" 1)|)a"
            R"a((progn (setvar "TILEMODE" 0) (command "MVIEW" "0,0" "100,80") (command "MSPACE"))|)a"
            R"a((command "-LAYER" "_LO" "0" "")|(command "-LAYER" "_LO" "*" "")|(command "-LAYER" "_F" "*" "")|)a"
            R"a((command "-LAYER" "_S" "A" "_F" "0" "")|(command "-LAYER" "_OFF" "*" "_Y" "")|(command "-LAYER" "_S" "A" "_LO" "A" "")|)a"
            R"a((command "VPLAYER" "_F" "A" "" "")|(command "ZOOM" "_E")|(command "ZOOM" "_C" '(5 5) 1e-6)|)a"
            R"a((setvar "OSMODE" 16383)|(setvar "ELEVATION" 2.5)|(setvar "THICKNESS" -1)|(setvar "LUNITS" 4)|(setvar "ANGDIR" 1)|)a"
            R"a((setvar "ANGBASE" 1)|(setvar "DIMASSOC" 0)|(setvar "PICKFIRST" 0)|(setvar "PEDITACCEPT" 1)|(setvar "MIRRTEXT" 1)|)a"
            R"a((setvar "CLAYER" "0")|(setvar "CECOLOR" "3")|(setvar "DIMSCALE" 0)|(setvar "PICKSTYLE" 3)|(setvar "TEXTSIZE" 1e9))a")
            .split(u'|');
    return calls;
}

/// What a command leaves over is the name of the next one, so that none of them is U.
const QStringList &fuzzedAnswers()
{
    static const QStringList answers =
        QString::fromUtf8(
            R"a(""|"0,0"|"10,0"|"3,4"|"@5<30"|"1e308,1e308"|"0"|"-1"|"2.5"|"1e300"|"90"|"100000"|"ALL"|"L"|"P"|"2P"|"3P")a"
            R"a(|"T"|"D"|"A"|"CE"|"CL"|"R"|"S"|"W"|"UN"|"C"|"J"|"FIT"|"*"|"?"|"Door"|"*Door"|"Y"|"N"|"M"|"LA"|"2x"|"!pi")a"
            R"a(|"E"|"B"|"F"|"G"|"H"|"I"|"K"|"O"|"Q"|"V"|"X"|"Z"|"ON"|"OFF"|"_end"|"_mid"|"_int,_cen"|"_non"|"_per"|"_tan")a"
            R"a(|"_nea"|".x"|".xy"|".z"|"m2p"|"from"|"tk"|"tt"|"<45"|"#1,1"|"*1,1"|"'ZOOM"|"'_.-LAYER"|"'ORTHOMODE"|"'LINE")a"
            R"a(|"(list 1 2)"|"Standard"|"0"|"Layer1"|"Model"|"Layout1"|"x.dxf"|"y.txt"|"Continuous"|"ANSI31"|"ByLayer"|"1=2")a"
            R"a(|"a b"|"ä/\""|'(0 0)|'(3.5 4.5)|'(5 8 1)|'(9 9)|'(1e200 1e200)|1|-3|0.5|7|1e-9|pi|nil|PAUSE|(entlast))a"
            R"a(|(ssname (ssget "X") 0)|(ssname (ssget "X") 1)|(list (entlast) '(3 3))|(list (ssname (ssget "X") 0) '(0 0)))a"
            R"a(|(ssget "X")|(ssget "L")|long|wide|odd|inf|nan|(list nan 0)|(list 0 (- inf) nan)|(list long 1)|"-1e400"|2147483647)a"
            R"a(|-2147483648|1e15|'(1e15 -1e15 1e15)|"Nest"|"A"|"G"|"WP"|"CP"|"_F"|"_all"|"_add"|"_rem"|"\t"|" "|"|"|'foo|'(1 . 2))a")
            .split(u'|');
    return answers;
}

/// Nobody who answers, but who stops what takes too long.
class Clock final : public InputFeeder
{
public:
    FeedResult feed(const PromptRequest &, InputQueue &) override { return FeedResult::NobodyThere; }
    bool isAttended() const override { return false; }
    bool poll() override { return time.hasExpired(patience); }

    QElapsedTimer time;
};

int failureCount()
{
    return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

/// The living entity, child or object at or behind a number; any number is one.
RecordId livingRecord(const Drawing &drawing, std::uint32_t number)
{
    const auto isWanted = [&](RecordId id) {
        return drawing.isAlive(id) && drawing.kind(id) >= RecordKind::TableEntry &&
               drawing.kind(id) <= RecordKind::Object;
    };
    const quint32 limit = drawing.idLimit();
    for (quint32 step = 0; step < limit; ++step)
        if (const RecordId id{(number + step) % limit}; isWanted(id))
            return id;
    return noRecord;
}

} // namespace

FuzzBench::FuzzBench() : m_clock(std::make_unique<Clock>())
{
    bool isNumber = false;
    const int seed = qEnvironmentVariableIntValue("ORTAKIT_FUZZ_SEED", &isNumber);
    m_random.seed(isNumber ? unsigned(seed) : 1U);
    // Files that commands read and write by their names alone.
    m_folderBefore = QDir::currentPath();
    QDir::setCurrent(folder.path());
    session.setFeeder(m_clock.get());
    constexpr qint64 largestDrawing = 200'000;
    if (const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS"); !corpus.isEmpty())
        for (const QString &name : {corpus, corpus + QStringLiteral("/../dwg")})
            for (const QFileInfo &file : QDir(name).entryInfoList({QStringLiteral("*.dxf")}, QDir::Files, QDir::Name))
                if (file.size() < largestDrawing)
                    m_corpus.append(file.canonicalFilePath());
}

FuzzBench::~FuzzBench()
{
    session.setFeeder(nullptr);
    QDir::setCurrent(m_folderBefore);
}

QString FuzzBench::anyAnswer()
{
    switch (m_random() % 8) {
    case 0:
        return QStringLiteral("(a-record %1)").arg(m_random() % 100'000);
    case 1:
        return QStringLiteral("(picked %1)").arg(m_random() % 100'000);
    default:
        return any(fuzzedAnswers());
    }
}

void FuzzBench::begin(const QString &path)
{
    while (session.documents().active())
        session.documents().close(session.documents().active());
    session.input().clear();
    log(QStringLiteral("; anew %1").arg(path));
    if (path.isEmpty() || !session.documents().createFrom(path))
        session.documents().create();
    define();
}

void FuzzBench::beginAnew()
{
    const QString path = m_corpus.isEmpty() || oneIn(2) ? QString() : any(m_corpus);
    begin(path);
    runTimed(QString::fromUtf8(fuzzPrelude));
    if (path.isEmpty() || oneIn(3))
        runTimed(QString::fromUtf8(fuzzedEntities));
    for (unsigned count = m_random() % 5; count > 0; --count)
        runTimed(QStringLiteral("(command %1)").arg(any(fuzzedMaking())));
    for (unsigned count = m_random() % 5; count > 0; --count)
        runTimed(any(fuzzedPlaces()));
}

void FuzzBench::stepBack()
{
    log(QStringLiteral("; undo"));
    document().undoSteps().undo();
}

void FuzzBench::stepOn()
{
    log(QStringLiteral("; redo"));
    document().undoSteps().redo();
}

void FuzzBench::playAgain(const QString &logFile)
{
    QFile file(logFile);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << logFile.toStdString();
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).chopped(1);
        if (line.startsWith(QStringLiteral("; anew ")))
            begin(line.mid(7));
        else if (line == QStringLiteral("; undo"))
            stepBack();
        else if (line == QStringLiteral("; redo"))
            stepOn();
        else if (!line.startsWith(u';'))
            runTimed(line);
    }
}

void FuzzBench::define()
{
    // (a-record 17) is one of the drawing's records, (picked 17) with a point at or near it.
    const auto record = [this](host::lisp::Arguments &args) {
        const RecordId id = livingRecord(drawing(), std::uint32_t(args.integer(0)));
        return isValid(id) ? toLisp(id) : host::lisp::Value();
    };
    document().interpreter().define("a-record", record, host::lisp::Arity::exactly(1));
    const auto picked = [this, record](host::lisp::Arguments &args) {
        const RecordId id = livingRecord(drawing(), std::uint32_t(args.integer(0)));
        const Vec3 place = isValid(id) ? drawing().tags(id).point(args.integer(0) % 2 ? 10 : 11) : Vec3();
        return host::lisp::Value::list({record(args), toLisp(place)});
    };
    document().interpreter().define("picked", picked, host::lisp::Arity::exactly(1));
}

bool FuzzBench::runTimed(const QString &expression)
{
    log(expression.simplified());
    auto &clock = static_cast<Clock &>(*m_clock);
    clock.time.start();
    const RunResult result = document().run(expression);
    const qint64 taken = clock.time.elapsed();
    if (taken > 1000)
        log(QStringLiteral("; %1 ms").arg(taken));
    EXPECT_LT(taken, longestStep) << expression.toStdString();
    session.input().clear();
    return result.ok;
}

QStringList FuzzBench::faults()
{
    QStringList found;
    const Recovered again = recoverDrawing(drawing().toBytes());
    if (!again)
        found.append(again.error.message());
    for (const RecoveryStep &step : again.report.steps())
        found.append(step.what + u' ' + step.why);
    return found;
}

QStringList FuzzBench::dangling()
{
    QStringList found;
    const auto look = [&](RecordId id, int code, Handle handle) {
        if (!handle.isNull() && !drawing().isAlive(drawing().find(handle)))
            found.append(QStringLiteral("%1 %2=%3 leads nowhere")
                             .arg(QLatin1String(drawing().typeName(id)))
                             .arg(code)
                             .arg(handle.toString()));
    };
    for (RecordId id = drawing().first(); isValid(id); id = drawing().next(id)) {
        look(id, ownerCode, drawing().owner(id));
        // Who is to be told of changes (330 as well) may be gone, and what programs noted in extended data.
        for (const Tag &tag : drawing().tagsForFile(id))
            if (tag.code >= 320 && tag.code < firstXdataCode && tag.code != ownerCode &&
                tagType(tag.code) == TagType::Handle)
                look(id, tag.code, Handle::fromText(QByteArrayView(tag.value)).value_or(Handle{}));
    }
    return found;
}

void FuzzBench::expectNoMore(const QStringList &before, QStringList now, const QString &step)
{
    for (const QString &fault : before)
        now.removeOne(fault);
    EXPECT_TRUE(now.isEmpty()) << step.toStdString() << '\n' << now.mid(0, 5).join(u'\n').toStdString();
}

void FuzzBench::repeatedly(const std::function<void()> &round)
{
    bool isNumber = false;
    const double asked = qEnvironmentVariable("ORTAKIT_FUZZ_SECONDS").toDouble(&isNumber);
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < (isNumber ? asked : usualSeconds) * 1000.0 && failureCount() < mostFailures) {
        const int failuresBefore = failureCount();
        round();
        if (failureCount() > failuresBefore)
            beginAnew();
    }
}

void FuzzBench::log(const QString &line)
{
    if (!qEnvironmentVariableIsSet("ORTAKIT_FUZZ_LOG"))
        return;
    QFile file(qEnvironmentVariable("ORTAKIT_FUZZ_LOG"));
    if (file.open(QIODevice::Append))
        file.write(line.toUtf8() + '\n');
}
