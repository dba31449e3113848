#include "host/dwg/contents/Contents.h"
#include "host/dwg/contents/HeaderTable.h"
#include "host/dwg/objects/ObjectHead.h"

namespace host::dwg {

namespace {

/// Variables that stand in one number from R2000 on.
void noteBits(Fields &f, std::uint32_t bits, std::vector<HeaderNote> &noted)
{
    const auto note = [&](const char *name, int code, int value) {
        const std::size_t begin = f.mark();
        f.note(code, value);
        noted.push_back({headerPlace(name), begin, f.mark()});
    };
    const auto has = [bits](std::uint32_t bit) { return (bits & bit) != 0 ? 1 : 0; };
    note("$CELWEIGHT", 370, lineWeight(static_cast<int>(bits & 0x1f)));
    note("$ENDCAPS", 280, static_cast<int>(bits >> 5 & 3));
    note("$JOINSTYLE", 280, static_cast<int>(bits >> 7 & 3));
    note("$LWDISPLAY", 290, 1 - has(0x200));
    note("$XEDIT", 290, 1 - has(0x400));
    note("$EXTNAMES", 290, has(0x800));
    note("$PSTYLEMODE", 290, has(0x2000));
    note("$OLESTARTUP", 290, has(0x4000));
}

constexpr double millisecondsOfADay = 86400000.0;

/// Reads the variables in the order of the file.
class HeaderReader
{
public:
    explicit HeaderReader(Fields &fields) : f(fields) {}

    Header run()
    {
        const std::span<const HeaderRow> rows = headerRows();
        m_header.noted.reserve(rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const HeaderRow &row = rows[i];
            if (f.release() < row.first || f.release() > row.last)
                continue;
            if (row.kind == HeaderKind::StyleReference && !m_hasStyle)
                continue;
            const std::size_t begin = f.mark();
            read(row);
            if (row.kind == HeaderKind::Bits)
                continue;
            // What stands behind the end would be nothing but zeros.
            if (f.values().hasFailed() || row.name.empty())
                f.drop(begin);
            else
                m_header.noted.push_back({headerPlaces()[i], begin, f.mark()});
        }
        return std::move(m_header);
    }

private:
    void read(const HeaderRow &row)
    {
        switch (row.kind) {
        case HeaderKind::Flag:
            f.flag(row.code);
            return;
        case HeaderKind::Byte:
            f.small(row.code);
            return;
        case HeaderKind::IsOne:
            f.note(row.code, f.small() == 1);
            return;
        case HeaderKind::Int16:
            f.int16(row.code);
            return;
        case HeaderKind::Int32:
            f.int32(row.code);
            return;
        case HeaderKind::LongLong:
            f.note(row.code, f.values().longLong());
            return;
        case HeaderKind::Real:
            f.real(row.code);
            return;
        case HeaderKind::Angle:
            f.angle(row.code);
            return;
        case HeaderKind::Point:
            f.point(row.code);
            return;
        case HeaderKind::RawPoint:
            f.rawFlatPoint(row.code);
            return;
        case HeaderKind::Text:
            f.text(row.code);
            return;
        case HeaderKind::Colour:
            f.colour(row.code);
            return;
        case HeaderKind::Date:
        case HeaderKind::Span: {
            const double days = f.int32();
            f.note(row.code, days + f.int32() / millisecondsOfADay);
            return;
        }
        case HeaderKind::OwnHandle:
            m_header.firstFree = f.values().handle().value;
            f.noteHandle(row.code, m_header.firstFree);
            return;
        case HeaderKind::Bits:
            if (const auto bits = static_cast<std::uint32_t>(f.int32()); !f.values().hasFailed())
                noteBits(f, bits, m_header.noted);
            return;
        case HeaderKind::StyleKind:
            m_hasStyle = f.int16(row.code) == 3;
            return;
        case HeaderKind::Name:
        case HeaderKind::BlockName:
            noteName(row.code);
            return;
        case HeaderKind::Reference:
        case HeaderKind::StyleReference:
            f.noteHandle(row.code, reference());
            return;
        default:
            *root(row.kind) = reference();
        }
    }

    /// Nothing where what it names is lost, so that the variable has its usual value.
    void noteName(int code)
    {
        const std::uint64_t handle = reference();
        const std::string_view name = f.nameOf(handle);
        const bool isRead = !(f.since(Release::R2007) ? f.references() : f.values()).hasFailed();
        if (isRead && (handle == 0 || !name.empty()))
            f.note(code, name);
    }

    /// Before R2007 references stand among the values.
    std::uint64_t reference()
    {
        return f.since(Release::R2007) ? f.references().handle().value : f.values().handle().value;
    }

    std::uint64_t *root(HeaderKind kind)
    {
        switch (kind) {
        case HeaderKind::BlockTable:
            return &m_header.blockTable;
        case HeaderKind::LayerTable:
            return &m_header.layerTable;
        case HeaderKind::StyleTable:
            return &m_header.styleTable;
        case HeaderKind::LinetypeTable:
            return &m_header.linetypeTable;
        case HeaderKind::ViewTable:
            return &m_header.viewTable;
        case HeaderKind::SystemTable:
            return &m_header.systemTable;
        case HeaderKind::ViewportTable:
            return &m_header.viewportTable;
        case HeaderKind::ApplicationTable:
            return &m_header.applicationTable;
        case HeaderKind::DimensionStyleTable:
            return &m_header.dimensionStyleTable;
        case HeaderKind::NamedObjects:
            return &m_header.namedObjects;
        case HeaderKind::PaperSpace:
            return &m_header.paperSpace;
        default:
            return &m_header.modelSpace;
        }
    }

    Fields &f;
    Header m_header;
    bool m_hasStyle = false; ///< new objects have a plot style that is referred to
};

} // namespace

Header readHeader(const Container &container, Fields &fields, Problems &problems)
{
    const Bytes all = container.headerVariables;
    BitReader sizes(all);
    const std::size_t size = sizes.raw32();
    if (hasLongSizes(container))
        sizes.raw32();
    const std::size_t begin = sizes.position() / 8;
    if (sizes.hasFailed() || size > all.size() - begin) {
        problems.lose("The header's variables cannot be read.");
        return {};
    }
    const Bytes bytes = all.subspan(begin, size);
    if (container.release < Release::R2007) {
        fields.start(BitReader(bytes), {}, {});
    } else {
        BitReader values(bytes);
        const std::size_t end = std::min<std::size_t>(values.raw32(), size * 8);
        fields.start(BitReader(bytes, 32, end), textsOf(bytes, end), BitReader(bytes, end, size * 8));
    }
    Header header = HeaderReader(fields).run();
    if (fields.hasFailed())
        problems.lose("The header's variables end too early.");
    return header;
}

} // namespace host::dwg
