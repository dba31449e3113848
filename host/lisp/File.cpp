#include "host/lisp/File.h"

#include "host/lisp/Paths.h"
#include "host/lisp/Text.h"

namespace host::lisp {

std::unique_ptr<File> File::open(const std::string &path, Mode mode, Encoding encoding)
{
    std::unique_ptr<File> file(new File(path, mode, encoding));
    if (mode == Mode::Read) {
        std::optional<std::string> bytes = readWholeFile(toPath(path), largestTextFile);
        if (!bytes)
            return nullptr;
        file->m_text = file->m_isBytes ? std::move(*bytes) : decodeFile(std::move(*bytes));
        return file;
    }
    const auto how = mode == Mode::Append ? std::ios::app : std::ios::trunc;
    file->m_stream.open(toPath(path), std::ios::binary | std::ios::out | how);
    if (!file->m_stream)
        return nullptr;
    if (encoding == Encoding::TextWithMark && file->m_stream.tellp() == 0)
        file->m_stream << "\xEF\xBB\xBF";
    return file;
}

void File::close()
{
    m_open = false;
    m_stream.close();
    m_text = {};
    m_position = 0;
}

std::optional<std::string> File::readLine()
{
    if (m_position >= m_text.size())
        return std::nullopt;
    const std::size_t end = std::min(m_text.find('\n', m_position), m_text.size());
    std::string line = m_text.substr(m_position, end - m_position);
    if (!m_isBytes && line.ends_with('\r'))
        line.pop_back();
    m_position = end + 1;
    return line;
}

std::optional<char32_t> File::readCharacter()
{
    if (m_position >= m_text.size())
        return std::nullopt;
    if (!m_isBytes && m_text.compare(m_position, 2, "\r\n") == 0)
        ++m_position;
    return takeCharacter(m_text, m_position);
}

void File::write(std::string_view text)
{
    m_stream << text;
}

} // namespace host::lisp
