#pragma once

#include "platform/kernel/OdResBuf.h"

namespace host::kernel {

/// Appends links to a chain.
class ChainBuilder
{
public:
    void append(OdResBufPtr link)
    {
        if (m_last) {
            m_last = m_last->setNext(std::move(link));
        } else {
            m_first = std::move(link);
            m_last = m_first.get();
        }
    }
    OdResBufPtr take() { return std::move(m_first); }

private:
    OdResBufPtr m_first;
    OdResBuf *m_last = nullptr;
};

} // namespace host::kernel
