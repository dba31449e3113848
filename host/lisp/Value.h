#pragma once

#include "host/lisp/Heap.h"

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <new>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_set>
#include <utility>
#include <vector>

namespace host::lisp {

// The kinds that live in objects; most programs of this room need only one or two of them in full.
class Symbol;
struct Object;
struct Cons;
struct StringObject;
struct Function;
struct NativeFunction;
class File;
struct SelectionSet;
struct CaughtError;
struct HostObject;

/// What a value is. Everything from String on lives in a reference-counted object: the order counts, since retain() and
/// release() ask whether a tag is at least String.
enum class Tag : std::uint32_t
{
    Nil,          ///< also the empty list and false
    Integer,      ///< 32 bits with a sign
    Real,         ///< a double; finite or not, as the arithmetic gave it
    EntityName,   ///< a number of the embedder's
    Symbol,       ///< not counted: symbols live as long as their interpreter
    String,       ///< StringObject
    Cons,         ///< Cons
    Function,     ///< of a program: defun, lambda
    Native,       ///< of this engine or of whoever embeds it; special forms as well
    File,         ///< open or closed
    SelectionSet, ///< shared, and the only kind that programs change in place
    CaughtError,  ///< what vl-catch-all-apply gave
    HostObject,   ///< an object of the embedder's: type VLA-OBJECT
};

/// The eight bytes that both a value and a counted object begin with, so that a pair needs no more than its two values:
/// whoever holds an object, of whatever kind, finds its count in the same place.
///
/// In an object both are the object's. In a value `mark` is the tag; `references` belongs to what the value is a part
/// of: a pair counts in that of its first value how many hold it, and keeps its own mark in that of its second. For all
/// other values nobody sets it or asks for it, and no copy or move of a value touches it.
struct Head
{
    std::uint32_t mark;
    std::uint32_t references;
};

/// One Lisp value: 16 bytes, cheap to copy (a count at most), never a cycle, because lists cannot be changed in place.
///
/// Values belong to the thread of their interpreter: the counts are no atomics. A value that holds a symbol is good for
/// as long as the interpreter whose symbol it is; all others may outlive theirs. The `as...` accessors assert the kind
/// and are undefined for another one in a release: ask `is...` first, or take arguments through Arguments, which raises
/// the dialect's errors.
///
/// Making an object throws the Lisp error "out of memory" where the program has used up what it may (see Heap). Letting
/// go of one frees all that only it held, at once and without recursion, however long or deep that is.
class Value
{
public:
    /// nil, which is also the empty list and false.
    Value() noexcept : Value(Tag::Nil) { m_integer = 0; }
    Value(const Value &other) noexcept : Value(other.tag())
    {
        m_bits = other.m_bits;
        retain();
    }
    /// The source of a move is nil afterwards.
    Value(Value &&other) noexcept : Value(other.tag())
    {
        m_bits = other.m_bits;
        other.setTag(Tag::Nil);
    }
    /// By way of a copy, so that a value may be assigned a part of what it holds itself: `list = list.cdr()`.
    Value &operator=(const Value &other) noexcept
    {
        Value copy(other);
        swap(copy);
        return *this;
    }
    /// By way of another one, so that a value may be assigned a part of itself that is moved.
    Value &operator=(Value &&other) noexcept
    {
        Value taken(std::move(other));
        swap(taken);
        return *this;
    }
    ~Value() { release(); }

    /// Begins a value at `place`, where none is, with what this one holds, whose life ends by it.
    void relocate(void *place) noexcept { (new (place) Value(tag()))->m_bits = m_bits; }

    /// Without touching a count.
    void swap(Value &other) noexcept
    {
        std::swap(m_head.mark, other.m_head.mark);
        std::swap(m_bits, other.m_bits);
    }

    // Values of each kind. What is counted may throw the Lisp error "out of memory".

