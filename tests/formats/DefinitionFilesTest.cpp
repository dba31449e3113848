#include "formats/LinetypeFile.h"
#include "formats/ShapeFile.h"
#include "tests/formats/Folder.h"

#include <QDir>

#include <sys/stat.h>

namespace {

/// Linetypes as "name|description" and what was odd as "line: text", all in one.
QString listedLinetypes(const LinetypeListing &listing)
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
    const std::tuple<const char *, QByteArray, QString> rows[] = {
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
    for (const auto &[name, bytes, listed] : rows) {
        const LinetypeListing listing = readLinetypeFile(folder.writeFile(u"a.lin"_s, bytes));
        EXPECT_EQ(listedLinetypes(listing), listed) << name;
        EXPECT_EQ(listing.error, QString()) << name;
    }
    EXPECT_FALSE(readLinetypeFile(folder.path(u"missing.lin"_s)).error.isEmpty());
}

TEST(LinetypeFile, FilesAreAcceptedByNameAndFirstLine)
{
    // A file, what is in it, null for one that does not exist, and whether it is accepted.
    const std::tuple<const char *, const char *, bool> rows[] = {
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
    for (const auto &[name, bytes, accepted] : rows) {
        const QString file = QString::fromLatin1(name);
        const QString path = bytes ? folder.writeFile(file, bytes) : folder.path(file);
        EXPECT_EQ(isAcceptableLinetypeFile(path, u".lin"_s), accepted) << name;
        EXPECT_FALSE(isAcceptableLinetypeFile(path, u".shp"_s)) << name;
    }
    // A folder or a pipe is no file to add to; the folder's name is part of the path that is looked at.
    ASSERT_TRUE(QDir(folder.path({})).mkpath(u"folder.lin"_s));
    const QString pipe = folder.path(u"pipe.lin"_s);
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    EXPECT_FALSE(isAcceptableLinetypeFile(pipe, u".lin"_s));
    EXPECT_FALSE(isAcceptableLinetypeFile(folder.path(u"folder.lin"_s), u".lin"_s));
    EXPECT_TRUE(isAcceptableLinetypeFile(folder.path(u"folder.lin/new.txt"_s), u".LIN"_s));
}

// How headers are found is the business of LinetypeFile's test; these are the fields of shapes.
TEST(ShapeFile, ListsNumbersAndNamesAndSaysWhatWasOdd)
{
    const Folder folder;
    const ShapeListing listing = readShapeFile(folder.writeFile(
        u"a.shp"_s, ";; mine\n*1,3,BOX\n1,16,0\n\n*2,2,T\xC3\x9CR,x\n*0000A,9,\n2\n*00041,33\n*3,3,BO"));
    QStringList shapes;
    for (const ShapeHeader &shape : listing.definitions)
        shapes.append(shape.number + u'|' + shape.name);
    EXPECT_EQ(shapes.join(u' '), u"1|BOX 2|TÜR 0000A| 00041| 3|BO"_s);
    EXPECT_EQ(listing.diagnostics, (QList<HeaderDiagnostic>{{6, HeaderOddity::NoName, u"*0000A,9,"_s},
                                                            {8, HeaderOddity::TooFewFields, u"*00041,33"_s}}));
    EXPECT_FALSE(readShapeFile(folder.path(u"missing.shp"_s)).error.isEmpty());
    const ShapeListing stars = listShapes(QByteArray("*1,2,A\n").repeated(mostHeaders + 2));
    EXPECT_EQ(stars.definitions.size(), mostHeaders);
    EXPECT_EQ(stars.diagnostics, (QList<HeaderDiagnostic>{{mostHeaders + 1, HeaderOddity::TooMany, {}}}));
}

} // namespace
