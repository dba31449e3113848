#include "host/app/playback/SessionFiles.h"

#include "files/qt/Files.h"
#include "host/app/playback/PlaybackText.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// Of what a line looks into.
constexpr qint64 largestFile = qint64(1) << 30;
/// Of a text in a message.
constexpr int longestShown = 2000;

QString shown(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes.left(longestShown));
}

QString checkContent(const Step &step, const QByteArray &bytes)
{
    const QByteArray text = step.word(1).toUtf8();
    if (step.verb == Verb::ExpectText && bytes != text)
        return tr("the file's text is \"%1\"").arg(shown(bytes));
    return bytes.contains(text) ? QString() : tr("the file does not hold it; its text is \"%1\"").arg(shown(bytes));
}

/// Where the files differ first, as a byte from 0.
QString checkSame(const QByteArray &bytes, const QByteArray &others)
{
    if (bytes == others)
        return {};
    const auto [end, otherEnd] = std::mismatch(bytes.begin(), bytes.end(), others.begin(), others.end());
    return tr("the files differ at byte %1: \"%2\" and \"%3\"")
        .arg(end - bytes.begin())
        .arg(shown(QByteArray(end, std::min<qsizetype>(bytes.end() - end, 60))),
             shown(QByteArray(otherEnd, std::min<qsizetype>(others.end() - otherEnd, 60))));
}

} // namespace

QString placeOfFile(const QString &folder, const QString &name, QString &error)
{
    if (QDir::isAbsolutePath(name))
        return name;
    if (folder.isEmpty())
        error = tr("no folder was given to write to (--out)");
    return QDir(folder).filePath(name);
}

QString writeText(const Step &step, const PlaybackOptions &options)
{
    QString error;
    const QString path = placeOfFile(options.outFolder, step.word(0), error);
    if (!error.isEmpty())
        return error;
    QDir().mkpath(QFileInfo(path).path());
    return files::replaceFile(path, step.word(1).toUtf8());
}

QByteArray bytesOfFile(const QString &name, const PlaybackOptions &options, QString &error)
{
    const QString path = placeOfFile(options.outFolder, name, error);
    if (!error.isEmpty())
        return {};
    const files::WholeBytes file = files::readWhole(path, largestFile);
    if (!file)
        error = tr("cannot read %1: %2").arg(path, file.reason);
    return file.bytes;
}

QString checkFile(const Step &step, const PlaybackOptions &options)
{
    QString error;
    if (step.verb == Verb::ExpectNoFile) {
        const QString path = placeOfFile(options.outFolder, step.word(0), error);
        return error.isEmpty() && QFileInfo::exists(path) ? tr("the file is there") : error;
    }
    const QByteArray bytes = bytesOfFile(step.word(0), options, error);
    if (!error.isEmpty())
        return error;
    if (step.verb != Verb::ExpectSameFile)
        return checkContent(step, bytes);
    const QByteArray others = bytesOfFile(step.word(1), options, error);
    return error.isEmpty() ? checkSame(bytes, others) : error;
}

} // namespace host::app