    static Value integer(std::int32_t number) noexcept;
    static Value real(double number) noexcept;
    /// `text` is UTF-8, which nobody checks: other bytes are kept and come back as they are. The length is not limited
    /// here; what makes strings for a program asks Interpreter::checkStringLength() before.
    static Value string(std::string text);
    /// The symbol itself, not its value. Symbols come from Interpreter::intern().
    static Value symbol(Symbol &symbol) noexcept;
    /// `id` is whatever the embedder knows its entity by; 0 is a valid name that no selection set refuses.
    static Value entityName(std::uint64_t id) noexcept;
    /// See HostObject.
    static Value hostObject(std::string kind, std::uint64_t number);
    /// A pair; a list when `cdr` is one, else dotted.
    static Value cons(Value car, Value cdr);
    /// A list in the order of the items; nil for none. To build one item by item, use ListBuilder.
    static Value list(std::initializer_list<Value> items);
    static Value list(std::span<const Value> items);
    /// A list of two reals, or of three: the shape that points have everywhere in the dialect, in drawing units.
    static Value point(double x, double y);
    static Value point(double x, double y, double z);
    /// Takes over the one reference that a newly made object carries. `tag` must be that of the object's class: it says
    /// later as what the object is deleted.
    static Value adopt(Tag tag, Object *object) noexcept;
    static Value adopt(Cons *pair) noexcept;

    // What it is.

    /// For what treats the kinds apart.
    Tag tag() const noexcept { return static_cast<Tag>(m_head.mark); }
    /// Also what has not been set.
    bool isNil() const noexcept { return tag() == Tag::Nil; }
    /// Everything but nil is true.
    bool isTrue() const noexcept { return tag() != Tag::Nil; }
    bool isInteger() const noexcept { return tag() == Tag::Integer; }
    /// A whole number too, when it is one of the kind.
    bool isReal() const noexcept { return tag() == Tag::Real; }
    /// Of either kind.
    bool isNumber() const noexcept { return isInteger() || isReal(); }
    // Each is of one kind exactly; nil is of none but its own.
    bool isString() const noexcept { return tag() == Tag::String; }
    /// Not nil, whose name is one to programs.
    bool isSymbol() const noexcept { return tag() == Tag::Symbol; }
    /// A list with items, or a dotted pair.
    bool isCons() const noexcept { return tag() == Tag::Cons; }
    /// nil or a cons, dotted or not: what car() and cdr() are meant for.
    bool isList() const noexcept { return isNil() || isCons(); }
    /// Of an entity that is there, erased, or never was.
    bool isEntityName() const noexcept { return tag() == Tag::EntityName; }
    /// An empty set is one too.
    bool isSelectionSet() const noexcept { return tag() == Tag::SelectionSet; }
    /// A program's function or a native one, special forms included; not a list (lambda ...), which apply() takes too.
    bool isFunction() const noexcept { return tag() == Tag::Function || tag() == Tag::Native; }

    // What is in it. References are good while a value holds the object; the kind is the caller's to know.

    std::int32_t asInteger() const noexcept
    {
        assert(isInteger());
        return static_cast<std::int32_t>(m_integer);
    }
    /// The number as a real, whichever of the two kinds it is.
    double asReal() const noexcept
    {
        assert(isNumber());
        return isInteger() ? static_cast<double>(m_integer) : m_real;
    }
    /// UTF-8, of any length.
    const std::string &asString() const noexcept;
    /// For its name and its value.
    Symbol &asSymbol() const noexcept
    {
        assert(isSymbol());
        return *m_symbol;
    }
    /// The embedder's number, as it was given to entityName().
    std::uint64_t asEntityName() const noexcept
    {
        assert(isEntityName());
        return m_id;
    }
    /// To be changed through it: all values that hold the set see the change.
    SelectionSet &asSelectionSet() const noexcept;
    /// The pair; car() and cdr() do without asking for the kind first.
    const Cons &asCons() const noexcept;
    /// The object of a string, whose mark keeps the number of its characters.
    StringObject &asStringObject() const noexcept;
    /// Their classes are declared in Function.h, Native.h and File.h.
    Function &asFunction() const noexcept;
    NativeFunction &asNative() const noexcept;
    File &asFile() const noexcept;
    CaughtError &asCaughtError() const noexcept;
    bool isHostObject() const noexcept { return tag() == Tag::HostObject; }
    const HostObject &asHostObject() const noexcept;

    /// First item and rest of a list; nil for nil and for everything that is no cons. The references are good while
    /// this value holds the pair.
    const Value &car() const noexcept;
    const Value &cdr() const noexcept;

