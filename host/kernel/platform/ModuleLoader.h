#pragma once

#include "platform/Export.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class OdRxModule;

namespace host::kernel {

/// The plug-in modules of the process.
class KV_EXPORT ModuleLoader
{
public:
    ModuleLoader();
    /// Unloads what is still loaded, last first.
    ~ModuleLoader();
    ModuleLoader(const ModuleLoader &) = delete;
    ModuleLoader &operator=(const ModuleLoader &) = delete;

    struct Outcome
    {
        OdRxModule *module = nullptr;
        QString error; ///< a sentence naming the file; empty when the module runs

        explicit operator bool() const { return module != nullptr; }
    };
    /// Loads the file, checks its version, makes its module object and starts it. A file that is loaded already gives
    /// its module again. On failure nothing of it stays loaded.
    Outcome load(const QString &path);
    /// Stops the module and takes its code out of the process. False when `path` is not loaded.
    bool unload(const QString &path);
    void unloadAll();

    /// Absolute paths, in order of loading.
    QStringList loaded() const;
    OdRxModule *module(const QString &path) const;

private:
    struct Loaded;
    void stop(Loaded &entry);

    std::vector<std::unique_ptr<Loaded>> m_modules;
};

} // namespace host::kernel
