#include "host/drawing/records/Journal.h"
#include "tests/drawing/DrawingSample.h"

// What records give as typed fields, and what becomes of the bytes when fields are written.

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

Tag tagOf(const QByteArray &value)
{
    Tag tag;
    tag.value = value;
    return tag;
}

TEST(Fields, NumbersAreReadAsFilesSpellThem)
{
    const struct
    {
        QByteArray text;
        std::optional<double> real;
        std::optional<qint64> integer;
    } rows[] = {
        {"1.5", 1.5, 1},
        {"  +2.50  ", 2.5, 2},
        {"-7", -7.0, -7},
        {"1E+3", 1000.0, 1000},
        {"1.", 1.0, 1},
        {".5", 0.5, 0},
        {"", {}, {}},
        {"abc", {}, {}},
        {"1,5", 1.0, 1},
        {"1e400", 0.0, 0},
        {"nan", {}, {}},
        {"inf", {}, {}},
        {"99999999999", 99999999999.0, 99999999999},
        {"1e300", 1e300, {}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.text.toStdString());
        EXPECT_EQ(tagOf(row.text).real(), row.real);
        EXPECT_EQ(tagOf(row.text).integer(), row.integer);
    }
}

TEST(Fields, HandlesAreHexadecimal)
{
    const struct
    {
        QByteArray text;
        std::optional<Handle> handle;
    } rows[] = {{"1F", Handle{0x1F}},
                {" 1f ", Handle{0x1F}},
                {"0", Handle{0}},
                {"", {}},
                {"XYZ", {}},
                {"FFFFFFFFFFFFFFFF", Handle{~quint64(0)}},
                {"10000000000000000", {}}};
    for (const auto &row : rows)
        EXPECT_EQ(tagOf(row.text).handle(), row.handle) << row.text.toStdString();
    EXPECT_EQ(Handle{0xABC}.toHex(), "ABC");
}

TEST(Fields, AreTypedByCode)
{
    const auto drawing = sample("AC1015", "0 THING\n5 50\n330 1F\n100 AcDbThing\n1 text\n10 1\n20 2\n30 3\n11 4\n21 5\n"
                                          "12 6\n40 7.5\n70 8\n160 9999999999\n290 1\n310 0AFF\n310 xyz\n340 1F\n"
                                          "999 comment\n1001 ACAD\n1010 1\n1020 2\n1030 3\n1070 12");
    const FieldList wanted = {{0, u"THING"_s},
                              {5, Handle{0x50}},
                              {330, Handle{0x1F}},
                              {100, u"AcDbThing"_s},
                              {1, u"text"_s},
                              {10, Vec3{1, 2, 3}},
                              {11, Vec2{4, 5}},
                              {12, 6.0},
                              {40, 7.5},
                              {70, qint64(8)},
                              {160, qint64(9999999999)},
                              {290, qint64(1)},
                              {310, QByteArray("\x0A\xFF")},
                              {310, u"xyz"_s},
                              {340, Handle{0x1F}},
                              {1001, u"ACAD"_s},
                              {1010, Vec3{1, 2, 3}},
                              {1070, qint64(12)}};
    EXPECT_EQ(drawing->fields(drawing->find({0x50})), wanted);
}

TEST(Fields, GroupsInBracesAndEmbeddedObjectsStandApart)
{
    const auto drawing =
        sample("AC1032", "0 ATTRIB\n5 50\n102 {ACAD_REACTORS\n330 AA\n102 }\n330 1F\n100 AcDbEntity\n8 0\n"
                         "100 AcDbText\n40 2.5\n101 Embedded Object\n40 9\n72 3");
    const RecordId id = drawing->find({0x50});
    EXPECT_EQ(drawing->owner(id), Handle{0x1F});
    EXPECT_EQ(drawing->tags(id).handle(330), Handle{0x1F});
    EXPECT_EQ(drawing->tags(id).real(40), 2.5);
    EXPECT_EQ(drawing->tags(id).integer(72, -1), -1);
}

