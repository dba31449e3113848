#include "tests/app/AppFixture.h"
#include "tests/support/CaseFile.h"
#include "tests/support/QtTestPrinters.h"
#include "tests/support/Texts.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QThread>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

using namespace host::app::test;
using namespace Qt::StringLiterals;

namespace {

struct Ended
{
    int status = -1;
    QString output;
    QString messages;
};

/// A sheet of 100 by 50 millimetres of each name, with a line.
QByteArray drawingWithSheets(const QByteArrayList &names)
{
    QByteArray records;
    QByteArray blocks;
    QByteArray layouts;
    QByteArray entries;
    for (qsizetype i = 0; i < names.size(); ++i) {
        const QByteArray block = i == 0 ? "*Paper_Space" : "*Paper_Space" + QByteArray::number(i - 1);
        const QByteArray number = QByteArray::number(i);
        records += "0\nBLOCK_RECORD\n5\nE" + number + "\n2\n" + block + '\n';
        blocks += "0\nBLOCK\n8\n0\n2\n" + block + "\n10\n0\n20\n0\n" +
                  (i == 0 ? "" : "0\nLINE\n8\n0\n10\n1\n20\n1\n11\n9\n21\n9\n") + "0\nENDBLK\n8\n0\n";
        entries += "3\n" + names[i] + "\n350\nA" + number + '\n';
        layouts += "0\nLAYOUT\n5\nA" + number +
                   "\n100\nAcDbPlotSettings\n70\n128\n74\n5\n72\n1\n44\n100\n45\n50\n142\n" +
                   "1\n143\n1\n100\nAcDbLayout\n1\n" + names[i] + "\n71\n" + QByteArray::number(i + 1) + "\n330\nE" +
                   number + '\n';
    }
    return "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n0\nENDSEC\n0\nSECTION\n2\nTABLES\n0\nTABLE\n2\n"
           "BLOCK_RECORD\n0\nBLOCK_RECORD\n5\nEE\n2\n*Model_Space\n" +
           records + "0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\n*Model_Space\n0\nENDBLK\n" +
           blocks +
           "0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nLINE\n67\n1\n8\n0\n10\n1\n20\n1\n11\n9\n21\n9\n0\nENDSEC\n" +
           "0\nSECTION\n2\nOBJECTS\n0\nDICTIONARY\n5\nD0\n3\nACAD_LAYOUT\n350\nD1\n0\nDICTIONARY\n5\nD1\n330\nD0\n3\n" +
           "Model\n350\nAA\n" + entries +
           "0\nLAYOUT\n5\nAA\n100\nAcDbPlotSettings\n70\n0\n100\nAcDbLayout\n1\nModel\n71\n" + "0\n330\nEE\n" +
           layouts + "0\nENDSEC\n0\nEOF\n";
}

QStringList namesIn(const QJsonValue &array)
{
    QStringList names;
    for (const QJsonValue &name : array.toArray())
        names.append(name.toString());
    return names;
}

void expectKeys(const QJsonObject &object, const QJsonObject &schema)
{
    for (const QString &name : namesIn(schema[u"required"_s]))
        EXPECT_TRUE(object.contains(name)) << name.toStdString();
}

/// That the output is one report as the schema beside the documents describes it, and counts what it lists.
void expectReport(const QByteArray &output)
{
    QFile file(qEnvironmentVariable("ORTAKIT_SOURCE") + u"/docs/report.schema.json"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonObject schema = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonObject parts = schema[u"properties"_s].toObject();
    const QJsonObject report = QJsonDocument::fromJson(output).object();
    expectKeys(report, schema);
    for (const QString &key : report.keys())
        EXPECT_TRUE(parts.contains(key)) << key.toStdString();
    EXPECT_EQ(report[u"schema"_s], parts[u"schema"_s][u"const"_s]);
    const QJsonObject item = parts[u"results"_s][u"items"_s].toObject();
    qsizetype done = 0;
    for (const QJsonValue &result : report[u"results"_s].toArray()) {
        expectKeys(result.toObject(), item);
        const QString status = result[u"status"_s].toString();
        EXPECT_TRUE(namesIn(item[u"properties"_s][u"status"_s][u"enum"_s]).contains(status)) << status.toStdString();
        done += status == "done"_L1 ? 1 : 0;
    }
    const QJsonObject summary = report[u"summary"_s].toObject();
    expectKeys(summary, parts[u"summary"_s].toObject());
    EXPECT_EQ(summary[u"done"_s].toInt(), done);
    EXPECT_EQ(summary[u"results"_s].toInt(), report[u"results"_s].toArray().size());
}

/// The built program in a folder of its own.
struct ProgramTest : testing::Test, TestFolder
{
    ProgramTest()
    {
        write(u"a.dxf"_s, smallDrawing());
        write(u"b.dxf"_s, smallDrawing());
        write(u"solid.dxf"_s, QByteArray(smallDrawing()).replace("0\nCIRCLE\n", "0\n3DSOLID\n"));
        write(u"broken.dxf"_s, "0\nSECTION\n2\nENT");
        write(u"damaged.dxf"_s, QByteArray(smallDrawing()).replace("0\nCIRCLE\n", "0\nCIRCLE\nrubbish\n"));
        write(u"made.dwg"_s, dwgFile(2));
        write(u"hurt.dwg"_s, dwgFile(2, 1));
        EXPECT_TRUE(QDir(folder.path()).mkpath(u"links"_s));
        EXPECT_TRUE(QFile::link(u"../made.dwg"_s, folder.filePath(u"links/made.dwg"_s)));
        QByteArray torn = dwgFile(2);
        for (qsizetype at = 0x1a0; at < 0x1c0; ++at) // within the page of the header's variables
            torn[at] = char(~torn[at]);
        write(u"torn.dwg"_s, torn);
        EXPECT_TRUE(QDir(folder.path()).mkpath(u"tools"_s));
        write(u"sub/remote.dxf"_s,
              QByteArray(smallDrawing()).replace("0\nCIRCLE\n", "0\nRTEXT\n70\n0\n1\n../good.lsp\n"));
        for (const auto &row : runs.groups.at(0))
            write(QString::fromStdString(row.text('~')), QByteArray::fromStdString(row.lines('=')));
        write(u"sheets.dxf"_s, drawingWithSheets({"Plan", "A/B: 1", "a:b/ 1"}));
        // Blocks within blocks, deeper than they are opened.
        QByteArray blocks;
        for (int i = 0; i < 40; ++i)
            blocks += "0 BLOCK 8 0 2 B" + QByteArray::number(i) + " 10 0 20 0 0 INSERT 8 0 2 B" +
                      QByteArray::number(i + 1) + " 10 0 20 0 0 ENDBLK 8 0 ";
        write(u"deep.dxf"_s, ortakit::test::dxfText("0 SECTION 2 BLOCKS " + blocks + R"(
            0 BLOCK 8 0 2 B40 10 0 20 0 0 LINE 8 0 10 0 20 0 11 9 21 9 0 ENDBLK 8 0 0 ENDSEC
            0 SECTION 2 ENTITIES 0 INSERT 8 0 2 B0 10 0 20 0 0 ENDSEC 0 EOF)"));
    }

    static QString program() { return qEnvironmentVariable("ORTAKIT_BUILD") + u"/bin/ortakit"_s; }
    void prepare(QProcess &process)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name :
             {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "ORTAKIT_MODULE", "ORTAKIT_TOOLS", "ORTAKIT_AUDIT"})
            environment.remove(QString::fromLatin1(name));
        environment.insert(u"ORTAKIT_HOME"_s, folder.filePath(u"home"_s));
        environment.insert(u"ORTAKIT_TOOLS"_s, folder.filePath(u"tools"_s));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.setChildProcessModifier([this] {
            const rlimit limit = {room, room};
            setrlimit(RLIMIT_FSIZE, &limit);
        });
    }

    /// Divided at blanks; "%20" is one within a word.
    QStringList wordsOf(QString arguments)
    {
        const QString build = qEnvironmentVariable("ORTAKIT_BUILD");
        arguments.replace(u"%BUILD%"_s, build).replace(u"%TOOLS%"_s, build + u"/share/ortakit/tools"_s);
        arguments.replace(u"%PLAN%"_s, ownPlan());
        return arguments.split(u' ', Qt::SkipEmptyParts).replaceInStrings(u"%20"_s, u" "_s);
    }

    /// A copy of the sample, which other tests have open meanwhile.
    QString ownPlan()
    {
        const QString path = folder.filePath(u"originals/plan.dxf"_s);
        QDir(folder.path()).mkdir(u"originals"_s);
        QFile::copy(qEnvironmentVariable("ORTAKIT_SOURCE") + u"/samples/plan.dxf"_s, path);
        return path;
    }

    Ended run(const QString &arguments, const QByteArray &input = {})
    {
        QProcess process;
        prepare(process);
        process.start(program(), wordsOf(arguments));
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(60'000)) << arguments.toStdString();
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
    }

    /// The files that are there, then what is run in their folder.
    const ortakit::test::CaseFile runs = ortakit::test::readCases(ortakit::test::testFile("app/program.runs"));
    rlim_t room = RLIM_INFINITY; ///< how large a file may become, as where the disk ends
};

TEST_F(ProgramTest, EndsWithTheStatusItsManualNames)
{
    for (std::size_t i = 1; i < runs.groups.size(); ++i) {
        for (const auto &row : runs.groups[i]) {
            SCOPED_TRACE(row.place + ' ' + row.source);
            const QString arguments = QString::fromStdString(row.source);
            const Ended ended = run(arguments);
            if (arguments.contains("--json"_L1) && ended.status != 2)
                expectReport(ended.output.toUtf8());
            EXPECT_EQ(std::to_string(ended.status), row.text('=')) << ended.messages.toStdString();
            EXPECT_TRUE(ended.output.contains(QString::fromStdString(row.lines('>')))) << ended.output.toStdString();
            EXPECT_TRUE(ended.messages.contains(QString::fromStdString(row.lines('?'))))
                << ended.messages.toStdString();
        }
    }
    EXPECT_GT(runs.groups.size(), 5u);
    // What those runs have left behind: converted without changing a byte, changed as a copy only.
    EXPECT_EQ(read(u"copy.dxf"_s), smallDrawing());
    EXPECT_FALSE(QImage(folder.filePath(u"picture.png"_s)).isNull());
    EXPECT_TRUE(read(u"picture.pdf"_s).startsWith("%PDF"));
    EXPECT_TRUE(read(u"picture.svg"_s).contains("<svg"));
    EXPECT_EQ(read(u"a.dxf"_s), smallDrawing());
    EXPECT_EQ(read(u"out/b.dxf"_s).count("\nLINE\n"), 1);
    EXPECT_FALSE(QImage(folder.filePath(u"out/a.png"_s)).isNull());
    EXPECT_FALSE(QFile::exists(folder.filePath(u"unchanged/a.dxf"_s))) << "nothing was changed";
    EXPECT_FALSE(QFile::exists(folder.filePath(u"cased/a.dxf"_s))) << "each case has its own end";
}

TEST_F(ProgramTest, SaysWhatAFullDiskDidNotTakeAndKeepsTheOldFile)
{
    const QByteArray old(5000, 'x');
    for (const char *name : {"old.dxf", "old.png", "old.svg", "old.pdf"})
        write(QString::fromLatin1(name), old);
    write(u"writes.lsp"_s, "(setq f (open \"text\" \"w\"))(repeat 9000 (write-line \"0123456789\" f))(close f)");
    write(u"closes.lsp"_s, "(setq f (open \"text\" \"w\"))(repeat 200 (write-line \"0123456789\" f))(close f)");
    write(u"forgets.lsp"_s, "(setq f (open \"text\" \"w\"))(repeat 200 (write-line \"0123456789\" f))");
    write(u"saves.lsp"_s, "(command \"LINE\" \"0,0\" \"1,1\" \"\" \"QSAVE\")");
    write(u"saves.txt"_s, "command LINE ~ answer 0,0 ~ answer 1,1 ~ enter ~ command QSAVE\n");
    write(u"lines.lsp"_s, "(princ (list (kora_write_lines \"lines\" '(\"short\" \"\"))"
                          " (kora_write_lines \"lines\" (list (vl-prin1-to-string kora:plain_variables)))))");
    const QString tools = u" --tools "_s + qEnvironmentVariable("ORTAKIT_SOURCE") + u"/tools"_s;
    const struct
    {
        QString arguments;
        int status;
        QString message;
        QString output = {};
    } rows[] = {
        {u"convert a.dxf old.dxf"_s, 4, u"old.dxf"_s},      {u"convert a.dxf old.png"_s, 4, u"old.png"_s},
        {u"convert a.dxf old.svg"_s, 4, u"old.svg"_s},      {u"convert a.dxf old.pdf"_s, 4, u"old.pdf"_s},
        {u"lisp writes.lsp"_s, 1, u"cannot write text"_s},  {u"lisp closes.lsp"_s, 1, u"cannot write text"_s},
        {u"lisp forgets.lsp"_s, 4, u"cannot write text"_s}, {u"lisp saves.lsp --drawing a.dxf"_s, 4, u"a.dxf"_s},
        {u"run saves.txt a.dxf"_s, 4, u"a.dxf"_s},          {u"lisp lines.lsp"_s + tools, 0, {}, u"(T nil)"_s},
    };
    room = 100;
    for (const auto &[arguments, status, message, output] : rows) {
        const Ended ended = run(arguments);
        EXPECT_EQ(ended.status, status) << arguments.toStdString() << '\n' << ended.messages.toStdString();
        EXPECT_TRUE(ended.messages.contains(message)) << ended.messages.toStdString();
        EXPECT_TRUE(ended.output.contains(output)) << ended.output.toStdString();
    }
    for (const char *name : {"old.dxf", "old.png", "old.svg", "old.pdf"})
        EXPECT_EQ(read(QString::fromLatin1(name)), old) << name;
    EXPECT_EQ(read(u"a.dxf"_s), smallDrawing());
    EXPECT_EQ(read(u"lines"_s), "short\n");
    EXPECT_TRUE(QDir(folder.path()).entryList({u".*.saving"_s}, QDir::Files | QDir::Hidden).isEmpty());
}

TEST_F(ProgramTest, EndsAToolWhoseDialogCouldNotHandOverWhatWasChosen)
{
    write(u"show.lsp"_s,
          R"((defun silent (file) T)
(defun writes (file)
  (kora_writestate file '(("a" . "new"))) (setq h (open file "w")) (write-line "a=new" h) (close h) T)
(kora_writestate "tool.state" '(("a" . "old")))
(princ (list (kora_show 'silent '("tool.state")) (kora_show 'writes '("tool.state"))
 (kora_show 'writes '("none/tool.state")) (kora_state_value (kora_readstate "tool.state") "a"))))");
    const Ended ended = run(u"lisp show.lsp --tools "_s + qEnvironmentVariable("ORTAKIT_SOURCE") + u"/tools"_s);
    EXPECT_EQ(ended.status, 0) << ended.messages.toStdString();
    EXPECT_TRUE(ended.output.contains(u"tool.state could not be written: what was chosen is lost"_s));
    EXPECT_TRUE(ended.output.contains(u"none/tool.state cannot be written"_s));
    EXPECT_TRUE(ended.output.endsWith(u"(nil T nil new)"_s)) << ended.output.toStdString();
}

/// A program that has "a.dxf" open and waits for its standard input.
struct WaitingProgram
{
    explicit WaitingProgram(ProgramTest &test)
    {
        test.prepare(process);
        process.start(test.program(), {u"lisp"_s, u"-"_s, u"--drawing"_s, u"a.dxf"_s});
        for (int i = 0; i < 600 && !QFile::exists(lock(test)); ++i)
            process.waitForFinished(50);
        EXPECT_TRUE(QFile::exists(lock(test)));
    }
    static QString lock(const ProgramTest &test) { return test.folder.filePath(u".a.dxf.lock"_s); }

    QProcess process;
};

TEST_F(ProgramTest, WritesNothingThatAnotherOneHasOpen)
{
    write(u"save.lsp"_s, "(entdel (handent \"2A\"))(command \"QSAVE\")(princ)\n");
    write(u"save.txt"_s, "lisp (entdel (handent \"2A\"))\nsave a.dxf\n");
    EXPECT_TRUE(QFile::link(folder.filePath(u"a.dxf"_s), folder.filePath(u"a.png"_s)));
    const QByteArray before = read(u"a.dxf"_s);
    {
        WaitingProgram holder(*this);
        const std::tuple<QString, int, QString> rows[] = {
            {u"lisp good.lsp --drawing a.dxf"_s, 0, u"It is opened for reading only."_s},
            {u"lisp save.lsp --drawing a.dxf"_s, 4, u"a.dxf was opened for reading only"_s},
            {u"run save.txt a.dxf --out ."_s, 1, u"a.dxf was opened for reading only"_s},
            {u"run save.txt b.dxf --out ."_s, 1, u"a.dxf is open in another program ("_s},
            {u"run erase.txt a.dxf --out ."_s, 4, u"a.dxf was opened for reading only"_s},
            {u"convert b.dxf a.dxf"_s, 4, u"a.dxf is open in another program ("_s},
            {u"convert b.dxf a.png"_s, 4, u"a.png is open in another program ("_s},
            {u"convert a.dxf copy.dxf"_s, 0, {}},
        };
        for (const auto &[arguments, status, message] : rows) {
            SCOPED_TRACE(arguments.toStdString());
            const Ended ended = run(arguments);
            EXPECT_EQ(ended.status, status);
            EXPECT_TRUE(ended.messages.contains(message)) << ended.messages.toStdString();
            EXPECT_EQ(read(u"a.dxf"_s), before);
        }
        EXPECT_EQ(run(u"convert b.dxf a.dxf --force"_s).status, 0);
        EXPECT_EQ(run(u"lisp save.lsp --drawing a.dxf --force"_s).status, 0);
        EXPECT_NE(read(u"a.dxf"_s), before);
        holder.process.closeWriteChannel();
        EXPECT_TRUE(holder.process.waitForFinished());
    }
    EXPECT_FALSE(QFile::exists(WaitingProgram::lock(*this)));
    {
        WaitingProgram ended(*this);
        ended.process.terminate();
        EXPECT_TRUE(ended.process.waitForFinished());
        EXPECT_FALSE(QFile::exists(WaitingProgram::lock(*this))) << "the signal could be caught";
    }
    write(u"a.dxf"_s, smallDrawing());
    WaitingProgram killed(*this);
    killed.process.kill();
    EXPECT_TRUE(killed.process.waitForFinished());
    EXPECT_TRUE(QFile::exists(WaitingProgram::lock(*this)));
    const Ended next = run(u"lisp save.lsp --drawing a.dxf"_s);
    EXPECT_EQ(next.status, 0) << next.messages.toStdString();
    EXPECT_FALSE(QFile::exists(WaitingProgram::lock(*this))) << "left behind, taken over and removed";
}

/// The processes that a process has started.
QList<qint64> childrenOf(qint64 parent)
{
    QFile file(u"/proc/%1/task/%1/children"_s.arg(parent));
    QList<qint64> children;
    if (file.open(QIODevice::ReadOnly))
        for (const QByteArray &child : file.readAll().simplified().split(' '))
            if (!child.isEmpty())
                children.append(child.toLongLong());
    return children;
}

/// A run over "b.dxf", which is done, and "a.dxf", which never ends.
struct SharedRun
{
    explicit SharedRun(ProgramTest &test)
    {
        test.prepare(process);
        process.start(test.program(), test.wordsOf(u"run slow.txt b.dxf a.dxf -j 2 --time-limit 100"_s));
        while (!output.contains("b.dxf: done\n") && process.waitForReadyRead(60'000))
            output += process.readAllStandardOutput();
        const QList<qint64> workers = childrenOf(process.processId());
        EXPECT_EQ(workers.size(), 1) << "that of a.dxf";
        worker = static_cast<pid_t>(workers.value(0));
    }

    QProcess process;
    QByteArray output;
    pid_t worker = 0;
};

TEST_F(ProgramTest, LosesOneFileWithAWorkerThatIsKilled)
{
    SharedRun run(*this);
    ASSERT_GT(run.worker, 0);
    kill(run.worker, SIGKILL);
    ASSERT_TRUE(run.process.waitForFinished());
    EXPECT_EQ(run.process.exitCode(), 3);
    EXPECT_EQ(run.process.readAllStandardOutput(), "a.dxf: failed\n");
}

TEST_F(ProgramTest, TakesItsWorkersWithItWhenItIsInterrupted)
{
    SharedRun run(*this);
    ASSERT_GT(run.worker, 0);
    kill(static_cast<pid_t>(run.process.processId()), SIGINT);
    ASSERT_TRUE(run.process.waitForFinished());
    EXPECT_EQ(run.process.exitCode(), 130);
    EXPECT_TRUE(run.process.readAllStandardError().contains("interrupted: 1 of 2"));
    EXPECT_NE(kill(run.worker, 0), 0) << "it has ended as well";
}

TEST_F(ProgramTest, ReportsTestsAsXml)
{
    const Ended ended = run(u"lisp --test proves.lsp fails.lsp --filter *o*e* --junit r.xml"_s);
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.output, QString());
    QFile file(folder.filePath(u"r.xml"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QString report = QString::fromUtf8(file.readAll());
    report.replace(QRegularExpression(u" time=\"[0-9.]+\""_s), QString());
    EXPECT_EQ(report.simplified(),
              u"<?xml version=\"1.0\" encoding=\"UTF-8\"?> <testsuites>"
              " <testsuite name=\"proves.lsp\" tests=\"2\" failures=\"0\">"
              " <testcase classname=\"proves.lsp\" name=\"one drawing\"/>"
              " <testcase classname=\"proves.lsp\" name=\"ONE-DRAWING-AGAIN\"/> </testsuite>"
              " <testsuite name=\"fails.lsp\" tests=\"1\" failures=\"1\">"
              " <testcase classname=\"fails.lsp\" name=\"DOUBLES\">"
              " <failure message=\"expected 4, got 6: (TWICE 2) in (IS-EQUAL)\">fails.lsp:3</failure>"
              " <system-out>about 2 </system-out> </testcase>"
              " </testsuite> </testsuites>"_s);
}

TEST_F(ProgramTest, CountsAndMeasuresCalls)
{
    const QString messages = run(u"lisp calls-itself.lsp --profile-out prof.folded"_s).messages;
    EXPECT_TRUE(messages.contains(QRegularExpression(u"\n +3 +[0-9.]+ +[0-9.]+  DOWN  calls-itself.lsp:1\n"_s)))
        << messages.toStdString();
    EXPECT_TRUE(messages.contains(QRegularExpression(u"\n +1 +[0-9.]+ +[0-9.]+  BAD  calls-itself.lsp:3\n"_s)));
    QFile file(folder.filePath(u"prof.folded"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray stacks = file.readAll();
    EXPECT_TRUE(stacks.contains("(outside_of_functions);DOWN;DOWN;DOWN ")) << stacks.toStdString();
    EXPECT_FALSE(stacks.contains("DOWN;BAD")) << "an error ends the calls that it leaves";
}

TEST_F(ProgramTest, EvaluatesWhatIsPipedIn)
{
    const QByteArray input =
        "(setq a '(1 \"x\"))\n(car\n a) (princ 7)\n?ssname\n(car 5)\n(getpoint \"P\")\n"
        "(command \"_.LINE\" \"1,1\" \"2,2\" \"\")\nhelp osmode\n?no-such\n(sslength (ssget \"_X\"))\na";
    const Ended ended = run(u"lisp"_s, input);
    EXPECT_EQ(ended.status, 1);
    EXPECT_TRUE(ended.output.startsWith(u"(1 \"x\")\n1\n7\n7\n(ssname set index)\n"_s)) << ended.output.toStdString();
    EXPECT_TRUE(ended.output.contains(u"system variable OSMODE\n"_s)) << ended.output.toStdString();
    EXPECT_TRUE(ended.output.endsWith(u"There is nothing of the name no-such.\n1\n(1 \"x\")\n"_s))
        << ended.output.toStdString();
    EXPECT_TRUE(ended.messages.contains(u"bad argument type: listp 5 in (CAR), argument 1 (standard input:5)"_s))
        << ended.messages.toStdString();
    EXPECT_EQ(run(u"lisp --drawing a.dxf"_s, "(sslength (ssget \"_X\"))(quit)(princ 1)").output, u"3\n"_s);
    EXPECT_EQ(run(u"lisp"_s, "(quit)").status, 0);
    EXPECT_EQ(run(u"lisp --drawing none.dxf"_s).status, 4);
    const Ended broken = run(u"lisp"_s, "(princ 1))\n2\n(list");
    EXPECT_EQ(broken.status, 1);
    EXPECT_EQ(broken.output, u"1\n1\n2\n"_s);
    EXPECT_TRUE(broken.messages.contains(u"extra right paren on input (standard input:1)"_s));
    EXPECT_TRUE(broken.messages.contains(u"malformed list on input (standard input:3)"_s))
        << broken.messages.toStdString();
    EXPECT_TRUE(run(u"lisp --time-limit 0.3"_s, "(while t)").messages.contains(u"it took longer than 0.3 s"_s));
}

TEST_F(ProgramTest, TellsOfAMissingModuleOnStandardErrorOnly)
{
    const Ended ended = run(u"lisp - --module none.so"_s, "(princ (* 6 7))");
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.output, u"42"_s) << "read from standard input";
    EXPECT_TRUE(ended.messages.contains(u"none.so"_s));
    EXPECT_TRUE(ended.messages.contains(u"Tools with dialogs will not work."_s));
}

TEST_F(ProgramTest, DrawsItsWindowWithoutADisplay)
{
    ASSERT_EQ(run(u"a.dxf --style dark --screenshot-dir pictures"_s).status, 0);
    const QImage picture(folder.filePath(u"pictures/window.png"_s));
    ASSERT_FALSE(picture.isNull());
    EXPECT_LT(picture.pixelColor(picture.width() - 5, 5).lightness(), 128) << "the menu bar is dark";
    EXPECT_EQ(picture.pixelColor(picture.width() / 3, picture.height() / 3), QColor(Qt::black))
        << "the drawing lies on its ground";
}

} // namespace
