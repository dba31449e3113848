#include "host/kernel/platform/Editor.h"

namespace host::kernel {

void Editor::addReactor(OdEditorReactor *reactor)
{
    if (reactor && std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end())
        m_reactors.push_back(reactor);
}

void Editor::removeReactor(OdEditorReactor *reactor)
{
    std::erase(m_reactors, reactor);
}

template <typename Reactor, typename Call>
void Editor::tell(Call &&call)
{
    // A copy: reactors may come and go meanwhile.
    const std::vector<OdEditorReactor *> reactors = m_reactors;
    for (OdEditorReactor *reactor : reactors) {
        if (std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end())
            continue;
        if (auto *listener = dynamic_cast<Reactor *>(reactor))
            call(*listener);
    }
}

void Editor::beginSave(OdDbDatabase *database, const OdString &intendedName)
{
    tell<OdRxEventReactor>([&](OdRxEventReactor &reactor) { reactor.beginSave(database, intendedName); });
}

void Editor::sysVarWillChange(OdDbDatabase *database, const OdString &name)
{
    tell<OdEditorReactor>([&](OdEditorReactor &reactor) { reactor.sysVarWillChange(database, name); });
}

void Editor::commandWillStart()
{
    tell<OdEdCommandStackReactor>([](OdEdCommandStackReactor &reactor) { reactor.commandWillStart(nullptr, nullptr); });
}

void Editor::lispWillStart(const OdString &firstLine)
{
    tell<OdEdLispEngineReactor>([&](OdEdLispEngineReactor &reactor) { reactor.lispWillStart(nullptr, firstLine); });
}

} // namespace host::kernel
