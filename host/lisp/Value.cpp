#include "host/lisp/Value.h"

#include "host/lisp/Equality.h"
#include "host/lisp/File.h"
#include "host/lisp/Function.h"
#include "host/lisp/Native.h"

#include <algorithm>
#include <functional>

namespace host::lisp {

/// Takes objects apart whose last reference went. Chains of pairs and functions may be as long and as deep as memory
/// allows, so nothing here calls itself: pairs that wait for their turn are linked through their own, now unused cells.
class Demolition
{
public:
    static void run(Tag tag, Head *object) noexcept
    {
        if (Cons *first = takeApart(tag, object))
            freePairs(first);
    }

private:
    /// Frees an object and, while it was the last to hold a function or list, that too, up to the first pair.
    static Cons *takeApart(Tag tag, Head *object) noexcept
    {
        while (tag == Tag::Function) {
            auto *function = static_cast<Function *>(object);
            Value body;
            body.swap(function->body);
            delete function;
            if (!loseReference(body))
                return nullptr;
            tag = body.tag();
            object = body.m_object;
            body.setTag(Tag::Nil);
        }
        if (tag == Tag::Cons)
            return reinterpret_cast<Cons *>(object);
        deleteLeaf(tag, object);
        return nullptr;
    }

    /// Whether `value` held the last reference to its object. It holds none afterwards, but still points there.
    static bool loseReference(Value &value) noexcept
    {
        if (value.tag() >= Tag::String && --value.m_object->references == 0)
            return true;
        value.setTag(Tag::Nil);
        return false;
    }

    /// Empties a cell; the pair that died with its content, or null.
    static Cons *emptyCell(Value &cell) noexcept
    {
        if (!loseReference(cell))
            return nullptr;
        const Tag tag = cell.tag();
        cell.setTag(Tag::Nil);
        return tag == Tag::Cons ? reinterpret_cast<Cons *>(cell.m_object) : takeApart(tag, cell.m_object);
    }

    static Head *headOf(Cons *pair) noexcept { return pair ? &pair->car.m_head : nullptr; }

    static void freePairs(Cons *pair) noexcept
    {
        Cons *waiting = nullptr;
        while (pair) {
            Cons *first = emptyCell(pair->car);
            Cons *rest = emptyCell(pair->cdr);
            if (first && rest) {
                pair->car.m_object = headOf(first);
                pair->cdr.m_object = headOf(waiting);
                waiting = pair;
                pair = rest;
                continue;
            }
            delete pair;
            pair = first ? first : rest;
            if (!pair && waiting) {
                auto *next = reinterpret_cast<Cons *>(waiting->cdr.m_object);
                pair = reinterpret_cast<Cons *>(waiting->car.m_object);
                delete waiting;
                waiting = next;
            }
        }
    }

