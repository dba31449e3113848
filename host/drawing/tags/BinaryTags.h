#pragma once

#include "host/drawing/tags/Tag.h"

#include <vector>

namespace host::drawing {

/// How a file holds its tags: as lines of text, or as bytes. The drawing is the same.
enum class FileForm : quint8
{
    Text,
    Binary
};

/// How wide the group codes of a binary file are: one byte in files up to R12, with 255 in front of a code of two bytes
/// where one is not enough; two bytes, little end first, in later ones.
enum class CodeSize : quint8
{
    One,
    Two
};

/// The 22 bytes that every binary file begins with.
QByteArrayView binaryMark();

/// The width of the group codes in what follows the mark, told from the first of them.
CodeSize codeSizeOf(QByteArrayView tags);

/// One tag of a binary file. A view.
struct BinaryTag
{
    int code = 0;
    QByteArrayView value; ///< without the zero behind a text and the length in front of binary data
    QByteArrayView whole; ///< all its bytes
};

/// Goes through the tags of a binary file. How long a value is depends on its code alone (tagType()): texts and handles
/// end with a zero, numbers have 1, 2, 4 or 8 bytes, binary data a byte of length in front. Not trusted.
class BinaryTagReader
{
public:
    /// `tags` follow the mark.
    BinaryTagReader(QByteArrayView tags, CodeSize codeSize) : m_rest(tags), m_codeSize(codeSize) {}

    /// False at the end and where no tag is; the reader stays there.
    bool read(BinaryTag &tag);
    /// What was not read yet.
    QByteArrayView rest() const { return m_rest; }
    /// Why read() gave nothing in front of the end: a part of a sentence.
    QString problem() const;

private:
    /// The code at the start of what is left and its length; 0 when there is none.
    qsizetype readCode(int &code) const;

    QByteArrayView m_rest;
    CodeSize m_codeSize;
};

/// Adds the two lines that the tag is in a text file, ended by line feeds: reals in their shortest spelling, binary
/// data in pairs of digits. False when the lines alone do not tell all its bytes again: line ends within a text,
/// numbers that are none, codes written longer than needed.
bool appendAsText(QByteArray &text, const BinaryTag &tag, CodeSize codeSize);

/// Writes tags of a text file as bytes.
class BinaryWriter
{
public:
    explicit BinaryWriter(CodeSize codeSize) : m_codeSize(codeSize) {}

    /// False, and nothing is written, when the binary form has no room for the value: a number that is none or too
    /// large for its code, a zero within a text, digits that are no bytes. Binary data of more than 255 bytes go on in
    /// another tag of the same code.
    bool write(const Tag &tag);
    void writeRaw(QByteArrayView bytes) { m_bytes += bytes; }
    qsizetype size() const { return m_bytes.size(); }
    /// All bytes so far; the writer is empty then.
    QByteArray take() { return std::exchange(m_bytes, {}); }

private:
    void writeCode(int code);
    bool writeText(const Tag &tag);
    bool writeReal(const Tag &tag);
    template <typename Number>
    bool writeInteger(const Tag &tag);
    bool writeData(const Tag &tag);

    QByteArray m_bytes;
    CodeSize m_codeSize;
};

/// A tag of a binary file whose bytes its text does not tell.
struct KeptTag
{
    qsizetype place; ///< of its lines in the text
    QByteArray bytes;
};

/// What a binary file has beside its text.
struct BinaryOrigin
{
    CodeSize codeSize = CodeSize::Two;
    std::vector<KeptTag> kept; ///< by place; none in nearly all files
};

/// A binary file as the text of a file.
struct BinaryAsText
{
    QByteArray text;
    BinaryOrigin origin;
    QString error;       ///< a part of a sentence; empty when all was read
    qint64 tagCount = 0; ///< read in front of the error
};

/// Takes the bytes of a whole binary file, which begin with the mark. Ends behind EOF; what follows it is taken over as
/// it is. Costs one pass; the text is about twice as long.
BinaryAsText textFromBinary(QByteArrayView bytes);

} // namespace host::drawing
