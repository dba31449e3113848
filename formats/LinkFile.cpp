#include "formats/LinkFile.h"

#include <QDir>
#include <QFileInfo>
#include <QStringConverter>
#include <QStringDecoder>

namespace ortakit {

namespace {

constexpr QChar linkSeparator = u'^';
constexpr QLatin1String removal("REMOVE^");

bool isRemoval(QStringView line)
{
    return line.startsWith(removal) && line.count(linkSeparator) == 1;
}

Link linkOf(const QString &line)
{
    QStringList fields = line.split(linkSeparator);
    const qsizetype surplus = fields.size() - LinkFieldCount;
    if (surplus > 0) {
        const QString url = fields.sliced(UrlField, surplus + 1).join(linkSeparator);
        fields.remove(UrlField, surplus);
        fields[UrlField] = url;
    }
    Link link;
    std::move(fields.begin(), fields.end(), link.begin());
    return link;
}

QString writtenText(const QList<Link> &links, const QStringList &removed)
{
    QString text;
    for (const Link &link : links) {
        for (const QString &field : link) {
            text += field;
            text += linkSeparator;
        }
        text.chop(1);
        text += QLatin1String("\r\n");
    }
    for (const QString &entity : removed)
        text += removal + entity + QLatin1String("\r\n");
    return text;
}

/// No more than a person can read in a question.
constexpr qsizetype longestTarget = 2000;

bool isAsciiSlash(QChar c)
{
    return c == u'/' || c == u'\\';
}

bool isOnOtherComputer(const QString &url)
{
    return url.size() > 2 && isAsciiSlash(url[0]) && isAsciiSlash(url[1]);
}

/// By its name as every system has it, or by its mode.
bool isProgram(const QUrl &target)
{
    static const QStringList endings{
        QStringLiteral("appimage"), QStringLiteral("bat"),     QStringLiteral("cmd"), QStringLiteral("com"),
        QStringLiteral("cpl"),      QStringLiteral("desktop"), QStringLiteral("exe"), QStringLiteral("hta"),
        QStringLiteral("jar"),      QStringLiteral("js"),      QStringLiteral("lnk"), QStringLiteral("lsp"),
        QStringLiteral("msi"),      QStringLiteral("pif"),     QStringLiteral("ps1"), QStringLiteral("py"),
        QStringLiteral("reg"),      QStringLiteral("scr"),     QStringLiteral("sh"),  QStringLiteral("url"),
        QStringLiteral("vbe"),      QStringLiteral("vbs"),     QStringLiteral("wsf")};
    const QFileInfo file(target.path());
    // Systems differ in whether they pass over points and blanks at the end.
    QString name = file.fileName();
    while (name.endsWith(u'.') || name.endsWith(u' '))
        name.chop(1);
    const bool isRunnable = target.isLocalFile() && target.host().isEmpty() && file.isFile() && file.isExecutable();
    return isRunnable || endings.contains(QFileInfo(name).suffix().toLower());
}

/// The file that `url` names, with slashes of either kind; empty when there is none.
QString linkedFile(const QString &url, const QString &folder)
{
    // What begins with ":" would be one of the resources of the program.
    if (url.isEmpty() || url.startsWith(u':'))
        return {};
    for (const QString &name : {url, QString(url).replace(u'\\', u'/')}) {
        if (folder.isEmpty() && QDir::isRelativePath(name))
            continue;
        const QFileInfo file(QDir(folder), name);
        if (file.exists())
            return QDir::cleanPath(file.absoluteFilePath());
    }
    return {};
}

bool isLatin1(QStringView text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 0x100; });
}

} // namespace

LinkReading readLinks(const QByteArray &text)
{
    LinkReading reading;
    if (!text.isValidUtf8())
        reading.encoding = LinkEncoding::Latin1;
    const auto encoding = reading.encoding == LinkEncoding::Utf8 ? QStringDecoder::Utf8 : QStringDecoder::Latin1;
    // A mark within the text is a character like any other.
    QStringDecoder decode(encoding, QStringConverter::Flag::ConvertInitialBom);
    for (LineReader lines(text); lines.next();) {
        const QString line = decode(lines.line());
        if (!line.trimmed().isEmpty() && !isRemoval(line))
            reading.links.append(linkOf(line));
    }
    return reading;
}

LinkReading readLinkFile(const QString &path)
{
    const TextReading file = readTextFile(path);
    if (!file)
        return {{}, LinkEncoding::Utf8, file.error};
    return readLinks(file.text);
}

QByteArray writtenLinks(const QList<Link> &links, const QStringList &removed, LinkEncoding encoding)
{
    const QString text = writtenText(links, removed);
    return encoding == LinkEncoding::Latin1 && isLatin1(text) ? text.toLatin1() : text.toUtf8();
}

QUrl linkTarget(const QString &url, const QString &folder)
{
    if (isOnOtherComputer(url))
        return {};
    if (const QString file = linkedFile(url, folder); !file.isEmpty())
        return QUrl::fromLocalFile(file);
    const QUrl target(url.startsWith(QLatin1String("www")) ? QLatin1String("http://") + url : url, QUrl::TolerantMode);
    // Without a scheme it could be taken for a file of any folder, or for an option of whatever program opens it.
    return target.isRelative() ? QUrl() : target;
}

LinkCaution linkCaution(const QUrl &target)
{
    const QString scheme = target.scheme().toLower();
    for (const char *runs : {"javascript", "vbscript", "data"})
        if (scheme == QLatin1String(runs))
            return LinkCaution::Refuse;
    if (!target.isValid() || target.toEncoded().size() > longestTarget)
        return LinkCaution::Refuse;
    if (scheme == QLatin1String("http") || scheme == QLatin1String("https"))
        return LinkCaution::None;
    return isProgram(target) ? LinkCaution::AskProgram : LinkCaution::Ask;
}

} // namespace ortakit
