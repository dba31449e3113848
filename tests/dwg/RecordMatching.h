#pragma once

#include "tests/dwg/TextTree.h"

namespace host::dwg::test {

/// Which records of two drawings are the same, by their places in the trees; 0 for what has no partner.
struct Partners
{
    std::vector<std::size_t> ofRead;
    std::vector<std::size_t> ofExpected;
};

/// Brings together what stands at the same place: from the roots down by handle, else by name, else by order among
/// those of the same type; what dictionaries and extension dictionaries name by these names, in front of its handle;
/// blocks without a name of their own by what shows them. Vertices and attributes go by order where the handles of
/// their list are not the same. What is left goes by handle wherever it stands, at last by order under its owner.
Partners matchRecords(const TextTree &read, const TextTree &expected);

/// The owner's handle: group 330 in front of the first subclass, outside of groups in braces; empty where there is
/// none.
std::string ownerOf(const TextNode &node);
/// The block that an insert or a dimension shows, or that it is: group 2.
std::string blockNameOf(const TextNode &node);
/// The handle of its extension dictionary; empty where it has none.
std::string extensionOf(const TextNode &node);
/// A dictionary's names and handles.
std::vector<std::pair<std::string, std::string>> entriesOf(const TextNode &node);

} // namespace host::dwg::test
