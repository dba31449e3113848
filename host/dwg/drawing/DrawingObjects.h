#pragma once

#include "host/dwg/contents/Contents.h"
#include "host/dwg/objects/ObjectHead.h"
#include "host/dwg/objects/TypeTable.h"

#include <unordered_set>

namespace host::dwg {

/// The objects of one file by their handles: where each is, of which type, and whether it was taken. What is wrong with
/// one is told among the problems.
class DrawingObjects
{
public:
    /// Reads the classes and the map of objects; `container` and `problems` must outlive this.
    DrawingObjects(const Container &container, Problems &problems);

    Release release() const { return m_container.release; }
    int maintenance() const { return m_container.maintenance; }
    /// How many bytes their records may have together.
    std::uint64_t mostText() const { return m_container.mostText; }
    const std::vector<ObjectClass> &classes() const { return m_classes; }
    /// Of all objects together, at most: they do not overlap.
    std::size_t byteCount() const { return m_container.objects.size(); }
    /// All objects by rising handle.
    const std::vector<MapEntry> &map() const { return m_map; }

    /// The object as it stands in the file, without its checksum; nothing when there is none.
    static const ObjectFrame *peek(const MapEntry &entry) { return entry.frame.bytes.empty() ? nullptr : &entry.frame; }
    const ObjectFrame *peek(std::uint64_t handle) const;
    /// Whether the map tells of the object, be there nothing at its place.
    bool isTold(std::uint64_t handle) const { return indexOf(handle) != m_map.size(); }
    /// Takes the object, unless it was taken before: each is written once, whoever refers to it.
    const ObjectFrame *take(std::uint64_t handle);
    /// Counts the object as taken.
    void leaveOut(std::uint64_t handle);
    /// Whether the object with this place in the map was taken.
    bool isTaken(std::size_t index) const { return m_isTaken[index]; }

    /// The row of an object's type; null for what is not read here.
    const ObjectType *typeOf(int number) const;
    /// The class with this number; null when the number is none of a class.
    const ObjectClass *classOf(int number) const;
    /// Whether objects of the type are entities, which stand in blocks.
    bool isEntity(int number) const;
    /// What problems call the type.
    std::string typeNameOf(int number) const;

    void lose(std::uint64_t handle, int type, const char *why);
    /// The handles of all objects that were lost.
    const std::unordered_set<std::uint64_t> &lost() const { return m_lost; }
    /// Another record has this handle, and stands for the object.
    void standFor(std::uint64_t handle) { m_lost.erase(handle); }
    void warn(std::uint64_t handle, int type, const char *why);
    void keep(std::uint64_t handle, int type, const char *why);
    /// Problems that concern no object.
    Problems &problems() { return m_problems; }

private:
    /// A class as it is looked up by its number.
    struct KnownClass
    {
        const ObjectClass *one = nullptr;
        const ObjectType *type = nullptr; ///< null for what is not read here
    };

    void sortClasses();
    KnownClass knownClass(int number) const;
    /// The object's place in the map; the map's size when it is not there.
    std::size_t indexOf(std::uint64_t handle) const;

    const Container &m_container;
    Problems &m_problems;
    std::vector<ObjectClass> m_classes;
    std::vector<KnownClass> m_knownClasses; ///< by their numbers, from firstClassNumber on
    std::vector<MapEntry> m_map;
    std::unordered_set<std::uint64_t> m_lost;
    std::vector<bool> m_isTaken; ///< for the entries of the map
    std::size_t m_lastTaken = 0; ///< in the map; mostly the next one is wanted next
    std::size_t m_bytesTaken = 0;
};

} // namespace host::dwg
