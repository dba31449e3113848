#pragma once

#include "files/WritableFile.h"
#include "host/lisp/Value.h"

#include <memory>
#include <optional>
#include <string>

namespace host::lisp {

class Console;

/// A text file that a program has open. It closes itself when the last value that refers to it goes.
///
/// A file opened for reading is taken into memory and decoded as a whole: what files::utf8Text() takes it for. Line
/// ends of both kinds count as one line feed. Read as bytes, nothing is decoded and no byte is left out: a byte-order
/// mark and carriage returns are part of the lines, so that what is not changed can be written back.
class File : public Object
{
public:
    enum class Mode : std::uint8_t
    {
        Read,
        Write,
        Append
    };
    enum class Encoding : std::uint8_t
    {
        Text,
        TextWithMark, ///< a new file begins with a byte-order mark
        Bytes
    };

    /// Null when the file cannot be opened, or is too large or no regular file to read.
    /// `console` outlives the file and hears of text that the disk did not take after all.
    static std::unique_ptr<File> open(Console &console, const std::string &path, Mode mode, Encoding encoding);
    ~File();
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    const std::string &path() const noexcept { return m_path; }
    bool isOpen() const noexcept { return m_open; }
    bool isReading() const noexcept { return m_mode == Mode::Read; }
    /// False when the disk does not hold what was written; problem() says why. The file is closed all the same.
    bool close();

    /// The next line without its end; nothing at the end of the file.
    std::optional<std::string> readLine();
    /// The next character's code; nothing at the end of the file.
    std::optional<char32_t> readCharacter();
    /// False when the text, or some in front of it, cannot be written.
    bool write(std::string_view text);
    /// A sentence without its end: which file cannot be written, and why.
    std::string problem() const;

private:
    File(Console &console, std::string path, Mode mode, Encoding encoding);

    Console &m_console;
    std::string m_path;
    Mode m_mode;
    bool m_isBytes;
    bool m_open = true;
    std::string m_text; ///< decoded content, when reading
    std::size_t m_position = 0;
    HeapShare m_share;
    std::optional<files::WritableFile> m_written;
};

inline File &Value::asFile() const noexcept
{
    assert(tag() == Tag::File);
    return *static_cast<File *>(m_object);
}

} // namespace host::lisp
