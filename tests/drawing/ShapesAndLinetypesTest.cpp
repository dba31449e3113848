#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/references/LinetypeSource.h"
#include "host/drawing/references/ShapeFiles.h"
#include "tests/drawing/DrawingSample.h"

#include <QFile>
#include <QTemporaryDir>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// "0,0 1,0~0.5 2,1|..." with the bulge of the piece that starts at a vertex; "none" when the shape cannot be drawn.
QString drawn(const ShapeFile &file, int number)
{
    const auto lines = shapeLines(file, number);
    if (!lines)
        return u"none"_s;
    const auto rounded = [](double value) { return QString::number(std::round(value * 1000) / 1000 + 0.0); };
    QStringList texts;
    for (const ShapeLine &line : *lines) {
        QStringList vertices;
        for (const ShapeVertex &vertex : line)
            vertices.append(rounded(vertex.at.x) + u',' + rounded(vertex.at.y) +
                            (vertex.bulge == 0.0 ? QString() : u'~' + rounded(vertex.bulge)));
        texts.append(vertices.join(u' '));
    }
    return texts.join(u'|');
}

/// A compiled file of the codes, numbered from 1 and named A, B, ...
QByteArray compiled(const std::vector<std::vector<int>> &shapes)
{
    QByteArray index;
    QByteArray bodies;
    const auto word = [](std::size_t value) { return QByteArray{} + char(value & 0xff) + char(value >> 8); };
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        index += word(i + 1) + word(shapes[i].size() + 2);
        bodies += QByteArray(1, char('A' + i)) + '\0';
        for (const int code : shapes[i])
            bodies += char(code & 0xff);
    }
    return "CAD shapes V1.0\r\n\x1a" + word(1) + word(shapes.size()) + word(shapes.size()) + index + bodies + "EOF";
}

