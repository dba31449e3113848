#include "formats/DimensionStyleFile.h"

#include "tests/formats/Folder.h"
#include "tests/support/QtTestPrinters.h"

#include <QBuffer>

#include <gtest/gtest.h>

using namespace ortakit;
using namespace Qt::StringLiterals;
using formats_test::Folder;

namespace {

const char *const isoSection = "DIMENSION_STYLE_NAME ISO-25\r\n"
                               "DIMFILE 1\r\n"
                               "DIMTXSTY Roman\r\n"
                               "DIMTXT_FONT romans.shx\r\n"
                               "DIMLT DASHED 28\r\n"
                               "*DASHED,dashes\r\nA,0.5,-0.25 \r\n"
                               "DIMSCALE 1.5\r\n"
                               "DIMPOST <> mm\r\n"
                               "END_OF_STYLE\r\n";

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
    const Folder folder;
};

TEST_F(DimensionStyleFile, ListsNamesWholeOnExportAndByFirstWordOnImport)
{
    const struct
    {
        const char *what;
        QByteArray content;
        QStringList whole;
        QStringList firstWords;
    } rows[] = {
        {"empty", "", {}, {}},
        {"two words", "DIMENSION_STYLE_NAME My Style\nEND_OF_STYLE\n", {u"My Style"_s}, {u"My"_s}},
        {"two blanks", "DIMENSION_STYLE_NAME  My\n", {u" My"_s}, {QString()}},
        {"no name", "DIMENSION_STYLE_NAME\r\n", {QString()}, {QString()}},
        {"duplicates, in file order",
         "DIMENSION_STYLE_NAME b\nEND_OF_STYLE\nDIMENSION_STYLE_NAME a\nEND_OF_STYLE\nDIMENSION_STYLE_NAME b\n",
         {u"b"_s, u"a"_s, u"b"_s},
         {u"b"_s, u"a"_s, u"b"_s}},
        {"word within the first field", "xDIMENSION_STYLE_NAMEx a\n", {u"a"_s}, {u"a"_s}},
        {"word in another field or case", "a DIMENSION_STYLE_NAME b\ndimension_style_name c\n", {}, {}},
        {"byte-order mark",
         "\xEF\xBB\xBF"
         "DIMENSION_STYLE_NAME \xC3\x84 1\n",
         {u"Ä 1"_s},
         {u"Ä"_s}},
    };
    for (const auto &row : rows) {
        const QString path = write(row.content);
        EXPECT_EQ(listStyleNames(path), row.whole) << row.what;
        EXPECT_EQ(listStyleNamesFirstWord(path), row.firstWords) << row.what;
    }
}

struct BodyRow
{
    const char *what;
    QByteArray body; ///< behind the header of the style "a"
    QStringList onExport;
    QStringList onImport;
    bool isClosed = true;
};

