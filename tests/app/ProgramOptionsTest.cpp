#include "host/app/uses/Arguments.h"
#include "host/app/window/frame/Mnemonics.h"
#include "host/app/workbench/ToolIndex.h"
#include "host/kernel/languages/Languages.h"
#include "tests/support/QtTestPrinters.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace host::app;
using namespace Qt::StringLiterals;

namespace {

TEST(ProgramOptions, RefusesWhatMakesNoSense)
{
    const std::pair<QString, QString> rows[] = {
        {u"--wide"_s, u"there is no option --wide"_s},
        {u"run s --fource"_s, u"there is no option --fource (did you mean --force?)"_s},
        {u"convrt a.dxf b.png"_s, u"there is no command convrt (did you mean convert?)"_s},
        {u"help convret"_s, u"there is no command convret (did you mean convert?)"_s},
        {u"help quite-else"_s, u"there is no command quite-else"_s},
        {u"help run lisp"_s, u"help takes one command"_s},
        {u"--style"_s, u"--style needs a value"_s},
        {u"--style="_s, u"--style needs a value"_s},
        {u"--style blue"_s, u"--style is light or dark, not \"blue\""_s},
        {u"--language xx"_s, u"--language is en or de or fr or es or it, not \"xx\""_s},
        {u"--png"_s, u"--png has no meaning here"_s},
        {u"--out there plan.dxf"_s, u"--out has no meaning here"_s},
        {u"run"_s, u"run needs a session"_s},
        {u"lisp a.lsp --audit x"_s, u"--audit has no meaning here"_s},
        {u"run s d --png=yes"_s, u"--png takes no value"_s},
        {u"run s d --drawing x"_s, u"--drawing has no meaning here"_s},
        {u"run s d --time-limit 0"_s, u"--time-limit takes SECONDS from 0.001 to 86400, not \"0\""_s},
        {u"run s d --time-limit nan"_s, u"--time-limit takes SECONDS from 0.001 to 86400, not \"nan\""_s},
        {u"lisp a.lsp --memory-limit 15"_s, u"--memory-limit takes MB from 16 to 1048576, not \"15\""_s},
        {u"lisp a.lsp --memory-limit 1e3"_s, u"--memory-limit takes MB from 16 to 1048576, not \"1e3\""_s},
        {u"convert a.dxf b.dxf --memory-limit 64"_s, u"--memory-limit has no meaning here"_s},
        {u"run s --paper A4"_s, u"--paper has no meaning here"_s},
        {u"convert a b --paper A9"_s,
         u"--paper takes A0 to A6, B0 to B6, ANSI-A to ANSI-E, ARCH-A to ARCH-E1 or millimetres from 10 to 5000 as "
         u"420x297, with -landscape or -portrait behind, not \"A9\""_s},
        {u"convert a b --scale 1:0"_s,
         u"--scale takes millimetres on the sheet to drawing units, as 1:50, not \"1:0\""_s},
        {u"convert a b --scale 50"_s,
         u"--scale takes millimetres on the sheet to drawing units, as 1:50, not \"50\""_s},
        {u"convert a b --scale half"_s,
         u"--scale takes millimetres on the sheet to drawing units, as 1:50, not \"half\""_s},
        {u"convert a b --size 20000x10"_s, u"--size takes pixels from 1 to 16000 as 2000x1400, not \"20000x10\""_s},
        {u"convert a b --size 20.5x10"_s, u"--size takes pixels from 1 to 16000 as 2000x1400, not \"20.5x10\""_s},
        {u"convert a b --dpi 0"_s, u"--dpi takes N from 1 to 2400, not \"0\""_s},
        {u"convert a b --ground grey"_s, u"--ground is black or white, not \"grey\""_s},
        {u"convert a b --window 1,2,3"_s, u"--window takes two corners as 0,0,420,297, not \"1,2,3\""_s},
        {u"convert a b --window 1,2,1,nan"_s, u"--window takes two corners as 0,0,420,297, not \"1,2,1,nan\""_s},
        {u"convert a b --text letters"_s, u"--text is outlines or text, not \"letters\""_s},
        {u"lisp a.lsp --only unbalanced"_s, u"--json, --only and --except go with --check"_s},
        {u"lisp a.lsp --check --only unbalanced,odd"_s, u"there is no kind of finding \"odd\""_s},
        {u"lisp a.lsp --junit r.xml"_s, u"--filter and --junit go with --test"_s},
        {u"lisp a.lsp --check --profile"_s, u"--profile goes with programs that are run"_s},
        {u"lisp a.lsp --check --test"_s, u"--check and --test do not go together"_s},
        {u"run a.txt --check"_s, u"--check has no meaning here"_s},
        {u"lisp --check"_s, u"lisp needs at least one file for this"_s},
        {u"convert a.dxf"_s, u"convert needs two files"_s},
        {u"convert a b c"_s, u"convert needs two files"_s},
    };
    for (const auto &[arguments, error] : rows)
        EXPECT_EQ(parseArguments(arguments.split(u' ')).error, error) << arguments.toStdString();
}

/// What --help, manual pages and completions need of each row.
TEST(ProgramOptions, AreToldWhole)
{
    const QTemporaryDir home;
    for (const UseRow &use : allUses()) {
        const std::string name = use.title().toStdString();
        EXPECT_FALSE(use.usages.isEmpty()) << name;
        for (const char *usage : use.usages)
            EXPECT_TRUE(QString::fromLatin1(usage).startsWith(use.title())) << usage;
        QStringList names;
        for (const OptionRow *row : optionsOf(use)) {
            EXPECT_TRUE(row->name[0] == '-' && *row->help) << name << row->name;
            EXPECT_TRUE(row->value || row->kind == ValueKind::Text) << name << row->name;
            EXPECT_EQ(row->range.has_value(), row->kind == ValueKind::Number) << name << row->name;
            names.append(QString::fromLatin1(row->name));
        }
        EXPECT_EQ(names.removeDuplicates(), 0) << name;
        ProgramOptions options;
        options.use = &use;
        options.commandName = use.title();
        options.home = home.path();
        for (const QString &line : helpText(options).split(u'\n'))
            EXPECT_TRUE(line.size() <= 100 || line.startsWith(u' ')) << line.toStdString();
    }
}

TEST(ProgramOptions, KnowPapers)
{
    const std::pair<QString, QSizeF> rows[] = {
        {u"A3"_s, {420, 297}},
        {u"a4-portrait"_s, {210, 297}},
        {u"B1-Landscape"_s, {1000, 707}},
        {u"ANSID"_s, {863.6, 558.8}},
        {u"arch-e1"_s, {1066.8, 762}},
        {u"300x500.5"_s, {300, 500.5}},
        {u"300X500-landscape"_s, {500, 300}},
    };
    for (const auto &[name, size] : rows) {
        const ProgramOptions options = parseArguments({u"convert"_s, u"a"_s, u"b.pdf"_s, u"--paper"_s, name});
        EXPECT_EQ(options.picture.as.sheet.paper, size) << name.toStdString() << options.error.toStdString();
        EXPECT_EQ(options.picture.as.sheet.turnsPaper, name.size() < 8 && !name.contains(u'x'));
    }
    EXPECT_EQ(parseArguments({u"convert"_s, u"a"_s, u"b"_s, u"--scale=1:50"_s}).picture.as.sheet.scale, 0.02);
}

TEST(ProgramOptions, UnderstandsEachUse)
{
    const auto parse = [](const char *arguments) {
        return parseArguments(QString::fromLatin1(arguments).split(u' ', Qt::SkipEmptyParts));
    };
    EXPECT_TRUE(parse("").hasWindow);
    EXPECT_EQ(parse("convrt.dxf").drawings, QStringList({u"convrt.dxf"_s}));
    EXPECT_EQ(parse("a.dxf b.dxf --style dark").drawings, QStringList({u"a.dxf"_s, u"b.dxf"_s}));
    EXPECT_EQ(parse("a.dxf --style dark").style, Style::Dark);
    EXPECT_EQ(parse("./run").drawings, QStringList({u"./run"_s}));
    EXPECT_EQ(parse("-- --odd.dxf").drawings, QStringList({u"--odd.dxf"_s}));
    const ProgramOptions run = parse("run --out=o=1 s.txt a.dxf --png b.dxf --time-limit 0.5");
    EXPECT_EQ(run.error, QString());
    EXPECT_EQ(run.session, u"s.txt"_s);
    EXPECT_EQ(run.drawings, QStringList({u"a.dxf"_s, u"b.dxf"_s}));
    EXPECT_EQ(run.outFolder, u"o=1"_s);
    EXPECT_TRUE(run.withPictures);
    EXPECT_EQ(run.timeLimit->count(), 500);
    EXPECT_EQ(parse("run s.txt --audit x").audit, u"x"_s);
    EXPECT_EQ(parse("run s.txt").drawings, QStringList());
    EXPECT_EQ(parse("lisp a.lsp --memory-limit 64").memoryLimit, 64);
    EXPECT_EQ(parse("convert a.dxf b.dxf --time-limit 2").timeLimit->count(), 2000);
    EXPECT_EQ(parse("lisp a.lsp - --drawing d.dxf").lispFiles, QStringList({u"a.lsp"_s, u"-"_s}));
    EXPECT_EQ(parse("run --help --nonsense").wish, Wish::Help);
    EXPECT_EQ(parse("run --help").use, findUse(u"run"_s));
    EXPECT_EQ(parse("help run").wish, Wish::Help);
    EXPECT_EQ(parse("help run").use, findUse(u"run"_s));
    EXPECT_EQ(parse("help").use, findUse(QString()));
    EXPECT_EQ(parse("--version").wish, Wish::Version);
    EXPECT_FALSE(parse("a.dxf").isUnattended());
    EXPECT_TRUE(parse("a.dxf --screenshot-dir d").isUnattended());
}

TEST(Mnemonics, NeverGivesALetterTwice)
{
    const std::pair<QStringList, QStringList> rows[] = {
        {{u"Break line"_s, u"Block info"_s}, {u"&Break line"_s, u"Block &info"_s}},
        {{u"Aa"_s, u"aa"_s, u"A"_s}, {u"&Aa"_s, u"aa"_s, u"A"_s}},
        {{u"Save"_s, u"&Send"_s}, {u"S&ave"_s, u"&Send"_s}},
        {{u"&Save"_s, u"&Send"_s}, {u"&Save"_s, u"S&end"_s}},
        {{u"R&&D"_s, u"Redo"_s}, {u"&R&&D"_s, u"R&edo"_s}},
        {{QString(), u"…"_s}, {QString(), u"…"_s}},
    };
    for (const auto &[captions, expected] : rows)
        EXPECT_EQ(withMnemonics(captions), expected);
}

TEST(ToolIndex, ListsToolsByTheirMenuLine)
{
    const QTemporaryDir folder;
    const auto write = [&](const char *name, const QByteArray &text) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    };
    write("ortakit.lsp", ";;; The support library.\n");
    write("zigzag.lsp", ";;; menu: Zigzag | zigzag | Draws a zigzag | Lines\n(defun c:zigzag ())\n");
    write("b.lsp", "\xef\xbb\xbf;; menu:  After the mark|B\n");
    write("plain.lsp", "(princ \"menu: No | NO | in a string\")\n; see menu: x | y\n");
    write("two.lsp", ";;; menu: Rooms | ROOMS | Lists rooms\n;;; menu: Areas | AREAS | Sums up areas\n");
    write("half.lsp", ";;; menu: Only a caption\n");
    write("notes.txt", ";;; menu: Notes | NOTES | not Lisp\n");
    const ToolIndex index = readTools(folder.path());
    QStringList shown;
    for (const ToolEntry &entry : index.entries)
        shown.append(entry.caption + u'=' + entry.command + u'=' + entry.tip + entry.subject);
    EXPECT_EQ(shown, QStringList({u"After the mark=B="_s, u"Areas=AREAS=Sums up areas"_s, u"Rooms=ROOMS=Lists rooms"_s,
                                  u"Zigzag=ZIGZAG=Draws a zigzagLines"_s}));
    ASSERT_EQ(index.files.size(), 6);
    EXPECT_TRUE(index.files[0].endsWith(u"ortakit.lsp"_s));
    EXPECT_TRUE(readTools(folder.filePath(u"none"_s)).folder.isEmpty());

    // Of the catalogue of the language those that are translated.
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"languages"_s));
    write("languages/de.lsp", "'(\n(\"Zigzag\" . \"Zickzack \\\"Z\\\"\")\n(\"Lines\" . \"Linien\")\n(\"Rooms\")\n)\n");
    host::kernel::useLanguage(*host::kernel::findLanguage(u"de"_s));
    const ToolEntry last = readTools(folder.path()).entries.last();
    host::kernel::useLanguage(host::kernel::languages().front());
    EXPECT_EQ(last.caption + last.tip + last.subject, u"Zickzack \"Z\"Draws a zigzagLinien"_s);
}

} // namespace
