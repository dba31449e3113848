#include "host/dwg/objects/ProxyTypes.h"

namespace host::dwg {

namespace {

/// Bits in a row, the first one the highest of its byte.
class BitRow
{
public:
    void add(std::uint32_t value, int count)
    {
        for (int i = count - 1; i >= 0; --i) {
            if (m_count % 8 == 0)
                m_bytes += '\0';
            if ((value >> i & 1) != 0)
                m_bytes.back() = static_cast<char>(m_bytes.back() | 0x80 >> m_count % 8);
            ++m_count;
        }
    }

    /// Adds whole bytes at once where the row is at the begin of one.
    void addBytes(std::string_view bytes)
    {
        if (m_count % 8 == 0) {
            m_bytes += bytes;
            m_count += bytes.size() * 8;
            return;
        }
        for (const char byte : bytes)
            add(static_cast<unsigned char>(byte), 8);
    }

    /// A short integer as files code it.
    void addShort(std::size_t value)
    {
        if (value == 0)
            return add(0b10, 2);
        if (value == 256)
            return add(0b11, 2);
        add(value < 256 ? 0b01 : 0b00, 2);
        add(static_cast<std::uint32_t>(value & 0xff), 8);
        if (value > 256)
            add(static_cast<std::uint32_t>(value >> 8), 8);
    }

    std::size_t count() const { return m_count; }
    const std::string &bytes() const { return m_bytes; } ///< filled up with zeros

private:
    std::string m_bytes;
    std::size_t m_count = 0;
};

void copyBits(BitReader &values, std::size_t count, BitRow &row)
{
    row.addBytes(values.rawBytes(count / 8));
    row.add(values.bits(static_cast<int>(count % 8)), static_cast<int>(count % 8));
}

/// What is left of the values, the texts at these places without the zero at their end.
BitRow restOfValues(BitReader &values, const std::vector<std::size_t> &texts)
{
    BitRow row;
    for (const std::size_t place : texts) {
        if (place < values.position() || place - values.position() > values.left())
            break;
        copyBits(values, place - values.position(), row);
        std::string text = values.rawBytes(static_cast<std::uint16_t>(values.shortInteger()));
        if (text.ends_with('\0'))
            text.pop_back();
        row.addShort(text.size());
        row.addBytes(text);
    }
    copyBits(values, values.left(), row);
    return row;
}

/// The group code of a reference by its kind.
int referenceCode(int kind)
{
    switch (kind) {
    case HandleReference::SoftOwner:
        return 350;
    case HandleReference::HardOwner:
        return 360;
    case HandleReference::HardPointer:
        return 340;
    default:
        return 330;
    }
}

/// Sizes have other groups from R2010 on, as those of graphics.
void noteRest(Fields &f, const ProxyParts &parts)
{
    const bool isLate = f.since(Release::R2010);
    if (f.texts().left() > 0) {
        // From R2007 on they stand apart from the other values.
        BitRow texts;
        copyBits(f.texts(), f.texts().left(), texts);
        f.note(isLate ? 162 : 96, texts.count());
        f.noteBinary(311, texts.bytes());
    }
    const BitRow row = restOfValues(f.values(), parts.texts);
    f.note(isLate ? 161 : 93, row.count());
    f.noteBinary(310, row.bytes());
    bool hasReferences = false;
    while (f.references().left() >= 8 && !f.references().hasFailed()) {
        const HandleReference reference = f.references().handle();
        // The bits behind the last one look like references to nothing.
        if (reference.kind < HandleReference::SoftOwner)
            break;
        hasReferences = true;
        f.noteHandle(referenceCode(reference.kind), f.reference(reference));
    }
    if (hasReferences)
        f.note(94, 0);
}

/// The number that programs give the form of a file.
int formNumber(Release release)
{
    constexpr std::pair<Release, int> numbers[] = {{Release::R2000, 23}, {Release::R2004, 25}, {Release::R2007, 27},
                                                   {Release::R2010, 29}, {Release::R2013, 31}, {Release::R2018, 33}};
    for (const auto &[one, number] : numbers) {
        if (one == release)
            return number;
    }
    return 0;
}

void noteHead(Fields &f, int classNumber, const ProxyParts &parts)
{
    const bool isOld = f.release() == Release::R13;
    const std::size_t mark = f.mark();
    f.subclass(parts.isEntity ? (isOld ? "AcDbZombieEntity" : "AcDbProxyEntity")
                              : (isOld ? "AcDbZombieObject" : "AcDbProxyObject"));
    f.note(90, parts.isEntity ? 498 : 499);
    f.note(91, classNumber);
    f.moveForward(mark, parts.graphics);
}

} // namespace

void noteProxy(Fields &f, int classNumber, const ProxyParts &parts)
{
    noteHead(f, classNumber, parts);
    if (f.since(Release::R2018)) {
        f.note(71, formNumber(f.release()));
        f.note(97, 0);
    } else if (f.since(Release::R2000)) {
        f.note(95, formNumber(f.release()));
    }
    if (f.since(Release::R2000))
        f.note(70, 0);
    noteRest(f, parts);
}

void readProxy(Fields &f, const ProxyParts &parts)
{
    if (f.until(Release::R14))
        f.int32(); // the type again
    noteHead(f, f.int32(), parts);
    if (f.since(Release::R2018)) {
        f.int32(71);
        f.int32(97);
    } else if (f.since(Release::R2000)) {
        f.int32(95);
    }
    if (f.since(Release::R2000))
        f.flag(70);
    noteRest(f, parts);
}

} // namespace host::dwg
