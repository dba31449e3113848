#include "tests/dwg/making/BinaryModel.h"

#include <algorithm>
#include <cstdlib>

namespace host::dwg::test {

namespace {

class ModelWriter
{
public:
    explicit ModelWriter(ModelForm form) : m_form(form)
    {
        m_bytes.rawBytes(form.isWide ? "ASM BinaryFile8" : "ASM BinaryFile4");
        for (const int number : {form.version, 0, 2, 4})
            wide(number);
        if (form.version >= 200)
            line("\"Ortakit\" \"" + std::string(form.writer) + "\" \"Thu Jan 01 00:00:00 1970\" 25.4 1e-06 1e-10",
                 false);
    }

    void line(std::string_view text, bool hasName = true)
    {
        if (hasName)
            name(take(text));
        while (!text.empty())
            value(take(text));
    }

    std::string bytes() const { return {m_bytes.bytes().begin(), m_bytes.bytes().end()}; }

private:
    /// The next word, a position and a text being one; the blanks behind it go as well.
    static std::string_view take(std::string_view &text)
    {
        const char end = text.front() == '"' || text.front() == '\'' ? text.front() : text.front() == '(' ? ')' : ' ';
        const std::size_t at = std::min(text.find(end, 1), text.size());
        const std::string_view word = text.substr(0, end == ' ' ? at : at + 1);
        text.remove_prefix(word.size());
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
        return word;
    }

    void wide(std::int64_t number)
    {
        m_form.isWide ? m_bytes.raw64(static_cast<std::uint64_t>(number))
                      : m_bytes.raw32(static_cast<std::uint32_t>(number));
    }

    void shortText(int tag, std::string_view text)
    {
        m_bytes.byte(tag);
        m_bytes.byte(static_cast<int>(text.size()));
        m_bytes.rawBytes(text);
    }

    void name(std::string_view text)
    {
        for (std::size_t at = text.find('-'); at != std::string_view::npos; at = text.find('-')) {
            shortText(14, text.substr(0, at));
            text.remove_prefix(at + 1);
        }
        shortText(13, text);
    }

    void number(int tag, std::string_view word)
    {
        m_bytes.byte(tag);
        wide(std::atoll(std::string(word).c_str()));
    }

    void position(std::string_view word)
    {
        m_bytes.byte(19);
        const std::string numbers(word.substr(1));
        char *at = const_cast<char *>(numbers.c_str());
        for (int i = 0; i < 3; ++i)
            m_bytes.rawReal(std::strtod(at, &at));
    }

    void value(std::string_view word)
    {
        constexpr std::string_view signs = "TF{}#";
        constexpr int tags[] = {10, 11, 15, 16, 17};
        if (const std::size_t sign = signs.find(word); word.size() == 1 && sign != std::string_view::npos)
            return m_bytes.byte(tags[sign]);
        switch (word.front()) {
        case '$':
            return number(12, word.substr(1));
        case '(':
            return position(word);
        case '"':
            return shortText(7, word.substr(1, word.size() - 2));
        case '\'':
            m_bytes.byte(18);
            m_bytes.raw32(static_cast<std::uint32_t>(word.size() - 2));
            return m_bytes.rawBytes(word.substr(1, word.size() - 2));
        case '=':
            return shortText(13, word.substr(1));
        case 'e':
            return number(21, word.substr(1));
        default:
            break;
        }
        if (word.find_first_of(".e") == std::string_view::npos)
            return number(4, word);
        m_bytes.byte(6);
        m_bytes.rawReal(std::strtod(std::string(word).c_str(), nullptr));
    }

    ModelForm m_form;
    BitWriter m_bytes;
};

constexpr std::string_view triangle = R"(asmheader $-1 -1 "1.0" #
body $-1 -1 $-1 $2 $-1 $22 #
lump $-1 -1 $-1 $-1 $3 $1 #
shell $-1 -1 $-1 $-1 $-1 $4 $-1 $2 #
face $-1 -1 $-1 $-1 $5 $3 $-1 $6 F T F #
loop $-1 -1 $-1 $-1 $7 $4 #
plane-surface $-1 -1 $-1 (0 0 0) (0 0 1) (1 0 0) F F F F F #
coedge $-1 -1 $-1 $8 $9 $-1 $10 F $5 0 $-1 #
coedge $-1 -1 $-1 $9 $7 $-1 $11 F $5 0 $-1 #
coedge $-1 -1 $-1 $7 $8 $-1 $12 T $5 0 $-1 #
edge $-1 -1 $-1 $13 0.0 $14 4.0 $7 $19 F "unknown" #
edge $-1 -1 $-1 $14 0.0 $15 3.0 $8 $20 F "unknown" #
edge $-1 -1 $-1 $13 0.0 $15 5.0 $9 $21 F "unknown" #
vertex $-1 -1 $-1 $10 0 $16 #
vertex $-1 -1 $-1 $10 1 $17 #
vertex $-1 -1 $-1 $11 1 $18 #
point $-1 -1 $-1 (0 0 0) #
point $-1 -1 $-1 (4 0 0) #
point $-1 -1 $-1 (4 3 0) #
straight-curve $-1 -1 $-1 (0 0 0) (1 0 0) F F #
straight-curve $-1 -1 $-1 (4 0 0) (0 1 0) T 0.0 T 3.0 #
straight-curve $-1 -1 $-1 (0 0 0) (0.8 0.6 0) F F #
transform $-1 -1 (1 0 0) (0 1 0) (0 0 1) (1 2 0) 1.0 F F F #
)";

} // namespace

std::string binaryModel(std::string_view records, ModelForm form)
{
    ModelWriter writer(form);
    while (!records.empty()) {
        const std::size_t end = std::min(records.find('\n'), records.size());
        writer.line(records.substr(0, end));
        records.remove_prefix(std::min(end + 1, records.size()));
    }
    if (form.end)
        writer.line(form.end);
    return writer.bytes();
}

std::string triangleModel()
{
    return binaryModel(triangle);
}

std::string splineModel()
{
    return binaryModel(std::string(triangle) + "intcurve-curve $-1 -1 $-1 F { =exactcur e0 =nubs 1 e0 2 } F F #\n");
}

void writeSolid(ObjectWriter &o, std::string_view model, bool isSolid)
{
    o.flag(false);
    o.flag(true);
    o.int16(2);
    o.values().rawBytes(model);
    o.flag(false);
    o.flag(false);
    o.int32(0);
    if (isSolid)
        o.reference(0, HandleReference::SoftOwner);
}

} // namespace host::dwg::test