    static void deleteLeaf(Tag tag, Head *object) noexcept
    {
        switch (tag) {
        case Tag::String:
            delete static_cast<StringObject *>(object);
            break;
        case Tag::Native:
            delete static_cast<NativeFunction *>(object);
            break;
        case Tag::File:
            delete static_cast<File *>(object);
            break;
        case Tag::SelectionSet:
            delete static_cast<SelectionSet *>(object);
            break;
        case Tag::CaughtError:
            delete static_cast<CaughtError *>(object);
            break;
        case Tag::HostObject:
            delete static_cast<HostObject *>(object);
            break;
        default:
            assert(false);
        }
    }
};

void destroyObject(Tag tag, Head *object) noexcept
{
    Demolition::run(tag, object);
}

Value Value::hostObject(std::string kind, std::uint64_t number)
{
    auto *object = new HostObject;
    Value value = adopt(Tag::HostObject, object);
    object->kind = std::move(kind);
    object->number = number;
    return value;
}

Value Value::string(std::string text)
{
    return adopt(Tag::String, new StringObject(std::move(text)));
}

Value Value::list(std::span<const Value> items)
{
    ListBuilder builder;
    for (const Value &item : items)
        builder.append(item);
    return builder.take();
}

Value Value::list(std::initializer_list<Value> items)
{
    return list(std::span<const Value>(items.begin(), items.size()));
}

Value Value::point(double x, double y)
{
    return list({real(x), real(y)});
}

Value Value::point(double x, double y, double z)
{
    return list({real(x), real(y), real(z)});
}

bool Value::isSame(const Value &other) const noexcept
{
    if (tag() != other.tag())
        return false;
    switch (tag()) {
    case Tag::Nil:
        return true;
    case Tag::Integer:
        return m_integer == other.m_integer;
    case Tag::Real:
        return m_real == other.m_real;
    case Tag::String:
        // Nothing can tell two strings of the same text apart, so neither does eq.
        return m_object == other.m_object || asString() == other.asString();
    case Tag::HostObject:
        return asHostObject().kind == other.asHostObject().kind && asHostObject().number == other.asHostObject().number;
    default:
        return m_bits == other.m_bits;
    }
}

StringObject::StringObject(std::string content) : text(std::move(content))
{
    if (const std::size_t outside = bytesOutside(); outside > 0)
        Heap::take(outside);
}

StringObject::~StringObject()
{
    if (const std::size_t outside = bytesOutside(); outside > 0)
        Heap::remove(outside);
}

std::size_t StringObject::bytesOutside() const noexcept
{
    // Short ones are within the object itself.
    constexpr std::size_t within = 15;
    return text.capacity() > within ? Heap::blockOf(text.capacity() + 1) : 0;
}

/// What a member of a selection set takes beside its place in the queue: a node and a bucket.
static constexpr std::size_t memoryOfMember = 40;

bool SelectionSet::contains(std::uint64_t entity)
{
    know();
    return members.contains(entity);
}

void SelectionSet::know()
{
    if (members.size() == entities.size())
        return;
    share.grow(entities.size() * memoryOfMember);
    counted = entities.size();
    members.reserve(entities.size());
    members.insert(entities.begin(), entities.end());
}

void SelectionSet::add(std::span<const std::uint64_t> many)
{
    const bool areDistinct = std::ranges::adjacent_find(many, std::greater_equal()) == many.end() ||
                             std::ranges::adjacent_find(many, std::less_equal()) == many.end();
    if (!areDistinct || !entities.empty()) {
        for (const std::uint64_t entity : many)
            add(entity);
        return;
    }
    share.grow(many.size() * sizeof(std::uint64_t));
    entities.assign(many.begin(), many.end());
    details.reset();
}

bool SelectionSet::add(std::uint64_t entity)
{
    know();
    // Only what was never in it counts anew.
    constexpr std::size_t memory = sizeof(std::uint64_t) + memoryOfMember;
    if (members.size() >= counted) {
        share.grow(memory);
        ++counted;
    }
    if (!members.insert(entity).second)
        return false;
    entities.push_back(entity);
    details.reset();
    return true;
}

bool SelectionSet::remove(std::uint64_t entity)
{
    know();
    if (members.erase(entity) == 0)
        return false;
    for (std::size_t i = 0;; ++i) {
        const std::size_t fromEnd = entities.size() - 1 - i;
        const std::size_t place = entities[i] == entity ? i : fromEnd;
        if (entities[place] == entity) {
            entities.erase(entities.begin() + static_cast<std::ptrdiff_t>(place));
            return true;
        }
    }
}

void ListBuilder::append(Value item)
{
    Value end;
    auto *const added = new Cons(item, end);
    Value pair = Value::adopt(added);
    (m_last ? m_last->cdr : m_head).swap(pair);
    m_last = added;
}

void ListBuilder::setTail(Value tail)
{
    if (m_last)
        m_last->cdr = std::move(tail);
    else
        m_head = std::move(tail);
    m_last = nullptr;
}

Value ListBuilder::take()
{
    m_last = nullptr;
    return std::exchange(m_head, Value());
}

std::size_t listLength(const Value &list)
{
    std::size_t length = 0;
    for (const Value *rest = &list; rest->isCons(); rest = &rest->cdr())
        ++length;
    return length;
}

std::vector<Value> listToVector(const Value &list)
{
    std::vector<Value> items;
    for (const Value &item : ListItems(list))
        items.push_back(item);
    return items;
}

bool isEqual(const Value &left, const Value &right, double fuzz)
{
    return isEqual(left, right, fuzz, [] {});
}

} // namespace host::lisp
