#include "host/drawing/tags/TextCodec.h"

#include "files/TextEncoding.h"

#include <QHash>
#include <QStringDecoder>

#include <array>
#include <cerrno>
#include <iconv.h>
#include <string>

namespace host::drawing {

namespace {

/// One direction of the system's converter between a code page and UTF-16. Without it every character is refused.
class Iconv
{
public:
    Iconv(const char *to, const char *from) : m_handle(iconv_open(to, from)) {}
    ~Iconv()
    {
        if (isOpen())
            iconv_close(m_handle);
    }
    Iconv(const Iconv &) = delete;
    Iconv &operator=(const Iconv &) = delete;

    // iconv's own mark of a failure.
    bool isOpen() const { return m_handle != reinterpret_cast<iconv_t>(-1); } // NOLINT(performance-no-int-to-ptr)

    /// Converts as much as goes and takes it off the input; true when nothing is left.
    bool convert(QByteArrayView &input, QByteArray &output)
    {
        if (!isOpen())
            return input.isEmpty();
        iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
        char *in = const_cast<char *>(input.data());
        size_t inLeft = static_cast<size_t>(input.size());
        bool isDone = false;
        bool isFlushing = false;
        while (!isDone) {
            std::array<char, 1024> buffer;
            char *out = buffer.data();
            size_t outLeft = buffer.size();
            const size_t code = isFlushing ? iconv(m_handle, nullptr, nullptr, &out, &outLeft)
                                           : iconv(m_handle, &in, &inLeft, &out, &outLeft);
            output.append(buffer.data(), out - buffer.data());
            if (code == static_cast<size_t>(-1) && errno == E2BIG)
                continue;
            isDone = isFlushing; // some code pages hold a character back until told that no more comes
            isFlushing = true;
        }
        input = input.last(static_cast<qsizetype>(inLeft));
        return inLeft == 0;
    }

private:
    iconv_t m_handle;
};

/// By the name that drawings have for it, or that people who wrote one gave it.
QByteArray systemName(QByteArrayView codePage)
{
    static const QHash<QByteArray, QByteArray> ofDrawings = {{"US_ASCII", "ASCII"},
                                                             {"MAC-ROMAN", "MACINTOSH"},
                                                             {"KSC5601", "CP949"},
                                                             {"1361", "JOHAB"},
                                                             {"ANSI_1361", "JOHAB"}};
    const QByteArray name = codePage.trimmed().toByteArray().toUpper();
    const std::string known = files::codePageName(ofDrawings.value(name, name).toStdString());
    // Texts of drawings are bytes without zeros.
    const bool isWide = known.starts_with("UTF-16") || known.starts_with("UTF-32") || known.starts_with("UCS");
    return known.empty() || isWide ? QByteArray("CP1252") : QByteArray::fromStdString(known);
}

/// Value of `count` hexadecimal digits at `position`; -1 when there are fewer.
int hexAt(QStringView text, qsizetype position, int count)
{
    if (position + count > text.size())
        return -1;
    bool isNumber = false;
    const int number = text.mid(position, count).toInt(&isNumber, 16);
    const bool startsWithDigit = isNumber && text[position].isLetterOrNumber();
    return startsWithDigit ? number : -1;
}

/// The character of \M+nXXXX: n names one of five double-byte code pages.
QString multiByteCharacter(int page, int code)
{
    static const std::array<const char *, 6> pages = {nullptr, "CP932", "CP950", "CP949", "JOHAB", "CP936"};
    if (page < 1 || page > 5)
        return {};
    const std::array<char, 2> bytes = {static_cast<char>(code >> 8), static_cast<char>(code & 0xFF)};
    QByteArrayView input(bytes.data(), 2);
    if (bytes[0] == 0)
        input = input.last(1);
    QByteArray utf16;
    Iconv converter("UTF-16LE", pages[static_cast<size_t>(page)]);
    if (!converter.isOpen() || !converter.convert(input, utf16))
        return {};
    return QString(reinterpret_cast<const QChar *>(utf16.constData()), utf16.size() / 2);
}

/// Reads an escape at `position`; gives its length, 0 when there is none.
qsizetype readEscape(QStringView text, qsizetype position, QString &result)
{
    const QStringView rest = text.mid(position);
    if (rest.startsWith(QLatin1String("\\U+"), Qt::CaseInsensitive)) {
        const int unit = hexAt(rest, 3, 4);
        if (unit < 0)
            return 0;
        result += QChar(static_cast<char16_t>(unit));
        return 7;
    }
    if (rest.startsWith(QLatin1String("\\M+"), Qt::CaseInsensitive)) {
        const int page = hexAt(rest, 3, 1);
        const int code = hexAt(rest, 4, 4);
        const QString character = code < 0 ? QString() : multiByteCharacter(page, code);
        result += character;
        return character.isEmpty() ? 0 : 8;
    }
    if (rest.size() >= 2 && rest[0] == QLatin1Char('^')) {
        const char16_t mark = rest[1].unicode();
        if (mark == u' ')
            result += QLatin1Char('^');
        else if (mark >= u'@' && mark <= u'_')
            result += QChar(static_cast<char16_t>(mark - u'@'));
        else
            return 0;
        return 2;
    }
    return 0;
}

QString withoutEscapes(const QString &text)
{
    if (!text.contains(QLatin1Char('\\')) && !text.contains(QLatin1Char('^')))
        return text;
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size();) {
        const bool mayBeEscape = text[i] == QLatin1Char('\\') || text[i] == QLatin1Char('^');
        const qsizetype length = mayBeEscape ? readEscape(text, i, result) : 0;
        if (length == 0)
            result += text[i];
        i += std::max<qsizetype>(length, 1);
    }
    return result;
}

QString withCarets(QStringView text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        if (c == QLatin1Char('^'))
            result += QLatin1String("^ ");
        else if (c.unicode() < 0x20)
            result += QLatin1Char('^') + QChar(static_cast<char16_t>(c.unicode() + u'@'));
        else
            result += c;
    }
    return result;
}

