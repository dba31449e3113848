// Parts of file names. "/" and "\" both separate folders, whatever the system.

#include "files/TemporaryFolder.h"
#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Paths.h"

namespace host::lisp {

/// A file name in three: "dir/", "base", ".ext".
struct NameParts
{
    std::string_view folder;
    std::string_view base;
    std::string_view extension;
};

static NameParts split(std::string_view path)
{
    const std::size_t separator = path.find_last_of("/\\:");
    const std::size_t nameBegin = separator == std::string_view::npos ? 0 : separator + 1;
    const std::string_view name = path.substr(nameBegin);
    const std::size_t dot = name.rfind('.');
    const std::size_t baseLength = dot == std::string_view::npos || dot == 0 ? name.size() : dot;
    return {path.substr(0, nameBegin), name.substr(0, baseLength), name.substr(baseLength)};
}

// (vl-filename-base path) -> the name without folder and extension.
static Value base(Arguments &args)
{
    return Value::string(std::string(split(args.string(0)).base));
}

// (vl-filename-directory path) -> the folder without its last separator.
static Value directory(Arguments &args)
{
    std::string_view folder = split(args.string(0)).folder;
    if (folder.size() > 1 && (folder.ends_with('/') || folder.ends_with('\\')))
        folder.remove_suffix(1);
    return Value::string(std::string(folder));
}

// (vl-filename-extension path) -> the extension with its dot; nil without one.
static Value extension(Arguments &args)
{
    const std::string_view part = split(args.string(0)).extension;
    return part.empty() ? Value() : Value::string(std::string(part));
}

// (fnsplitl path) -> (folder base extension), each "" when missing.
static Value splitName(Arguments &args)
{
    const NameParts parts = split(args.string(0));
    return Value::list({Value::string(std::string(parts.folder)), Value::string(std::string(parts.base)),
                        Value::string(std::string(parts.extension))});
}

// (vl-filename-mktemp [pattern [folder [extension]]]) -> a path at which nothing is, and that nobody can guess; nil
// when there is none to be had. The pattern gives folder, base and extension that are not given by themselves; where
// nothing gives a folder, it is that of this process's temporary files.
static Value temporaryName(Arguments &args)
{
    const std::string pattern = args.stringOr(0, "$VL~~");
    const NameParts parts = split(pattern);
    std::string folder = args.stringOr(1, parts.folder);
    if (folder.empty())
        folder = fromPath(files::temporaryFolder());
    if (folder.empty())
        return {};
    if (folder.back() != '/' && folder.back() != '\\')
        folder.push_back('/');
    const std::filesystem::path path = files::unusedPath(toPath(folder), parts.base, args.stringOr(2, parts.extension));
    return path.empty() ? Value() : Value::string(folder + fromPath(path.filename()));
}

static constexpr NativeRow fileNameRows[] = {
    {"vl-filename-base", base, Arity::exactly(1), "name", "a file's name without folder and extension"},
    {"vl-filename-directory", directory, Arity::exactly(1), "name", "a file's folder"},
    {"vl-filename-extension", extension, Arity::exactly(1), "name", "a file's extension with its dot"},
    {"fnsplitl", splitName, Arity::exactly(1), "name", "a file name's folder, base and extension"},
    {"vl-filename-mktemp", temporaryName, Arity::between(0, 3), "[pattern [folder [extension]]]",
     "a name of a file that does not exist, for the time of the program"},
};

void addFileNameFunctions(Interpreter &interpreter)
{
    interpreter.define(fileNameRows);
}

} // namespace host::lisp