TEST_F(DimensionStyleFile, ReadsTheVariablesOfASection)
{
    const BodyRow rows[] = {
        {"kinds by what the line contains, in order",
         "DIMSCALE 1 x\nDIMTXSTY Roman\nDIMTXT_FONT a\nx DIMTXT_ DIMLT \nDIMTXSTY DIMLT 5\nfield two 0\nEND_OF_STYLE\n",
         {u"DIMSCALE 1 x"_s, u"DIMTXSTY Roman"_s, u"DIMTXSTY DIMLT"_s, u"DIMSCALE 2"_s},
         {u"DIMSCALE 1 x"_s, u"field two 0"_s, u"DIMSCALE 2"_s}},
        {"end within a line", "a 1\nno END_OF_STYLEs DIMTXT_\nDIMSCALE 1\n", {u"a 1"_s, u"DIMSCALE 2"_s}, {}},
        {"definition with its line end",
         "DIMLT D 9\r\n*D,d\r\nA,1\r\nb 2\r\nEND_OF_STYLE\r\n",
         {u"DIMLT D"_s, u"b 2"_s, u"DIMSCALE 2"_s},
         {}},
        {"rest of its last line",
         "DIMEX1LT D 7\n*D,d\nA,1,-2\nb 2\nEND_OF_STYLE\n",
         {u"DIMEX1LT D"_s, u"b 2"_s, u"DIMSCALE 2"_s},
         {}},
        {"characters, not bytes",
         "DIMEX2LT D 7\n*D,\xC3\xA4\xE2\x82\xAC\n1\nb 2\nEND_OF_STYLE\n",
         {u"DIMEX2LT D"_s, u"b 2"_s, u"DIMSCALE 2"_s},
         {}},
        {"two for a character beyond the first 65,536",
         "DIMLT D 7\n*D,\xF0\x9F\x98\x80\n1\nb 2\nEND_OF_STYLE\n",
         {u"DIMLT D"_s, u"b 2"_s, u"DIMSCALE 2"_s},
         {}},
        {"end word within the definition",
         "DIMLT D 17\n*D,END_OF_STYLE\n1\nb 2\nEND_OF_STYLE\n",
         {u"DIMLT D"_s, u"b 2"_s, u"DIMSCALE 2"_s},
         {}},
        {"ending with a line end: the next line is the rest",
         "DIMLT D 5\n*D,d\nc 3\nb 2\nEND_OF_STYLE\n",
         {u"DIMLT D"_s, u"b 2"_s, u"DIMSCALE 2"_s},
         {}},
        {"no count", "DIMLT D\n*D,d\nb 2\nEND_OF_STYLE\n", {u"DIMLT D"_s, u"b 2"_s, u"DIMSCALE 2"_s}, {}},
        {"no number", "DIMLT D 1e3\n*D,d\nb 2\nEND_OF_STYLE\n", {u"DIMLT D"_s, u"b 2"_s, u"DIMSCALE 2"_s}, {}},
        {"negative count", "DIMLT D -7\n*D,d\nb 2\nEND_OF_STYLE\n", {u"DIMLT D"_s, u"b 2"_s, u"DIMSCALE 2"_s}, {}},
        {"count beyond the file", "DIMLT D 2147483647\n*D,d\nEND_OF_STYLE\n", {u"DIMLT D"_s}, {}, false},
        {"count beyond all numbers",
         "DIMLT D 99999999999999999999\n*D,d\nb 2\nEND_OF_STYLE\n",
         {u"DIMLT D"_s, u"b 2"_s, u"DIMSCALE 2"_s},
         {}},
        {"never closed: goes on to the end of another",
         "b 2\n",
         {u"b 2"_s, u"DIMENSION_STYLE_NAME b"_s, u"DIMSCALE 1"_s, u"DIMSCALE 2"_s},
         {}},
    };
    // Two sections follow: of another style, and of the same in another case.
    const QByteArray following = "DIMENSION_STYLE_NAME b\nDIMSCALE 1\nEND_OF_STYLE\n"
                                 "DIMENSION_STYLE_NAME A\nDIMSCALE 2\nEND_OF_STYLE\n";
    for (const BodyRow &row : rows) {
        const QString path = write("DIMSCALE 0\nDIMENSION_STYLE_NAME a\n" + row.body + following);
        const StyleVariables style = readStyleVariables(path, u"a"_s);
        EXPECT_EQ(style.entries, row.onExport) << row.what;
        EXPECT_EQ(style.isClosed, row.isClosed) << row.what;
        const QStringList onImport = row.onImport.isEmpty() ? row.onExport : row.onImport;
        EXPECT_EQ(readStyleVariablesForImport(path, u"A"_s, {}).entries, onImport) << row.what;
    }
}

