#include "host/kernel/platform/ModuleLoader.h"

#include "host/kernel/languages/Texts.h"
#include "platform/rx/OdRxModule.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <dlfcn.h>

namespace host::kernel {

struct ModuleLoader::Loaded
{
    QString path;
    void *handle = nullptr;
    OdRxModule *module = nullptr;
};

namespace {

/// Closes the file again unless it is kept.
struct FileHandle
{
    void *handle = nullptr;

    ~FileHandle()
    {
        if (handle)
            dlclose(handle);
    }
    void *release() { return std::exchange(handle, nullptr); }
};

QString versionText(const std::array<int, 4> &version)
{
    return QStringLiteral("%1.%2.%3.%4").arg(version[0]).arg(version[1]).arg(version[2]).arg(version[3]);
}

/// Empty when the module was built for this host.
QString versionProblem(void *handle)
{
    const auto ask = reinterpret_cast<OdRxGetAPIVersionFunction>(dlsym(handle, "odrxGetAPIVersion"));
    if (!ask)
        return Kernel::tr("it is no module (odrxGetAPIVersion is missing)");
    std::array<int, 4> version{};
    ask(&version[0], &version[1], &version[2], &version[3]);
    if (std::equal(version.begin(), version.end(), odrxApiVersion))
        return {};
    return Kernel::tr("it was built for version %1 of the interface, this host has %2")
        .arg(versionText(version), versionText(std::to_array(odrxApiVersion)));
}

/// The module object, null with `problem` set when there is none.
OdRxModule *createModule(void *handle, QString &problem)
{
    const auto create = reinterpret_cast<OdRxCreateModuleObjectFunction>(dlsym(handle, "odrxCreateModuleObject"));
    if (!create) {
        problem = Kernel::tr("it is no module (odrxCreateModuleObject is missing)");
        return nullptr;
    }
    try {
        OdRxModule *module = create(handle);
        if (!module)
            problem = Kernel::tr("it made no module object");
        return module;
    } catch (const std::bad_alloc &) {
        problem = Kernel::tr("there is no memory for its module object");
        return nullptr;
    }
}

QString absolute(const QString &path)
{
    return QFileInfo(path).absoluteFilePath();
}

} // namespace

ModuleLoader::ModuleLoader() = default;

ModuleLoader::~ModuleLoader()
{
    unloadAll();
}

ModuleLoader::Outcome ModuleLoader::load(const QString &path)
{
    const QString file = absolute(path);
    if (OdRxModule *present = module(file))
        return {present, {}};
    const QString failure = Kernel::tr("Cannot load %1: %2");
    FileHandle opened{dlopen(QFile::encodeName(file).constData(), RTLD_NOW | RTLD_LOCAL)};
    if (!opened.handle)
        return {nullptr, failure.arg(file, QString::fromLocal8Bit(dlerror()))};
    if (const QString problem = versionProblem(opened.handle); !problem.isEmpty())
        return {nullptr, failure.arg(file, problem)};
    QString problem;
    OdRxModule *created = createModule(opened.handle, problem);
    if (!created)
        return {nullptr, failure.arg(file, problem)};
    m_modules.push_back(std::make_unique<Loaded>(Loaded{file, opened.release(), created}));
    created->initApp();
    return {created, {}};
}

bool ModuleLoader::unload(const QString &path)
{
    const QString file = absolute(path);
    for (auto place = m_modules.begin(); place != m_modules.end(); ++place) {
        if ((*place)->path != file)
            continue;
        const std::unique_ptr<Loaded> entry = std::move(*place);
        m_modules.erase(place);
        stop(*entry);
        return true;
    }
    return false;
}

void ModuleLoader::unloadAll()
{
    while (!m_modules.empty()) {
        const std::unique_ptr<Loaded> last = std::move(m_modules.back());
        m_modules.pop_back();
        stop(*last);
    }
}

void ModuleLoader::stop(Loaded &entry)
{
    entry.module->uninitApp();
    entry.module->deleteModule();
    dlclose(entry.handle);
}

QStringList ModuleLoader::loaded() const
{
    QStringList paths;
    for (const auto &entry : m_modules)
        paths.append(entry->path);
    return paths;
}

OdRxModule *ModuleLoader::module(const QString &path) const
{
    const QString file = absolute(path);
    for (const auto &entry : m_modules)
        if (entry->path == file)
            return entry->module;
    return nullptr;
}

} // namespace host::kernel
