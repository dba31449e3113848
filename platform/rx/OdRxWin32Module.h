#pragma once

#include "platform/rx/OdAlloc.h"
#include "platform/rx/OdRxModule.h"

#include <atomic>
#include <new>

/// Full file name of the module that the loader knows under `handle`, cut to `capacity` characters with the ending
/// zero, as the loader of the operating system does; empty for an unknown handle.
KV_EXPORT OdString odrxModuleFileName(void *handle, int capacity);

/// Turns a class with initApp() and uninitApp() into the single module object of a process.
///
/// The object counts its references and does nothing about them: the host ends it by deleteModule(). A host that loads
/// the file again afterwards gets a new object.
template <class T>
class OdRxWin32Module final : public T
{
public:
    /// The process's module object; made with the host's allocator on the first call. Throws std::bad_alloc when
    /// there is no memory and the host installed no handler of its own.
    /// `handle` is the loader's of the module's file; only that of the first call is kept.
    static OdRxModule *instance(void *handle)
    {
        if (!s_module)
            s_module = ::new (allocate()) OdRxWin32Module(handle);
        return s_module;
    }

    // Counted for whoever asks: nothing follows from it.
    void addRef() override { m_references.fetch_add(1); }
    void release() override { m_references.fetch_sub(1); }
    long numRefs() const override { return m_references.load(); }
    /// The handle that instance() was given.
    void *sysData() override { return m_handle; }
    /// At most 259 characters of the name: longer ones are cut, as other loaders do it.
    OdString moduleName() const override { return odrxModuleFileName(m_handle, fileNameCapacity); }

    /// The memory goes back to the host's allocator, where it came from.
    void deleteModule() override
    {
        s_module = nullptr;
        this->~OdRxWin32Module();
        odrxFree(this);
    }

private:
    /// The longest path of the system that the name comes from, its ending zero included.
    static constexpr int fileNameCapacity = 260;

    /// Made by instance() alone, in memory that deleteModule() can give back.
    explicit OdRxWin32Module(void *handle) : m_handle(handle) {}

    /// The host's handler may free memory, throw or end the process; what it does not solve is a std::bad_alloc.
    static void *allocate()
    {
        void *memory = odrxAlloc(sizeof(OdRxWin32Module));
        if (memory)
            return memory;
        if (OdAllocationFailureHandler handler = odrxAllocationFailureHandler())
            handler(sizeof(OdRxWin32Module));
        throw std::bad_alloc();
    }

    inline static OdRxWin32Module *s_module = nullptr; ///< null before the first call and after deleteModule()
    std::atomic<int> m_references{0};                  ///< may be counted from any thread
    void *m_handle;                                    ///< the loader's of the file
};
