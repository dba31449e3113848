#include "host/lisp/File.h"

#include "files/TextEncoding.h"
#include "host/lisp/Console.h"
#include "host/lisp/Paths.h"
#include "host/lisp/Text.h"

namespace host::lisp {

File::File(Console &console, std::string path, Mode mode, Encoding encoding)
    : m_console(console), m_path(std::move(path)), m_mode(mode), m_isBytes(encoding == Encoding::Bytes)
{
}

File::~File()
{
    if (m_open && !close())
        m_console.tellLostText("\n" + problem() + ".\n");
}

std::unique_ptr<File> File::open(Console &console, const std::string &path, Mode mode, Encoding encoding)
{
    std::unique_ptr<File> file(new File(console, path, mode, encoding));
    if (mode == Mode::Read) {
        std::optional<std::string> bytes = readWholeFile(toPath(path), largestTextFile);
        if (!bytes)
            return nullptr;
        file->m_text = file->m_isBytes ? std::move(*bytes) : files::utf8Text(std::move(*bytes), console.codePage());
        file->m_share.grow(file->m_text.capacity());
        return file;
    }
    using Start = files::WritableFile::Start;
    file->m_written.emplace(toPath(path), mode == Mode::Append ? Start::AtEnd : Start::Empty);
    if (!*file->m_written) {
        file->m_open = false;
        return nullptr;
    }
    if (encoding == Encoding::TextWithMark && file->m_written->isEmpty())
        file->m_written->write("\xEF\xBB\xBF");
    return file;
}

bool File::close()
{
    m_open = false;
    m_text = {};
    m_share.release();
    m_position = 0;
    return !m_written || m_written->close();
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

bool File::write(std::string_view text)
{
    return m_written && m_written->write(text);
}

std::string File::problem() const
{
    return "cannot write " + m_path + ": " + (m_written ? m_written->reason() : std::string());
}

} // namespace host::lisp
