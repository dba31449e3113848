#pragma once

#include "files/RegularFile.h"

#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace files::test {

namespace fs = std::filesystem;

/// A folder for one test.
class Sandbox : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string name = (fs::temp_directory_path() / "filesXXXXXX").string();
        m_folder = mkdtemp(name.data());
    }
    void TearDown() override
    {
        fs::permissions(m_folder, fs::perms::owner_all);
        fs::remove_all(m_folder);
    }

    fs::path path(const std::string &name) const { return m_folder / name; }
    fs::path put(const std::string &name, const std::string &content) const
    {
        FILE *file = std::fopen(path(name).c_str(), "wb");
        std::fwrite(content.data(), 1, content.size(), file);
        std::fclose(file);
        return path(name);
    }
    std::string content(const std::string &name) const
    {
        return readWholeFile(path(name), std::numeric_limits<std::uintmax_t>::max()).bytes;
    }
    size_t fileCount() const
    {
        return static_cast<size_t>(std::distance(fs::directory_iterator(m_folder), fs::directory_iterator()));
    }
    struct stat status(const std::string &name) const
    {
        struct stat result = {};
        EXPECT_EQ(stat(path(name).c_str(), &result), 0);
        return result;
    }

    /// Runs `body` in a process of its own, so that limits and users end with it; what it gives is the exit status.
    template <typename Body>
    static int inChild(Body body)
    {
        const pid_t child = fork();
        if (child == 0)
            _exit(body());
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    /// The disk is full after so many bytes of a file.
    static void limitFiles(rlim_t bytes)
    {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {bytes, bytes};
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    fs::path m_folder;
};

} // namespace files::test
