#include "tests/platform/DevelopmentPackage.h"
#include "tests/support/CaseFile.h"
#include "tests/support/Texts.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;
using namespace ortakit::test;

TEST(SampleHost, RunsWhatItsCasesSay)
{
    const CaseFile runs = readCases(testFile("platform/samplehost.runs"));
    std::size_t rows = 0;
    for (const std::vector<CaseRow> &group : runs.groups) {
        const QTemporaryDir folder;
        for (const CaseRow &row : group) {
            SCOPED_TRACE(row.place + ' ' + row.source);
            QStringList arguments = QString::fromStdString(row.text('~')).split(u' ', Qt::SkipEmptyParts);
            if (!row.source.empty())
                arguments += QString::fromStdString(row.source);
            const Ended ended = runProgram(DevelopmentPackage::installed().sampleHost, arguments, folder.path(),
                                           QByteArray::fromStdString(row.lines('<')));
            EXPECT_EQ(std::to_string(ended.status), row.has('=') ? row.text('=') : "0");
            EXPECT_TRUE(ended.output.contains(QString::fromStdString(row.lines('>')))) << ended.output.toStdString();
            EXPECT_TRUE(ended.messages.contains(QString::fromStdString(row.lines('?'))))
                << ended.messages.toStdString();
            EXPECT_FALSE(row.has('!') &&
                         (ended.output + ended.messages).contains(QString::fromStdString(row.lines('!'))))
                << ended.output.toStdString() << ended.messages.toStdString();
            ++rows;
        }
    }
    EXPECT_GT(rows, 10u);
}

} // namespace
