#include "files/Leftovers.h"

#include "files/OpenDescriptor.h"

#include <fcntl.h>
#include <random>
#include <string_view>
#include <sys/file.h>

namespace files {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view partEnd = ".saving";
constexpr std::string_view wholeEnd = ".whole";
constexpr std::size_t letterCount = 6;
/// The longest name that file systems take is 255 bytes.
constexpr std::size_t longestName = 200;

/// What a hidden name begins with; cut where the name is too long to take more.
std::string beginOf(const fs::path &target)
{
    return "." + target.filename().string().substr(0, longestName) + ".";
}

/// Whether a name is `begin`, six letters and `end`; an empty `begin` stands for any.
bool isHidden(std::string_view name, std::string_view begin, std::string_view end)
{
    const std::size_t rest = letterCount + end.size();
    if (!name.starts_with('.') || !name.ends_with(end) || name.size() < rest + 3 || name[name.size() - rest - 1] != '.')
        return false;
    const std::string_view letters = name.substr(name.size() - rest, letterCount);
    const bool isOurs = letters.find_first_not_of("abcdefghijklmnopqrstuvwxyz") == std::string_view::npos;
    return isOurs && (begin.empty() || name.substr(0, name.size() - rest) == begin);
}

bool isBeingWritten(const fs::path &path)
{
    const OpenDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    return !file || flock(file.get(), LOCK_EX | LOCK_NB) != 0;
}

std::vector<fs::path> removeIn(const fs::path &folder, std::string_view begin)
{
    std::vector<fs::path> whole;
    std::vector<fs::path> parts;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        std::error_code ignored;
        if (isHidden(name, begin, partEnd) && entry->is_regular_file(ignored))
            parts.push_back(entry->path());
        else if (isHidden(name, begin, wholeEnd) && entry->is_regular_file(ignored))
            whole.push_back(entry->path());
    }
    std::erase_if(parts, isBeingWritten);
    std::erase_if(whole, isBeingWritten);
    for (const fs::path &part : parts)
        fs::remove(part, error);
    return whole;
}

} // namespace

std::vector<fs::path> removeLeftovers(const fs::path &file)
{
    return removeIn(folderOf(file), beginOf(file));
}

std::vector<fs::path> removeLeftoversIn(const fs::path &folder)
{
    return removeIn(folder, {});
}

fs::path hiddenName(const fs::path &target)
{
    std::random_device source;
    std::uniform_int_distribution<int> letter('a', 'z');
    std::string name = beginOf(target);
    for (std::size_t i = 0; i < letterCount; ++i)
        name.push_back(static_cast<char>(letter(source)));
    return folderOf(target) / (name += partEnd);
}

fs::path nameWhenWhole(const fs::path &part)
{
    fs::path whole = part;
    return whole.replace_extension(wholeEnd);
}

} // namespace files
