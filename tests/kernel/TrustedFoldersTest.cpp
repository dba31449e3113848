#include "tests/kernel/Bench.h"
#include "tests/support/CaseFile.h"
#include "tests/support/Texts.h"

#include <QDir>

#include <sys/stat.h>

using namespace host::kernel;
using namespace Qt::StringLiterals;

namespace {

/// An installation, a home, a folder that the user named, one that others may write to, and a drawing that came with
/// programs of its own. Each program's value is the folder it lies in.
class TrustedFoldersTest : public Bench
{
protected:
    TrustedFoldersTest() : m_before(QDir::currentPath())
    {
        for (const char *name : {"support/sub", "home/sub", "named/sub", "open", "beside/support", "work"})
            QDir(folder.path()).mkpath(QString::fromLatin1(name));
        for (const char *place : {"support", "support/sub", "home", "home/sub", "named", "named/sub", "open", "beside",
                                  "beside/support", "work"})
            write(qPrintable(QString::fromLatin1(place) + u"/tool.lsp"_s), QByteArray("\"") + place + '"');
        write("beside/own.lsp", "\"beside\"");
        write("beside/OWN2.LSP", "\"beside\"");
        write("beside/plain", "\"beside\"");
        write("beside/data.lin", "");
        write("work/own3.lsp", "\"work\"");
        write("beside/type.scr", "(setq typed T)\n");
        write("named/loads.lsp", qPrintable(u"(load \"%1\")"_s.arg(path("beside/own.lsp"))));
        QFile::link(path("beside/own.lsp"), path("named/leads-out.lsp"));
        QFile::link(path("named/tool.lsp"), path("beside/leads-in.lsp"));
        chmod(qPrintable(path("open")), 0777);
        QDir::setCurrent(path("work"));
        session.setSupportFolders({path("support")});
        session.trustedFolders().setNamed(path("named") + u";work;"_s + path("open"));
        EXPECT_TRUE(session.documents().open(
            write("beside/plan.dxf", ortakit::test::dxfText("0 SECTION 2 ENTITIES 0 ENDSEC 0 EOF"))));
        lisp("(defun run (x) (load x 'refused)) (setq top \"" + folder.path().toStdString() + "/\")");
    }
    ~TrustedFoldersTest() override { QDir::setCurrent(m_before); }

private:
    QString m_before;
};

TEST_F(TrustedFoldersTest, ProgramsRunFromTrustedFoldersOnly)
{
    const auto file = ortakit::test::readCases(ortakit::test::testFile("kernel/trusted.lsp"));
    ASSERT_EQ(file.groups.size(), 1U);
    lisp(file.prelude);
    for (const auto &row : file.groups.front()) {
        SCOPED_TRACE(row.place);
        takePrinted();
        EXPECT_EQ(lisp(row.source), row.text('='));
        const std::string printed = takePrinted();
        EXPECT_EQ(printed.find("was not loaded") != std::string::npos, row.has('>')) << printed;
        EXPECT_NE(printed.find(row.text('>')), std::string::npos) << printed;
    }
    runTyped(qPrintable(u"SCRIPT\n%1\n"_s.arg(path("beside/type.scr"))));
    EXPECT_EQ(lisp("typed"), "T") << "typed with its full path";
}

TEST_F(TrustedFoldersTest, APersonIsAskedAndTheListIsKept)
{
    QStringList asked;
    auto answer = TrustedFolders::Answer::No;
    session.trustedFolders().setQuestion([&](const QString &path, const QString &reason, bool canTrust) {
        asked.append(QFileInfo(path).fileName() + u'|' +
                     (reason.isEmpty() ? u"trusted"_s : reason.section(u' ', 0, 0)) + u'|' + QString::number(canTrust));
        return answer;
    });
    lisp("(repeat 2 (run \"own\"))");
    EXPECT_EQ(asked, QStringList{u"own.lsp|its|1"_s}) << "a program gets one answer";
    answer = TrustedFolders::Answer::Once;
    EXPECT_EQ(lisp("(load \"own\")"), "\"beside\"");
    EXPECT_EQ(lisp("(run (strcat top \"open/tool\"))"), "\"open\"");
    EXPECT_EQ(asked.mid(1), (QStringList{u"own.lsp|its|1"_s, u"tool.lsp|everyone|0"_s}));
    answer = TrustedFolders::Answer::Always;
    EXPECT_EQ(lisp("(load \"own\")"), "\"beside\"");
    asked.clear();
    EXPECT_EQ(lisp("(run \"own\")"), "\"beside\"");
    EXPECT_EQ(session.trustedFolders().wanted(document(), path("named/leads-out.lsp")), path("beside/own.lsp"));
    EXPECT_EQ(asked, QStringList{u"own.lsp|trusted|0"_s}) << "only where the question was wanted";
    Session next(homeIn("home"));
    EXPECT_TRUE(next.trustedFolders().named().endsWith(u';' + path("beside")))
        << next.trustedFolders().named().toStdString();
    lisp("(setvar \"TRUSTEDPATHS\" (strcat top \"beside/...;.;..\"))");
    EXPECT_EQ(lisp("(run (strcat top \"beside/support/tool\"))"), "\"beside/support\"");
    lisp("(setvar \"TRUSTEDPATHS\" \"\")");
    session.trustedFolders().addForSession(u"../named"_s);
    EXPECT_EQ(lisp("(run (strcat top \"named/sub/tool\"))"), "\"named/sub\"");
}

TEST_F(TrustedFoldersTest, WhatWasKeptBackCanBeAllowed)
{
    using Allowance = TrustedFolders::Allowance;
    TrustedFolders &trusted = session.trustedFolders();
    write("work/out.txt", "x");
    lisp("(run \"own\") (run \"own\") (run (strcat top \"open/tool\")) (startapp \"rm\" \"-r\")");
    document().findNamedFile(path("work/out.txt"));
    const std::vector<KeptBack> kept = document().keptBack().items();
    QStringList told;
    for (const KeptBack &item : kept)
        told.append(u"%1 %2"_s.arg(int(item.act)).arg(QDir(folder.path()).relativeFilePath(item.path)));
    EXPECT_EQ(told, (QStringList{u"1 beside/own.lsp"_s, u"1 open/tool.lsp"_s, u"2 rm"_s, u"0 work/out.txt"_s}));
    // What everyone may write to can be allowed once, not trusted; what starts others is for the settings alone.
    const bool allowed[][2] = {{true, true}, {true, false}, {false, false}, {true, true}};
    for (std::size_t i = 0; i < kept.size(); ++i)
        for (const auto allowance : {Allowance::Once, Allowance::Folder}) {
            SCOPED_TRACE(told[int(i)].toStdString());
            document().addKeptBack(kept[i]);
            EXPECT_EQ(trusted.allow(document(), kept[i], allowance).isEmpty(), allowed[i][int(allowance)]);
        }
    EXPECT_EQ(document().keptBack().items(), (std::vector<KeptBack>{kept[2], kept[1]}));
    EXPECT_EQ(lisp("(list (run \"own\") (run (strcat top \"open/tool\")))"), "(\"beside\" \"open\")");
    EXPECT_EQ(document().findNamedFile(path("work/out.txt")), path("work/out.txt"));
    EXPECT_TRUE(trusted.named().endsWith(path("beside"))) << trusted.named().toStdString();
    EXPECT_EQ(trusted.named(TrustedFolders::List::Read), path("work"));
    // A million names are not a million lines.
    for (int i = 0; i < 1000; ++i)
        document().addKeptBack({KeptBack::Act::Read, QString::number(i), {}, true});
    EXPECT_EQ(document().keptBack().items().size() + document().keptBack().furtherCount(), 1002U);
    EXPECT_EQ(document().keptBack().items().size(), KeptBackList::most);
}

TEST_F(TrustedFoldersTest, TheUsersDataDoNotVouchForWhatLiesBesideTheDrawing)
{
    EXPECT_EQ(lisp("(run (strcat top \"home/tool\"))"), "\"home\"");
    QFile::copy(path("beside/plan.dxf"), path("home/plan.dxf"));
    ASSERT_TRUE(session.documents().open(path("home/plan.dxf")));
    lisp("(defun run (x) (load x 'refused)) (setq top \"" + folder.path().toStdString() + "/\")");
    EXPECT_EQ(lisp("(run (strcat top \"home/tool\"))"), "REFUSED");
    EXPECT_EQ(lisp("(run (strcat top \"home/sub/tool\"))"), "\"home/sub\"");
}

TEST_F(TrustedFoldersTest, DrawingsNameFilesOfTheirFolder)
{
    for (const char *file :
         {"beside/note.txt", "beside/support/deep.txt", "work/out.txt", "named/kept.txt", "open/later.txt"})
        write(file, "x");
    write("work/other.dxf", ortakit::test::dxfText("0 SECTION 2 ENTITIES 0 ENDSEC 0 EOF"));
    QFile::link(path("work/out.txt"), path("beside/link.txt"));
    mkfifo(qPrintable(path("beside/pipe")), 0666);
    session.trustedFolders().setNamed(path("open"), TrustedFolders::List::Read);
    const QString top = folder.path() + u'/';
    // The name, where the file is found, and whether it is told that it is not read.
    const std::tuple<QString, QString, bool> rows[] = {
        {u"note.txt"_s, u"beside/note.txt"_s, false},
        {u".\\support\\deep.txt"_s, u"beside/support/deep.txt"_s, false},
        {top + u"beside/../beside/note.txt"_s, u"beside/note.txt"_s, false},
        {u"kept.txt"_s, u"named/kept.txt"_s, false},
        {u"later.txt"_s, u"open/later.txt"_s, false},
        {u"../work/out.txt"_s, {}, true},
        {u"link.txt"_s, {}, true},
        {u"out.txt"_s, {}, true},
        {top + u"work/other.dxf"_s, {}, true},
        {u"pipe"_s, {}, false},
        {u"/dev/zero"_s, {}, false},
        {u"none.txt"_s, {}, false},
        {{}, {}, false},
    };
    std::string told;
    for (const auto &[name, found, isTold] : rows) {
        takePrinted();
        EXPECT_EQ(document().findNamedFile(name), found.isEmpty() ? QString() : top + found) << name.toStdString();
        const std::string printed = takePrinted();
        // Each file once, whatever name it goes by.
        const bool isKnown = isTold && printed.empty() && told.find("out.txt was not read") != std::string::npos;
        EXPECT_TRUE(isKnown || isTold == (printed.find("was not read: it is not in") != std::string::npos))
            << name.toStdString();
        told += printed;
    }
    runTyped(qPrintable(u"-XREF\nAttach\n%1\n0,0\n1\n1\n0\n-XREF\nBind\nother\n"_s.arg(path("work/other.dxf"))));
    EXPECT_NE(takePrinted().find("is a block of this drawing now"), std::string::npos) << "the user named it by hand";
    lisp("(setvar \"READPATHS\" (strcat top \"work\"))");
    EXPECT_EQ(document().findNamedFile(u"link.txt"_s), path("work/out.txt"));
}

} // namespace
