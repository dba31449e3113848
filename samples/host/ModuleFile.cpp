#include "ModuleFile.h"

#include "platform/rx/OdRxModule.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <dlfcn.h>
#include <new>
#include <utility>

namespace sample {

// [loading]
QString ModuleFile::load(const QString &path)
{
    // With RTLD_NOW a symbol that this host lacks is found out here, not in the middle of somebody's work.
    m_handle = dlopen(QFile::encodeName(path).constData(), RTLD_NOW | RTLD_LOCAL);
    if (!m_handle)
        return QString::fromLocal8Bit(dlerror());
    const QString problem = start();
    if (!problem.isEmpty())
        dlclose(std::exchange(m_handle, nullptr));
    return problem;
}

QString ModuleFile::start()
{
    const auto version = reinterpret_cast<OdRxGetAPIVersionFunction>(dlsym(m_handle, "odrxGetAPIVersion"));
    const auto create = reinterpret_cast<OdRxCreateModuleObjectFunction>(dlsym(m_handle, "odrxCreateModuleObject"));
    if (!version || !create)
        return QStringLiteral("It is no module.");
    std::array<int, 4> built = {};
    version(&built[0], &built[1], &built[2], &built[3]);
    if (!std::ranges::equal(built, odrxApiVersion))
        return QStringLiteral("It was built for another version of the interface.");
    try {
        m_module = create(m_handle);
    } catch (const std::bad_alloc &) {
        return QStringLiteral("There is no memory for its object.");
    }
    m_module->initApp();
    return {};
}

void ModuleFile::unload()
{
    if (!m_module)
        return;
    m_module->uninitApp();
    std::exchange(m_module, nullptr)->deleteModule();
    dlclose(std::exchange(m_handle, nullptr));
}
// [/loading]

} // namespace sample