    /// Lisp's `eq`: the same object, symbol or number (an integer and a real are never the same), or two strings of the
    /// same text. Takes time with the length of strings only.
    bool isSame(const Value &other) const noexcept;

private:
    /// Leaves the rest to be filled in.
    explicit Value(Tag tag) noexcept { setTag(tag); }
    void setTag(Tag tag) noexcept { m_head.mark = static_cast<std::uint32_t>(tag); }
    // One more, one less that holds the object; nothing for kinds that have none.
    void retain() const noexcept;
    void release() noexcept;

    Head m_head; ///< its second half is not the value's: see Head
    union {
        std::int64_t m_integer; ///< Integer; as wide as the others, since what is copied is all of it
        double m_real;          ///< Real
        std::uint64_t m_id;     ///< EntityName
        Symbol *m_symbol;       ///< Symbol
        Head *m_object;       ///< String and all behind it: what the object, or the first value of a pair, begins with
        std::uint64_t m_bits; ///< whichever it is, to copy and compare
    };
    friend class Demolition;
    friend struct Cons;
};

// A list of a million items should not take more than pairs of these do.
static_assert(sizeof(Value) == 16);

/// The memory of objects counts towards the program's heap; `new` throws the Lisp error "out of memory" when there is
/// no room for one.
struct CountedMemory
{
    /// Asks and counts; the block is as large as the allocator makes it.
    static void *operator new(std::size_t size)
    {
        Heap::check(Heap::blockOf(size));
        void *memory = takeBlock(size);
        Heap::add(Heap::blockOf(size));
        return memory;
    }
    static void operator delete(void *memory, std::size_t size) noexcept
    {
        Heap::remove(Heap::blockOf(size));
        giveBlock(memory, size);
    }
};

/// What every counted object but a pair begins with. `mark` is for the kind's own use; `references` says how many
/// values hold it, and a new object belongs to whoever adopts it. Objects are deleted as what they are, by
/// destroyObject(), since there is no virtual destructor: 8 bytes of head are all that an object costs.
struct Object : Head, CountedMemory
{
    Object() : Head{0, 1} {}
};

/// Frees an object whose last reference went, and all that goes with it, without recursion however deep it is: pairs
/// that wait for their turn are linked through their own cells, so that it needs no memory either. Called by Value.
void destroyObject(Tag tag, Head *object) noexcept;

/// A pair, which is no more than its two values: its count and its mark are in their heads. Nothing changes a pair that
/// a program has seen; ListBuilder does with those that it has not handed out yet.
struct Cons : CountedMemory
{
    /// Takes over what the two hold, which are nil afterwards; belongs to whoever adopts it.
    Cons(Value &first, Value &rest) noexcept
    {
        car.swap(first);
        cdr.swap(rest);
        car.m_head.references = 1;
        setMark(0);
    }
    /// The source location that the reader gave the list form (see SourceMap), 0 for none.
    std::uint32_t mark() const noexcept { return cdr.m_head.references; }
    void setMark(std::uint32_t mark) noexcept { cdr.m_head.references = mark; }

    Value car; ///< the item
    Value cdr; ///< the rest: a list, or an atom in a dotted pair
};
static_assert(sizeof(Cons) == 2 * sizeof(Value) && offsetof(Cons, car) == 0);
static_assert(std::is_standard_layout_v<Cons>, "a pair may be taken for its first value, and that for its head");

/// A string. `mark` caches the number of characters plus one, 0 while it was not counted. The text never changes; what
/// it takes outside of the object, which is nothing up to 15 bytes, counts towards the heap.
struct StringObject : Object
{
    /// Throws "out of memory" where the text has no room in the heap.
    explicit StringObject(std::string content);
    ~StringObject(); // gives back what the text took of the heap

    const std::string text; ///< UTF-8

private:
    /// What the text takes beside the object; 0 for a short one.
    std::size_t bytesOutside() const noexcept;
};

/// Entities chosen together, in order, without repetition. Shared by all values that refer to it: ssadd and ssdel
/// change it in place. `mark` is the number that it prints with. Made by Interpreter::makeSelectionSet. Whether an
/// entity is in takes the same time however many there are; so does adding one. The first such question about a set
/// that was made of many costs a pass over them.
struct SelectionSet : Object
{
    /// To be read only; add() and remove() change it.
    std::deque<std::uint64_t> entities;

    /// What the embedder remembers of how the entities were chosen; gone when one is put in later.
    std::shared_ptr<const void> details;

