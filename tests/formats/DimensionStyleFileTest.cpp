#include "formats/DimensionStyleFile.h"

#include "tests/formats/Folder.h"
#include "tests/support/Texts.h"

#include <QBuffer>

namespace {

const QByteArray isoSection = ortakit::test::testText("formats/dimensionstyles/iso.dim"); // lines end with "\r\n"

class DimensionStyleFile : public testing::Test
{
protected:
    QString write(const QByteArray &content) const { return folder.writeFile(u"styles.dim"_s, content); }
    static QByteArray copyOf(const QString &path, const QString &name, TextStyleCopy textStyle = TextStyleCopy::Full)
    {
        QBuffer output;
        output.open(QIODevice::WriteOnly);
        EXPECT_TRUE(copyStyle(path, name, output, textStyle));
        return output.data();
    }
    const Folder folder{};
};

TEST_F(DimensionStyleFile, ListsNamesWholeOnExportAndByFirstWordOnImport)
{
    // whole: each with "|" behind it
    const std::tuple<const char *, QByteArray, QString, QString> rows[] = {
        {"empty", "", {}, {}},
        {"two words", "DIMENSION_STYLE_NAME My Style\nEND_OF_STYLE\n", u"My Style|"_s, u"My|"_s},
        {"two blanks", "DIMENSION_STYLE_NAME  My\n", u" My|"_s, u"|"_s},
        {"no name", "DIMENSION_STYLE_NAME\r\n", u"|"_s, u"|"_s},
        {"duplicates, in file order",
         "DIMENSION_STYLE_NAME b\nEND_OF_STYLE\nDIMENSION_STYLE_NAME a\nDIMENSION_STYLE_NAME b\n", u"b|a|b|"_s,
         u"b|a|b|"_s},
        {"word within the first field", "xDIMENSION_STYLE_NAMEx a\n", u"a|"_s, u"a|"_s},
        {"word in another field or case", "a DIMENSION_STYLE_NAME b\ndimension_style_name c\n", {}, {}},
        {"non-ASCII", "DIMENSION_STYLE_NAME \xC3\x84 1\n", u"Ä 1|"_s, u"Ä|"_s},
    };
    const auto joined = [](const QStringList &names) { return names.isEmpty() ? QString() : names.join(u'|') + u'|'; };
    for (const auto &[what, content, whole, firstWords] : rows) {
        const QString path = write(content);
        EXPECT_EQ(joined(listStyleNames(path)), whole) << what;
        EXPECT_EQ(joined(listStyleNamesFirstWord(path)), firstWords) << what;
    }
}

TEST_F(DimensionStyleFile, ReadsTheVariablesOfASection)
{
    const struct
    {
        const char *what;
        QByteArray body; ///< behind the header of the style "a"
        QString onExport;
        QString onImport = {}; ///< the same when it is empty
    } rows[] = {
        {"kinds by what the line contains, in order",
         "DIMSCALE 1 x\nDIMTXSTY Roman\nDIMTXT_FONT a\nx DIMTXT_ DIMLT \nDIMTXSTY DIMLT 5\nfield two 0\nEND_OF_STYLE\n",
         u"DIMSCALE 1 x, DIMTXSTY Roman, DIMTXSTY DIMLT, DIMSCALE 2"_s, u"DIMSCALE 1 x, field two 0, DIMSCALE 2"_s},
        {"end within a line", "a 1\nno END_OF_STYLEs DIMTXT_\nDIMSCALE 1\n", u"a 1, DIMSCALE 2"_s},
        {"count beyond the file", "DIMLT D 2147483647\n*D,d\nEND_OF_STYLE\n", u"DIMLT D, open"_s},
        {"goes on to the end of another", "b 2\n", u"b 2, DIMENSION_STYLE_NAME b, DIMSCALE 1, DIMSCALE 2"_s},
    };
    // Two sections follow: of another style, and of the same in another case.
    const QByteArray following = "DIMENSION_STYLE_NAME b\nDIMSCALE 1\nEND_OF_STYLE\n"
                                 "DIMENSION_STYLE_NAME A\nDIMSCALE 2\nEND_OF_STYLE\n";
    const auto shown = [](const StyleVariables &style) {
        return style.entries.join(u", "_s) + (style.isClosed ? QString() : u", open"_s);
    };
    for (const auto &row : rows) {
        const QString path = write("DIMSCALE 0\nDIMENSION_STYLE_NAME a\n" + row.body + following);
        EXPECT_EQ(shown(readStyleVariables(path, u"a"_s)), row.onExport) << row.what;
        EXPECT_EQ(shown(readStyleVariablesForImport(path, u"A"_s, {})),
                  row.onImport.isEmpty() ? row.onExport : row.onImport)
            << row.what;
    }

    // What stands between "DIMEX1LT D" and a variable; the count is of characters.
    const QByteArray definitions[] = {
        " 9\r\n*D,d\r\nA,1\r\n", // with its line end
        " 7\n*D,d\nA,1,-2\n",    // the rest of the last line
        " 7\n*D,\xC3\xA4\xE2\x82\xAC\n1\n",
        " 7\n*D,\xF0\x9F\x98\x80\n1\n", // two for a character beyond the first 65,536
        " 17\n*D,END_OF_STYLE\n1\n",
        " 5\n*D,d\nc 3\n", // ends with a line end: the next line is the rest
        "\n*D,d\n",
        " -7\n*D,d\n",
        " 99999999999999999999\n*D,d\n",
    };
    for (const QByteArray &definition : definitions) {
        const QString path = write("DIMENSION_STYLE_NAME a\nDIMEX1LT D" + definition + "b 2\nEND_OF_STYLE\n");
        EXPECT_EQ(shown(readStyleVariables(path, u"a"_s)), u"DIMEX1LT D, b 2"_s) << definition.toStdString();
        EXPECT_EQ(shown(readStyleVariablesForImport(path, u"a"_s, {})), u"DIMEX1LT D, b 2"_s);
    }
}

TEST_F(DimensionStyleFile, ImportSaysWhetherTheDrawingHasTheTextStyle)
{
    // A line of the style, the text styles of the drawing, and whether it has that one.
    const std::tuple<QByteArray, QStringList, bool> rows[] = {
        {"DIMTXSTY Roman", {u"Standard"_s, u"Roman"_s}, true},
        {"DIMTXSTY Roman", {u"ROMAN"_s}, false},
        {"DIMTXSTY Roman Wide", {u"Roman"_s}, true},
        {"DIMTXSTY", {u"Roman"_s}, false},
        {"DIMTXT 3", {u"3"_s}, false},
    };
    for (const auto &[line, textStyles, exists] : rows) {
        const QString path = write("DIMENSION_STYLE_NAME a b\n" + line + "\nEND_OF_STYLE\n");
        EXPECT_EQ(readStyleVariablesForImport(path, u"A"_s, textStyles).usesExistingTextStyle, exists) << line.data();
    }
}

TEST_F(DimensionStyleFile, TheTableLeavesOutTheFirstEntryAndThoseWithoutABlank)
{
    EXPECT_EQ(variableRows({u"a 1"_s, u"b"_s, u"c 2 3"_s, u"d "_s, u" 5"_s}),
              (QList<QStringList>{{u"c"_s, u"2"_s}, {u"d"_s, QString()}, {QString(), u"5"_s}}));
    EXPECT_TRUE(variableRows({}).isEmpty());
}

TEST_F(DimensionStyleFile, CopiesLineByLine)
{
    const QByteArray &section = isoSection;
    const QByteArray unixSection = QByteArray(section).replace("\r\n", "\n");
    const std::tuple<const char *, QByteArray, QByteArray> rows[] = {
        {"as it is", section, section},
        {"other line ends, lines around it", "x\n" + unixSection + "y\n", section},
        {"no end of line at the end", unixSection.chopped(1), section},
        {"twice, in any case", section + "a\r\n" + section.toUpper(), section + section.toUpper()},
        {"never closed: closed in the copy", "DIMENSION_STYLE_NAME iso-25\na 1",
         "DIMENSION_STYLE_NAME iso-25\r\na 1\r\nEND_OF_STYLE\r\n"},
        {"a header of its own within it", "DIMENSION_STYLE_NAME ISO-25\nDIMENSION_STYLE_NAME ISO-25\nEND_OF_STYLE\n",
         "DIMENSION_STYLE_NAME ISO-25\r\nDIMENSION_STYLE_NAME ISO-25\r\nEND_OF_STYLE\r\n"},
        {"bytes that are no UTF-8", "DIMENSION_STYLE_NAME ISO-25\na \xE4\nDIMTXT_END_OF_STYLE\n",
         "DIMENSION_STYLE_NAME ISO-25\r\na \xE4\r\nDIMTXT_END_OF_STYLE\r\n"},
    };
    for (const auto &[what, content, copy] : rows) {
        const QString path = write(content);
        EXPECT_EQ(copyOf(path, u"iso-25"_s), copy) << what;
        const QByteArray nameOnly =
            QByteArray(copy).replace("DIMTXT_FONT romans.shx\r\n", "").replace("DIMTXT_FONT ROMANS.SHX\r\n", "");
        EXPECT_EQ(copyOf(path, u"ISO-25"_s, TextStyleCopy::NameOnly), nameOnly) << what;
    }
}

TEST_F(DimensionStyleFile, CopiesManyAsOneByOne)
{
    // Sections that hold headers of others, a header that is an end, and one section that is never closed.
    const QString path = write(ortakit::test::testText("formats/dimensionstyles/many.dim"));
    const QStringList names = {u"d"_s, u"b"_s, u"END_OF_STYLE"_s, u"c"_s, u"ISO-25"_s, u"a"_s, u"b"_s, u"none"_s};
    for (const TextStyleCopy textStyle : {TextStyleCopy::Full, TextStyleCopy::NameOnly}) {
        QByteArray oneByOne;
        for (const QString &name : names)
            oneByOne += copyOf(path, name, textStyle);
        const StyleCopy together = copyStyles(path, names, textStyle);
        EXPECT_EQ(together.text, oneByOne);
        EXPECT_FALSE(together.isClosed);
    }
    EXPECT_EQ(copyOf(path, u"end_of_style"_s), "DIMENSION_STYLE_NAME END_OF_STYLE\r\nDIMTXT_ 1\r\nEND_OF_STYLE\r\n");
}

// Every header opens a section that goes to the end of the file: all together would be a thousand times the file.
TEST_F(DimensionStyleFile, CopiesThatNobodyCouldReadAreRefused)
{
    QByteArray content;
    QStringList names;
    for (int number = 0; number < 20'000; ++number) {
        names.append(QString::number(number));
        content += "DIMENSION_STYLE_NAME " + QByteArray::number(number) + "\n";
    }
    EXPECT_FALSE(copyStyles(write(content), names, TextStyleCopy::Full));
}

} // namespace
