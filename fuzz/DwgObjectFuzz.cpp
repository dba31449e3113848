// Any bytes as one object of any type and release: it becomes a record, a proxy, or is told as lost; and what is
// written of it stays within a multiple of its bytes.

#include "fuzz/Require.h"
#include "host/dwg/drawing/RecordWriter.h"
#include "tests/dwg/making/ObjectWriter.h"

#include <memory>

namespace {

using namespace host::dwg;

constexpr Release releases[] = {Release::R13,   Release::R14,   Release::R2000, Release::R2004,
                                Release::R2007, Release::R2010, Release::R2013, Release::R2018};
constexpr int firstClass = 500;

/// The section of classes of a file that has each class that is known here, and one that is not.
std::vector<std::uint8_t> classesOf(Release release)
{
    test::ObjectWriter o(release);
    const std::vector<const ObjectType *> types = allTypes();
    if (o.since(Release::R2004)) {
        o.int32(firstClass + static_cast<int>(types.size()));
        o.flag(true);
    }
    for (size_t i = 0; i <= types.size(); ++i) {
        o.int16(firstClass + static_cast<int>(i));
        o.int16(0);
        o.text("application");
        o.text("AcDbOne");
        o.text(i < types.size() ? types[i]->name : "UNKNOWN");
        o.flag(false);
        o.int16(i < types.size() && types[i]->isEntity ? 0x1f2 : 0x1f3);
        for (int k = 0; k < 5 && o.since(Release::R2004); ++k)
            o.int32(0);
    }
    const std::vector<std::uint8_t> content = o.run();
    test::BitWriter section;
    section.raw32(static_cast<std::uint32_t>(content.size()));
    if (release >= Release::R2013)
        section.raw32(0);
    section.append(Bytes(content));
    return section.bytes();
}

/// A file of each release without objects; kept, since its classes take longer to read than an object.
struct EmptyFile
{
    explicit EmptyFile(Release release)
        : classes(classesOf(release)), container(containerOf(release, classes)), objects(container, problems)
    {
    }

    static Container containerOf(Release release, Bytes classes)
    {
        Container container;
        container.release = release;
        container.classes = classes;
        container.mostText = 1 << 20;
        return container;
    }

    std::vector<std::uint8_t> classes;
    Container container;
    Problems problems;
    DrawingObjects objects;
};

EmptyFile &fileOf(size_t number)
{
    static std::array<std::unique_ptr<EmptyFile>, std::size(releases)> files;
    if (!files[number])
        files[number] = std::make_unique<EmptyFile>(releases[number]);
    return *files[number];
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    // Release, type, and in bits where the object's own values begin and where its references do.
    constexpr size_t headSize = 6;
    if (size <= headSize)
        return 0;
    const size_t number = data[0] % std::size(releases);
    EmptyFile &file = fileOf(number);
    const size_t lostBefore = file.problems.lostCount();
    static const std::vector<const ObjectType *> types = allTypes();
    const size_t row = (data[1] | static_cast<size_t>(data[2]) << 8) % (types.size() + 3);

    ObjectFrame frame;
    frame.bytes = Bytes(data + headSize, size - headSize);
    const size_t bits = frame.bytes.size() * 8;
    BitReader body(frame.bytes, std::min<size_t>(data[3] % 64, bits), bits);
    frame.handle = body.handle().value;
    frame.bodyStart = static_cast<std::uint32_t>(body.position());
    frame.referencesStart = (data[4] | static_cast<size_t>(data[5]) << 8) % (bits + 1);
    if (row > types.size())
        frame.type = row == types.size() + 1 ? 498 : 499;
    else
        frame.type =
            row < types.size() && types[row]->number != 0 ? types[row]->number : firstClass + static_cast<int>(row);

    std::string text;
    RecordWriter records(file.objects, text);
    for (std::uint64_t handle = 0; handle < 0x30; ++handle)
        records.names()[handle] = "name";
    const bool isWritten = records.writeFrame(frame.handle, frame);
    require(isWritten || file.problems.lostCount() > lostBefore || text.empty());
    require(text.size() <= 200 * size + 100000);
    return 0;
}
