// Lists of fields that no drawing may have in it: what of them is taken still makes a file that opens again, with the
// same records in it.

#include "host/drawing/records/Drawing.h"
#include "tests/kernel/Bench.h"
#include "tests/support/CaseFile.h"

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
        const QString path = write("early.dxf", "0\nSECTION\n2\nHEADER\n" + GetParam() +
                                                    "0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nPOINT\n8\n0\n10\n1\n20\n2\n"
                                                    "0\nENDSEC\n0\nEOF\n");
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

INSTANTIATE_TEST_SUITE_P(
    versions, HostileLists,
    testing::Values(QByteArray(), QByteArray("9\n$ACADVER\n1\nAC1009\n9\n$HANDLING\n70\n0\n"),
                    QByteArray("9\n$ACADVER\n1\nAC1009\n9\n$HANDLING\n70\n1\n9\n$HANDSEED\n5\n20\n"),
                    QByteArray("9\n$ACADVER\n1\nAC1015\n9\n$DWGCODEPAGE\n3\nANSI_932\n")));

} // namespace
