#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <memory>

namespace host::drawing {

/// Text values of a drawing to and from QString: the code page of the file, \U+XXXX and \M+nXXXX escapes, and control
/// characters in caret form (^J, ^I, "^ " for the caret itself).
///
/// Copies share one converter; a codec is used on one thread at a time.
class TextCodec
{
public:
    /// UTF-8, as files from AC1021 on have it.
    TextCodec();
    ~TextCodec();
    TextCodec(const TextCodec &);
    TextCodec &operator=(const TextCodec &);

    /// The codec for a $DWGCODEPAGE value in any letter case (ANSI_1250-1258, 874, 932, 936, 949, 950, 1361, DOS437,
    /// DOS850 ..., ISO8859-1 ..., ASCII), or another name that files/TextEncoding.h knows: CP850, UTF-8. An unknown
    /// name gives ANSI_1252.
    static TextCodec forCodePage(QByteArrayView name);

    /// Never fails: bytes that are not valid in the encoding are read one by one as Latin-1. encode() does not always
    /// give the same bytes back, so who keeps a value keeps its bytes.
    QString decode(QByteArrayView bytes) const;
    /// Never fails: characters that the encoding lacks become \U+XXXX, control characters their caret form. The result
    /// is one line.
    QByteArray encode(QStringView text) const;

    /// Whether the bytes are their text in every encoding: ASCII without anything that may begin an escape.
    static bool isPlain(QByteArrayView bytes);
    /// False for every code page, one that has all characters too.
    bool isUtf8() const;

private:
    struct Converter;
    std::shared_ptr<Converter> m_converter;
};

} // namespace host::drawing
