#include "host/kernel/platform/Services.h"
#include "platform/rx/OdRxModule.h"
#include "tests/support/ModuleTest.h"

#include <dlfcn.h>
#include <new>

namespace {

/// The module's file as a host loads it.
class ModuleFile : public testing::Test
{
protected:
    ModuleFile()
    {
        // All symbols at once: one that no host has would come up here and not in the middle of a tool.
        m_handle = dlopen(MODULE_FILE, RTLD_NOW | RTLD_LOCAL);
        if (!m_handle)
            ADD_FAILURE() << dlerror();
    }
    ~ModuleFile() override
    {
        if (m_handle)
            dlclose(m_handle);
    }

    void SetUp() override { ASSERT_TRUE(m_handle); }

    template <class Function>
    Function entry(const char *name)
    {
        return reinterpret_cast<Function>(dlsym(m_handle, name));
    }

    OdRxModule *create() { return entry<OdRxCreateModuleObjectFunction>("odrxCreateModuleObject")(m_handle); }

    void *m_handle = nullptr;
};

std::size_t sizeNotGiven = 0;

TEST_F(ModuleFile, TellsTheHostThatMemoryRanOut)
{
    const std::size_t limit = host::kernel::setAllocationLimit(1);
    EXPECT_THROW(create(), std::bad_alloc);
    const OdAllocationFailureHandler before =
        host::kernel::setAllocationFailureHandler([](std::size_t size) { sizeNotGiven = size; });
    EXPECT_THROW(create(), std::bad_alloc);
    EXPECT_GT(sizeNotGiven, sizeof(void *));
    host::kernel::setAllocationFailureHandler(before);
    host::kernel::setAllocationLimit(limit);
}

TEST_F(ModuleFile, RunsItsToolsInEveryDocument)
{
    FakeHost host;
    ModalAnswers user;
    int parts[4] = {};
    entry<OdRxGetAPIVersionFunction>("odrxGetAPIVersion")(&parts[0], &parts[1], &parts[2], &parts[3]);
    EXPECT_THAT(parts, testing::ElementsAre(26, 8, 0, 54758)) << "a host takes only what was built for it";
    OdRxModule *module = create();
    EXPECT_EQ(create(), module);
    EXPECT_TRUE(module->moduleName().endsWith(u"Ortakit.so")) << module->moduleName().toStdString();
    module->initApp();
    const QString state = host.writeFile(u"state.txt"_s, "_dist_size=2.5\n");
    for (int documents = 0; documents < 2; ++documents) {
        FakeDocument *document = documents == 0 ? &host.document() : host.documents().open();
        EXPECT_EQ(document->lisp().functions().size(), 44);
        EXPECT_EQ(document->lisp().call(u"Dlg_BreakLine"_s, {state}), kRtNormal);
        EXPECT_EQ(document->lisp().result(), u"nil");
        EXPECT_EQ(document->lisp().call(u"Dlg_BreakLine"_s, {7}), kRtError);
    }
    EXPECT_EQ(user.shown(), QStringList(2, u"Dlg_QT_Breakline \"Breakline\""_s));
    EXPECT_EQ(FakeHost::readFile(state), "_dist_size=2.5\n");
    module->uninitApp();
    EXPECT_EQ(host.document().lisp().functions().size(), 3);
    module->deleteModule();
}

} // namespace
