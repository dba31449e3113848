#include "formats/LinkFile.h"

#include "tests/formats/Folder.h"

namespace {

/// Links as "entity|url|type|space", with blanks between.
QString shownLinks(const QList<Link> &links)
{
    QStringList rows;
    for (const Link &link : links)
        rows.append(QStringList(link.begin(), link.end()).join(u'|'));
    return rows.join(u' ');
}

TEST(LinkFile, IsReadLineByLineAndWrittenBack)
{
    const std::tuple<const char *, QByteArray, QString, QByteArray> rows[] = {
        {"empty", "", u""_s, ""},
        {"two links", "2F^http://a.b^LINE^Model\n30^c:/x y.pdf^TEXT^Layout 1\n",
         u"2F|http://a.b|LINE|Model 30|c:/x y.pdf|TEXT|Layout 1"_s,
         "2F^http://a.b^LINE^Model\r\n30^c:/x y.pdf^TEXT^Layout 1\r\n"},
        {"what was written, cut off", "2F^u^LINE^Model\r\nREMOVE^30\r\nREMOVE^31", u"2F|u|LINE|Model"_s,
         "2F^u^LINE^Model\r\n"},
        {"blank and short lines", "\n  \r\n2F\n30^u", u"2F||| 30|u||"_s, "2F^^^\r\n30^u^^\r\n"},
        {"separator in the URL", "2F^x^y^^z^LINE^Model", u"2F|x^y^^z|LINE|Model"_s, "2F^x^y^^z^LINE^Model\r\n"},
        {"entity of that name", "REMOVE^u^LINE^Model", u"REMOVE|u|LINE|Model"_s, "REMOVE^u^LINE^Model\r\n"},
        {"UTF-8", "2F^\xC3\xBC.pdf^x^\xE2\x82\xAC", u"2F|\u00fc.pdf|x|\u20ac"_s, "2F^\xC3\xBC.pdf^x^\xE2\x82\xAC\r\n"},
        {"no UTF-8", "2F^\xFC.pdf^TEXT^Model\n30^\x80\x9F^x^y", u"2F|\u00fc.pdf|TEXT|Model 30|\u0080\u009f|x|y"_s,
         "2F^\xFC.pdf^TEXT^Model\r\n30^\x80\x9F^x^y\r\n"},
    };
    for (const auto &[name, read, links, written] : rows) {
        const LinkReading reading = readLinks(read);
        EXPECT_EQ(shownLinks(reading.links), links) << name;
        EXPECT_EQ(writtenLinks(reading.links, {}, reading.encoding), written) << name;
    }
}

TEST(LinkFile, RemovalsFollowTheLinks)
{
    EXPECT_EQ(writtenLinks({Link{u"2F"_s, u"u"_s, u"LINE"_s, u"Model"_s}}, {u"30"_s, u"31"_s}, LinkEncoding::Utf8),
              "2F^u^LINE^Model\r\nREMOVE^30\r\nREMOVE^31\r\n");
    EXPECT_EQ(writtenLinks({Link{u"\u00fc"_s, u"\u20ac"_s}}, {}, LinkEncoding::Latin1), "\xC3\xBC^\xE2\x82\xAC^^\r\n")
        << "what Latin-1 does not have";
}

TEST(LinkFile, ALinkLeadsToAFileOrToAUrlWithAScheme)
{
    const Folder folder;
    const QString file = folder.writeFile(u"www plan #1%20.pdf"_s, "");
    const std::pair<QString, QString> rows[] = {
        {file, QString::fromLatin1(QUrl::fromLocalFile(file).toEncoded())},
        {folder.path({}), QString::fromLatin1(QUrl::fromLocalFile(folder.path({})).toEncoded())},
        {u"www.a.b/c"_s, u"http://www.a.b/c"_s},
        {u"WWW.a.b"_s, {}},
        {u"https://a.b/c d?e=f^g"_s, u"https://a.b/c%20d?e=f%5Eg"_s},
        {u"mailto:a@b.c"_s, u"mailto:a@b.c"_s},
        {u"https://a/'; rm -rf $HOME `x` \"y\""_s, u"https://a/'; rm -rf $HOME `x` \"y\""_s},
        {folder.path(u"missing.pdf"_s), {}},
        {u"--help"_s, {}},
        {u"a.b.c"_s, {}},
        {u"//server/share/x.exe"_s, {}},
        {u":/images"_s, {}},
        {{}, {}},
    };
    for (const auto &[url, target] : rows) {
        const QString encoded = QString::fromLatin1(linkTarget(url).toEncoded());
        EXPECT_EQ(QUrl::fromPercentEncoding(encoded.toUtf8()), QUrl::fromPercentEncoding(target.toUtf8()))
            << url.toStdString();
        EXPECT_FALSE(encoded.contains(u' ') || encoded.contains(u'"')) << "for whoever splits it";
    }
    const QString plan = folder.writeFile(u"plan.pdf"_s, "");
    for (const QString &url : {u"plan.pdf"_s, u".\\plan.pdf"_s, u"./plan.pdf"_s, plan})
        EXPECT_EQ(linkTarget(url, folder.path({})), QUrl::fromLocalFile(plan)) << url.toStdString();
    EXPECT_FALSE(linkTarget({}, folder.path({})).isValid());
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path({}));
    EXPECT_FALSE(linkTarget(u"plan.pdf"_s).isValid()) << "the working folder is not the drawing's";
    QDir::setCurrent(before);
}

} // namespace
