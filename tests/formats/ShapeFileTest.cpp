#include "formats/ShapeFile.h"

#include "tests/formats/Folder.h"
#include "tests/support/QtTestPrinters.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace ortakit;
using namespace Qt::StringLiterals;
using formats_test::Folder;

namespace {

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
