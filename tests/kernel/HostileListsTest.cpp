// Lists of fields that no drawing may have in it: what of them is taken still makes a file that opens again, with the
// same records in it.

#include "host/drawing/records/Drawing.h"
#include "tests/kernel/Bench.h"
#include "tests/support/CaseFile.h"
#include "tests/support/Texts.h"

namespace {

using namespace host::drawing;

/// What can be told of a drawing's records, in order.
std::vector<std::string> recordsOf(const Drawing &drawing)
{
    std::vector<std::string> records;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id)) {
        const RecordId parent = drawing.parent(id);
        records.push_back(std::to_string(int(drawing.kind(id))) + ' ' + drawing.handle(id).toHex().toStdString() +
                          " in " + (isValid(parent) ? drawing.typeName(parent).toByteArray().toStdString() : "") +
                          ": " + drawing.bytes(id).toByteArray().toStdString());
    }
    return records;
}

class HostileLists : public Bench, public testing::WithParamInterface<QByteArray>
{
};

TEST_P(HostileLists, leaveAFileThatOpensAgainWithTheSameRecords)
{
    if (!GetParam().isEmpty()) {
        const QString path = write("early.dxf", ortakit::test::dxfText("0 SECTION 2 HEADER " + GetParam() + R"( 0 ENDSEC
            0 SECTION 2 ENTITIES 0 POINT 8 0 10 1 20 2 0 ENDSEC 0 EOF)"));
        ASSERT_TRUE(session.documents().open(path));
    }
    const auto file = ortakit::test::readCases(ortakit::test::testFile("kernel/hostile.lsp"));
    ASSERT_EQ(file.groups.size(), 1U);
    lisp(file.prelude);
    for (const auto &row : file.groups.front()) {
        SCOPED_TRACE(row.place);
        const std::string result = lisp(row.source);
        if (row.text('=') != "*") {
            EXPECT_EQ(result, row.text('='));
        }
        const ReadResult again = Drawing::fromBytes(drawing().toBytes());
        ASSERT_TRUE(again) << again.error.message().toStdString();
        EXPECT_EQ(recordsOf(*again.drawing), recordsOf(drawing()));
    }
}

INSTANTIATE_TEST_SUITE_P(versions, HostileLists,
                         testing::Values(QByteArray(), QByteArray("9 $ACADVER 1 AC1009 9 $HANDLING 70 0"),
                                         QByteArray("9 $ACADVER 1 AC1009 9 $HANDLING 70 1 9 $HANDSEED 5 20"),
                                         QByteArray("9 $ACADVER 1 AC1015 9 $DWGCODEPAGE 3 ANSI_932")));

} // namespace
