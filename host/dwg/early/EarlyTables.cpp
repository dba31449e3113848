#include "host/dwg/early/EarlyTables.h"

namespace host::dwg {

namespace {

/// The own fields of a table's records.
struct EarlyTableFields
{
    Fields &f;
    const EarlyNames &names;
    const char *doubt = nullptr; ///< what is left out because no known file tells what it is

    void byte(int code) { f.note(code, static_cast<int>(f.values().byte())); }
    void number(int code) { f.note(code, static_cast<std::int16_t>(f.values().raw16())); }
    void angle(int code) { f.noteAngle(code, f.rawReal()); }
    void text(int code, std::size_t size) { f.note(code, f.values().rawText(size)); }
};

void readEarlyViewport(EarlyTableFields &r)
{
    Fields &f = r.f;
    const std::size_t begin = f.mark();
    f.rawFlatPoint(10);
    f.rawFlatPoint(11);
    f.rawPoint(17);
    f.rawPoint(16);
    r.angle(51);
    f.rawReal(40);
    f.rawFlatPoint(12);
    for (const int code : {41, 42, 43, 44})
        f.rawReal(code);
    for (const int code : {71, 72, 73, 74, 75, 76, 77, 78})
        r.number(code);
    r.angle(50);
    f.rawFlatPoint(13);
    f.rawFlatPoint(14);
    f.rawFlatPoint(15);
    // Each point is noted as its parts.
    f.arrange(begin,
              {10, 20, 11, 21, 12, 22, 13, 23, 14, 24, 15, 25, 16, 26, 36, 17, 27, 37, 40, 41, 42, 43, 44, 50, 51, 71});
}

void readEarlyLinetype(EarlyTableFields &r)
{
    constexpr int mostDashes = 12;
    Fields &f = r.f;
    r.text(3, 48);
    r.byte(72);
    const int count = f.values().byte();
    if (count > mostDashes)
        f.fail();
    f.note(73, count);
    f.rawReal(40);
    for (int i = 0; i < mostDashes; ++i) {
        const double dash = f.rawReal();
        if (i < count)
            f.note(49, dash);
    }
}

void readEarlyLayer(EarlyTableFields &r)
{
    r.number(62);
    const std::string_view linetype = r.names.linetype(r.f.values().raw16());
    r.f.note(6, linetype.empty() ? "CONTINUOUS" : linetype);
}

void readEarlyStyle(EarlyTableFields &r)
{
    r.f.rawReal(40);
    r.f.rawReal(41);
    r.angle(50);
    r.byte(71);
    r.f.rawReal(42);
    r.text(3, 64);
    r.text(4, 64);
}

void readEarlyView(EarlyTableFields &r)
{
    Fields &f = r.f;
    f.rawReal(40);
    f.rawFlatPoint(10);
    f.rawReal(41);
    f.rawPoint(11);
    f.values().raw16(); // whether it looks at the drawing from above, which the direction says as well
    if (f.release() < Release::R10)
        return;
    f.rawPoint(12);
    f.rawReal(42);
    // The two clipping planes and the turn, of which no known file tells which is which.
    const std::size_t begin = f.mark();
    for (const int code : {43, 44, 50}) {
        if (f.rawReal(code) != 0.0)
            r.doubt = "Clipping planes and turn of the view are left out.";
    }
    if (r.doubt)
        f.drop(begin);
    r.number(71);
}

void readEarlySystem(EarlyTableFields &r)
{
    r.f.rawPoint(10);
    r.f.rawPoint(11);
    r.f.rawPoint(12);
}

void readEarlyDimensionStyle(EarlyTableFields &r)
{
    constexpr std::size_t affixSize = 16;
    constexpr std::size_t blockNameSize = 33;
    Fields &f = r.f;
    const std::size_t begin = f.mark();
    for (const int code : {40, 41, 42, 43, 44, 45, 46, 47, 48, 140, 141, 142, 143, 144, 145})
        f.rawReal(code);
    for (const int code : {71, 72, 73, 74, 75, 76, 77, 78, 170, 171, 172, 173, 174, 175})
        r.byte(code);
    r.text(3, affixSize);
    r.text(4, affixSize);
    for (const int code : {5, 6, 7})
        r.text(code, blockNameSize);
    for (const int code : {176, 177, 178})
        r.number(code);
    f.rawReal(146);
    f.rawReal(147);
    f.arrange(begin, {3, 4, 5, 6, 7, 40, 41, 42, 43, 44, 45, 46, 47, 48, 140, 141, 142, 143, 144, 145, 146, 147});
}

struct EarlyTableRow
{
    EarlyTableKind kind;
    const char *name;
    void (*read)(EarlyTableFields &); ///< null where records have no more than their names
};

/// In the order of the text form.
constexpr EarlyTableRow earlyTableRows[] = {
    {EarlyTableKind::Viewports, "VPORT", readEarlyViewport},
    {EarlyTableKind::Linetypes, "LTYPE", readEarlyLinetype},
    {EarlyTableKind::Layers, "LAYER", readEarlyLayer},
    {EarlyTableKind::Styles, "STYLE", readEarlyStyle},
    {EarlyTableKind::Views, "VIEW", readEarlyView},
    {EarlyTableKind::Systems, "UCS", readEarlySystem},
    {EarlyTableKind::Applications, "APPID", nullptr},
    {EarlyTableKind::DimensionStyles, "DIMSTYLE", readEarlyDimensionStyle},
};

class EarlyTableWriter
{
public:
    EarlyTableWriter(const EarlyFile &file, const EarlyNames &names, std::string &text, Problems &problems)
        : m_file(file), m_names(names), m_text(text), m_problems(problems), m_fields(file.release, m_noNames)
    {
    }

