// Sorting.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"

namespace host::lisp {

/// Stable merge sort. Unlike the standard library's it is at ease with a comparison that contradicts itself or throws,
/// as a program's may.
template <typename Item, typename Less>
static void mergeSort(std::vector<Item> &items, Less less)
{
    std::vector<Item> merged(items.size());
    for (std::size_t width = 1; width < items.size(); width *= 2) {
        for (std::size_t begin = 0; begin < items.size(); begin += 2 * width) {
            const std::size_t middle = std::min(begin + width, items.size());
            const std::size_t end = std::min(begin + 2 * width, items.size());
            std::size_t left = begin;
            std::size_t right = middle;
            for (std::size_t to = begin; to < end; ++to) {
                const bool takeRight = left == middle || (right < end && less(items[right], items[left]));
                merged[to] = std::move(takeRight ? items[right++] : items[left++]);
            }
        }
        items.swap(merged);
    }
}

/// An item of a list to be sorted, with its place there.
struct Placed
{
    Value item;
    std::size_t place = 0;
};

/// The items of argument 0 in the order that function argument 1 gives.
static std::vector<Placed> sortedItems(Arguments &args)
{
    Interpreter &interpreter = args.interpreter();
    std::vector<Placed> items;
    for (const Value &item : ListItems(args.list(0)))
        items.push_back({item, items.size()});
    const Value function = interpreter.resolveFunction(args[1]);
    mergeSort(items, [&](const Placed &left, const Placed &right) {
        const Value pair[] = {left.item, right.item};
        return interpreter.apply(function, pair).isTrue();
    });
    return items;
}

// (vl-sort list before) -> the items in the order that (before a b) gives. Stable, and every item is kept: equal ones
// are never dropped.
static Value sort(Arguments &args)
{
    ListBuilder sorted;
    for (Placed &placed : sortedItems(args))
        sorted.append(std::move(placed.item));
    return sorted.take();
}

// (vl-sort-i list before) -> where the items are in the list, in the order that (before a b) gives.
static Value sortIndices(Arguments &args)
{
    ListBuilder indices;
    for (const Placed &placed : sortedItems(args))
        indices.append(Value::integer(static_cast<std::int32_t>(placed.place)));
    return indices.take();
}

// (acad_strlsort list) -> the strings in alphabetical order. Another item: bad argument type: stringp.
static Value sortStrings(Arguments &args)
{
    std::vector<Value> strings = listToVector(args.list(0));
    if (!std::all_of(strings.begin(), strings.end(), [](const Value &item) { return item.isString(); }))
        args.badType(0, "stringp");
    mergeSort(strings, [](const Value &left, const Value &right) { return left.asString() < right.asString(); });
    return Value::list(strings);
}

static constexpr NativeRow sortRows[] = {
    {"vl-sort", sort, Arity::exactly(2), "list less", "a list sorted by a function; equal ones stay in their order"},
    {"vl-sort-i", sortIndices, Arity::exactly(2), "list less", "the indices of the elements in sorted order"},
    {"acad_strlsort", sortStrings, Arity::exactly(1), "strings", "strings in alphabetical order"},
};

void addSortFunctions(Interpreter &interpreter)
{
    interpreter.define(sortRows);
}

} // namespace host::lisp
