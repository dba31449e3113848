#include "tests/dwg/making/ObjectWriter.h"

#include "host/dwg/bits/Checksums.h"
#include "host/dwg/objects/Colours.h"

namespace host::dwg::test {

namespace {

/// The texts of R2007 and later stand behind the values, their length behind them, and a bit that tells whether there
/// are any.
void appendTexts(BitWriter &values, const BitWriter &texts)
{
    const auto size = static_cast<std::uint32_t>(texts.position());
    values.append(texts);
    if (size > 0x7fff)
        values.raw16(size >> 15);
    if (size > 0)
        values.raw16((size & 0x7fff) | (size > 0x7fff ? 0x8000 : 0));
    values.bit(size > 0);
}

} // namespace

ObjectWriter::ObjectWriter(Release release, const MadeHead &head) : m_release(release)
{
    m_values.objectType(release, head.type);
    if (since(Release::R2000) && until(Release::R2007))
        holdSize();
    m_values.handle(0, head.handle);
    writeExtensions(head);
    if (head.isEntity)
        writeGraphics(head);
    if (until(Release::R14))
        holdSize();
    if (head.isEntity)
        m_values.pair(head.space);
    m_values.longInteger(static_cast<std::int32_t>(head.reactors.size()));
    if (since(Release::R2004))
        m_values.bit(head.dictionary == 0);
    if (since(Release::R2013))
        m_values.bit(false); // no data in another section
    writeRelations(head);
    if (head.isEntity)
        writeEntityHead(head);
}

void ObjectWriter::holdSize()
{
    m_sizePlace = m_values.position();
    m_values.raw32(0);
}

void ObjectWriter::writeExtensions(const MadeHead &head)
{
    for (const MadeHead::Extension &extension : head.extensions) {
        m_values.shortInteger(static_cast<int>(extension.bytes.size()));
        m_values.handle(HandleReference::HardPointer, extension.application);
        m_values.rawBytes(extension.bytes);
    }
    m_values.shortInteger(0);
}

void ObjectWriter::writeGraphics(const MadeHead &head)
{
    m_values.bit(!head.graphics.empty());
    if (head.graphics.empty())
        return;
    if (since(Release::R2010))
        m_values.longLong(head.graphics.size());
    else
        m_values.raw32(static_cast<std::uint32_t>(head.graphics.size()));
    m_values.rawBytes(head.graphics);
}

void ObjectWriter::writeRelations(const MadeHead &head)
{
    if (head.space == 0 && head.isOwnerCounted)
        reference(head.handle - head.owner, HandleReference::Behind);
    else if (head.space == 0)
        reference(head.owner, HandleReference::SoftPointer);
    for (const std::uint64_t reactor : head.reactors)
        reference(reactor, HandleReference::SoftPointer);
    if (until(Release::R2000) || head.dictionary != 0)
        reference(head.dictionary, HandleReference::HardOwner);
}

void ObjectWriter::writeEntityHead(const MadeHead &head)
{
    const auto writeLinks = [&] {
        reference(head.previous, HandleReference::SoftPointer);
        reference(head.next, HandleReference::SoftPointer);
    };
    if (until(Release::R14))
        m_values.bit(true); // the layer's linetype
    if (until(Release::R2000))
        m_values.bit(!head.tellsNeighbours);
    writeEntityColour(head);
    m_values.real(head.linetypeScale);
    if (since(Release::R2000)) {
        m_values.pair(0); // linetype and plot style of the layer
        m_values.pair(0);
    }
    if (since(Release::R2007)) {
        m_values.pair(0); // material of the layer
        m_values.byte(0);
    }
    if (since(Release::R2010))
        m_values.bits(0, 3); // no visual styles
    m_values.shortInteger(head.isVisible ? 0 : 1);
    if (since(Release::R2000))
        m_values.byte(head.weight);
    if (until(Release::R14))
        reference(head.layer);
    if (until(Release::R2000) && head.tellsNeighbours)
        writeLinks();
    if (head.bookColour != 0)
        reference(head.bookColour);
    if (since(Release::R2000))
        reference(head.layer);
}

void ObjectWriter::writeEntityColour(const MadeHead &head)
{
    // A colour of its own in 24 bits, which an object has; and transparency.
    const int ofBook = head.bookColour != 0 ? 0xc000 : 0;
    const int transparent = head.transparency != 0 ? 0x2000 : 0;
    m_values.shortInteger(head.colour | ofBook | transparent);
    if (head.hasRgbBesideBook)
        m_values.longInteger(static_cast<std::int32_t>(trueColour));
    if (transparent != 0)
        m_values.longInteger(static_cast<std::int32_t>(head.transparency));
}

void ObjectWriter::rawFlatPoint(double x, double y)
{
    rawReal(x);
    rawReal(y);
}

void ObjectWriter::text(std::string_view text)
{
    if (since(Release::R2007))
        m_texts.text16(text);
    else
        m_values.text8(text);
}

void ObjectWriter::reference(std::uint64_t handle, int kind)
{
    m_references.handle(kind, handle);
}

void ObjectWriter::colour(int index)
{
    if (!since(Release::R2004))
        return int16(index);
    longColour(wholeColourOf(index));
}

void ObjectWriter::longColour(std::uint32_t rgb, std::string_view name, std::string_view book)
{
    int16(0);
    int32(static_cast<std::int32_t>(rgb));
    small((name.empty() ? 0 : 1) | (book.empty() ? 0 : 2));
    for (const std::string_view part : {name, book}) {
        if (!part.empty())
            text(part);
    }
}

void ObjectWriter::entryHead(std::string_view name)
{
    text(name);
    if (!since(Release::R2007)) {
        flag(false);
        int16(0);
        flag(false);
    } else {
        int16(0);
    }
}

std::vector<std::uint8_t> ObjectWriter::bytes() const
{
    BitWriter body = m_values;
    if (since(Release::R2007))
        appendTexts(body, m_texts);
    const std::size_t referencesStart = body.position();
    if (until(Release::R2007))
        body.putRaw32(m_sizePlace, static_cast<std::uint32_t>(referencesStart));
    body.append(m_references);
    body.align();

    BitWriter whole;
    whole.modularShort(static_cast<std::uint32_t>(body.bytes().size()));
    if (since(Release::R2010))
        whole.modularUnsigned(body.position() - referencesStart);
    whole.append(Bytes(body.bytes()));
    whole.raw16(checksum16(whole.bytes(), 0xc0c1));
    return whole.bytes();
}

std::vector<std::uint8_t> ObjectWriter::run() const
{
    if (!since(Release::R2007))
        return m_values.bytes();
    BitWriter whole;
    whole.raw32(0);
    whole.append(m_values);
    appendTexts(whole, m_texts);
    whole.putRaw32(0, static_cast<std::uint32_t>(whole.position()));
    whole.append(m_references);
    return whole.bytes();
}

} // namespace host::dwg::test
