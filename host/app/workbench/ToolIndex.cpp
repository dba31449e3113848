#include "host/app/workbench/ToolIndex.h"

#include "files/qt/Files.h"
#include "host/kernel/languages/Languages.h"
#include "host/lisp/Paths.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// The menu lines stand among the first lines.
constexpr int linesLookedAt = 20;
constexpr int longestLine = 1000;

const QString supportLibrary = u"ortakit.lsp"_s;

bool readMenuLine(const QString &line, ToolEntry &entry)
{
    const QString text = line.trimmed();
    if (!text.startsWith(u';'))
        return false;
    const QString rest = text.mid(text.indexOf(u"menu:"_s) + 5);
    const QString before = text.left(text.indexOf(u"menu:"_s)).remove(u';').trimmed();
    const QStringList parts = rest.split(u'|');
    if (!text.contains("menu:"_L1) || !before.isEmpty() || parts.size() < 2)
        return false;
    entry.caption = parts[0].trimmed();
    entry.command = parts[1].trimmed().toUpper();
    entry.tip = parts.value(2).trimmed();
    entry.subject = parts.value(3).trimmed();
    return !entry.caption.isEmpty() && !entry.command.isEmpty();
}

/// As Lisp writes it in quotes.
QString lispText(QString written)
{
    return written.replace(u"\\\""_s, u"\""_s).replace(u"\\\\"_s, u"\\"_s);
}

/// English texts of the tools with those of the language; none where there is no catalogue.
QHash<QString, QString> toolTexts(const QDir &folder)
{
    QHash<QString, QString> texts;
    QFile file;
    const QString code = QString::fromLatin1(kernel::currentLanguage().code);
    if (!files::openRegular(file, folder.filePath(u"languages/%1.lsp"_s.arg(code)), lisp::largestTextFile).isEmpty())
        return texts;
    static const QRegularExpression pair(u"^\\s*\\(\"((?:[^\"\\\\]|\\\\.)*)\" \\. \"((?:[^\"\\\\]|\\\\.)*)\"\\)$"_s,
                                         QRegularExpression::MultilineOption);
    for (const QRegularExpressionMatch &match : pair.globalMatch(QString::fromUtf8(file.readAll())))
        texts.insert(lispText(match.captured(1)), lispText(match.captured(2)));
    return texts;
}

void translate(ToolIndex &index)
{
    const QHash<QString, QString> texts = toolTexts(QDir(index.folder));
    for (ToolEntry &entry : index.entries)
        for (QString *text : {&entry.caption, &entry.tip, &entry.subject})
            *text = texts.value(*text, *text);
}

void readTool(const QString &path, ToolIndex &index)
{
    QFile file;
    if (const QString reason = files::openRegular(file, path, lisp::largestTextFile); !reason.isEmpty()) {
        index.problems.append(u"%1 cannot be read: %2"_s.arg(QDir::toNativeSeparators(path), reason));
        return;
    }
    ToolEntry entry;
    entry.file = path;
    index.files.append(path);
    for (int i = 0; i < linesLookedAt && !file.atEnd(); ++i)
        if (readMenuLine(QString::fromUtf8(file.readLine(longestLine)), entry))
            index.entries.append(entry);
}

} // namespace

ToolIndex readTools(const QString &folder)
{
    ToolIndex index;
    const QDir directory(folder);
    if (folder.isEmpty() || !directory.exists())
        return index;
    index.folder = directory.absolutePath();
    QStringList names = directory.entryList({u"*.lsp"_s}, QDir::Files, QDir::Name);
    if (names.removeAll(supportLibrary) > 0)
        names.prepend(supportLibrary);
    for (const QString &name : names)
        readTool(directory.absoluteFilePath(name), index);
    translate(index);
    std::sort(index.entries.begin(), index.entries.end(), [](const ToolEntry &a, const ToolEntry &b) {
        return a.caption.compare(b.caption, Qt::CaseInsensitive) < 0;
    });
    return index;
}

} // namespace host::app
