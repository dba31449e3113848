#pragma once

#include "platform/ed/OdEditor.h"

#include <vector>

namespace host::kernel {

/// The editor of the process: passes events on to its reactors. A reactor may remove itself or others from inside a
/// notification.
class KV_EXPORT Editor final : public OdEditor
{
public:
    void addReactor(OdEditorReactor *reactor) override;
    void removeReactor(OdEditorReactor *reactor) override;

    void beginSave(OdDbDatabase *database, const OdString &intendedName);
    void sysVarWillChange(OdDbDatabase *database, const OdString &name);
    void commandWillStart();
    void lispWillStart(const OdString &firstLine);

private:
    template <typename Reactor, typename Call>
    void tell(Call &&call);

    std::vector<OdEditorReactor *> m_reactors;
};

} // namespace host::kernel
