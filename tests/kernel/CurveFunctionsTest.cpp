// The functions of curves over drawings made elsewhere, from the folder that ORTAKIT_CORPUS names: the small ones of
// them.

#include "tests/kernel/Bench.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mostBytes = 140'000;
constexpr int fewestCurves = 100; ///< fewer would mean that hardly anything was looked at

class CurveFunctions : public Bench
{
};

TEST_F(CurveFunctions, agreeWithEachOtherOnForeignCurves)
{
    const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS");
    if (corpus.isEmpty())
        GTEST_SKIP() << "ORTAKIT_CORPUS does not name a folder of drawings";
    QFile program(qEnvironmentVariable("ORTAKIT_SOURCE") + u"/tests/kernel/curves-corpus.lsp"_s);
    ASSERT_TRUE(program.open(QIODevice::ReadOnly));
    const std::string source = program.readAll().toStdString();
    int curves = 0;
    for (const QFileInfo &file : QDir(corpus).entryInfoList({u"*.dxf"_s}, QDir::Files)) {
        SCOPED_TRACE(file.fileName().toStdString());
        const host::kernel::OpenOutcome opened =
            file.size() <= mostBytes ? session.documents().open(file.filePath()) : host::kernel::OpenOutcome();
        if (!opened)
            continue;
        EXPECT_EQ(lisp(source + "(curve-faults)"), "nil");
        curves += std::stoi(lisp("curves"));
        session.documents().close(opened.document);
    }
    EXPECT_GE(curves, fewestCurves);
}

} // namespace
