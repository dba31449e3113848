#include "host/drawing/references/ShapeFile.h"

#include <QtEndian>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// Names in sources are ASCII; a source in another encoding keeps its numbers.
void addShape(ShapeFile &file, int number, const QString &name, std::vector<int> codes)
{
    file.codes.emplace(number, std::move(codes));
    const QString key = name.trimmed().toUpper();
    if (!key.isEmpty() && !file.numbers.contains(key))
        file.numbers.insert(key, number);
}

/// "12", "0C", "-012"; a 0 in front makes the digits hexadecimal.
std::optional<int> shapeNumber(QByteArrayView text)
{
    const bool isNegative = text.startsWith('-');
    if (isNegative)
        text = text.sliced(1);
    bool isNumber = false;
    const int value = text.toInt(&isNumber, text.size() > 1 && text.startsWith('0') ? 16 : 10);
    if (!isNumber || text.startsWith('-') || text.startsWith('+') || value > 0xffff)
        return std::nullopt;
    return isNegative ? -value : value;
}

/// Goes through a source line by line.
class SourceReader
{
public:
    ShapeFile read(QByteArrayView text)
    {
        while (!text.isEmpty()) {
            const qsizetype end = text.indexOf('\n');
            takeLine(end < 0 ? text : text.first(end));
            text = end < 0 ? QByteArrayView() : text.sliced(end + 1);
        }
        finish();
        if (m_file.codes.isEmpty())
            m_file.error = u"there are no shapes in it"_s;
        return std::move(m_file);
    }

private:
    void takeLine(QByteArrayView line)
    {
        if (const qsizetype comment = line.indexOf(';'); comment >= 0)
            line = line.first(comment);
        line = line.trimmed();
        if (line.startsWith('*'))
            takeHeader(line.sliced(1).toByteArray().split(','));
        else if (m_number)
            takeCodes(line);
    }

    void takeHeader(const QList<QByteArray> &fields)
    {
        finish();
        m_number = shapeNumber(fields[0].trimmed());
        m_name = QString::fromUtf8(fields.value(2));
    }

    /// Brackets around pairs are for people.
    void takeCodes(QByteArrayView line)
    {
        qsizetype start = 0;
        for (qsizetype i = 0; i <= line.size(); ++i) {
            const char c = i < line.size() ? line[i] : ',';
            if (c != ',' && c != '(' && c != ')' && c != ' ' && c != '\t')
                continue;
            if (const QByteArrayView field = line.sliced(start, i - start); !field.isEmpty()) {
                const std::optional<int> code = shapeNumber(field);
                m_isSound &= code.has_value();
                m_codes.push_back(code.value_or(0));
            }
            start = i + 1;
        }
    }

    void finish()
    {
        if (m_number && m_isSound)
            addShape(m_file, *m_number, m_name, std::move(m_codes));
        m_number.reset();
        m_codes.clear();
        m_isSound = true;
    }

    ShapeFile m_file;
    std::optional<int> m_number;
    QString m_name;
    std::vector<int> m_codes;
    bool m_isSound = true;
};

constexpr qsizetype longestSignature = 40;

/// Where what follows a compiled file's signature begins; -1 for another file.
qsizetype endOfSignature(QByteArrayView bytes)
{
    const qsizetype end = bytes.first(std::min(longestSignature, bytes.size())).indexOf("\r\n\x1a");
    return end < 0 ? -1 : end + 3;
}

/// Behind the signature: lowest and highest number and the count, the number and length of each shape, then their
/// bytes, a name up to a 0 and the codes. All numbers have two bytes, the lower one first.
ShapeFile readCompiled(QByteArrayView bytes)
{
    ShapeFile file;
    const auto word = [&](qsizetype at) { return qFromLittleEndian<quint16>(bytes.data() + at); };
    constexpr qsizetype headSize = 6;
    const qsizetype count = bytes.size() < headSize ? 0 : word(4);
    qsizetype next = headSize + 4 * count;
    if (count == 0 || next > bytes.size()) {
        file.error = u"the file is cut off"_s;
        return file;
    }
    for (qsizetype i = 0; i < count; ++i) {
        const qsizetype entry = headSize + 4 * i;
        const qsizetype length = word(entry + 2);
        if (length > bytes.size() - next)
            break;
        const QByteArrayView shape = bytes.sliced(next, length);
        next += length;
        const qsizetype zero = shape.indexOf('\0');
        if (zero < 0)
            continue;
        std::vector<int> codes;
        for (const char byte : shape.sliced(zero + 1))
            codes.push_back(static_cast<unsigned char>(byte));
        addShape(file, word(entry), QString::fromLatin1(shape.first(zero)), std::move(codes));
    }
    if (file.codes.isEmpty())
        file.error = u"the file is cut off"_s;
    return file;
}

} // namespace

std::optional<int> ShapeFile::numberOf(const QString &name) const
{
    const auto found = numbers.constFind(name.trimmed().toUpper());
    return found == numbers.constEnd() ? std::nullopt : std::optional(*found);
}

ShapeFile readShapeFile(QByteArrayView bytes)
{
    const qsizetype body = endOfSignature(bytes);
    if (body < 0)
        return SourceReader().read(bytes.startsWith("\xEF\xBB\xBF") ? bytes.sliced(3) : bytes);
    if (bytes.first(body).indexOf(" shapes ") < 0)
        return {.error = u"it is a compiled font"_s};
    return readCompiled(bytes.sliced(body));
}

} // namespace host::drawing
