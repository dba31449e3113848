#include "host/kernel/files/LocksAtExit.h"

#include <QByteArray>

#include <atomic>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace host::kernel {

namespace {

constexpr size_t longestContent = 2048;

/// What a signal handler can read at any time: memory that never moves and never goes.
struct Entry
{
    char path[PATH_MAX] = {};
    char content[longestContent] = {};
    size_t size = 0;
    std::atomic<bool> isInUse = false;
    Entry *next = nullptr;
    int place = 0;
};

std::atomic<Entry *> entries = nullptr;
std::atomic<pid_t> owner = 0;

/// Calls nothing but what may be called in a signal handler.
void removeEntry(const Entry &entry)
{
    char found[longestContent];
    const int file = open(entry.path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return;
    const ssize_t size = read(file, found, sizeof found);
    close(file);
    if (size == static_cast<ssize_t>(entry.size) && std::memcmp(found, entry.content, entry.size) == 0)
        unlink(entry.path);
}

void removeAll()
{
    // A process that was forked off and failed to start another program has no locks of its own.
    if (getpid() != owner)
        return;
    for (const Entry *entry = entries; entry; entry = entry->next)
        if (entry->isInUse)
            removeEntry(*entry);
}

extern "C" void removeAllAndDie(int signalNumber)
{
    removeAll();
    std::signal(signalNumber, SIG_DFL);
    std::raise(signalNumber);
}

/// A signal that something else handles, or that is ignored, stays as it is.
void watchForTheEnd()
{
    owner = getpid();
    std::atexit(removeAll);
    for (const int number :
         {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGXCPU, SIGXFSZ}) {
        struct sigaction present;
        if (sigaction(number, nullptr, &present) != 0 || present.sa_handler != SIG_DFL)
            continue;
        struct sigaction ours = {};
        ours.sa_handler = removeAllAndDie;
        sigemptyset(&ours.sa_mask);
        sigaction(number, &ours, nullptr);
    }
}

Entry &freeEntry()
{
    static std::deque<Entry> &all = *new std::deque<Entry>;
    for (Entry &entry : all)
        if (!entry.isInUse)
            return entry;
    Entry &added = all.emplace_back();
    added.place = static_cast<int>(all.size()) - 1;
    added.next = entries;
    entries = &added;
    return added;
}

} // namespace

int removeLockAtExit(const QByteArray &path, const QByteArray &content)
{
    if (owner != getpid())
        watchForTheEnd();
    if (path.size() >= PATH_MAX || content.size() > static_cast<qsizetype>(longestContent))
        return -1;
    Entry &entry = freeEntry();
    std::memcpy(entry.path, path.constData(), static_cast<size_t>(path.size()) + 1);
    std::memcpy(entry.content, content.constData(), static_cast<size_t>(content.size()));
    entry.size = static_cast<size_t>(content.size());
    entry.isInUse = true;
    return entry.place;
}

void forgetLock(int place)
{
    for (Entry *entry = entries; entry; entry = entry->next)
        if (entry->place == place)
            entry->isInUse = false;
}

} // namespace host::kernel
