#include "files/TextEncoding.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <iconv.h>

namespace files {

namespace {

constexpr std::string_view usualPage = "CP1252";
constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view littleMark = "\xFF\xFE";
constexpr std::string_view bigMark = "\xFE\xFF";
constexpr std::string_view replacement = "\xEF\xBF\xBD";

/// The system's converter between two encodings.
class Converter
{
public:
    Converter(const std::string &to, const std::string &from) : m_handle(iconv_open(to.c_str(), from.c_str())) {}
    ~Converter()
    {
        if (isOpen())
            iconv_close(m_handle);
    }
    Converter(const Converter &) = delete;
    Converter &operator=(const Converter &) = delete;

    // iconv's own mark of a failure.
    bool isOpen() const { return m_handle != reinterpret_cast<iconv_t>(-1); } // NOLINT(performance-no-int-to-ptr)

    /// Converts up to the first bytes that are no character and takes it off the input.
    void convert(std::string_view &input, std::string &output)
    {
        iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
        char *in = const_cast<char *>(input.data());
        std::size_t left = input.size();
        step(&in, &left, output);
        // Some code pages hold a character back until told that no more comes.
        step(nullptr, nullptr, output);
        input.remove_prefix(input.size() - left);
    }

private:
    void step(char **in, std::size_t *left, std::string &output)
    {
        bool isFull = true;
        while (isFull) {
            std::array<char, 4096> buffer;
            char *out = buffer.data();
            std::size_t room = buffer.size();
            isFull = iconv(m_handle, in, left, &out, &room) == static_cast<std::size_t>(-1) && errno == E2BIG;
            output.append(buffer.data(), out);
        }
    }

    iconv_t m_handle;
};

/// A character of up to 0x7FF, in UTF-8.
void appendByteValue(std::string &text, unsigned char byte)
{
    text += static_cast<char>(0xC0U | (byte >> 6U));
    text += static_cast<char>(0x80U | (byte & 0x3FU));
}

/// `unit`: how many bytes are passed over where there is no character.
std::string decoded(std::string_view bytes, const std::string &encoding, std::size_t unit)
{
    Converter converter("UTF-8", encoding);
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 4);
    while (!bytes.empty() && converter.isOpen()) {
        converter.convert(bytes, text);
        if (bytes.empty())
            break;
        if (encoding == usualPage)
            appendByteValue(text, static_cast<unsigned char>(bytes.front()));
        else
            text += replacement;
        bytes.remove_prefix(std::min(unit, bytes.size()));
    }
    return text;
}

bool isUtf8(const std::string &bytes)
{
    const bool isPlain =
        std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
    if (isPlain)
        return true;
    std::string_view rest = bytes;
    std::string ignored;
    Converter converter("UTF-16LE", "UTF-8");
    if (converter.isOpen())
        converter.convert(rest, ignored);
    return rest.empty();
}

/// Text of the West has a zero in every second byte, and no other form of text has zeros: the encoding's name, or
/// empty.
std::string unmarkedUtf16(std::string_view bytes)
{
    constexpr std::size_t sample = 512;
    std::array<std::size_t, 2> zeros = {0, 0};
    const std::size_t count = std::min(bytes.size() & ~std::size_t(1), sample);
    for (std::size_t i = 0; i < count; ++i)
        zeros[i % 2] += bytes[i] == '\0' ? 1 : 0;
    const std::size_t most = std::max(zeros[0], zeros[1]);
    const bool isUtf16 = most >= 2 && most >= count / 4 && std::min(zeros[0], zeros[1]) == 0;
    return !isUtf16 ? std::string() : zeros[1] > 0 ? "UTF-16LE" : "UTF-16BE";
}

std::string upperCase(std::string_view text)
{
    std::string upper(text);
    for (char &c : upper)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return upper;
}

} // namespace

std::string codePageName(std::string_view name)
{
    std::string page = upperCase(name);
    for (const std::string_view prefix : {"ANSI_", "WINDOWS-", "DOS", "CP"})
        if (page.starts_with(prefix))
            page.erase(0, prefix.size());
    const bool isNumber =
        !page.empty() && std::all_of(page.begin(), page.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
    if (page == "65001" || page == "UTF8")
        page = "UTF-8";
    else if (isNumber)
        page.insert(0, "CP");
    // Every system has these under their numbers.
    else if (page == "GBK" || page == "GB2312")
        page = "CP936";
    else if (page == "SJIS" || page == "SHIFT_JIS" || page == "SHIFT-JIS")
        page = "CP932";
    else if (page == "BIG5")
        page = "CP950";
    return !page.empty() && page.size() < 32 && Converter("UTF-8", page).isOpen() ? page : std::string();
}

std::string utf8Text(std::string bytes, std::string_view codePage)
{
    const std::string_view all = bytes;
    if (all.starts_with(utf8Mark)) {
        bytes.erase(0, utf8Mark.size());
    } else if (all.starts_with(littleMark) || all.starts_with(bigMark)) {
        return decoded(all.substr(2), all.starts_with(littleMark) ? "UTF-16LE" : "UTF-16BE", 2);
    } else if (const std::string encoding = unmarkedUtf16(all); !encoding.empty()) {
        return decoded(all, encoding, 2);
    }
    if (isUtf8(bytes))
        return bytes;
    const std::string page = codePageName(codePage);
    return decoded(bytes, page.empty() || page == "UTF-8" ? std::string(usualPage) : page, 1);
}

} // namespace files
