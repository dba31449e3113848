#pragma once

#include "host/dwg/bits/BitReader.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace host::dwg {

/// What a value of a model in binary form is, by the byte in front of it.
enum class ModelTag : std::uint8_t
{
    Character = 2,
    Int16 = 3,
    Int32 = 4,
    Float = 5,
    Real = 6,
    ShortText = 7, ///< with a length of one byte
    Text = 8,      ///< of two bytes
    LongText = 9,  ///< of four bytes
    True = 10,
    False = 11,
    Reference = 12, ///< to a record by its place; -1 to none
    Name = 13,      ///< a word; at the begin of a record the end of the record's name
    NamePart = 14,  ///< what stands in front of that, without the -
    Open = 15,
    Close = 16,
    EndOfRecord = 17,
    LiteralText = 18, ///< as LongText: values that have their text form
    Position = 19,    ///< three numbers
    Vector = 20,      ///< three numbers
    Enumeration = 21,
    Pair = 22, ///< two numbers
    Int64 = 23
};

struct ModelValue
{
    ModelTag tag = ModelTag::EndOfRecord;
    std::int64_t number = 0; ///< of whole numbers, references, enumerations and characters
    std::array<double, 3> reals{};
    std::size_t realCount = 0;
    std::string text;

    bool isLogical() const { return tag == ModelTag::True || tag == ModelTag::False; }
    /// Of the kinds that the text form has behind their length.
    bool isText() const;
};

/// Reads a model in binary form value by value. Not trusted: what is no value, or is longer than what is left, ends the
/// reading for good.
class ModelReader
{
public:
    /// `model` must outlive this.
    explicit ModelReader(std::string_view model);

    /// The four numbers at its begin: version, records, entities, flags.
    const std::array<std::int64_t, 4> &head() const { return m_head; }
    /// The next value; false where none is left, or it has a form that is not known.
    bool next(ModelValue &value);
    bool hasFailed() const { return m_reader.hasFailed(); }
    /// How many bytes were read.
    std::size_t position() const { return m_reader.position() / 8; }
    bool isAtEnd() const { return m_reader.left() == 0; }

private:
    void readText(ModelValue &value, std::size_t size) { value.text = m_reader.rawBytes(size); }
    void readReals(ModelValue &value, std::size_t count);
    std::int64_t wide();

    BitReader m_reader;
    bool m_isWide = false; ///< whole numbers have 64 bits
    std::array<std::int64_t, 4> m_head{};
};

/// Whether the name is that of what closes a model.
bool endsModel(std::string_view name);
/// How many bytes of `bytes` a model takes that begins there: up to its last record, which alone tells its end. Where
/// its values have a form that is not known, the first bytes that may be this record end it. 0 where there is none.
std::size_t binaryModelSize(std::string_view bytes);

} // namespace host::dwg
