#include "tests/drawing/DrawingSample.h"

#include "host/drawing/file/FileBytes.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace host::drawing {

using namespace Qt::StringLiterals;

QByteArray tagLines(const QByteArray &pairs, const QByteArray &lineEnd)
{
    QByteArray text;
    for (const QByteArray &pair : pairs.split('\n')) {
        if (pair.isEmpty())
            continue;
        const qsizetype space = pair.indexOf(' ');
        const QByteArray code = space < 0 ? pair : pair.first(space);
        text += code.rightJustified(3, ' ') + lineEnd + (space < 0 ? QByteArray() : pair.mid(space + 1)) + lineEnd;
    }
    return text;
}

QByteArray sampleText(const QByteArray &version, const QByteArray &entities, const QByteArray &blocks)
{
    static const QByteArray lines = contents(dataFile(u"sample.tags"_s));
    const QByteArray kinds = QByteArray(version < "AC1012" ? " -" : " +") + (version < "AC1021" ? "p" : "");
    QByteArray pairs;
    for (const QByteArray &line : lines.split('\n')) {
        if (!line.isEmpty() && kinds.contains(line.front()))
            pairs += line.sliced(1) + '\n';
    }
    pairs.replace("VERSION", version).replace("BLOCKS HERE", blocks).replace("ENTITIES HERE", entities);
    return tagLines(pairs);
}

namespace {

FieldValue valueOf(int code, const QString &text)
{
    const QStringList parts = text.split(u',');
    if (isPointCode(code) && parts.size() == 3)
        return Vec3{parts[0].toDouble(), parts[1].toDouble(), parts[2].toDouble()};
    if (isPointCode(code) && parts.size() == 2)
        return Vec2{parts[0].toDouble(), parts[1].toDouble()};
    switch (tagType(code)) {
    case TagType::Text:
    case TagType::Binary:
        return text;
    case TagType::Real:
        return text.toDouble();
    case TagType::Handle:
        return Handle::fromText(QStringView(text)).value_or(Handle{});
    default:
        return text.toLongLong();
    }
}

} // namespace

FieldList fieldsOf(const QByteArray &text)
{
    FieldList fields;
    for (const QString &field : QString::fromUtf8(text).split(u'|')) {
        const int code = field.section(u' ', 0, 0).toInt();
        fields.push_back({code, valueOf(code, field.section(u' ', 1))});
    }
    return fields;
}

std::unique_ptr<Drawing> readGood(const QByteArray &bytes)
{
    ReadResult result = Drawing::fromBytes(bytes);
    if (result)
        return std::move(result.drawing);
    ADD_FAILURE() << result.error.message().toStdString();
    return std::move(Drawing::fromBytes("0\nEOF\n").drawing);
}

QByteArray fileBytes(const Drawing &drawing)
{
    QByteArray bytes;
    const QString problem = forEachFilePiece(drawing, [&bytes](QByteArrayView piece) {
        bytes += piece;
        return true;
    });
    EXPECT_EQ(problem, QString());
    return bytes;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    EXPECT_EQ(file.write(bytes), bytes.size());
}

QString dataFile(const QString &name)
{
    return qEnvironmentVariable("ORTAKIT_SOURCE") + u"/tests/drawing/data/"_s + name;
}

bool forEachCorpusDrawing(const std::function<void(const Drawing &)> &check)
{
    const QString folder = qEnvironmentVariable("ORTAKIT_CORPUS");
    for (const QFileInfo &file : QDir(folder).entryInfoList({u"*.dxf"_s})) {
        SCOPED_TRACE(file.fileName().toStdString());
        if (const ReadResult source = folder.isEmpty() ? ReadResult() : Drawing::open(file.filePath()))
            check(*source.drawing);
    }
    return !folder.isEmpty();
}

QString auditOf(const Drawing &drawing, bool &isThere)
{
    // Started once; it ends when its input does.
    static const std::unique_ptr<QProcess, void (*)(QProcess *)> audit(new QProcess, [](QProcess *process) {
        process->closeWriteChannel();
        process->waitForFinished();
        delete process;
    });
    if (audit->program().isEmpty())
        audit->start(qEnvironmentVariable("ORTAKIT_SOURCE") + u"/scripts/audit"_s, {u"--fixes"_s, u"--serve"_s});
    const QTemporaryDir folder;
    write(folder.filePath(u"audited.dxf"_s), fileBytes(drawing));
    audit->write(folder.filePath(u"audited.dxf\n"_s).toUtf8());
    QByteArray answer;
    while (!answer.endsWith('\n') && audit->waitForReadyRead(60000))
        answer += audit->readAllStandardOutput();
    const QByteArray trouble = audit->readAllStandardError();
    isThere = !answer.isEmpty() || !trouble.contains("No module named");
    return answer == "ok\n" ? QString() : QString::fromUtf8(answer + trouble).trimmed();
}

} // namespace host::drawing
