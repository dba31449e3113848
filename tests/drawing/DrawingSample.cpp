#include "tests/drawing/DrawingSample.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

QByteArray tables(bool isOld)
{
    const auto marker = [isOld](const QByteArray &name) {
        return isOld ? QByteArray() : "100 AcDbSymbolTableRecord\n100 " + name + '\n';
    };
    const auto head = [isOld](const QByteArray &type, int handle, int owner) {
        return "0 " + type +
               (isOld ? "\n"
                      : "\n5 " + QByteArray::number(handle, 16).toUpper() + "\n330 " +
                            QByteArray::number(owner, 16).toUpper() + '\n');
    };
    const auto table = [isOld](const QByteArray &type, int handle) {
        return "0 TABLE\n2 " + type + '\n' +
               (isOld ? QByteArray() : "5 " + QByteArray::number(handle, 16) + "\n330 0\n100 AcDbSymbolTable\n") +
               "70 1\n" + (isOld || type != "DIMSTYLE" ? "" : "100 AcDbDimStyleTable\n71 0\n");
    };
    const QByteArray end = "0 ENDTAB\n";
    QByteArray text = table("LTYPE", 2) + head("LTYPE", 0x10, 2) + marker("AcDbLinetypeTableRecord") +
                      "2 CONTINUOUS\n70 0\n3 Solid line\n72 65\n73 0\n40 0.0\n" + end;
    text += table("LAYER", 3) + head("LAYER", 0x11, 3) + marker("AcDbLayerTableRecord") +
            "2 0\n70 0\n62 7\n6 CONTINUOUS\n" + end;
    text += table("STYLE", 4) + head("STYLE", 0x12, 4) + marker("AcDbTextStyleTableRecord") +
            "2 STANDARD\n70 0\n40 0.0\n41 1.0\n50 0.0\n71 0\n42 2.5\n3 txt\n4 \n" + end;
    text += table("APPID", 5) + head("APPID", 0x13, 5) + marker("AcDbRegAppTableRecord") + "2 ACAD\n70 0\n" + end;
    if (isOld)
        return text;
    text += table("BLOCK_RECORD", 1) + head("BLOCK_RECORD", 0x1F, 1) + marker("AcDbBlockTableRecord") +
            "2 *Model_Space\n" + head("BLOCK_RECORD", 0x1B, 1) + marker("AcDbBlockTableRecord") + "2 *Paper_Space\n" +
            end;
    return text;
}

QByteArray layoutBlocks(bool isOld)
{
    if (isOld)
        return {};
    QByteArray text;
    int handle = 0x20;
    for (const auto &[name, owner] : {std::pair{"*Model_Space", "1F"}, std::pair{"*Paper_Space", "1B"}}) {
        text += "0 BLOCK\n5 " + QByteArray::number(handle, 16) + "\n330 " + owner +
                "\n100 AcDbEntity\n8 0\n100 AcDbBlockBegin\n2 " + name + "\n70 0\n10 0.0\n20 0.0\n30 0.0\n3 " + name +
                "\n1\n0 ENDBLK\n5 " + QByteArray::number(handle + 1, 16) + "\n330 " + owner +
                "\n100 AcDbEntity\n8 0\n100 AcDbBlockEnd\n";
        handle += 2;
    }
    return text;
}

} // namespace

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
    const bool isOld = version < "AC1012";
    QByteArray pairs = "0 SECTION\n2 HEADER\n9 $ACADVER\n1 " + version;
    if (version < "AC1021")
        pairs += "\n9 $DWGCODEPAGE\n3 ANSI_1250";
    pairs += isOld ? "\n9 $HANDLING\n70 1" : "";
    pairs += "\n9 $HANDSEED\n5 100\n9 $INSBASE\n10 0.0\n20 0.0\n30 0.0\n0 ENDSEC\n0 SECTION\n2 TABLES\n";
    pairs += tables(isOld) + "0 ENDSEC\n0 SECTION\n2 BLOCKS\n" + layoutBlocks(isOld) + blocks;
    pairs += "\n0 ENDSEC\n0 SECTION\n2 ENTITIES\n" + entities + "\n0 ENDSEC\n";
    if (!isOld)
        pairs += "0 SECTION\n2 OBJECTS\n0 DICTIONARY\n5 C\n330 0\n100 AcDbDictionary\n281 1\n3 ACAD_GROUP\n350 D\n"
                 "0 DICTIONARY\n5 D\n330 C\n100 AcDbDictionary\n281 1\n0 ENDSEC\n";
    return tagLines(pairs + "0 EOF\n");
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

QString auditOf(const Drawing &drawing, bool &isThere)
{
    static const QString python = u"/usr/bin/python3"_s;
    static const QString program = u"import sys\n"
                                   "try:\n"
                                   "    import ezdxf\n"
                                   "except ImportError:\n"
                                   "    sys.exit(77)\n"
                                   "drawing = ezdxf.readfile(sys.argv[1])\n"
                                   "audit = drawing.audit()\n"
                                   "for entry in list(audit.errors) + list(audit.fixes):\n"
                                   // It objects so to the end of attributes in any R12 block, its own files' too.
                                   "    if drawing.dxfversion == 'AC1009' and 'Deleted SEQEND' in entry.message:\n"
                                   "        continue\n"
                                   "    print(entry.message)\n"_s;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"audited.dxf"_s);
    write(path, drawing.toBytes());
    QProcess process;
    process.start(python, {u"-c"_s, program, path});
    isThere = process.waitForStarted() && process.waitForFinished(60000) && process.exitCode() != 77;
    if (!isThere)
        return u"no Python with ezdxf"_s;
    return QString::fromUtf8(process.readAllStandardOutput() + process.readAllStandardError()).trimmed();
}

} // namespace host::drawing
