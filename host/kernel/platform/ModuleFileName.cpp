#include "platform/rx/OdRxWin32Module.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>
#include <link.h>

namespace {

/// The loader's record of `handle`, null when it has none. A handle is the address of that record, and following an
/// unknown one would be a crash, so the loader's own list is walked.
const link_map *loadedFile(void *handle)
{
    void *self = dlopen(nullptr, RTLD_LAZY);
    if (!self)
        return nullptr;
    const link_map *entry = nullptr;
    if (dlinfo(self, RTLD_DI_LINKMAP, &entry) != 0)
        entry = nullptr;
    while (entry && entry != handle)
        entry = entry->l_next;
    dlclose(self);
    return entry;
}

} // namespace

OdString odrxModuleFileName(void *handle, int capacity)
{
    const link_map *entry = loadedFile(handle);
    if (!entry || capacity <= 0)
        return {};
    // The main program has no name in the list.
    const QString name = *entry->l_name ? QFile::decodeName(entry->l_name) : QStringLiteral("/proc/self/exe");
    const QFileInfo file(name);
    return (file.isSymLink() && !*entry->l_name ? file.symLinkTarget() : file.absoluteFilePath()).left(capacity - 1);
}
