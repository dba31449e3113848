#include "host/drawing/records/Dictionaries.h"

#include "host/drawing/file/NewDrawing.h"
#include "host/drawing/records/Journal.h"
#include "tests/drawing/DrawingSample.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

const FieldList data = fieldsOf("1 čas|40 12.5|90 -7|10 1,2,3|290 1");

TEST(Dictionaries, KeepNamedData)
{
    for (const QByteArray &version : {QByteArray("AC1015"), QByteArray("AC1032")}) {
        SCOPED_TRACE(version.toStdString());
        const auto drawing = sample(version);
        Dictionaries &dictionaries = drawing->dictionaries();
        const RecordId root = dictionaries.root();
        EXPECT_EQ(root, drawing->find({0xC}));
        EXPECT_FALSE(dictionaries.xrecord(root, u"EDIT_TIME").has_value());
        const RecordId record = dictionaries.setXrecord(root, u"EDIT_TIME"_s, data);
        EXPECT_EQ(dictionaries.xrecord(root, u"edit_time"), data);
        EXPECT_EQ(dictionaries.setXrecord(root, u"Edit_Time"_s, fieldsOf("1 later")), record);
        EXPECT_EQ(dictionaries.xrecord(root, u"EDIT_TIME"), fieldsOf("1 later"));
        EXPECT_EQ(dictionaries.entries(root).size(), 2U);
        const auto again = readGood(drawing->toBytes());
        EXPECT_EQ(again->dictionaries().xrecord(again->dictionaries().root(), u"EDIT_TIME"), fieldsOf("1 later"));
        EXPECT_AUDIT_CLEAN(*drawing);
        EXPECT_TRUE(dictionaries.remove(root, u"EDIT_TIME"));
        EXPECT_FALSE(dictionaries.remove(root, u"EDIT_TIME"));
        EXPECT_FALSE(drawing->isAlive(record));
        EXPECT_AUDIT_CLEAN(*drawing);
    }
}

TEST(Dictionaries, NestAndRefuseOtherThings)
{
    const auto drawing = newDrawing();
    Dictionaries &dictionaries = drawing->dictionaries();
    const RecordId root = dictionaries.root();
    const RecordId own = dictionaries.ensureDictionary(root, u"MINE"_s);
    EXPECT_EQ(dictionaries.ensureDictionary(root, u"mine"_s), own);
    EXPECT_TRUE(isValid(dictionaries.setXrecord(own, u"a"_s, data)));
    EXPECT_FALSE(isValid(dictionaries.setXrecord(root, u"ACAD_GROUP"_s, data))) << "a dictionary is no record";
    EXPECT_FALSE(isValid(dictionaries.ensureDictionary(own, u"a"_s))) << "a record is no dictionary";
    EXPECT_AUDIT_CLEAN(*drawing);
}

TEST(Dictionaries, AreMadeWhereTheVersionHasThem)
{
    const auto removeObjects = [](const QByteArray &text) {
        const qsizetype begin = text.lastIndexOf("  0\nSECTION");
        return text.first(begin) + "  0\nEOF\n";
    };
    const auto newer = readGood(removeObjects(sampleText("AC1018")));
    EXPECT_FALSE(isValid(newer->dictionaries().root()));
    const RecordId root = newer->dictionaries().ensureRoot();
    ASSERT_TRUE(isValid(root));
    EXPECT_TRUE(isValid(newer->dictionaries().setXrecord(root, u"X"_s, data)));
    const auto again = readGood(newer->toBytes());
    EXPECT_EQ(again->dictionaries().entries(again->dictionaries().root()).size(), 1U);

    const auto old = sample("AC1009");
    const QByteArray before = old->toBytes();
    EXPECT_FALSE(isValid(old->dictionaries().ensureRoot()));
    EXPECT_FALSE(isValid(old->dictionaries().setXrecord(noRecord, u"X"_s, data)));
    EXPECT_FALSE(isValid(old->dictionaries().ensureDictionary(noRecord, u"X"_s)));
    EXPECT_EQ(old->toBytes(), before);
}

TEST(Dictionaries, ExtensionDictionariesAreFound)
{
    const auto drawing = sample(
        "AC1015", "0 LINE\n5 50\n102 {ACAD_XDICTIONARY\n360 D\n102 }\n330 1F\n100 AcDbEntity\n8 0\n0 POINT\n5 51\n8 0");
    EXPECT_EQ(drawing->dictionaries().extensionDictionary(drawing->find({0x50})), drawing->find({0xD}));
    EXPECT_FALSE(isValid(drawing->dictionaries().extensionDictionary(drawing->find({0x51}))));
}

} // namespace
} // namespace host::drawing
