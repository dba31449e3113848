#pragma once

#include <QString>

class OdRxModule;

namespace sample {

/// One module: its file, and the object that stands for it.
class ModuleFile
{
public:
    ModuleFile() = default;
    ~ModuleFile() { unload(); }
    ModuleFile(const ModuleFile &) = delete;
    ModuleFile &operator=(const ModuleFile &) = delete;

    /// Loads the file and starts the module. Empty, or a sentence that says what is wrong; nothing of the file stays
    /// loaded then.
    QString load(const QString &path);
    /// Stops it, while documents may still be open. Does nothing when none is loaded.
    void unload();

    /// Null when none is loaded.
    OdRxModule *module() const { return m_module; }

private:
    QString start();

    void *m_handle = nullptr;
    OdRxModule *m_module = nullptr;
};

} // namespace sample
