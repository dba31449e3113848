#include "formats/AliasFile.h"

#include "tests/formats/Folder.h"

#include <QBuffer>

#include <sys/stat.h>

namespace {

AliasReading aliasesOf(QByteArray text)
{
    QBuffer device(&text);
    device.open(QIODevice::ReadOnly);
    return readAliases(device);
}

/// The pairs as "LINE=L CIRCLE=C".
QString aliasPairs(const QList<CommandAlias> &aliases)
{
    QStringList texts;
    for (const CommandAlias &pair : aliases)
        texts.append(pair.command + u'=' + pair.alias);
    return texts.join(u' ');
}

TEST(AliasFile, ReadsRecordsWhereverTheyStand)
{
    const struct
    {
        const char *name;
        QByteArray text;
        QString pairs;
        const char *error = nullptr; ///< part of it; null for none
    } rows[] = {
        {"as written", "<aliases>\n  <record command=\"LINE\" alias=\"L\"/>\n</aliases>\n", u"LINE=L"_s},
        {"another root, deeper, among others, with content",
         "<x><record alias='c' command='circle'><y><record command='Arc' alias='a'/></y></record><z record='1'/></x>",
         u"circle=c Arc=a"_s},
        {"missing attributes", "<a><record/><record command='X'/><record alias='Y'/></a>", u"= X= =Y"_s},
        {"names by case", "<a><Record command='X' alias='Y'/><record Command='X' ALIAS='Y'/></a>", u"="_s},
        {"prefixes, the root itself", "<p:record command='X' alias='Y'/>", u"X=Y"_s},
        {"declaration, comment, reference",
         "<?xml version='1.0' encoding='utf-8'?><!--<record/>--><a><record command='A&amp;B' alias='&#76;'/></a>",
         u"A&B=L"_s},
        {"entity", "<!DOCTYPE a [<!ENTITY e 'LINE'>]><a><record command='&e;' alias='L'/></a>", u"LINE=L"_s},
        {"byte-order mark", "\xEF\xBB\xBF<a><record command='Linie' alias='\xC3\xA4'/></a>", u"Linie=\u00e4"_s},
        {"other encoding", "<?xml version='1.0' encoding='iso-8859-1'?><a><record command='X' alias='\xE4'/></a>",
         u"X=\u00e4"_s},
        {"UTF-16", QByteArray("\xFF\xFE<\0a\0/\0>\0", 10), u""_s},
        {"cut off", "<a><record command='X' alias='Y'/><record command='Z", u"X=Y"_s, "Premature end of document."},
        {"wrong nesting", "<a><record command='X' alias='Y'/></b>", u"X=Y"_s, "Opening and ending tag mismatch."},
        {"plain text", "L LINE\n", u""_s, "Start tag expected."},
        {"empty", "", u""_s, "Premature end of document."},
        {"two roots in two pieces", "<a>" + QByteArray(4089, ' ') + "</a><a/>", u""_s,
         "Extra content at end of document."},
        {"end of a piece", "<a>" + QByteArray(4089, ' ') + "</a>\n<!-- end -->\n", u""_s},
        {"wrong bytes", "<a><record command='X\xFF' alias='Y'/></a>", u""_s, "incorrectly encoded"},
        {"zero bytes", QByteArray(100, '\0'), u""_s, ""},
        {"attribute twice", "<a><record alias='X' alias='Y'/></a>", u""_s, "redefined"},
    };
    for (const auto &row : rows) {
        const AliasReading reading = aliasesOf(row.text);
        EXPECT_EQ(aliasPairs(reading.aliases), row.pairs) << row.name;
        EXPECT_EQ(bool(reading), row.error == nullptr) << row.name << ": " << reading.error.toStdString();
        EXPECT_TRUE(reading.error.contains(QLatin1StringView(row.error))) << row.name;
    }
}

// Each is small or of the size of a real file, and would cost gigabytes or hours.
TEST(AliasFile, HostileFilesAreRefused)
{
    QByteArray bomb = "<!DOCTYPE a [<!ENTITY e0 'xxxxxxxxxx'>";
    for (int i = 1; i < 30; ++i) {
        const QByteArray inner = "&e" + QByteArray::number(i - 1) + ';';
        bomb += "<!ENTITY e" + QByteArray::number(i) + " '" + inner.repeated(10) + "'>";
    }
    QByteArray attributes = "<a><record";
    for (int i = 0; i < 20'000; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";
    const std::tuple<const char *, QByteArray, QString> rows[] = {
        {"entities in entities", bomb + "]><a><record command='&e29;' alias='L'/></a>", u"expansion limit"_s},
        {"one entity again and again",
         "<!DOCTYPE a [<!ENTITY e '" + QByteArray(4000, 'x') + "'>]><a>" +
             QByteArray("<record command='&e;' alias='L'/>").repeated(2'000) + "</a>",
         u"expand to too much"_s},
        {"default of an attribute",
         "<!DOCTYPE a [<!ATTLIST record command CDATA '" + QByteArray(60'000, 'x') + "'>]><a>" +
             QByteArray("<record/>").repeated(2'000) + "</a>",
         u"expand to too much"_s},
        {"attributes", attributes + "/></a>", u"too long"_s},
        {"one long value", "<a><record command='" + QByteArray(200'000, 'x') + "'/></a>", u"too long"_s},
        {"depth", QByteArray("<a>").repeated(200'000), u"Premature end"_s},
    };
    for (const auto &[name, text, error] : rows)
        EXPECT_TRUE(aliasesOf(text).error.contains(error)) << name;
}

TEST(AliasFile, WritesUpperCaseAndLeavesOutWhatIsIncomplete)
{
    const QList<CommandAlias> aliases = {{u"line"_s, u"l"_s},
                                         {u"CIRCLE"_s, {}},
                                         {{}, u"X"_s},
                                         {u"stra\u00dfe"_s, u"\u00e4"_s},
                                         {u"a<b>&\"c'"_s, u"\U0001F600\t"_s},
                                         // What XML has no way to hold.
                                         {u"\u0001b\ufffe"_s, QString(QChar(0xD800)) + u"c"_s},
                                         {u"d"_s, u"\u0002"_s}};
    const QByteArray text = writtenAliases(aliases);
    EXPECT_TRUE(text.trimmed().startsWith("<aliases>\n    <record command=\"LINE\" alias=\"L\"/>\n"))
        << text.toStdString();
    const AliasReading reading = aliasesOf(text);
    EXPECT_EQ(reading.error, QString());
    EXPECT_EQ(aliasPairs(reading.aliases), u"LINE=L STRASSE=\u00c4 A<B>&\"C'=\U0001F600\t B=C"_s);
}

TEST(AliasFile, ListingHasTheAliasesInAColumn)
{
    const QList<CommandAlias> aliases = {{u"_line"_s, u"l"_s}, {u"CIRCLE"_s, u"C"_s}, {{}, u"x"_s}};
    EXPECT_EQ(aliasListing(aliases), u"_LINE .... L\nCIRCLE ... C\n ......... X\n"_s);
    EXPECT_EQ(aliasListing({{u"stra\u00dfe\u00df\u00df\u00df\u00df\u00df"_s, u"S"_s}}),
              u"STRASSESSSSSSSSSS  S"_s + u'\n')
        << "a command that is longer in upper case is not cut";
}

TEST(AliasFile, FilesThatCannotBeReadOrWritten)
{
    const Folder folder;
    const QString pipe = folder.path(u"pipe"_s);
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    for (const QString &path :
         {QString(), folder.path(u"missing/alias.xml"_s), folder.path({}), pipe, u"/dev/zero"_s}) {
        EXPECT_EQ(readAliasFile(path).error, u"Error reading alias file."_s) << path.toStdString();
        AliasFile file;
        file.open(path);
        EXPECT_NE(file.write({}).error, QString()) << path.toStdString();
    }
}

TEST(AliasFile, KeepsBesideWhatItWouldNotWrite)
{
    const Folder folder;
    const QString path = folder.path(u"alias.xml"_s);
    const QByteArray whole = "<aliases><record command='LINE' alias='L'/></aliases>";
    // later: what another program makes of it
    const std::tuple<const char *, QByteArray, QByteArray, const char *, bool> rows[] = {
        {"nothing but aliases", whole, whole, "", false},
        {"none yet", {}, {}, "", false},
        {"a comment", "<aliases><!-- mine --></aliases>", {}, "", true},
        {"an element of others", "<aliases><group><record command='A' alias='B'/></group></aliases>", {}, "", true},
        {"an attribute of others", "<aliases><record command='A' alias='B' key='1'/></aliases>", {}, "", true},
        {"a text", "<aliases>mine</aliases>", {}, "", true},
        {"a document type", "<!DOCTYPE aliases><aliases/>", {}, "", true},
        {"written by another program", whole, "<aliases><record command='ARC' alias='A'/></aliases>", "", true},
        {"cut off",
         "<aliases>\n<record command='LINE' alias='L'/><rec",
         {},
         "line 2: Premature end of document.",
         true},
        {"in another encoding",
         "<aliases>\n<record command='\xe4' alias='L'/></aliases>",
         {},
         "line 1: Encountered incorrectly encoded content.",
         true},
    };
    for (const auto &[name, read, later, damage, isKept] : rows) {
        SCOPED_TRACE(name);
        QFile::remove(path);
        QFile::remove(path + u".kept"_s);
        if (!read.isEmpty())
            folder.writeFile(u"alias.xml"_s, read);
        AliasFile file;
        file.open(path);
        const QByteArray before = later.isEmpty() ? read : later;
        if (!later.isEmpty())
            folder.writeFile(u"alias.xml"_s, later);
        EXPECT_EQ(file.damage().toStdString(), damage);
        const AliasFile::Written written = file.write({{u"line"_s, u"l"_s}});
        EXPECT_EQ(written.error, QString());
        EXPECT_EQ(written.kept, isKept ? path + u".kept"_s : QString());
        EXPECT_EQ(Folder::readFile(path + u".kept"_s), isKept ? before : QByteArray());
        EXPECT_EQ(aliasPairs(readAliasFile(path).aliases), u"LINE=L"_s);
        EXPECT_EQ(file.write({}).kept, QString()) << "it is known now";
        folder.writeFile(u"alias.xml"_s, "<aliases><!-- another --></aliases>");
        EXPECT_EQ(file.write({}).kept, path + (isKept ? u".kept2"_s : u".kept"_s)) << "none takes another's place";
        QFile::remove(path + u".kept2"_s);
    }
    AliasFile chosen;
    folder.writeFile(u"alias.xml"_s, "not mine");
    chosen.choose(path);
    EXPECT_EQ(chosen.write({}).kept, QString()) << "the user was asked when it was chosen";
}

} // namespace