/// Changing one value leaves the spelling of the others, comments and line ends alone.
TEST(Fields, WhatStaysTheSameKeepsItsBytes)
{
    const QByteArray text =
        sampleText("AC1009", "0 LINE\n999 hello\n8 A\n5 50\n62 +5\n10 1.50E+00\n20 2\n30 0\n11 1\n21 1\n31 0");
    for (const QByteArray &lineEnd : {QByteArray("\n"), QByteArray("\r\n")}) {
        const QByteArray before = QByteArray(text).replace("\n", lineEnd);
        const auto drawing = readGood(before);
        const RecordId id = drawing->find({0x50});
        FieldList fields = drawing->fields(id);
        setField(fields, 11, Vec3{7, 8, 9});
        setField(fields, 6, u"DASHED"_s);
        EXPECT_TRUE(drawing->setFields(id, fields));
        const QByteArray wanted = QByteArray(before).replace(tagLines("11 1\n21 1\n31 0", lineEnd),
                                                             tagLines("11 7.0\n21 8.0\n31 9.0\n6 DASHED", lineEnd));
        EXPECT_EQ(drawing->toBytes(), wanted);
        EXPECT_TRUE(drawing->journal().undo());
        EXPECT_EQ(drawing->toBytes(), before);
    }
}

TEST(Fields, TypeAndHandleCannotBeChanged)
{
    const auto drawing =
        sample("AC1015", "0 LINE\n5 50\n330 1F\n100 AcDbEntity\n8 0\n100 AcDbLine\n10 0\n20 0\n11 1\n21 1");
    const RecordId id = drawing->find({0x50});
    const struct
    {
        const char *name;
        FieldList fields;
    } rows[] = {
        {"other type", fieldsOf("0 CIRCLE|5 50|8 B")},
        {"other handle", fieldsOf("0 LINE|5 1F|8 B")},
        {"neither", fieldsOf("8 B")},
        {"nothing", {}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(drawing->setFields(id, row.fields));
        EXPECT_EQ(drawing->typeName(id), "LINE");
        EXPECT_EQ(drawing->find({0x50}), id);
        EXPECT_EQ(drawing->fields(id)[1], (Field{5, Handle{0x50}}));
        EXPECT_TRUE(readGood(drawing->toBytes())->isAlive(drawing->find({0x50})));
        drawing->journal().undo();
    }
}

TEST(Fields, ValuesAreWrittenInTheTypeOfTheirCode)
{
    const auto drawing = sample("AC1015", "0 LINE\n5 50\n8 0");
    const RecordId id = drawing->find({0x50});
    const struct
    {
        Field field;
        QByteArray lines;
    } rows[] = {
        {{40, 1.0}, "40 1.0"},
        {{40, 0.1}, "40 0.1"},
        {{40, 1e300}, "40 1e+300"},
        {{40, std::numeric_limits<double>::quiet_NaN()}, "40 0.0"},
        {{40, qint64(3)}, "40 3.0"},
        {{70, 2.0}, "70 2"},
        {{70, u" 12 "_s}, "70 12"},
        {{1, u"a\nb^c"_s}, "1 a^Jb^ c"},
        {{1, 2.5}, "1 2.5"},
        {{340, Handle{0xAB}}, "340 AB"},
        {{340, u"AB"_s}, "340 AB"},
        {{10, Vec2{1, 2}}, "10 1.0\n20 2.0"},
        {{10, Vec3{1, 2, 3}}, "10 1.0\n20 2.0\n30 3.0"},
        {{310, QByteArray("\x01\xFE")}, "310 01FE"},
        {{310, QByteArray(128, 'A')}, "310 " + QByteArray(254, '4').replace("44", "41") + "\n310 41"},
        {{1071, qint64(-5)}, "1071 -5"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.lines.toStdString());
        drawing->setFields(id, {{8, u"0"_s}, row.field});
        EXPECT_EQ(drawing->bytes(id).toByteArray(), tagLines("0 LINE\n5 50\n8 0\n" + row.lines));
    }
}

} // namespace
} // namespace host::drawing