    /// Whether it is in, erased or not: the set knows numbers, not drawings.
    bool contains(std::uint64_t entity);
    /// Puts it at the end; false when it was there already. Throws "out of memory" when the program has no more.
    bool add(std::uint64_t entity);
    /// As add(), one after another; quicker into an empty set when the numbers only rise or only fall.
    void add(std::span<const std::uint64_t> many);
    /// False when it was not there. Quick at both ends, which is where programs take entities away.
    bool remove(std::uint64_t entity);

private:
    /// Makes `members`, where nobody has asked for one yet.
    void know();

    std::unordered_set<std::uint64_t> members; ///< the same as in `entities`, or none
    std::size_t counted = 0;                   ///< for how many members there is a share: the most that there were
    HeapShare share;                           ///< what the members take outside of the object
};

/// An object of the embedder's object model. It is told by kind and number, so that two values of the same ones are the
/// same object to programs; what they mean, and whether it is there still, the embedder knows.
struct HostObject : Object
{
    std::string kind; ///< "Document": what it prints with
    std::uint64_t number = 0;
};

/// What vl-catch-all-apply gives back for an error: an atom that only vl-catch-all-error-p and
/// vl-catch-all-error-message look into.
struct CaughtError : Object
{
    std::string message; ///< as `*error*` would have got it, without place
};

/// Builds a list from front to back in constant time an item. What was built goes with the builder unless take() handed
/// it out, so an error half-way leaks nothing.
class ListBuilder
{
public:
    /// Throws "out of memory" when the program has no more; the list is as it was then.
    void append(Value item);
    /// Makes the list end in `tail` instead of nil: a dotted pair, or the shared rest of another list. Nothing may be
    /// appended after that.
    void setTail(Value tail);
    /// Nothing was appended since it was made or taken from.
    bool isEmpty() const noexcept { return m_head.isNil(); }
    /// The list, nil when nothing was appended; the builder is empty again.
    Value take();

private:
    Value m_head;           ///< the first pair, which holds all others
    Cons *m_last = nullptr; ///< the pair to go on from; null while empty and behind setTail()
};

/// Walks the items of a list: `for (const Value &item : ListItems(list))`. A dotted tail is not visited; of nil and of
/// an atom there are no items. The list must stay referenced meanwhile: where a program's function is called in
/// between, hold a copy of the list.
class ListItems
{
public:
    /// Points into the pairs, so it is good as long as the list is held. All ends are equal.
    class Iterator
    {
    public:
        using value_type = Value;
        using difference_type = std::ptrdiff_t;
        using iterator_category = std::forward_iterator_tag;
        using pointer = const Value *;
        using reference = const Value &;

        /// The end of every list.
        Iterator() = default;
        /// Stands at the first item of `rest`, a list or the rest of one.
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
        /// The list from here on: its car is the item, behind the last item it is nil or the dotted tail.
        const Value &rest() const { return *m_rest; }
        /// The same pair of the same list, or both behind the last item.
        bool operator==(const Iterator &other) const
        {
            const bool ended = !m_rest || !m_rest->isCons();
            const bool otherEnded = !other.m_rest || !other.m_rest->isCons();
            return ended == otherEnded && (ended || m_rest == other.m_rest);
        }

    private:
        const Value *m_rest = nullptr; ///< within the pairs of the list; null at the end
    };

    /// `list` is referred to, not copied.
    explicit ListItems(const Value &list) : m_list(&list) {}
    // For range-based loops; a list without items has none of them.
    Iterator begin() const { return Iterator(m_list); }
    Iterator end() const { return Iterator(); }

private:
    const Value *m_list; ///< whose holder outlives the walk
};

// For natives that need more than one look at a list.

/// The number of items of a list; a dotted tail does not count. Walks through the list.
std::size_t listLength(const Value &list);
/// The items of a list as a vector, for what needs to go back and forth; without a dotted tail.
std::vector<Value> listToVector(const Value &list);

/// Lisp's `equal`: numbers by value within `fuzz` (an integer equals a real), strings by text, lists item by item.
/// Does not recurse, and cannot be stopped: lists that hold each other many times take time with what they would print
/// as. For a program's own lists there is Interpreter::equal(), which the user can stop.
bool isEqual(const Value &left, const Value &right, double fuzz = 0.0);

} // namespace host::lisp

#include "host/lisp/ValueInline.h"
