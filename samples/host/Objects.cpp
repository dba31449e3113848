// What has neither a user nor a drawing: memory, the name of the module's file, links of result-buffer chains, and
// reactors that do nothing.

#include "Supply.h"
#include "platform/ed/OdEditorReactor.h"
#include "platform/kernel/CKvDocumentManager.h"
#include "platform/kernel/OdResBuf.h"
#include "platform/rx/OdRxWin32Module.h"

#include <QFile>

#include <cstdlib>
#include <dlfcn.h>
#include <link.h>

void *odrxAlloc(std::size_t size)
{
    return sample::isSupplied("odrxAlloc") ? std::malloc(size) : nullptr;
}

void odrxFree(void *memory)
{
    std::free(memory);
}

OdAllocationFailureHandler odrxAllocationFailureHandler()
{
    return nullptr;
}

OdString odrxModuleFileName(void *handle, int capacity)
{
    const link_map *file = nullptr;
    if (dlinfo(handle, RTLD_DI_LINKMAP, &file) != 0 || capacity <= 0)
        return {};
    return QFile::decodeName(file->l_name).left(capacity - 1);
}

OdResBuf::~OdResBuf()
{
    // Link by link: a chain of a million would be as many frames on the stack otherwise.
    for (OdResBufPtr rest = std::move(m_next); rest;)
        rest = rest->takeNext();
}

OdResBufPtr OdResBuf::newString(int type, const OdString &value)
{
    OdResBufPtr link = newRb(type);
    link->m_value = value;
    return link;
}

OdResBufPtr OdResBuf::newInteger(int type, qint64 value)
{
    OdResBufPtr link = newRb(type);
    link->m_value = value;
    return link;
}

OdResBufPtr OdResBuf::newReal(int type, double value)
{
    OdResBufPtr link = newRb(type);
    link->m_value = value;
    return link;
}

OdResBufPtr OdResBuf::newPoint(int type, const OdGePoint3d &value)
{
    OdResBufPtr link = newRb(type);
    link->m_value = value;
    return link;
}

OdString OdResBuf::getString() const
{
    const auto *text = std::get_if<OdString>(&m_value);
    return text ? *text : OdString();
}

qint64 OdResBuf::getInteger() const
{
    if (const auto *number = std::get_if<qint64>(&m_value))
        return *number;
    constexpr double most = 9.2e18; // beyond it the conversion has no defined result
    const auto *real = std::get_if<double>(&m_value);
    return real && *real > -most && *real < most ? qint64(*real) : 0;
}

double OdResBuf::getDouble() const
{
    if (const auto *real = std::get_if<double>(&m_value))
        return *real;
    const auto *number = std::get_if<qint64>(&m_value);
    return number ? double(*number) : 0;
}

OdGePoint3d OdResBuf::getPoint3d() const
{
    const auto *point = std::get_if<OdGePoint3d>(&m_value);
    return point ? *point : OdGePoint3d();
}

OdResBuf *OdResBuf::setNext(OdResBufPtr next)
{
    m_next = std::move(next);
    return m_next.get();
}

void OdRxEventReactor::beginSave(OdDbDatabase *, const OdString &) {}
void OdEditorReactor::sysVarWillChange(OdDbDatabase *, const OdString &) {}
void OdEdCommandStackReactor::commandWillStart(OdEdCommand *, OdEdCommandContext *) {}
void OdEdLispEngineReactor::lispWillStart(OdEdCommandContext *, const OdString &) {}
void CKvDocumentManagerReactor::DocumentCreated(CKvDocument *) {}
void CKvDocumentManagerReactor::DocumentToBeDestroyed(CKvDocument *) {}
void CKvDocumentManagerReactor::DocumentDestroyed(CKvDocument *) {}
void CKvDocumentManagerReactor::LispDocumentReady(CKvDocument *) {}
void CKvDocumentManagerReactor::LispDocumentClosing(CKvDocument *) {}
