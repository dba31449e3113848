// Files and folders on the disk. What the system refuses gives nil, never an error.

#include "files/FileReplacement.h"
#include "files/WritableFile.h"
#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Paths.h"
#include "host/lisp/Text.h"
#include "host/lisp/WildcardMatch.h"

#include <chrono>
#include <ctime>
#include <limits>

namespace host::lisp {

namespace fs = std::filesystem;

/// An integer when it fits, else a real: files grow beyond 2 GB.
static Value sizeValue(std::uintmax_t size)
{
    if (size <= static_cast<std::uintmax_t>(std::numeric_limits<std::int32_t>::max()))
        return Value::integer(static_cast<std::int32_t>(size));
    return Value::real(static_cast<double>(size));
}

static bool isRegularFile(const fs::path &path)
{
    std::error_code error;
    return fs::is_regular_file(path, error);
}

// (vl-file-delete path) -> T when the file is gone. Folders are left alone.
static Value deleteFile(Arguments &args)
{
    std::error_code error;
    const fs::path path = toPath(args.string(0));
    return args.boolean(isRegularFile(path) && fs::remove(path, error));
}

/// What a full disk took only a part of is no copy.
static bool copyWhole(const fs::path &from, const fs::path &to)
{
    std::error_code error;
    if (fs::copy_file(from, to, error))
        return true;
    std::error_code ignored;
    fs::remove(to, ignored);
    return false;
}

// (vl-file-copy from to [append]) -> the bytes copied. A target that exists is only added to, with append.
static Value copyFile(Arguments &args)
{
    const fs::path from = toPath(args.string(0));
    const fs::path to = toPath(args.string(1));
    std::error_code error;
    const bool exists = fs::exists(to, error);
    const bool isSame = exists && fs::equivalent(from, to, error);
    if (!isRegularFile(from) || isSame || (exists && !args.has(2)))
        return {};
    const std::uintmax_t size = fs::file_size(from, error);
    if (error)
        return {};
    if (!exists)
        return copyWhole(from, to) ? sizeValue(size) : Value();
    const std::optional<std::string> bytes = readWholeFile(from, std::numeric_limits<std::uintmax_t>::max());
    return bytes && files::appendToFile(to, *bytes).empty() ? sizeValue(bytes->size()) : Value();
}

// (file-put-lines path lines) -> T when the file holds the lines, a line feed between each two of them; nil when it
// could not be written, and is as it was. What people gave the file it keeps: links, other names, attributes.
static Value putLines(Arguments &args)
{
    std::string text;
    const char *between = "";
    for (const Value &line : ListItems(args.list(1))) {
        if (!line.isString())
            args.badType(1, "stringp");
        args.interpreter().checkStringLength(text.size() + line.asString().size() + 1);
        (text += between) += line.asString();
        between = "\n";
    }
    return args.boolean(files::replaceFile(toPath(args.string(0)), text).empty());
}

// (vl-file-rename from to) -> T. A target that exists: nil.
static Value renameFile(Arguments &args)
{
    std::error_code error;
    const fs::path to = toPath(args.string(1));
    if (to.empty() || fs::exists(to, error))
        return {};
    fs::rename(toPath(args.string(0)), to, error);
    return args.boolean(!error);
}

// (vl-file-size path) -> its bytes; 0 for a folder, nil when there is no such file.
static Value fileSize(Arguments &args)
{
    std::error_code error;
    const fs::path path = toPath(args.string(0));
    if (fs::is_directory(path, error))
        return Value::integer(0);
    if (!isRegularFile(path))
        return {};
    const std::uintmax_t size = fs::file_size(path, error);
    return error ? Value() : sizeValue(size);
}

// (vl-file-directory-p path) -> T for a folder.
static Value isDirectory(Arguments &args)
{
    std::error_code error;
    return args.boolean(fs::is_directory(toPath(args.string(0)), error));
}

// (vl-file-systime path) -> (year month weekday day hour minute second 0) of the last change in local time, weekday 0
// being Sunday; nil when there is no such file.
static Value fileTime(Arguments &args)
{
    std::error_code error;
    const fs::file_time_type changed = fs::last_write_time(toPath(args.string(0)), error);
    if (error)
        return {};
    const auto sinceNow =
        std::chrono::duration_cast<std::chrono::system_clock::duration>(changed - fs::file_time_type::clock::now());
    const std::time_t time = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now() + sinceNow);
    const std::tm *parts = std::localtime(&time);
    if (!parts)
        return {};
    ListBuilder list;
    for (const int part : {parts->tm_year + 1900, parts->tm_mon + 1, parts->tm_wday, parts->tm_mday, parts->tm_hour,
                           parts->tm_min, parts->tm_sec, 0})
        list.append(Value::integer(part));
    return list.take();
}

