#include "host/kernel/files/KeptBack.h"

#include <algorithm>

namespace host::kernel {

bool KeptBackList::add(const KeptBack &item)
{
    if (std::ranges::find(m_items, item) != m_items.end())
        return false;
    if (m_items.size() < most)
        m_items.push_back(item);
    else
        ++m_further;
    return true;
}

void KeptBackList::remove(const KeptBack &item)
{
    std::erase(m_items, item);
}

} // namespace host::kernel
