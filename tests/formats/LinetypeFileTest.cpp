#include "formats/LinetypeFile.h"

#include "tests/formats/Folder.h"
#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace ortakit;
using namespace Qt::StringLiterals;
using formats_test::Folder;

namespace {

/// Linetypes as "name|description" and what was odd as "line: text", all in one.
QString listed(const LinetypeListing &listing)
{
    QStringList rows;
    for (const LinetypeHeader &linetype : listing.definitions)
        rows.append(linetype.name + u'|' + linetype.description);
    for (const HeaderDiagnostic &diagnostic : listing.diagnostics)
        rows.append(u"%1: %2"_s.arg(diagnostic.line).arg(diagnostic.text));
    return rows.join(u"; "_s);
}

TEST(LinetypeFile, ListsHeadersAndSaysWhatWasOdd)
{
    const struct
    {
        const char *name;
        QByteArray bytes;
        QString listed;
    } rows[] = {
        {"empty", "", {}},
        {"two with comments", "*GAS,Gas line\nA,1,-1\n;; between\n*WALL,x x x\nA,2\n", u"GAS|Gas line; WALL|x x x"_s},
        {"carriage returns, no last line end", "*GAS,Gas line\r\nA,1\r\n*B,b", u"GAS|Gas line; B|b"_s},
        {"with a byte-order mark", "\xEF\xBB\xBF*GAS,Gas\n", u"GAS|Gas"_s},
        {"another encoding", "*W\xC4NDE,\xE4\n", u"W\uFFFDNDE|\uFFFD"_s},
        {"no comma", "A,1\n*GAS\n", u"GAS|; 2: *GAS"_s},
        {"no name", "*,line\n", u"|line; 1: *,line"_s},
        {"only a star", "*", u"|; 1: *"_s},
        {"commas in the description end it", "*A,one,two\n", u"A|one"_s},
        {"blanks stay", "* A , b \n", u" A | b "_s},
        {"a star further on opens nothing", " *A,b\n;*B,c\nA,*1\n", {}},
    };
    const Folder folder;
    for (const auto &row : rows) {
        const LinetypeListing listing = readLinetypeFile(folder.writeFile(u"a.lin"_s, row.bytes));
        EXPECT_EQ(listed(listing), row.listed) << row.name;
        EXPECT_EQ(listing.error, QString()) << row.name;
    }
    EXPECT_FALSE(readLinetypeFile(folder.path(u"missing.lin"_s)).error.isEmpty());
}

TEST(LinetypeFile, FilesAreAcceptedByNameAndFirstLine)
{
    const struct
    {
        const char *name;
        const char *bytes; ///< null: there is no such file
        bool accepted;
    } rows[] = {
        {"MISSING.LIN", nullptr, true},
        {"missing.txt", nullptr, false},
        {"my.lines.txt", nullptr, true}, // the extension may stand anywhere
        {"marked.lin", "\xEF\xBB\xBF*A,b\n", true},
        {"blank.lin", " \t\r\nwhatever\n", true},
        {"comment.lin", ";; standard linetypes\n*A,b\n", false},
        {"shifted.lin", " *A,b\n", false},
        {"star.txt", "*A,b\n", false},
    };
    const Folder folder;
    for (const auto &row : rows) {
        const QString name = QString::fromLatin1(row.name);
        const QString path = row.bytes ? folder.writeFile(name, row.bytes) : folder.path(name);
        EXPECT_EQ(isAcceptableLinetypeFile(path, u".lin"_s), row.accepted) << row.name;
        EXPECT_FALSE(isAcceptableLinetypeFile(path, u".shp"_s)) << row.name;
    }
    // A folder or a pipe is no file to add to; the folder's name is part of the path that is looked at.
    ASSERT_TRUE(QDir(folder.path({})).mkpath(u"folder.lin"_s));
    const QString pipe = folder.path(u"pipe.lin"_s);
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    EXPECT_FALSE(isAcceptableLinetypeFile(pipe, u".lin"_s));
    EXPECT_FALSE(isAcceptableLinetypeFile(folder.path(u"folder.lin"_s), u".lin"_s));
    EXPECT_TRUE(isAcceptableLinetypeFile(folder.path(u"folder.lin/new.txt"_s), u".LIN"_s));
}

} // namespace
