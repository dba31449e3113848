#include "tests/view/DxfText.h"

#include <gtest/gtest.h>

namespace host::view::test {

namespace {

/// "10 5|20 7" as the lines of a file.
QByteArray lines(const std::string &tags)
{
    QByteArray result;
    if (tags.empty())
        return result;
    for (const QByteArray &tag : QByteArray::fromStdString(tags).split('|')) {
        const qsizetype blank = tag.indexOf(' ');
        result += (blank < 0 ? tag : tag.left(blank)) + '\n' + (blank < 0 ? QByteArray() : tag.mid(blank + 1)) + '\n';
    }
    return result;
}

QByteArray section(const char *name, const std::string &content)
{
    return lines("0 SECTION|2 " + std::string(name)) + lines(content) + lines("0 ENDSEC");
}

} // namespace

std::string blockText(const std::string &name, const std::string &entities)
{
    return "0 BLOCK|8 0|2 " + name + "|70 0|10 0|20 0|30 0|3 " + name + (entities.empty() ? "" : "|" + entities) +
           "|0 ENDBLK|8 0";
}

std::string tableText(const std::string &type, const std::string &entries)
{
    return "0 TABLE|2 " + type + "|70 1|" + entries + "|0 ENDTAB";
}

QByteArray dxfBytes(const DxfText &text)
{
    std::string tables = text.tables;
    if (!text.layers.empty())
        tables += (tables.empty() ? "" : "|") + tableText("LAYER", text.layers);
    QByteArray bytes = section("HEADER", "9 $ACADVER|1 AC1015" + (text.header.empty() ? "" : "|" + text.header));
    bytes += section("TABLES", tables);
    bytes += section("BLOCKS", text.blocks);
    bytes += section("ENTITIES", text.entities);
    if (!text.objects.empty())
        bytes += section("OBJECTS", text.objects);
    return bytes + lines("0 EOF");
}

std::unique_ptr<drawing::Drawing> readDrawing(const DxfText &text)
{
    drawing::ReadResult result = drawing::Drawing::fromBytes(dxfBytes(text));
    EXPECT_TRUE(result) << result.error.message().toStdString();
    return std::move(result.drawing);
}

} // namespace host::view::test
