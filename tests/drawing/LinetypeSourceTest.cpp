#include "host/drawing/references/LinetypeSource.h"

#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/records/Tables.h"
#include "tests/drawing/DrawingSample.h"

#include <QTemporaryDir>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

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
    const struct
    {
        QByteArray text;
        QStringList expected; ///< name, description and pattern or reason
    } rows[] = {
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
    for (const auto &row : rows) {
        QStringList found;
        for (const LinetypeDefinition &definition : readLinetypeSource(row.text))
            found.append(definition.name + u'|' + definition.description + u'|' +
                         (definition.error.isEmpty() ? patternText(definition) : definition.error));
        // What came in front of a reason does not matter.
        EXPECT_EQ(found, row.expected) << row.text.left(60).toStdString();
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
