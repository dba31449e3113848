#include "files/TemporaryFolder.h"

#include <array>
#include <cstdlib>
#include <unistd.h>

namespace files {

namespace {

namespace fs = std::filesystem;

class OwnFolder
{
public:
    OwnFolder()
    {
        std::error_code error;
        std::string name = (fs::temp_directory_path(error) / "ortakit-XXXXXX").string();
        if (!error && mkdtemp(name.data()) != nullptr)
            m_path = name;
    }
    ~OwnFolder()
    {
        // A child process that ends must not take what its parent still uses.
        std::error_code error;
        if (!m_path.empty() && m_owner == getpid())
            fs::remove_all(m_path, error);
    }
    OwnFolder(const OwnFolder &) = delete;
    OwnFolder &operator=(const OwnFolder &) = delete;

    const fs::path &path() const { return m_path; }

private:
    fs::path m_path;
    pid_t m_owner = getpid();
};

/// Letters and digits that file systems without upper case tell apart too.
std::string randomLetters()
{
    static constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz234567";
    std::array<unsigned char, 12> bytes{};
    if (getentropy(bytes.data(), bytes.size()) != 0)
        return {};
    std::string text;
    for (const unsigned char byte : bytes)
        text += letters[byte % letters.size()];
    return text;
}

} // namespace

const fs::path &temporaryFolder()
{
    static const OwnFolder folder;
    return folder.path();
}

fs::path unusedPath(const fs::path &folder, std::string_view base, std::string_view extension)
{
    for (;;) {
        const std::string letters = randomLetters();
        if (letters.empty())
            return {};
        fs::path path = folder / (std::string(base) + letters + std::string(extension));
        std::error_code error;
        if (!fs::exists(fs::symlink_status(path, error)))
            return path;
    }
}

} // namespace files
