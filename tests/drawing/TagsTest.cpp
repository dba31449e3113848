#include "host/drawing/records/Journal.h"
#include "host/drawing/tags/TextCodec.h"
#include "tests/drawing/DrawingSample.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

TextCodec codecFor(const QByteArray &page)
{
    return page == "UTF-8" ? TextCodec() : TextCodec::forCodePage(page);
}

struct CodecRow
{
    const char *name;
    QByteArray page;
    QByteArray bytes;
    QString text;
};

/// Both ways.
TEST(TextCodec, ReadsAndWritesCodePages)
{
    const CodecRow rows[] = {
        {"plain", "ANSI_1252", "Layer 1", u"Layer 1"_s},
        {"western", "ANSI_1252", "\xC4\x80", u"Ä€"_s},
        {"central", "ANSI_1250", "\xF8\x9A", u"řš"_s},
        {"cyrillic", "ansi_1251", "\xD1\xEB\xEE\xE9", u"Слой"_s},
        {"greek", "ANSI_1253", "\xC1\xE2", u"Αβ"_s},
        {"turkish", "ANSI_1254", "\xFD\xD0", u"ıĞ"_s},
        {"hebrew", "ANSI_1255", "\xF9", u"ש"_s},
        {"arabic", "ANSI_1256", "\xC7", u"ا"_s},
        {"baltic", "ANSI_1257", "\xE0", u"ą"_s},
        {"thai", "ANSI_874", "\xA1", u"ก"_s},
        {"japanese, backslash as second byte", "ANSI_932", "\x95\x5C\x8E\xA6", u"表示"_s},
        {"simplified", "ANSI_936", "\xD6\xD0\xCE\xC4", u"中文"_s},
        {"korean", "ANSI_949", "\xC7\xD1", u"한"_s},
        {"traditional", "ANSI_950", "\xA4\xA4", u"中"_s},
        {"dos", "DOS437", "\x84", u"ä"_s},
        {"dos latin", "dos850", "\x9B", u"ø"_s},
        {"dos central", "dos852", "\x8E\x94\xE1\x82", u"Äößé"_s},
        {"dos cyrillic", "dos866", "\x91\xAB\xAE\xA9", u"Слой"_s},
        {"dos, under a name of people", "cp850", "\x8E\x94\xE1\x82", u"Äößé"_s},
        {"macintosh", "MAC-ROMAN", "\x80\x9A\xA7", u"Äöß"_s},
        {"korean, another name", "ksc5601", "\xC7\xD1", u"한"_s},
        {"korean, combined", "ANSI_1361", "\xD0\x65", u"한"_s},
        {"utf-8 in a file with a code page", "utf8", "\xC4\x8D", u"č"_s},
        {"two bytes a unit", "UTF-16", "\xC4", u"Ä"_s},
        {"iso", "ISO8859-2", "\xF8", u"ř"_s},
        {"unknown page", "KLINGON", "\xC4", u"Ä"_s},
        {"utf-8", "UTF-8", "\xC4\x8D\xF0\x9F\x98\x80", u"č😀"_s},
        {"character the page lacks", "ANSI_1252", "\\U+4E2D-\\U+2205", u"中-∅"_s},
        {"pair the page lacks", "ANSI_1252", "\\U+D83D\\U+DE00", u"😀"_s},
        {"control characters", "ANSI_1252", "a^Jb^Ic^ d", u"a\nb\tc^d"_s},
        {"control characters in UTF-8", "UTF-8", "a^Jb^ ", u"a\nb^"_s},
        {"blanks at both ends", "ANSI_1252", "  x ", u"  x "_s},
    };
    for (const CodecRow &row : rows) {
        SCOPED_TRACE(row.name);
        const TextCodec codec = codecFor(row.page);
        EXPECT_EQ(codec.decode(row.bytes), row.text);
        EXPECT_EQ(codec.encode(row.text), row.bytes);
    }
}

/// Spellings that are read and not written.
TEST(TextCodec, ReadsWhatOthersWrite)
{
    const CodecRow rows[] = {
        {"escape in UTF-8", "UTF-8", "\\U+00e4", u"ä"_s},
        {"lower-case escape", "ANSI_1252", "\\u+00C4", u"Ä"_s},
        {"escape cut off", "ANSI_1252", "\\U+00C", u"\\U+00C"_s},
        {"no escape", "ANSI_1252", "\\U+ZZZZ \\P", u"\\U+ZZZZ \\P"_s},
        {"sign in escape", "ANSI_1252", "\\U++123", u"\\U++123"_s},
        {"double byte of another page", "ANSI_1252", "\\M+195\\M+1955C", u"\\M+195表"_s},
        {"double byte, page unknown", "ANSI_1252", "\\M+9955C", u"\\M+9955C"_s},
        {"caret without meaning", "ANSI_1252", "x^2 x^a 2^", u"x^2 x^a 2^"_s},
        {"bytes outside the page", "ANSI_1252",
         "a\x81"
         "b",
         u"a\u0081b"_s},
        {"half a double byte", "ANSI_932", "a\x95", u"a\u0095"_s},
        {"bytes that are no UTF-8", "UTF-8", "\xC4\x8D\xFF\xC3", u"č\u00FF\u00C3"_s},
        {"overlong UTF-8", "UTF-8", "\xC0\x80", u"\u00C0\u0080"_s},
    };
    for (const CodecRow &row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(codecFor(row.page).decode(row.bytes), row.text);
    }
}