QByteArray escaped(QChar unit)
{
    return "\\U+" + QByteArray::number(unit.unicode(), 16).toUpper().rightJustified(4, '0');
}

QByteArray toUtf8(const QString &text)
{
    QByteArray bytes;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (text[i].isSurrogate() && !isPair) {
            bytes += escaped(text[i]);
            continue;
        }
        bytes += QStringView(text).mid(i, isPair ? 2 : 1).toUtf8();
        i += isPair ? 1 : 0;
    }
    return bytes;
}

/// Length of the valid UTF-8 sequence at the start of `bytes`; 0 when there is none.
qsizetype utf8SequenceLength(QByteArrayView bytes)
{
    const auto lead = static_cast<unsigned char>(bytes[0]);
    const qsizetype length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
    if (length == 0 || length > bytes.size())
        return 0;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(bytes.first(length));
    return decoder.hasError() || decoded.isEmpty() ? 0 : length;
}

QString fromDamagedUtf8(QByteArrayView bytes)
{
    QString text;
    while (!bytes.isEmpty()) {
        const qsizetype length = utf8SequenceLength(bytes);
        text += length > 0 ? QString::fromUtf8(bytes.first(length)) : QString::fromLatin1(bytes.first(1));
        bytes = bytes.sliced(std::max<qsizetype>(length, 1));
    }
    return text;
}

QString fromUtf8(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    return decoder.hasError() ? fromDamagedUtf8(bytes) : text;
}

} // namespace

struct TextCodec::Converter
{
    explicit Converter(const QByteArray &codePage)
        : decoder("UTF-16LE", codePage.constData()), encoder(codePage.constData(), "UTF-16LE")
    {
    }

    QString toText(QByteArrayView bytes)
    {
        QString text;
        while (true) {
            QByteArray utf16;
            const bool isDone = decoder.convert(bytes, utf16);
            text += QStringView(reinterpret_cast<const char16_t *>(utf16.constData()), utf16.size() / 2);
            if (isDone)
                return text;
            text += QString::fromLatin1(bytes.first(1));
            bytes = bytes.sliced(1);
        }
    }

    QByteArray toBytes(const QString &text)
    {
        QByteArray result;
        QByteArrayView units(reinterpret_cast<const char *>(text.constData()), text.size() * 2);
        while (!encoder.convert(units, result)) {
            const QChar refused = text[text.size() - units.size() / 2];
            result += refused.unicode() < 0x80 ? QByteArray(1, static_cast<char>(refused.unicode())) : escaped(refused);
            units = units.sliced(2);
            if (refused.isHighSurrogate() && !units.isEmpty()) {
                result += escaped(text[text.size() - units.size() / 2]);
                units = units.sliced(2);
            }
        }
        return result;
    }

    Iconv decoder;
    Iconv encoder;
};

TextCodec::TextCodec() = default;
TextCodec::~TextCodec() = default;
TextCodec::TextCodec(const TextCodec &) = default;
TextCodec &TextCodec::operator=(const TextCodec &) = default;

TextCodec TextCodec::forCodePage(QByteArrayView name)
{
    TextCodec codec;
    codec.m_converter = std::make_shared<Converter>(systemName(name));
    return codec;
}

QString TextCodec::decode(QByteArrayView bytes) const
{
    if (isPlain(bytes))
        return QString::fromLatin1(bytes);
    return withoutEscapes(m_converter ? m_converter->toText(bytes) : fromUtf8(bytes));
}

QByteArray TextCodec::encode(QStringView text) const
{
    const QString line = withCarets(text);
    return m_converter ? m_converter->toBytes(line) : toUtf8(line);
}

bool TextCodec::isPlain(QByteArrayView bytes)
{
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<signed char>(c) >= 0 && c != '\\' && c != '^'; });
}

bool TextCodec::isUtf8() const
{
    return m_converter == nullptr;
}

} // namespace host::drawing
