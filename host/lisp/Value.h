#pragma once

#include "host/lisp/Heap.h"

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <initializer_list>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace host::lisp {

class Symbol;
struct Object;
struct Cons;
struct StringObject;
struct Function;
struct NativeFunction;
class File;
struct SelectionSet;
struct CaughtError;

/// What a value is. Everything from String on lives in a reference-counted object.
enum class Tag : std::uint8_t
{
    Nil,
    Integer,
    Real,
    EntityName,
    Symbol,
    String,
    Cons,
    Function,
    Native,
    File,
    SelectionSet,
    CaughtError,
};

/// One Lisp value: 16 bytes, cheap to copy (a count at most), never a cycle, because lists cannot be changed in place.
///
/// Values belong to the thread of their interpreter. A value that holds a symbol is good for as long as the
/// interpreter whose symbol it is. The `as...` accessors assert the kind: ask `is...` first, or take arguments
/// through Arguments, which raises the dialect's errors.
class Value
{
public:
    /// nil, which is also the empty list and false.
    Value() noexcept : m_integer(0) {}
    Value(const Value &other) noexcept : m_tag(other.m_tag), m_bits(other.m_bits) { retain(); }
    Value(Value &&other) noexcept : m_tag(other.m_tag), m_bits(other.m_bits) { other.m_tag = Tag::Nil; }
    Value &operator=(const Value &other) noexcept
    {
        Value copy(other);
        swap(copy);
        return *this;
    }
    Value &operator=(Value &&other) noexcept
    {
        Value taken(std::move(other));
        swap(taken);
        return *this;
    }
    ~Value() { release(); }

    void swap(Value &other) noexcept
    {
        std::swap(m_tag, other.m_tag);
        std::swap(m_bits, other.m_bits);
    }

    static Value integer(std::int32_t number) noexcept;
    static Value real(double number) noexcept;
    /// `text` is UTF-8.
    static Value string(std::string text);
    static Value symbol(Symbol &symbol) noexcept;
    /// `id` is whatever the embedder knows its entity by; 0 is a valid name that no selection set refuses.
    static Value entityName(std::uint64_t id) noexcept;
    static Value cons(Value car, Value cdr);
    static Value list(std::initializer_list<Value> items);
    static Value list(std::span<const Value> items);
    /// A list of two reals, or of three.
    static Value point(double x, double y);
    static Value point(double x, double y, double z);
    /// Takes over the one reference that a newly made object carries.
    static Value adopt(Tag tag, Object *object) noexcept;

    Tag tag() const noexcept { return m_tag; }
    bool isNil() const noexcept { return m_tag == Tag::Nil; }
    /// Everything but nil is true.
    bool isTrue() const noexcept { return m_tag != Tag::Nil; }
    bool isInteger() const noexcept { return m_tag == Tag::Integer; }
    bool isReal() const noexcept { return m_tag == Tag::Real; }
    bool isNumber() const noexcept { return isInteger() || isReal(); }
    bool isString() const noexcept { return m_tag == Tag::String; }
    bool isSymbol() const noexcept { return m_tag == Tag::Symbol; }
    bool isCons() const noexcept { return m_tag == Tag::Cons; }
    /// nil or a cons, dotted or not.
    bool isList() const noexcept { return isNil() || isCons(); }
    bool isEntityName() const noexcept { return m_tag == Tag::EntityName; }
    bool isSelectionSet() const noexcept { return m_tag == Tag::SelectionSet; }
    bool isFunction() const noexcept { return m_tag == Tag::Function || m_tag == Tag::Native; }

    std::int32_t asInteger() const noexcept
    {
        assert(isInteger());
        return m_integer;
    }
    /// The number as a real, whichever of the two kinds it is.
    double asReal() const noexcept
    {
        assert(isNumber());
        return isInteger() ? m_integer : m_real;
    }
    const std::string &asString() const noexcept;
    Symbol &asSymbol() const noexcept
    {
        assert(isSymbol());
        return *m_symbol;
    }
    std::uint64_t asEntityName() const noexcept
    {
        assert(isEntityName());
        return m_id;
    }
    SelectionSet &asSelectionSet() const noexcept;
    const Cons &asCons() const noexcept;
    StringObject &asStringObject() const noexcept;
    Function &asFunction() const noexcept;
    NativeFunction &asNative() const noexcept;
    File &asFile() const noexcept;
    CaughtError &asCaughtError() const noexcept;

    /// First item and rest of a list; nil for nil and for everything that is no cons.
    const Value &car() const noexcept;
    const Value &cdr() const noexcept;

    /// The same object, symbol or number (an integer and a real are never the same).
    bool isSame(const Value &other) const noexcept;

private:
    void retain() const noexcept;
    void release() noexcept;

    Tag m_tag = Tag::Nil;
    union {
        std::int32_t m_integer;
        double m_real;
        std::uint64_t m_id;
        Symbol *m_symbol;
        Object *m_object;
        std::uint64_t m_bits;
    };
    friend class Demolition;
};

static_assert(sizeof(Value) == 16);

/// What every counted object begins with. `mark` is for the kind's own use. Objects are deleted as what they are.
struct Object
{
    static void *operator new(std::size_t size)
    {
        Heap::check(Heap::blockOf(size));
        void *memory = ::operator new(size);
        Heap::add(Heap::blockOf(size));
        return memory;
    }
    static void operator delete(void *memory, std::size_t size) noexcept
    {
        Heap::remove(Heap::blockOf(size));
        ::operator delete(memory, size);
    }

    std::uint32_t references = 1;
    std::uint32_t mark = 0;
};

/// Frees an object whose last reference went, and all that goes with it, without recursion however deep it is.
void destroyObject(Tag tag, Object *object) noexcept;

/// A pair. `mark` is the source location that the reader gave the list form (see SourceMap), 0 for none.
struct Cons : Object
{
    Value car;
    Value cdr;
};

/// A string. `mark` caches the number of characters plus one, 0 while it was not counted.
struct StringObject : Object
{
    explicit StringObject(std::string content);
    ~StringObject();

    const std::string text;

private:
    std::size_t bytesOutside() const noexcept;
};

/// Entities chosen together, in order, without repetition. Shared by all values that refer to it: ssadd and ssdel
/// change it in place. `mark` is the number that it prints with. Made by Interpreter::makeSelectionSet.
struct SelectionSet : Object
{
    /// To be read only; add() and remove() change it.
    std::deque<std::uint64_t> entities;

    bool contains(std::uint64_t entity) const { return members.contains(entity); }
    /// Puts it at the end; false when it was there already.
    bool add(std::uint64_t entity);
    /// False when it was not there. Quick at both ends, which is where programs take entities away.
    bool remove(std::uint64_t entity);

private:
    std::unordered_set<std::uint64_t> members;
    std::size_t counted = 0; ///< for how many members there is a share
    HeapShare share;
};

/// What vl-catch-all-apply gives back for an error.
struct CaughtError : Object
{
    std::string message;
};

/// Builds a list from front to back in constant time an item.
class ListBuilder
{
public:
    void append(Value item);
    /// Makes the list end in `tail` instead of nil. Nothing may be appended after that.
    void setTail(Value tail);
    bool isEmpty() const noexcept { return m_head.isNil(); }
    /// The list; the builder is empty again.
    Value take();

private:
    Value m_head;
    Cons *m_last = nullptr;
};

/// Walks the items of a list: `for (const Value &item : ListItems(list))`. A dotted tail is not visited. The list must
/// stay referenced meanwhile.
class ListItems
{
public:
    class Iterator
    {
    public:
        using value_type = Value;
        using difference_type = std::ptrdiff_t;
        using iterator_category = std::forward_iterator_tag;
        using pointer = const Value *;
        using reference = const Value &;

        Iterator() = default;
        explicit Iterator(const Value *rest) : m_rest(rest) {}
        const Value &operator*() const { return m_rest->car(); }
        Iterator &operator++()
        {
            m_rest = &m_rest->cdr();
            return *this;
        }
        Iterator operator++(int)
        {
            Iterator before = *this;
            ++*this;
            return before;
        }
        /// The list from here on.
        const Value &rest() const { return *m_rest; }
        bool operator==(const Iterator &other) const
        {
            const bool ended = !m_rest || !m_rest->isCons();
            const bool otherEnded = !other.m_rest || !other.m_rest->isCons();
            return ended == otherEnded && (ended || m_rest == other.m_rest);
        }

    private:
        const Value *m_rest = nullptr;
    };

    explicit ListItems(const Value &list) : m_list(&list) {}
    Iterator begin() const { return Iterator(m_list); }
    Iterator end() const { return Iterator(); }

private:
    const Value *m_list;
};

/// The number of items of a list; a dotted tail does not count.
std::size_t listLength(const Value &list);
/// The items of a list as a vector.
std::vector<Value> listToVector(const Value &list);

/// Lisp's `equal`: numbers by value within `fuzz` (an integer equals a real), strings by text, lists item by item.
/// Does not recurse.
bool isEqual(const Value &left, const Value &right, double fuzz = 0.0);

inline Value Value::integer(std::int32_t number) noexcept
{
    Value value;
    value.m_tag = Tag::Integer;
    value.m_integer = number;
    return value;
}

inline Value Value::real(double number) noexcept
{
    Value value;
    value.m_tag = Tag::Real;
    value.m_real = number;
    return value;
}

inline Value Value::symbol(Symbol &symbol) noexcept
{
    Value value;
    value.m_tag = Tag::Symbol;
    value.m_symbol = &symbol;
    return value;
}

inline Value Value::entityName(std::uint64_t id) noexcept
{
    Value value;
    value.m_tag = Tag::EntityName;
    value.m_id = id;
    return value;
}

inline Value Value::adopt(Tag tag, Object *object) noexcept
{
    Value value;
    value.m_tag = tag;
    value.m_object = object;
    return value;
}

inline Value Value::cons(Value car, Value cdr)
{
    auto *pair = new Cons;
    pair->car.swap(car);
    pair->cdr.swap(cdr);
    return adopt(Tag::Cons, pair);
}

inline void Value::retain() const noexcept
{
    if (m_tag >= Tag::String)
        ++m_object->references;
}

inline void Value::release() noexcept
{
    if (m_tag >= Tag::String && --m_object->references == 0)
        destroyObject(m_tag, m_object);
}

inline const Cons &Value::asCons() const noexcept
{
    assert(isCons());
    return *static_cast<const Cons *>(m_object);
}

inline StringObject &Value::asStringObject() const noexcept
{
    assert(isString());
    return *static_cast<StringObject *>(m_object);
}

inline const std::string &Value::asString() const noexcept
{
    return asStringObject().text;
}

inline SelectionSet &Value::asSelectionSet() const noexcept
{
    assert(isSelectionSet());
    return *static_cast<SelectionSet *>(m_object);
}

inline CaughtError &Value::asCaughtError() const noexcept
{
    assert(m_tag == Tag::CaughtError);
    return *static_cast<CaughtError *>(m_object);
}

namespace detail {
inline const Value nil;
}

inline const Value &Value::car() const noexcept
{
    return isCons() ? static_cast<const Cons *>(m_object)->car : detail::nil;
}

inline const Value &Value::cdr() const noexcept
{
    return isCons() ? static_cast<const Cons *>(m_object)->cdr : detail::nil;
}

} // namespace host::lisp
