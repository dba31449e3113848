#include "tests/app/AppFixture.h"
#include "tests/support/QtTestPrinters.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>

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

/// The built program in a folder of its own.
struct ProgramTest : testing::Test
{
    ProgramTest()
    {
        write(u"a.dxf"_s, smallDrawing());
        write(u"b.dxf"_s, smallDrawing());
        write(u"solid.dxf"_s, QByteArray(smallDrawing()).replace("0\nCIRCLE\n", "0\n3DSOLID\n"));
        write(u"broken.dxf"_s, "0\nSECTION\n2\nENT");
        write(u"erase.txt"_s, "lisp (entdel (handent \"2A\"))\nexpect-count LINE 1\n");
        write(u"fails.txt"_s, "expect-count LINE 7\n");
        write(u"looks.txt"_s, "expect-count LINE 2\n");
        write(u"sees.txt"_s, "expect-modified no\n");
        write(u"asks.txt"_s, "lisp (getpoint \"Where: \")\n");
        write(u"bad.txt"_s, "enter\nnonsense\n");
        write(u"good.lsp"_s, "(princ (strcat \"sum \" (itoa (+ 1 2)) \" größe\\n\"))(princ)\n");
        write(u"error.lsp"_s, "(princ \"before\")\n(car 5)\n");
        write(u"asks.lsp"_s, "(princ (getint \"How many: \"))\n(princ \"went on\")\n");
        write(u"draw.scr"_s,
              "; one shape\ncircle 1,1 2\n(princ (strcat \"drawn \" (itoa (sslength (ssget \"_X\")))))\n");
        write(u"script.lsp"_s, "(command \"SCRIPT\" \"draw.scr\")(princ)\n");
        write(u"again.scr"_s, "circle 1,1 2\nSCRIPT again.scr\n");
        write(u"again.lsp"_s, "(command \"SCRIPT\" \"again.scr\")(princ)\n");
        write(u"again.txt"_s, "command SCRIPT\nanswer again.scr\n");
        write(u"fills.lsp"_s, "(setvar \"LISPHEAPMAX\" 1000000)(while t (setq l (cons 1 l)))\n");
        write(u"loops.lsp"_s, "(while t (vl-catch-all-apply 'car '(5)))\n");
        write(u"stops.lsp"_s, "(command \"SCRIPT\" \"error.lsp\")(princ)\n");
        write(u"loads.lsp"_s, "(load \"good\")");
        write(u"whose.lsp"_s, "(princ (if (kora_string_trim \" a \") \"installed\"))");
        EXPECT_TRUE(QDir(folder.path()).mkpath(u"tools"_s) && QDir(folder.path()).mkpath(u"support"_s));
        EXPECT_TRUE(QDir(folder.path()).mkpath(u"sub"_s));
        write(u"sub/remote.dxf"_s,
              QByteArray(smallDrawing()).replace("0\nCIRCLE\n", "0\nRTEXT\n70\n0\n1\n../good.lsp\n"));
        write(u"support/strings.lsp"_s, "(princ \"a stranger's\")");
        // Blocks within blocks, deeper than they are opened.
        QByteArray blocks;
        for (int i = 0; i < 40; ++i)
            blocks += "0\nBLOCK\n8\n0\n2\nB" + QByteArray::number(i) + "\n10\n0\n20\n0\n0\nINSERT\n8\n0\n2\nB" +
                      QByteArray::number(i + 1) + "\n10\n0\n20\n0\n0\nENDBLK\n8\n0\n";
        write(u"deep.dxf"_s, "0\nSECTION\n2\nBLOCKS\n" + blocks +
                                 "0\nBLOCK\n8\n0\n2\nB40\n10\n0\n20\n0\n0\nLINE\n8\n0\n10\n0\n20\n0\n11\n9\n21\n9\n0\n"
                                 "ENDBLK\n8\n0\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nINSERT\n8\n0\n2\nB0\n10\n0\n20\n"
                                 "0\n0\nENDSEC\n0\nEOF\n");
    }

    void write(const QString &name, const QByteArray &bytes)
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray read(const QString &name)
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll();
    }

    static QString program() { return qEnvironmentVariable("ORTAKIT_BUILD") + u"/bin/ortakit"_s; }
    void prepare(QProcess &process)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "ORTAKIT_MODULE", "ORTAKIT_TOOLS"})
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

    Ended run(const QString &arguments, const QByteArray &input = {})
    {
        QProcess process;
        prepare(process);
        process.start(program(), arguments.split(u' ', Qt::SkipEmptyParts));
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(60'000)) << arguments.toStdString();
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
    }

    QTemporaryDir folder;
    rlim_t room = RLIM_INFINITY; ///< how large a file may become, as where the disk ends
};

