#include "formats/ShapeFile.h"

#include "tests/formats/Folder.h"
#include "tests/support/QtTestPrinters.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace ortakit;
using namespace Qt::StringLiterals;
using formats_test::Folder;

namespace {

TEST(ShapeFile, ListsHeadersAndSaysWhatWasOdd)
{
    const struct
    {
        const char *name;
        QByteArray bytes;
        QString shapes; ///< "number|name"
        QList<HeaderDiagnostic> odd = {};
    } rows[] = {
        {"empty", "", {}},
        {"two with comments", ";; mine\n*1,3,BOX\n1,16,0\n\n*2,2,DOT\n1,0\n", u"1|BOX 2|DOT"_s},
        {"cut off", "*1,3,BO", u"1|BO"_s},
        {"no name, as fonts have it",
         "*0000A,9,\n2\n*00041,33\n",
         u"0000A| 00041|"_s,
         {{1, HeaderOddity::NoName, u"*0000A,9,"_s}, {3, HeaderOddity::TooFewFields, u"*00041,33"_s}}},
        {"only a star", "*\r\n", u"|"_s, {{1, HeaderOddity::TooFewFields, u"*"_s}}},
        {"more fields, non-ASCII", "*1,3,T\xC3\x9CR,x\n", u"1|TÜR"_s},
        {"another format", "0\nSECTION\n2\nHEADER\n", {}},
    };
    const Folder folder;
    for (const auto &row : rows) {
        const ShapeListing listing = readShapeFile(folder.writeFile(u"a.shp"_s, row.bytes));
        QStringList shapes;
        for (const ShapeHeader &shape : listing.definitions)
            shapes.append(shape.number + u'|' + shape.name);
        EXPECT_EQ(shapes.join(u' '), row.shapes) << row.name;
        EXPECT_EQ(listing.diagnostics, row.odd) << row.name;
    }
    EXPECT_FALSE(readShapeFile(folder.path(u"missing.shp"_s)).error.isEmpty());
}

// Each file's own comments count its characters; a font has one header more, which names it.
TEST(ShapeFile, ListsFontsMadeElsewhere)
{
    const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS");
    if (corpus.isEmpty())
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder of drawings";
    int fonts = 0;
    for (const QFileInfo &file : QDir(corpus + u"/../fonts"_s).entryInfoList({u"*.shp"_s})) {
        const ShapeListing listing = readShapeFile(file.filePath());
        const qsizetype commented = Folder::readFile(file.filePath()).count("; UTF-16:");
        EXPECT_EQ(listing.definitions.size(), commented + 1) << file.fileName().toStdString();
        EXPECT_EQ(listing.definitions.value(0), (ShapeHeader{u"UNIFONT"_s, file.completeBaseName()}));
        ++fonts;
    }
    EXPECT_GE(fonts, 1);
}

} // namespace
