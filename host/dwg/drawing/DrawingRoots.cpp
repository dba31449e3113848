#include "host/dwg/drawing/DrawingRoots.h"

#include "host/dwg/objects/TableTypes.h"

#include <algorithm>
#include <unordered_set>

namespace host::dwg {

namespace {

constexpr int namedObjectsType = 0x2a;

struct Root
{
    int type;
    std::uint64_t Header::*handle;
};

constexpr Root roots[] = {
    {blockTableType, &Header::blockTable},
    {layerTableType, &Header::layerTable},
    {styleTableType, &Header::styleTable},
    {linetypeTableType, &Header::linetypeTable},
    {viewTableType, &Header::viewTable},
    {coordinateSystemTableType, &Header::systemTable},
    {viewportTableType, &Header::viewportTable},
    {applicationTableType, &Header::applicationTable},
    {dimensionStyleTableType, &Header::dimensionStyleTable},
    {namedObjectsType, &Header::namedObjects},
    {blockType, &Header::paperSpace},
    {blockType, &Header::modelSpace},
};

/// Whether the object can be the root, by more than its type: blocks of spaces by their names, the dictionary of named
/// objects by having no owner.
bool isRoot(const Root &root, const ObjectFrame &frame, const std::string &name, Fields &fields)
{
    if (root.handle == &Header::paperSpace)
        return isPaperSpace(name);
    if (root.handle == &Header::modelSpace)
        return isModelSpace(name);
    if (root.type != namedObjectsType)
        return true;
    ObjectHead({}).read(frame, false, fields);
    return !fields.hasFailed() && fields.relations().owner == 0;
}

/// What stands for a root that is lost has its handle, or one that is free where nothing tells it.
void giveHandles(const DrawingObjects &objects, const std::vector<Root> &lost, Header &header)
{
    if (!lost.empty() && !objects.map().empty())
        header.firstFree = std::max(header.firstFree, objects.map().back().handle + 1);
    std::unordered_set<std::uint64_t> given;
    for (const Root &root : lost) {
        std::uint64_t &handle = header.*root.handle;
        if (handle == 0 || objects.peek(handle) || !given.insert(handle).second)
            handle = header.firstFree++;
    }
}

} // namespace

void findRoots(DrawingObjects &objects, const Names &names, Fields &fields, Header &header)
{
    // Where the map tells of it, too, it is the right one, be there nothing left of it.
    const auto isTold = [&](const Root &root) {
        const ObjectFrame *const frame = objects.peek(header.*root.handle);
        return frame ? frame->type == root.type : objects.isTold(header.*root.handle);
    };
    std::vector<Root> missing;
    std::copy_if(std::begin(roots), std::end(roots), std::back_inserter(missing),
                 [&](const Root &root) { return !isTold(root); });
    const std::size_t before = missing.size();
    for (const MapEntry &entry : objects.map()) {
        if (missing.empty())
            break;
        const ObjectFrame *const frame = objects.peek(entry);
        const auto name = names.find(entry.handle);
        const auto found = std::find_if(missing.begin(), missing.end(), [&](const Root &root) {
            return frame && frame->type == root.type &&
                   isRoot(root, *frame, name != names.end() ? name->second : std::string(), fields);
        });
        if (found == missing.end())
            continue;
        header.*found->handle = entry.handle;
        missing.erase(found);
    }
    giveHandles(objects, missing, header);
    if (missing.size() < before)
        objects.problems().warn("The header does not tell where the tables are; they were looked for.");
}

} // namespace host::dwg