TEST_F(ProgramTest, EndsWithTheStatusItsManualNames)
{
    // Arguments, the status, and parts of what goes to the output and to the messages.
    const std::tuple<QString, int, QString, QString> rows[] = {
        {u"--version"_s, 0, u"ortakit "_s, {}},
        {u"--help"_s, 0, u"Exit status: 0 done"_s, {}},
        {u"run --help"_s, 0, u"Usage: ortakit run"_s, {}},
        {u"lisp good.lsp"_s, 0, u"sum 3 größe\n"_s, {}},
        {u"lisp good.lsp --drawing a.dxf"_s, 0, u"sum 3"_s, {}},
        {u"lisp script.lsp --drawing a.dxf --trust ."_s, 0, u"drawn 4"_s, {}},
        {u"lisp script.lsp --drawing a.dxf"_s, 0, u"draw.scr was not loaded: its folder is not trusted."_s, {}},
        {u"lisp loads.lsp"_s, 1, u"good.lsp was not loaded: its folder is not trusted."_s, u"LOAD failed: \"good\""_s},
        {u"lisp loads.lsp --trust none --trust=."_s, 0, u"sum 3"_s, {}},
        {u"lisp whose.lsp --tools %1/share/ortakit/tools"_s.arg(qEnvironmentVariable("ORTAKIT_BUILD")),
         0,
         u"installed"_s,
         {}},
        {u"convert a.dxf copy.dxf"_s, 0, {}, {}},
        {u"convert a.dxf copy.dxf --strict --json"_s, 0, u"{\"input\":\"a.dxf\",\"output\":\"copy.dxf\"}\n"_s, {}},
        {u"convert a.dxf picture.png --strict --json"_s,
         0,
         u"{\"complete\":true,\"cutShort\":false,\"drawn\":3,\"inPart\":{},\"input\":\"a.dxf\",\"invisible\":0,"
         "\"notDrawn\":{},\"output\":\"picture.png\"}\n"_s,
         {}},
        {u"convert solid.dxf solid.png --json"_s, 0, u"\"notDrawn\":{\"3DSOLID\":1}"_s,
         u"ortakit: solid.dxf: 1 not drawn (3DSOLID 1)\n"_s},
        {u"convert sub/remote.dxf remote.png --json"_s, 0, u"\"inPart\":{\"RTEXT\":1}"_s,
         u"good.lsp was not read: it is not in the drawing's folder."_s},
        {u"convert sub/remote.dxf remote.png --json --allow-read ."_s, 0, u"\"inPart\":{}"_s, {}},
        {u"convert a.dxf picture.png"_s, 0, {}, {}},
        {u"convert a.dxf picture.svg"_s, 0, {}, {}},
        {u"convert a.dxf picture.pdf"_s, 0, {}, {}},
        {u"run erase.txt a.dxf b.dxf --out out --png"_s, 0, u"a.dxf: done, out/a.dxf, out/a.png\n"_s, {}},
        {u"run looks.txt a.dxf --out unchanged"_s, 0, u"a.dxf: done\n"_s, {}},

        {u"lisp stops.lsp --trust ."_s, 1, u"before"_s, u"stops.lsp: bad argument type"_s},
        {u"lisp error.lsp"_s, 1, u"before"_s, u"error.lsp"_s},
        {u"lisp fills.lsp --memory-limit 20"_s, 1, {}, u"fills.lsp: out of memory (limit 20 MB) in (CONS)"_s},
        {u"lisp loops.lsp --time-limit 0.3"_s, 1, {}, u"loops.lsp: it took longer than 0.3 s"_s},
        {u"lisp again.lsp --time-limit 0.3 --trust ."_s, 1, u"Command: circle"_s,
         u"again.lsp: it took longer than 0.3 s"_s},
        {u"run again.txt a.dxf --time-limit 0.3 --trust ."_s, 1, u"a.dxf: failed"_s,
         u"the session took longer than 0.3 s"_s},
        {u"lisp asks.lsp"_s, 1, {}, u"asks.lsp"_s},
        {u"run fails.txt a.dxf"_s, 1, u"a.dxf: failed\n"_s, u"line 1 (expect-count LINE 7): there are 2"_s},
        {u"run asks.txt a.dxf"_s, 1, u"a.dxf: failed\n"_s, u"the prompt \"Where:\" is open"_s},
        {u"run bad.txt a.dxf"_s, 1, {}, u"bad.txt:2: unknown word \"nonsense\""_s},
        {u"run fails.txt a.dxf b.dxf"_s, 1, u"b.dxf: failed\n"_s, {}},

        {u"--nonsense"_s, 2, {}, u"there is no option --nonsense"_s},
        {u"run erase.txt"_s, 2, {}, u"at least one drawing"_s},
        {u"run erase.txt a.dxf --strict"_s, 2, {}, u"--strict has no meaning here"_s},
        {u"convert a.dxf a.txt"_s, 2, {}, u"the extension must be dxf, png, svg, pdf"_s},
        {u"run erase.txt a.dxf ./a.dxf --out out"_s, 2, {}, u"the same name"_s},
        {u"a.dxf"_s, 2, {}, u"there is no display"_s},

        {u"convert solid.dxf solid.pdf --strict"_s, 3, {}, u"solid.dxf: 1 not drawn (3DSOLID 1)"_s},
        {u"run erase.txt a.dxf broken.dxf"_s, 3, u"broken.dxf: not read\n"_s, u"broken.dxf"_s},

        {u"convert deep.dxf deep.png"_s, 5, {}, u"deep.dxf: cut short: there is more than is drawn in one go\n"_s},
        {u"run sees.txt deep.dxf --png --out deep"_s, 5, u"deep.dxf: done, deep/deep.png\n"_s,
         u"deep.png: cut short"_s},
        {u"run sees.txt a.dxf deep.dxf --png --out some"_s, 3, {}, u"deep.png: cut short"_s},

        {u"lisp none.lsp"_s, 4, {}, u"none.lsp"_s},
        {u"lisp good.lsp --drawing none.dxf"_s, 4, {}, u"none.dxf"_s},
        {u"run none.txt a.dxf"_s, 4, {}, u"none.txt"_s},
        {u"run erase.txt none.dxf broken.dxf"_s, 4, u"none.dxf: not read\n"_s, {}},
        {u"run erase.txt a.dxf --out a.dxf/out"_s, 4, {}, u"a.dxf/out"_s},
        {u"convert none.dxf copy.dxf"_s, 4, {}, u"none.dxf"_s},
        {u"convert a.dxf none/copy.dxf"_s, 4, {}, u"none/copy.dxf"_s},
        {u"convert a.dxf none/copy.png"_s, 4, {}, u"none/copy.png"_s},
        {u"convert a.dxf copy.dwg"_s, 4, {}, u"this program cannot write DWG files"_s},
    };
    for (const auto &[arguments, status, output, message] : rows) {
        const Ended ended = run(arguments);
        const std::string name = arguments.toStdString();
        EXPECT_EQ(ended.status, status) << name << '\n' << ended.messages.toStdString();
        EXPECT_TRUE(ended.output.contains(output)) << name << '\n' << ended.output.toStdString();
        EXPECT_TRUE(ended.messages.contains(message)) << name << '\n' << ended.messages.toStdString();
    }
    // What those runs have left behind: converted without changing a byte, changed as a copy only.
    EXPECT_EQ(read(u"copy.dxf"_s), smallDrawing());
    EXPECT_FALSE(QImage(folder.filePath(u"picture.png"_s)).isNull());
    EXPECT_TRUE(read(u"picture.pdf"_s).startsWith("%PDF"));
    EXPECT_TRUE(read(u"picture.svg"_s).contains("<svg"));
    EXPECT_EQ(read(u"a.dxf"_s), smallDrawing());
    EXPECT_EQ(read(u"out/b.dxf"_s).count("\nLINE\n"), 1);
    EXPECT_FALSE(QImage(folder.filePath(u"out/a.png"_s)).isNull());
    EXPECT_FALSE(QFile::exists(folder.filePath(u"unchanged/a.dxf"_s))) << "nothing was changed";
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
    write(u"saves.txt"_s, "command LINE\nanswer 0,0\nanswer 1,1\nenter\ncommand QSAVE\n");
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
          "(defun silent (file) T)\n"
          "(defun writes (file) (kora_writestate file '((\"a\" . \"new\"))) (setq h (open file \"w\"))"
          " (write-line \"a=new\" h) (close h) T)\n"
          "(kora_writestate \"tool.state\" '((\"a\" . \"old\")))\n"
          "(princ (list (kora_show 'silent '(\"tool.state\")) (kora_show 'writes '(\"tool.state\"))\n"
          " (kora_show 'writes '(\"none/tool.state\")) (kora_state_value (kora_readstate \"tool.state\") \"a\")))");
    const Ended ended = run(u"lisp show.lsp --tools "_s + qEnvironmentVariable("ORTAKIT_SOURCE") + u"/tools"_s);
    EXPECT_EQ(ended.status, 0) << ended.messages.toStdString();
    EXPECT_TRUE(ended.output.contains(u"tool.state could not be written: what was chosen is lost"_s));
    EXPECT_TRUE(ended.output.contains(u"none/tool.state cannot be written"_s));
    EXPECT_TRUE(ended.output.endsWith(u"(nil T nil new)"_s)) << ended.output.toStdString();
}

TEST_F(ProgramTest, ReadsExpressionsFromStandardInput)
{
    const Ended ended = run(u"lisp -"_s, "(princ (* 6 7))");
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.output, u"42"_s);
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

TEST_F(ProgramTest, TellsOfAMissingModuleOnStandardErrorOnly)
{
    const Ended ended = run(u"lisp good.lsp --module none.so"_s);
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.output, u"sum 3 größe\n"_s);
    EXPECT_TRUE(ended.messages.contains(u"none.so"_s));
    EXPECT_TRUE(ended.messages.contains(u"Tools with dialogs will not work."_s));
}

TEST_F(ProgramTest, DrawsItsWindowWithoutADisplay)
{
    ASSERT_EQ(run(u"a.dxf --style dark --screenshot-dir pictures"_s).status, 0);
    const QImage picture(folder.filePath(u"pictures/window.png"_s));
    ASSERT_FALSE(picture.isNull());
    EXPECT_LT(picture.pixelColor(picture.width() - 5, 5).lightness(), 128) << "the menu bar is dark";
    EXPECT_EQ(picture.pixelColor(20, picture.height() / 2), QColor(Qt::black)) << "the drawing lies on its ground";
}

} // namespace
