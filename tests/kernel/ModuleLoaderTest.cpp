#include "platform/rx/OdRxModule.h"
#include "tests/kernel/Bench.h"

using namespace host::kernel;

namespace {

TEST_F(Bench, aModuleIsLoadedOnceAndUnloaded)
{
    const QString file = QStringLiteral(GOOD_MODULE);
    const ModuleLoader::Outcome loaded = session.modules().load(file);
    ASSERT_TRUE(loaded) << loaded.error.toStdString();
    EXPECT_EQ(session.modules().load(file).module, loaded.module);
    EXPECT_EQ(session.modules().loaded(), QStringList({file}));
    EXPECT_EQ(loaded.module->moduleName(), file);
    EXPECT_EQ(lisp("(sample-add 1 2 3)"), "6");
    EXPECT_TRUE(session.modules().unload(file));
    EXPECT_FALSE(session.modules().unload(file));
    EXPECT_EQ(lisp("(sample-add 1)").rfind("error: no function definition", 0), 0U);
    EXPECT_TRUE(session.modules().load(file)) << "again";
}

TEST_F(Bench, filesThatAreNoModulesAreRefusedByName)
{
    struct Row
    {
        QString file;
        const char *reason;
    };
    const std::vector<Row> rows = {
        {path("none.so"), "none.so"},
        {write("text.so", "not a library"), "text.so"},
        {QStringLiteral("libdl.so.2"), "libdl.so.2"},
        {QStringLiteral(OTHER_MODULE),
         "it was built for version 26.8.0.1 of the interface, this host has 26.8.0.54758"},
    };
    for (const Row &row : rows) {
        const ModuleLoader::Outcome outcome = session.modules().load(row.file);
        EXPECT_FALSE(outcome);
        EXPECT_TRUE(outcome.error.contains(QString::fromUtf8(row.reason))) << outcome.error.toStdString();
    }
    EXPECT_TRUE(session.modules().loaded().isEmpty());
}

} // namespace
