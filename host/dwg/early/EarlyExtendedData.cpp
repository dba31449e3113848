#include "host/dwg/early/EarlyRecord.h"

namespace host::dwg {

namespace {

/// Items of a code and a value; the code is the text form's without the thousand.
class EarlyDataReader
{
public:
    EarlyDataReader(BitReader data, const EarlyNames &names, Fields &fields) : m_data(data), m_names(names), f(fields)
    {
    }

    bool run()
    {
        while (m_data.left() != 0 && !m_data.hasFailed())
            readItem(m_data.byte());
        return !m_data.hasFailed();
    }

private:
    void readItem(int code)
    {
        constexpr int base = 1000;
        const int group = base + code;
        if (code == 0)
            f.note(group, m_data.rawText(m_data.byte()));
        else if (code == 1)
            noteName(group, EarlyTableKind::Applications);
        else if (code == 2)
            f.note(group, m_data.byte() == 0 ? "{" : "}");
        else if (code == 3)
            noteName(group, EarlyTableKind::Layers);
        else if (code == 4)
            f.noteBinary(group, m_data.rawBytes(m_data.byte()));
        else if (code == 5)
            f.noteHandle(group, takeEarlyHandle(m_data, 8));
        else if (code >= 10 && code <= 15)
            f.note(group, Point{m_data.rawReal(), m_data.rawReal(), m_data.rawReal()});
        else if (code >= 40 && code <= 42)
            f.note(group, m_data.rawReal());
        else if (code == 70)
            f.note(group, static_cast<std::int16_t>(m_data.raw16()));
        else if (code == 71)
            f.note(group, static_cast<std::int32_t>(m_data.raw32()));
        else
            m_data.fail();
    }

    void noteName(int group, EarlyTableKind kind)
    {
        const std::string_view name = m_names.name(kind, m_data.raw16());
        if (name.empty())
            m_data.fail();
        f.note(group, name);
    }

    BitReader m_data;
    const EarlyNames &m_names;
    Fields &f;
};

} // namespace

bool noteEarlyExtendedData(BitReader data, const EarlyNames &names, Fields &fields)
{
    const std::size_t begin = fields.mark();
    if (EarlyDataReader(data, names, fields).run())
        return true;
    fields.drop(begin);
    return false;
}

} // namespace host::dwg