// (vl-mkdir path) -> T when the folder was made.
static Value makeDirectory(Arguments &args)
{
    std::error_code error;
    return args.boolean(fs::create_directory(toPath(args.string(0)), error));
}

/// A file pattern of * and ? as one that wildcardMatch takes, in upper case.
static std::string filePattern(std::string_view pattern)
{
    std::string wildcards;
    for (const char c : toUpperCase(pattern)) {
        static constexpr std::string_view special = "#@.~[]-,`";
        if (special.find(c) != std::string_view::npos)
            wildcards.push_back('`');
        wildcards.push_back(c);
    }
    return wildcards == "*`.*" ? "*" : wildcards;
}

// (vl-directory-files [folder [pattern [which]]]) -> the sorted names of files (which 1), folders (-1) or both (0) that
// fit the pattern of * and ?; nil when there are none.
static Value directoryFiles(Arguments &args)
{
    const std::string pattern = filePattern(args.stringOr(1, "*"));
    const std::int32_t which = args.integerOr(2, 0);
    std::vector<std::string> names;
    const auto add = [&](std::string name, bool isFolder) {
        if ((which < 0 && !isFolder) || (which > 0 && isFolder) || !wildcardMatch(toUpperCase(name), pattern))
            return;
        names.push_back(std::move(name));
    };
    std::error_code error;
    fs::directory_iterator entry(toPath(args.stringOr(0, ".")), fs::directory_options::skip_permission_denied, error);
    if (error)
        return {};
    add(".", true);
    add("..", true);
    for (; entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code kindError;
        add(fromPath(entry->path().filename()), entry->is_directory(kindError));
        if (error)
            break;
    }
    std::sort(names.begin(), names.end());
    ListBuilder list;
    for (std::string &name : names)
        list.append(Value::string(std::move(name)));
    return list.take();
}

static constexpr NativeRow fileRows[] = {
    {"vl-file-delete", deleteFile, Arity::exactly(1), "file", "deletes a file; T when done"},
    {"vl-file-copy", copyFile, Arity::between(2, 3), "from to [append]", "copies a file; the number of bytes, or nil"},
    {"file-put-lines", putLines, Arity::exactly(2), "file lines", "writes a list of lines as a file, as a whole"},
    {"vl-file-rename", renameFile, Arity::exactly(2), "from to", "renames a file; T when done"},
    {"vl-file-size", fileSize, Arity::exactly(1), "file", "the size of a file in bytes, 0 for a folder"},
    {"vl-file-directory-p", isDirectory, Arity::exactly(1), "name", "T for a folder"},
    {"vl-file-systime", fileTime, Arity::exactly(1), "file",
     "when a file was written: year, month, weekday, day, hour, minute, second"},
    {"vl-mkdir", makeDirectory, Arity::exactly(1), "folder", "makes a folder; T when done"},
    {"vl-directory-files", directoryFiles, Arity::between(0, 3), "[folder [pattern [kind]]]",
     "what is in a folder: all (0), folders (-1) or files (1)"},
};

void addFileFunctions(Interpreter &interpreter)
{
    interpreter.define(fileRows);
}

} // namespace host::lisp
