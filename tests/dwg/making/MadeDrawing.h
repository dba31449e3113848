#pragma once

#include "tests/dwg/making/MadeFile.h"
#include "tests/dwg/making/ObjectWriter.h"

#include <functional>
#include <map>

namespace host::dwg::test {

/// The handles of what every made drawing has.
struct MadeHandles
{
    enum : std::uint64_t
    {
        BlockTable = 0x01,
        LayerTable = 0x02,
        StyleTable = 0x03,
        LinetypeTable = 0x05,
        ViewTable = 0x06,
        SystemTable = 0x07,
        ViewportTable = 0x08,
        ApplicationTable = 0x09,
        DimensionStyleTable = 0x0a,
        NamedObjects = 0x0c,
        LayerZero = 0x10,
        TextStyle = 0x11,   ///< "Standard"
        Application = 0x12, ///< "ACAD"
        ByBlock = 0x14,
        ByLayer = 0x15,
        Continuous = 0x16,
        PaperSpace = 0x1a, ///< and its BLOCK and ENDBLK behind it
        ModelSpace = 0x1d,
        First = 0x40 ///< of what a test adds
    };
};

/// A small drawing that a test puts together: the tables, the two spaces and the dictionary of named objects are there,
/// the test adds objects by writing their fields. For example a circle, and what is read of it:
///
///     MadeDrawing drawing(Release::R2010);
///     drawing.addEntity(0x12, [](ObjectWriter &o) {
///         o.point({1.0, 2.0, 0.0});
///         o.real(5.0);
///         o.thickness(0.0);
///         o.extrusion();
///     });
///     EXPECT_EQ(readBack(drawing).record(0x40), "0 CIRCLE|5 40|...");
///
/// Functions that write an object run when the file is made, so they may use handles of what is added later.
class MadeDrawing
{
public:
    using Write = std::function<void(ObjectWriter &)>;

    /// A type by its number, or by the name of its class, which the file gets then.
    struct Type
    {
        Type(int number) : number(number) {}
        Type(const char *className) : className(className) {}
        int number = 0;
        std::string className;
    };

    explicit MadeDrawing(Release release);

    Release release() const { return m_release; }
    /// By its number; 30, which is ANSI_1252, unless it is set.
    void setCodePage(int codePage) { m_codePage = codePage; }

    // Each gives the handle of what it adds.

    /// An entity of model space, on layer 0.
    std::uint64_t addEntity(const Type &type, Write write);
    /// An entity of another one, which tells of it in its own fields: a vertex, an attribute, an end of these.
    std::uint64_t addPart(const Type &type, std::uint64_t owner, Write write);
    /// Another object, in the dictionary of named objects.
    std::uint64_t addObject(const Type &type, const std::string &name, Write write);
    /// Another object that no dictionary names.
    std::uint64_t addOwned(const Type &type, std::uint64_t owner, Write write);
    /// An extension record with one text, in the dictionary of named objects. Up to R2004.
    std::uint64_t addText(const std::string &name, const std::string &text);
    /// An entry of the table that is for this type: a layer, a block, a style of dimensions and so on.
    std::uint64_t addEntry(int type, Write write);

    /// What the object has in front of its fields, to be changed: reactors, extended data, colour.
    MadeHead &head(std::uint64_t handle);
    /// The handle of the object that is added next.
    std::uint64_t nextHandle() const { return m_nextHandle; }
    /// The number of a header variable by its name ("$LTSCALE"), in the unit of the file; all others are 0 and empty.
    /// Of one that names something, the handle of that.
    void setHeader(const std::string &name, double number) { m_header[name] = number; }

    MadeParts parts() const;
    FileBytes file() const { return madeFile(parts()); }

private:
    struct Object
    {
        MadeHead head;
        Write write;
    };

    Object &add(const Type &type, bool isEntity, std::uint64_t handle, std::uint64_t owner, Write write);
    void addTables();
    void addSpace(std::uint64_t handle, const char *name, bool isPaper);
    void writeTable(ObjectWriter &o, int type, std::uint64_t handle) const;
    void writeBlock(ObjectWriter &o, const char *name, std::uint64_t handle, bool isPaper) const;
    void writeNamedObjects(ObjectWriter &o) const;
    int numberOf(const Type &type, bool isEntity);
    FileBytes headerBytes() const;
    FileBytes classesBytes() const;
    std::vector<Object> linkedObjects() const;

    struct Class
    {
        std::string name;
        bool isEntity = false;
    };

    Release m_release;
    int m_codePage = 30;
    std::uint64_t m_nextHandle = MadeHandles::First;
    std::map<std::uint64_t, Object> m_objects;
    std::map<std::uint64_t, std::vector<std::uint64_t>> m_entries; ///< by the table's handle
    std::vector<std::pair<std::string, std::uint64_t>> m_named;
    std::vector<std::uint64_t> m_entities; ///< of model space
    std::vector<Class> m_classes;
    std::map<std::string, double> m_header;
};

/// What writes a layer, for MadeDrawing::addEntry(). `colour` writes its colour.
MadeDrawing::Write layerWriter(std::string name, bool isOn, MadeDrawing::Write colour);

} // namespace host::dwg::test
