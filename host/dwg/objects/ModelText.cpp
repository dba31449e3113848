#include "host/dwg/objects/ModelText.h"

#include "host/dwg/objects/ModelWords.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace host::dwg {

namespace {

// From these versions of models on: words for logical values, and two more lines of head; a sign in front of texts.
constexpr std::int64_t withWords = 200;
constexpr std::int64_t withSign = 700;

/// How programs write numbers: with as many digits as give them back, and exponents of two or three.
struct NumberForm
{
    std::string_view system; ///< what the version of the program ends with that wrote the model
    int digits;
    std::size_t exponentDigits;
};

constexpr NumberForm numberForms[] = {
    {" OSX", 19, 2},
    {" NT", 17, 3},
    {"", 17, 2},
};

const NumberForm &numberFormOf(std::string_view writer)
{
    return *std::ranges::find_if(numberForms, [writer](const auto &form) { return writer.ends_with(form.system); });
}

std::string modelNumber(double value, int digits, std::size_t exponentDigits)
{
    char text[40];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::general, digits);
    std::string number(text, end.ptr);
    // Exponents have a sign and two digits at least.
    const std::size_t exponent = number.find('e');
    if (exponent != std::string::npos && number.size() - exponent - 2 < exponentDigits)
        number.insert(exponent + 2, 1, '0');
    return number;
}

bool isPlainLetter(char c)
{
    return c > ' ' && c <= '~';
}

/// Puts together the lines of one model. False, once and for good, for what has no text.
class ModelLines
{
public:
    ModelLines(std::string_view model, const std::function<void(const std::string &)> &take)
        : m_take(take), m_reader(model), m_version(m_reader.head()[0])
    {
    }

    bool read()
    {
        if (m_reader.hasFailed() || !readHead())
            return false;
        while (readRecord()) {
            if (m_isClosed)
                return m_reader.isAtEnd();
        }
        return false;
    }

private:
    /// The lines in front of the records: numbers, what wrote the model, units and tolerances.
    bool readHead()
    {
        for (const std::int64_t number : m_reader.head())
            addWord(std::to_string(number));
        closeLine();
        for (int i = 0; i < 6 && m_version >= withWords; ++i) {
            const bool isTextLine = i < 3;
            if (!m_reader.next(m_value) || (isTextLine ? !m_value.isText() : m_value.tag != ModelTag::Real) ||
                !addValue(m_value))
                return false;
            if (i == 1)
                m_numberForm = &numberFormOf(m_value.text);
            if (i == 2 || i == 5)
                closeLine();
        }
        return true;
    }

    bool readRecord()
    {
        const std::optional<std::string> name = readName();
        if (!name)
            return false;
        addWord(*name);
        m_isClosed = endsModel(*name);
        if (!m_isClosed && !addValues(*name))
            return false;
        closeLine();
        return true;
    }

    std::optional<std::string> readName()
    {
        std::string name;
        while (m_reader.next(m_value) && m_value.tag == ModelTag::NamePart)
            name += m_value.text + '-';
        name += m_value.text;
        const bool isName = m_value.tag == ModelTag::Name && !m_reader.hasFailed();
        return isName && std::ranges::all_of(name, isPlainLetter) ? std::optional(name) : std::nullopt;
    }

    /// The words of the record's logical values, which its form tells: it is looked at first. Without words in versions
    /// that have none.
    std::optional<std::vector<std::string_view>> wordsAhead(std::string_view name) const
    {
        RecordForm form;
        ModelReader ahead = m_reader;
        ModelValue value;
        while (m_version >= withWords && ahead.next(value) && value.tag != ModelTag::EndOfRecord)
            form.add(value);
        return form.words(name);
    }

    bool addValues(std::string_view name)
    {
        const auto words = wordsAhead(name);
        if (!words)
            return false;
        auto word = words->begin();
        do {
            if (!m_reader.next(m_value))
                return false;
            if (m_value.isLogical() && word != words->end())
                addWord(*word++);
            else if (!(name == "transform" && addLiteral(m_value)) && !addValue(m_value))
                return false;
        } while (m_value.tag != ModelTag::EndOfRecord);
        return true;
    }

    bool addValue(const ModelValue &value)
    {
        switch (value.tag) {
        case ModelTag::Int16:
        case ModelTag::Int32:
        case ModelTag::Int64:
        case ModelTag::Enumeration: // a number in versions that have no words
            addWord(std::to_string(value.number));
            return true;
        case ModelTag::Reference:
            addWord('$' + std::to_string(value.number));
            return true;
        case ModelTag::True:
        case ModelTag::False:
            addWord(value.tag == ModelTag::True ? "1" : "0");
            return true;
        case ModelTag::Open:
            addWord("{");
            return true;
        case ModelTag::Close:
            addWord("}");
            return true;
        case ModelTag::EndOfRecord:
            addWord("#");
            return true;
        case ModelTag::Name:
            return addName(value.text);
        case ModelTag::NamePart: // known in names of records alone
        case ModelTag::Character:
        case ModelTag::LiteralText: // known in transforms alone
            return false;
        default:
            return value.isText() ? addText(value.text) : addReals(value);
        }
    }

    bool addName(std::string_view name)
    {
        addWord(name);
        return std::ranges::all_of(name, isPlainLetter);
    }

    /// Transforms may have all of their values as one text.
    bool addLiteral(const ModelValue &value)
    {
        if (value.tag != ModelTag::LiteralText || !isPlain(value.text))
            return false;
        addWord(std::string_view(value.text).substr(0, value.text.find_last_not_of(' ') + 1));
        return true;
    }

    static bool isPlain(std::string_view text)
    {
        return std::ranges::all_of(text, [](char c) { return c == ' ' || isPlainLetter(c); });
    }

    bool addText(std::string_view text)
    {
        if (!isPlain(text))
            return false;
        addWord((m_version >= withSign ? "@" : "") + std::to_string(text.size()));
        addWord(text);
        return true;
    }

    bool addReals(const ModelValue &value)
    {
        const int digits = value.tag == ModelTag::Float ? 9 : m_numberForm->digits;
        for (std::size_t i = 0; i < value.realCount; ++i) {
            if (!std::isfinite(value.reals[i]))
                return false;
            addWord(modelNumber(value.reals[i], digits, m_numberForm->exponentDigits));
        }
        return true;
    }

    void addWord(std::string_view word)
    {
        if (!m_line.empty())
            m_line += ' ';
        m_line += word;
    }

    void closeLine()
    {
        m_take(m_line);
        m_line.clear();
    }

    const std::function<void(const std::string &)> &m_take;
    ModelReader m_reader;
    std::int64_t m_version;
    const NumberForm *m_numberForm = &numberFormOf({});
    ModelValue m_value;
    std::string m_line;
    bool m_isClosed = false;
};

} // namespace

bool takeModelLines(std::string_view model, const std::function<void(const std::string &)> &take)
{
    return ModelLines(model, take).read();
}

std::string disguisedLine(std::string line)
{
    constexpr int sum = 159;
    for (char &c : line)
        c = isPlainLetter(c) ? static_cast<char>(sum - c) : c;
    return line;
}

} // namespace host::dwg
