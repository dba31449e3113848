#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace ortakit::test {

// Files of cases: Lisp as a person writes it, and behind it what comes of it.
//
//     ; A comment. What stands before the first empty line is run in front of every group, when it has no case itself.
//     (defun twice (x) (* 2 x))
//
//     (setq a 3)                         lines are collected up to a mark
//     (twice a) ;= 6                     one case: the source is "(setq a 3) (twice a)"
//     (getint "N: ") ;< 7 ;> N: ;= 7     with what is typed and (part of) what is printed
//     (list 1 2)                         a mark may begin a line of its own
//     ;= (1 2)
//
// Cases without an empty line between them are a group: one runs behind the other in the same interpreter.

/// One case: its source in one line, and the texts behind its marks by their characters (";= 6" is '=').
struct CaseRow
{
    std::string place; ///< "file.lsp:12", for messages
    std::string source;
    std::map<char, std::string> marks;

    bool has(char mark) const { return marks.contains(mark); }
    const std::string &text(char mark) const
    {
        static const std::string none;
        const auto found = marks.find(mark);
        return found == marks.end() ? none : found->second;
    }
    /// A mark's text with "\n" and "\\" in it read as a line feed and a backslash.
    std::string lines(char mark) const
    {
        std::string result;
        const std::string &raw = text(mark);
        for (std::size_t i = 0; i < raw.size(); ++i) {
            const bool isEscape = raw[i] == '\\' && i + 1 < raw.size();
            result += !isEscape ? raw[i] : raw[++i] == 'n' ? '\n' : raw[i];
        }
        return result;
    }
};

struct CaseFile
{
    std::string prelude;
    std::vector<std::vector<CaseRow>> groups; ///< empty when the file cannot be read
};

/// Takes lines and makes rows of them.
class CaseReader
{
public:
    explicit CaseReader(std::string name) : m_name(std::move(name)) {}

    void take(std::string line)
    {
        ++m_line;
        if (line.empty())
            return endGroup();
        if (line[0] == ';' && (line.size() < 3 || line[2] != ' ' || !isMark(line[1])))
            return;
        std::size_t end = line.size();
        std::map<char, std::string> marks;
        for (std::size_t at = line.size(); at-- > 0;) {
            const bool isStart = line[at] == ';' && at + 1 < line.size() && isMark(line[at + 1]) &&
                                 (at == 0 || line[at - 1] == ' ') && (at + 2 == line.size() || line[at + 2] == ' ');
            if (!isStart)
                continue;
            const std::size_t text = std::min(at + 3, end);
            marks[line[at + 1]] = line.substr(text, end - text);
            end = at == 0 ? 0 : at - 1;
        }
        const std::string source = line.substr(0, end);
        m_row.source += m_row.source.empty() || source.empty() ? source : ' ' + source;
        m_row.marks.merge(marks);
        if (m_row.has('=')) {
            m_row.place = m_name + ':' + std::to_string(m_line);
            m_group.push_back(std::exchange(m_row, {}));
        }
    }
    CaseFile finish()
    {
        endGroup();
        return std::move(m_file);
    }

private:
    static bool isMark(char c) { return std::string("=<>!?~").find(c) != std::string::npos; }
    void endGroup()
    {
        if (!m_group.empty())
            m_file.groups.push_back(std::exchange(m_group, {}));
        else if (m_file.groups.empty())
            m_file.prelude += m_row.source;
        m_row = {};
    }

    std::string m_name;
    int m_line = 0;
    CaseRow m_row;
    std::vector<CaseRow> m_group;
    CaseFile m_file;
};

inline CaseFile readCases(const std::filesystem::path &path)
{
    std::ifstream stream(path);
    CaseReader reader(path.filename().string());
    for (std::string line; std::getline(stream, line);)
        reader.take(line);
    return reader.finish();
}

/// A file or folder below that of the tests: "kernel/cases".
inline std::filesystem::path testFile(const char *name)
{
    const char *top = std::getenv("ORTAKIT_SOURCE");
    return std::filesystem::path(top ? top : ".") / "tests" / name;
}

/// The files of such a folder; the folder itself, which is no file, when there are none.
inline std::vector<std::filesystem::path> caseFiles(const char *folder)
{
    std::set<std::filesystem::path> files;
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator(testFile(folder), error))
        files.insert(entry.path());
    if (files.empty())
        return {testFile(folder)};
    return {files.begin(), files.end()};
}

/// A file's name as that of a test: "undo.lsp" is "undo".
inline std::string caseName(const std::filesystem::path &path)
{
    return path.stem().string();
}

} // namespace ortakit::test
