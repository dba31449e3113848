#include "host/drawing/tags/TextCodec.h"

#include "host/drawing/records/Journal.h"
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
        {"caret without meaning", "ANSI_1252", "x^2 2^", u"x^2 2^"_s},
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
    const struct
    {
        const char *version;
        QByteArray bytes;
    } rows[] = {{"AC1009", "\xE8"}, {"AC1015", "\xE8"}, {"AC1021", "\xC4\x8D"}, {"AC1032", "\xC4\x8D"}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.version);
        const auto drawing = sample(row.version, "0 TEXT\n5 50\n8 0\n10 0\n20 0\n40 1\n1 " + row.bytes);
        const RecordId text = drawing->find({0x50});
        EXPECT_EQ(drawing->tags(text).text(1), u"č"_s);
        FieldList fields = drawing->fields(text);
        setField(fields, 1, u"čč"_s);
        drawing->setFields(text, fields);
        EXPECT_TRUE(drawing->bytes(text).toByteArray().contains(row.bytes + row.bytes + "\n"));
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

} // namespace
} // namespace host::drawing
