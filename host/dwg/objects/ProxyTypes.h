#pragma once

#include "host/dwg/objects/Fields.h"

namespace host::dwg {

/// What proxies are made with: objects whose class the text form of their release does not have.
struct ProxyParts
{
    bool isEntity = false;
    std::size_t graphics = 0; ///< where its graphics are among the tags; they go with the proxy
    /// Where texts begin in its bits, for files of R14: there they end with a zero, which the text form does not have.
    std::vector<std::size_t> texts;
};

/// Notes an object as a proxy: its class, its bits and what it refers to. Takes all that is left of the object.
void noteProxy(Fields &fields, int classNumber, const ProxyParts &parts);

/// The type number of objects that were proxies when the file was written.
constexpr int proxyEntityType = 0x1f2;
constexpr int proxyObjectType = 0x1f3;

/// Reads one of these, which tells its class itself.
void readProxy(Fields &fields, const ProxyParts &parts);

} // namespace host::dwg