TEST_F(DimensionStyleFile, ImportSaysWhetherTheDrawingHasTheTextStyle)
{
    const struct
    {
        const char *line;
        QStringList textStyles;
        bool exists;
    } rows[] = {
        {"DIMTXSTY Roman", {u"Standard"_s, u"Roman"_s}, true},
        {"DIMTXSTY Roman", {u"ROMAN"_s}, false},
        {"DIMTXSTY Roman Wide", {u"Roman"_s}, true},
        {"DIMTXSTY", {u"Roman"_s}, false},
        {"DIMTXT 3", {u"3"_s}, false},
    };
    for (const auto &row : rows) {
        const QString path = write("DIMENSION_STYLE_NAME a b\n" + QByteArray(row.line) + "\nEND_OF_STYLE\n");
        EXPECT_EQ(readStyleVariablesForImport(path, u"A"_s, row.textStyles).usesExistingTextStyle, row.exists)
            << row.line;
        EXPECT_TRUE(readStyleVariables(path, u"a"_s).entries.isEmpty());
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
    const QByteArray nameOnly = QByteArray(isoSection).replace("DIMTXT_FONT romans.shx\r\n", "");
    const QByteArray unixSection = QByteArray(isoSection).replace("\r\n", "\n");
    const struct
    {
        const char *what;
        QByteArray content;
        QByteArray full;
        QByteArray nameOnly;
    } rows[] = {
        {"as it is", isoSection, isoSection, nameOnly},
        {"other line ends, lines around it", "x\n" + unixSection + "y\n", isoSection, nameOnly},
        {"no end of line at the end", unixSection.chopped(1), isoSection, nameOnly},
        {"another style", "DIMENSION_STYLE_NAME ISO\nEND_OF_STYLE\n", "", ""},
        {"twice, in any case", isoSection + QByteArray("a\r\n") + QByteArray(isoSection).toUpper(),
         isoSection + QByteArray(isoSection).toUpper(),
         nameOnly + QByteArray(isoSection).toUpper().replace("DIMTXT_FONT ROMANS.SHX\r\n", "")},
        {"never closed: closed in the copy", "DIMENSION_STYLE_NAME iso-25\na 1",
         "DIMENSION_STYLE_NAME iso-25\r\na 1\r\nEND_OF_STYLE\r\n",
         "DIMENSION_STYLE_NAME iso-25\r\na 1\r\nEND_OF_STYLE\r\n"},
        {"a header of its own within it", "DIMENSION_STYLE_NAME ISO-25\nDIMENSION_STYLE_NAME ISO-25\nEND_OF_STYLE\n",
         "DIMENSION_STYLE_NAME ISO-25\r\nDIMENSION_STYLE_NAME ISO-25\r\nEND_OF_STYLE\r\n",
         "DIMENSION_STYLE_NAME ISO-25\r\nDIMENSION_STYLE_NAME ISO-25\r\nEND_OF_STYLE\r\n"},
        {"bytes that are no UTF-8", "DIMENSION_STYLE_NAME ISO-25\na \xE4\nDIMTXT_END_OF_STYLE\n",
         "DIMENSION_STYLE_NAME ISO-25\r\na \xE4\r\nDIMTXT_END_OF_STYLE\r\n",
         "DIMENSION_STYLE_NAME ISO-25\r\na \xE4\r\nDIMTXT_END_OF_STYLE\r\n"},
    };
    for (const auto &row : rows) {
        const QString path = write(row.content);
        EXPECT_EQ(copyOf(path, u"iso-25"_s), row.full) << row.what;
        EXPECT_EQ(copyOf(path, u"ISO-25"_s, TextStyleCopy::NameOnly), row.nameOnly) << row.what;
    }
}

TEST_F(DimensionStyleFile, CopiesManyAsOneByOne)
{
    // Sections that hold headers of others, a header that is an end, and one section that is never closed.
    const QString path = write("DIMENSION_STYLE_NAME a\nx 1\nDIMENSION_STYLE_NAME b\nx 2\nEND_OF_STYLE\n"
                               "DIMENSION_STYLE_NAME c\nDIMENSION_STYLE_NAME END_OF_STYLE\nDIMTXT_ 1\nEND_OF_STYLE\n" +
                               QByteArray(isoSection) + "DIMENSION_STYLE_NAME B\nx 3\nDIMENSION_STYLE_NAME d\nx");
    const QStringList names = {u"d"_s, u"b"_s, u"END_OF_STYLE"_s, u"c"_s, u"ISO-25"_s, u"a"_s, u"b"_s, u"none"_s};
    for (const TextStyleCopy textStyle : {TextStyleCopy::Full, TextStyleCopy::NameOnly}) {
        QByteArray oneByOne;
        for (const QString &name : names)
            oneByOne += copyOf(path, name, textStyle);
        const StyleCopy together = copyStyles(path, names, textStyle);
        EXPECT_EQ(together.text, oneByOne);
        EXPECT_FALSE(together.isClosed);
    }
    EXPECT_EQ(copyOf(path, u"c"_s), "DIMENSION_STYLE_NAME c\r\nDIMENSION_STYLE_NAME END_OF_STYLE\r\n");
    EXPECT_EQ(copyOf(path, u"end_of_style"_s), "DIMENSION_STYLE_NAME END_OF_STYLE\r\nDIMTXT_ 1\r\nEND_OF_STYLE\r\n");
}

TEST_F(DimensionStyleFile, ACopyReadsAsItsSource)
{
    const QString source = write(isoSection);
    const QString copy = folder.writeFile(u"copy.dim"_s, copyOf(source, u"ISO-25"_s));
    const QStringList entries = readStyleVariables(source, u"ISO-25"_s).entries;
    EXPECT_EQ(entries, (QStringList{u"DIMFILE 1"_s, u"DIMTXSTY Roman"_s, u"DIMLT DASHED"_s, u"DIMSCALE 1.5"_s,
                                    u"DIMPOST <> mm"_s}));
    EXPECT_EQ(readStyleVariables(copy, u"iso-25"_s).entries, entries);
}

TEST_F(DimensionStyleFile, FilesThatCannotBeReadOrWrittenGiveNothing)
{
    const QString missing = folder.path(u"missing.dim"_s);
    EXPECT_TRUE(listStyleNames(missing).isEmpty());
    EXPECT_TRUE(listStyleNamesFirstWord(missing).isEmpty());
    EXPECT_TRUE(readStyleVariables(missing, u"a"_s).entries.isEmpty());
    EXPECT_FALSE(copyStyles(missing, {u"a"_s}, TextStyleCopy::Full));

    QBuffer closed;
    EXPECT_FALSE(copyStyle(missing, u"a"_s, closed, TextStyleCopy::Full));
    EXPECT_FALSE(copyStyle(write(isoSection), u"ISO-25"_s, closed, TextStyleCopy::Full));
}

// Every header opens a section that goes to the end of the file: all together would be a thousand times the file.
TEST_F(DimensionStyleFile, CopiesThatNobodyCouldReadAreRefused)
{
    QByteArray content;
    QStringList names;
    for (int number = 0; number < 50'000; ++number) {
        names.append(QString::number(number));
        content += "DIMENSION_STYLE_NAME " + QByteArray::number(number) + "\n";
    }
    EXPECT_FALSE(copyStyles(write(content), names, TextStyleCopy::Full));
}

} // namespace