TEST(TextCodec, WritesNothingThatBreaksTheLine)
{
    const QString nasty = QString::fromUtf16(u"\r\n\0\x1B"
                                             u"x",
                                             5) +
                          QChar(u'\xD800');
    for (const QByteArray &page : {QByteArray("UTF-8"), QByteArray("ANSI_1252"), QByteArray("ANSI_932")}) {
        const QByteArray bytes = codecFor(page).encode(nasty);
        EXPECT_EQ(bytes, "^M^J^@^[x\\U+D800") << page.toStdString();
        EXPECT_EQ(codecFor(page).decode(bytes), nasty) << page.toStdString();
    }
}

TEST(TextCodec, DrawingsUseThePageOfTheirVersion)
{
    const std::pair<const char *, QByteArray> rows[] = {
        {"AC1009", "\xE8"}, {"AC1015", "\xE8"}, {"AC1021", "\xC4\x8D"}, {"AC1032", "\xC4\x8D"}};
    for (const auto &[version, bytes] : rows) {
        SCOPED_TRACE(version);
        const auto drawing = sample(version, "0 TEXT\n5 50\n8 0\n10 0\n20 0\n40 1\n1 " + bytes);
        const RecordId text = drawing->find({0x50});
        EXPECT_EQ(drawing->tags(text).text(1), u"č"_s);
        FieldList fields = drawing->fields(text);
        setField(fields, 1, u"čč"_s);
        drawing->setFields(text, fields);
        EXPECT_TRUE(drawing->bytes(text).toByteArray().contains(bytes + bytes + "\n"));
    }
}

/// A value that is not valid in its encoding stays as it is when something else of the record changes.
TEST(TextCodec, InvalidBytesSurviveAnEdit)
{
    const auto drawing = sample("AC1032", "0 TEXT\n5 50\n8 \xFF\xFE\n10 0\n20 0\n40 1\n1 a");
    const RecordId text = drawing->find({0x50});
    FieldList fields = drawing->fields(text);
    setField(fields, 1, u"b"_s);
    drawing->setFields(text, fields);
    EXPECT_TRUE(drawing->bytes(text).toByteArray().contains("  8\n\xFF\xFE\n"));
}

Tag tagOf(const QByteArray &value)
{
    Tag tag;
    tag.value = value;
    return tag;
}

TEST(Fields, NumbersAreReadAsFilesSpellThem)
{
    const std::tuple<QByteArray, std::optional<double>, std::optional<qint64>> rows[] = {
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
    for (const auto &[text, real, integer] : rows) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_EQ(tagOf(text).real(), real);
        EXPECT_EQ(tagOf(text).integer(), integer);
    }
}

TEST(Fields, HandlesAreHexadecimal)
{
    const std::pair<QByteArray, std::optional<Handle>> rows[] = {{"1F", Handle{0x1F}},
                                                                 {" 1f ", Handle{0x1F}},
                                                                 {"0", Handle{0}},
                                                                 {"", {}},
                                                                 {"XYZ", {}},
                                                                 {"FFFFFFFFFFFFFFFF", Handle{~quint64(0)}},
                                                                 {"10000000000000000", {}}};
    for (const auto &[text, handle] : rows)
        EXPECT_EQ(tagOf(text).handle(), handle) << text.toStdString();
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
    const std::pair<const char *, FieldList> rows[] = {
        {"other type", fieldsOf("0 CIRCLE|5 50|8 B")},
        {"other handle", fieldsOf("0 LINE|5 1F|8 B")},
        {"neither", fieldsOf("8 B")},
        {"nothing", {}},
    };
    for (const auto &[name, fields] : rows) {
        SCOPED_TRACE(name);
        EXPECT_TRUE(drawing->setFields(id, fields));
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
    const std::pair<Field, QByteArray> rows[] = {
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
    for (const auto &[field, lines] : rows) {
        SCOPED_TRACE(lines.toStdString());
        drawing->setFields(id, {{8, u"0"_s}, field});
        EXPECT_EQ(drawing->bytes(id).toByteArray(), tagLines("0 LINE\n5 50\n8 0\n" + lines));
    }
}

} // namespace
} // namespace host::drawing