    void run()
    {
        begin("SECTION");
        m_fields.note(2, "TABLES");
        m_fields.write(m_text);
        check(m_file.table(EarlyTableKind::Blocks), "BLOCK");
        for (const EarlyTableRow &row : earlyTableRows) {
            if (m_file.table(row.kind).isThere)
                writeTable(row);
        }
        begin("ENDSEC");
        m_fields.write(m_text);
    }

private:
    void begin(std::string_view type, BitReader values = {})
    {
        m_fields.start(values, {}, {});
        m_fields.note(0, type);
    }

    void check(const EarlyTable &table, const char *name)
    {
        bool isIntact = true;
        for (std::size_t i = 0; m_file.isChecked() && isIntact && i < table.count; ++i) {
            const std::size_t begin = table.at + i * table.recordSize;
            isIntact = fitsEarlyChecksum(m_file.bytes, begin, begin + table.recordSize);
        }
        if (!isIntact)
            m_problems.warn(std::string("A checksum of the table ") + name + " does not fit.");
    }

    void writeTable(const EarlyTableRow &row)
    {
        const EarlyTable &table = m_file.table(row.kind);
        check(table, row.name);
        begin("TABLE");
        m_fields.note(2, row.name);
        m_fields.note(70, table.count);
        m_fields.write(m_text);
        for (std::size_t i = 0; i < table.count; ++i)
            writeRecord(row, earlyTableRecord(m_file, table, i));
        begin("ENDTAB");
        m_fields.write(m_text);
    }

    void writeRecord(const EarlyTableRow &row, const EarlyTableRecord &record)
    {
        if (record.isDeleted())
            return;
        if (record.name.empty() && !(row.kind == EarlyTableKind::Styles && record.isOfShapes()))
            return m_problems.add({Problem::Kind::Lost, "It has no name.", row.name, 0});
        begin(row.name, record.body);
        m_fields.note(2, record.name);
        m_fields.note(70, record.flags);
        EarlyTableFields fields{.f = m_fields, .names = m_names};
        if (row.read)
            row.read(fields);
        if (m_fields.hasFailed() || m_fields.values().left() != 0)
            return m_problems.add({Problem::Kind::Lost, "Its values do not fill its record.", row.name, 0});
        if (fields.doubt)
            m_problems.add({Problem::Kind::Warning, fields.doubt, row.name, 0});
        m_fields.write(m_text);
    }

    const EarlyFile &m_file;
    const EarlyNames &m_names;
    std::string &m_text;
    Problems &m_problems;
    Names m_noNames;
    Fields m_fields;
};

} // namespace

void writeEarlyTables(const EarlyFile &file, const EarlyNames &names, std::string &text, Problems &problems)
{
    EarlyTableWriter(file, names, text, problems).run();
}

} // namespace host::dwg