TEST(ShapeFile, CodesMoveThePen)
{
    const std::pair<QByteArray, QString> rows[] = {
        {"010,014,0", u"0,0 1,0 1,1"_s},
        {"0A1,0AE,0", u"0,0 10,5 20,-5"_s},
        {"2,010,1,014,2,018,1,01C,0", u"1,0 1,1|0,1 0,0"_s},
        {"3,4,020,4,2,020,0", u"0,0 0.5,0 1.5,0"_s},
        {"5,010,6,014,0", u"0,0 1,0|0,0 0,1"_s},
        {"8,(3,-4),9,(1,1),(-2,0),(0,0),010,0", u"0,0 3,-4 4,-3 2,-3 3,-3"_s},
        {"9,1,2,0,0", u"0,0 1,2"_s},
        // A quarter from the right upwards; clockwise from the top; all of a circle from its left.
        {"10,(2,002),0", u"0,0~0.199 -0.586,1.414~0.199 -2,2"_s},
        {"10,(2,-022),0", u"0,0~-0.199 1.414,-0.586~-0.199 2,-2"_s},
        {"10,(2,040),0", u"0,0~1 4,0~1 0,0"_s},
        // From 55 to 95 degrees: the ends lie so far apart that the radius is 3.
        {"11,(56,28,0,3,012),0", u"0,0~0.088 -0.945,0.443~0.088 -1.985,0.536"_s},
        {"11,(0,0,1,0,002),0", u"0,0~0.199 -74.981,181.019~0.199 -256,256"_s},
        {"12,(10,0,127),13,(0,5,-64),(1,1,0),(0,0),0", u"0,0~1 10,0~-0.504 10,5 11,6"_s},
        {"14,8,(9,9),010,14,14,14,2,010,0", u"0,0 1,0 2,0"_s},
        {"7,2,014,0", u"0,0 5,0 5,1"_s},
        {"010", u"0,0 1,0"_s},
        {"7,9,0", u"none"_s},
        {"7,1,0", u"none"_s},
        {"6,0", u"none"_s},
        {"3,0,010,0", u"none"_s},
        {QByteArray("4,255,").repeated(20) + "010,0", u"none"_s},
        {QByteArray("010,").repeated(200'000) + "0", u"none"_s},
        {QByteArray("14,").repeated(200'000) + "0", u""_s},
        {"8,1", u"none"_s},
        {"010,banana,0", u"none"_s},
    };
    for (const auto &[codes, lines] : rows) {
        const ShapeFile file =
            readShapeFile("\xEF\xBB\xBF; mine\n*1,9,One\r\n" + codes + "; end\r\n*02,2,two\n050,\n0\n");
        EXPECT_EQ(drawn(file, 1), lines) << codes.left(60).toStdString();
        EXPECT_EQ(file.numberOf(u" TWO "_s), 2);
    }
}

// Each shape twice in the next one: the work is bounded, not what nesting makes of it.
TEST(ShapeFile, NestingDoesNotMultiplyWithoutEnd)
{
    QByteArray source;
    for (int number = 1; number < 30; ++number)
        source += "*" + QByteArray::number(number) + ",0,S\n" +
                  QByteArray("7," + QByteArray::number(number + 1) + ",").repeated(60) + "0\n";
    EXPECT_EQ(drawn(readShapeFile(source + "*30,2,S\n010,0\n"), 1), u"none"_s);
}

TEST(ShapeFile, CompiledFilesAreReadAsFarAsTheyGo)
{
    const QByteArray whole = compiled({{0x10, 8, 3, -4, 0}, {12, 10, 0, -127, 10, 2, -0x22, 0}});
    const ShapeFile file = readShapeFile(whole);
    EXPECT_EQ(drawn(file, 1), u"0,0 1,0 4,-4"_s);
    EXPECT_EQ(drawn(file, *file.numberOf(u"b"_s)), u"0,0~-1 10,0~-0.199 11.414,-0.586~-0.199 12,-2"_s);
    EXPECT_FALSE(file.numberOf(u"C"_s));
    for (qsizetype size = 0; size < whole.size() - 3; ++size)
        EXPECT_LT(readShapeFile(whole.first(size)).codes.size(), 2) << size;
    EXPECT_EQ(readShapeFile(QByteArray(whole).replace(" shapes ", " picture ")).error,
              u"it is a compiled file of another kind"_s);
    EXPECT_EQ(readShapeFile("Dear reader,\n").error, u"there are no shapes in it"_s);
}

TEST(ShapeFile, AllShapesOfRealFontsCanBeDrawn)
{
    const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS");
    for (const QString &name : {u"iso3098"_s, u"azomix"_s}) {
        QFile source(corpus + u"/../fonts/"_s + name + u".shp"_s);
        if (corpus.isEmpty() || !source.open(QIODevice::ReadOnly))
            GTEST_SKIP() << "ORTAKIT_CORPUS names no folder of drawings with fonts beside it";
        const QByteArray text = source.readAll();
        const ShapeFile file = readShapeFile(text);
        EXPECT_EQ(file.codes.size(), text.count("\n*") - 1) << "all but the font's own header";
        for (auto shape = file.codes.keyBegin(); shape != file.codes.keyEnd(); ++shape)
            EXPECT_TRUE(shapeLines(file, *shape)) << name.toStdString() << ' ' << *shape;
    }
}

TEST(ShapeFiles, TheYoungerOfSourceAndCompiledFileIsRead)
{
    QTemporaryDir folder;
    const auto write = [&](const char *name, const QByteArray &bytes, int age) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.flush();
        file.setFileTime(QDateTime::currentDateTime().addSecs(-age), QFileDevice::FileModificationTime);
    };
    const auto drawing = sample("AC1015");
    drawing->setPath(folder.filePath(u"plan.dxf"_s));
    ShapeFiles files(namedFiles(*drawing));
    const auto firstShape = [&](const QString &name) {
        files.forget();
        const ShapeFile *file = files.find(name);
        return file ? drawn(*file, 1) : u"no file"_s;
    };
    EXPECT_EQ(firstShape(u"my.shx"_s), u"no file"_s);
    write("my.shx", compiled({{0x10, 0}}), 100);
    EXPECT_EQ(firstShape(u"my"_s), u"0,0 1,0"_s);
    write("my.shp", "*1,2,A\n020,0\n", 50);
    EXPECT_EQ(firstShape(u"c:\\else\\where\\MY.SHX"_s), u"0,0 2,0"_s) << "programs write names in capitals";
    EXPECT_EQ(firstShape(u"c:\\else\\where\\my.shx"_s), u"0,0 2,0"_s);
    write("my.shx", compiled({{0x30, 0}}), 0);
    EXPECT_EQ(firstShape(u"my.shp"_s), u"0,0 3,0"_s);
}

TEST(ShapeFiles, EachFileHasOneStyle)
{
    for (const char *version : {"AC1009", "AC1032"}) {
        const auto drawing = sample(version);
        const RecordId style = shapeFileStyle(*drawing, u"my.shx"_s);
        EXPECT_NE(shapeFileStyle(*drawing, u"other.shx"_s), style);
        EXPECT_EQ(shapeFileStyle(*drawing, u"MY"_s), style);
        EXPECT_EQ(shapeFileNames(*drawing), (QStringList{u"my.shx"_s, u"other.shx"_s}));
        EXPECT_AUDIT_CLEAN(*drawing);
    }
}

/// "1 -2 0", a text on an element as 1"TEXT" STYLE s2 r3 x4 y5, with a instead of r when its rotation is absolute.
QString patternText(const LinetypeDefinition &definition)
{
    QStringList dashes;
    for (const DefinedDash &dash : definition.dashes) {
        QString text = QString::number(dash.length);
        if (!dash.text.isEmpty())
            text += u"\"%1\" %2 s%3 %4%5 x%6 y%7"_s.arg(dash.text, dash.style)
                        .arg(dash.scale)
                        .arg(dash.isRotationAbsolute ? u"a"_s : u"r"_s)
                        .arg(dash.rotation)
                        .arg(dash.offset.x)
                        .arg(dash.offset.y);
        if (!dash.shape.isEmpty())
            text += u"[%1 %2 s%3]"_s.arg(dash.shape, dash.style).arg(dash.scale);
        dashes.append(text);
    }
    return dashes.join(u' ');
}

TEST(LinetypeSource, ReadsDefinitions)
{
    const std::pair<QByteArray, QStringList> rows[] = {
        {"", {}},
        {";; none\nA,1,-1\n", {}},
        {"*DOT,. . .\r\nA,0,-.25\r\n\r\n*NEXT,a,b\nA, 1 ,-2,\n", {u"DOT|. . .|0 -0.25"_s, u"NEXT|a,b|1 -2"_s}},
        {"*GAS,g\nA,.5,-.2,[\"GAS\",STANDARD,S=.1,R=0.0,X=-0.1,Y=-.05],-.25",
         {u"GAS|g|0.5 -0.2\"GAS\" STANDARD s0.1 r0 x-0.1 y-0.05 -0.25"_s}},
        {"*T,\na,1,[\"],\",My style,a=100g,s=2]\n;; goes on\n-1\n", {u"T||1\"],\" My style s2 a90 x0 y0 -1"_s}},
        {"*T,\nA,1,\n-1\n", {u"T||1 -1"_s}},
        {"*A,\n*B\nA\n", {u"A||the pattern does not begin with \"A\""_s, u"B||the pattern is empty"_s}},
        {"*A,\nA,one\n", {u"A||\"one\" is no length"_s}},
        {"*A,\nA,1e99\n", {u"A||\"1e99\" is no length"_s}},
        {"*A,\nA,nan\n", {u"A||\"nan\" is no length"_s}},
        {"*A,\nA,1,[ CIRC1, my shapes.shx,S=2 ],-1,[132,b.shx]\n",
         {u"A||1[CIRC1 my shapes.shx s2] -1[132 b.shx s1]"_s}},
        {"*A,\nA,1,[CIRC1,S=1\n", {u"A||a text or shape is not closed, or stands in front of all dashes"_s}},
        {"*A,\nA,1,[CIRC1]\n", {u"A||a shape needs its name and its file"_s}},
        {"*A,\nA,1,[\"X\",STANDARD,S=1\n", {u"A||a text or shape is not closed, or stands in front of all dashes"_s}},
        {"*A,\nA,[\"X\",STANDARD]\n", {u"A||a text or shape is not closed, or stands in front of all dashes"_s}},
        {"*A,\nA,1,[\"X\",STANDARD]2\n", {u"A||\"2\" is not understood"_s}},
        {"*A,\nA,1,[\"X\",STANDARD,Q=1]\n", {u"A||\"Q=1\" is not understood"_s}},
        {"*A,\nA" + QByteArray(",1").repeated(100'000), {u"A||the pattern is too long"_s}},
    };
    for (const auto &[text, expected] : rows) {
        QStringList found;
        for (const LinetypeDefinition &definition : readLinetypeSource(text))
            found.append(definition.name + u'|' + definition.description + u'|' +
                         (definition.error.isEmpty() ? patternText(definition) : definition.error));
        // What came in front of a reason does not matter.
        EXPECT_EQ(found, expected) << text.left(60).toStdString();
    }
}

TEST(LinetypeSource, LoadingAddsOrRedefinesAndIsUndone)
{
    for (const char *version : {"AC1009", "AC1015", "AC1032"}) {
        SCOPED_TRACE(version);
        const auto drawing = sample(version);
        QTemporaryDir folder;
        QFile source(folder.filePath(u"my.shp"_s));
        ASSERT_TRUE(source.open(QIODevice::WriteOnly) && source.write("*7,2,BOX\n010,0\n") > 0);
        source.close();
        ShapeFiles shapes([&](const QString &name) { return name == u"my.shp"_s ? source.fileName() : QString(); });
        const auto load = [&](const char *text) {
            return loadLinetype(*drawing, readLinetypeSource(text).at(0), shapes);
        };
        EXPECT_EQ(load("*GAS,old\nA,1,-1,1\n"), QString());
        if (!isValid(drawing->tables().find(TableKind::Style, u"STANDARD")))
            drawing->tables().add(TableKind::Style, u"Standard"_s);
        if (drawing->version() < Version::R13) {
            EXPECT_EQ(load("*gas,x\nA,2,-1,[\"G\",standard],-1\n"),
                      u"a drawing of this version has no texts and shapes in linetypes"_s);
            EXPECT_EQ(load("*gas,new\nA,2,-1\n"), QString());
            const TagList tags = drawing->tags(findLinetype(*drawing, u"GAS")->record);
            EXPECT_FALSE(tags.find(74));
            continue;
        }
        EXPECT_EQ(load("*gas,new\nA,2,-1,[\"G\",standard,S=.5,A=30,X=-1,Y=-.25],0,-1\n"), QString());
        const Linetype linetype = *findLinetype(*drawing, u"GAS");
        EXPECT_EQ(linetype.description, u"new"_s);
        EXPECT_EQ(linetype.patternLength, 4.0);
        ASSERT_EQ(linetype.dashes.size(), 4U);
        EXPECT_EQ(linetype.dashes[1].text, u"G"_s);
        EXPECT_EQ(linetype.dashes[1].style, drawing->handle(drawing->tables().find(TableKind::Style, u"STANDARD")));
        EXPECT_EQ(linetype.dashes[1].scale, 0.5);
        EXPECT_EQ(linetype.dashes[1].rotation, 30.0);
        EXPECT_TRUE(linetype.dashes[1].isRotationAbsolute);
        EXPECT_EQ(linetype.dashes[1].offset.y, -0.25);
        EXPECT_AUDIT_CLEAN(*drawing);

        EXPECT_EQ(load("*GAS,x\nA,1,-1,[\"G\",NoStyle],-1\n"), u"text style \"NoStyle\" is not in the drawing"_s);
        EXPECT_EQ(findLinetype(*drawing, u"GAS")->description, u"new"_s) << "a failure changes nothing";
        EXPECT_EQ(load("*S,x\nA,1,-1,[BOX,lost.shx],-1\n"), u"the shape file \"lost.shx\" is not found"_s);
        EXPECT_EQ(load("*S,x\nA,1,[box,my],-1,[ROUND,my.shx],-1\n"),
                  u"shape \"ROUND\" is not in the file \"my.shx\""_s);
        EXPECT_TRUE(shapeFileNames(*drawing).isEmpty()) << "a failure makes no style";
        EXPECT_EQ(load("*S,x\nA,1,-1,[box,my.shx,A=90],-1,[9,lost.shx]\n"), QString());
        const auto dashes = findLinetype(*drawing, u"S")->dashes;
        EXPECT_EQ(dashes[1].shape, 7);
        EXPECT_TRUE(dashes[1].isRotationAbsolute);
        EXPECT_EQ(dashes[2].shape, 9);
        EXPECT_EQ(shapeFileNames(*drawing), (QStringList{u"my.shx"_s, u"lost.shx"_s}));
        EXPECT_AUDIT_CLEAN(*drawing);
        drawing->journal().undo();
        EXPECT_TRUE(shapeFileNames(*drawing).isEmpty());
    }
}

} // namespace
} // namespace host::drawing
