#include "module/CEdReactor.h"

#include "module/DialogRegistry.h"
#include "tests/support/ModuleTest.h"

namespace {

qint64 reactorNow = 0;

/// Two documents, the second one active, with two records; time stands an hour after the last activity of each.
class EditorReactor : public testing::Test
{
protected:
    EditorReactor()
    {
        ortakit::setClock([] { return reactorNow; });
        reactorNow = hour;
        for (FakeDocument *document : {m_first, m_active, m_active}) {
            records().emplace_back(document).editingTime.isTracked = true;
        }
    }
    ~EditorReactor() override
    {
        records().clear();
        ortakit::setClock(nullptr);
    }

    static std::vector<DocumentDialogSet> &records() { return DialogRegistry::instance().records(); }
    static bool hasRecord(FakeDocument *document) { return document->fakeDatabase().getAt(u"KORA_TRACKTIME"_s); }

    static constexpr qint64 hour = 3600 * 1000;
    FakeHost m_host;
    FakeDocument *m_first = &m_host.document();
    FakeDocument *m_active = m_host.documents().open();
    OdStaticRxObject<CEdReactor> m_reactor;
};

TEST_F(EditorReactor, ActivityCountsForTheTrackedActiveDocumentAndSavingWritesItsTime)
{
    const std::pair<QString, bool> variables[] = {{u"CLAYER"_s, true},
                                                  {u""_s, true},
                                                  {u"LASTPROMPT2"_s, true},
                                                  {u"LASTPROMPT"_s, false},
                                                  {u"LastPrompt"_s, false}};
    double expected = 0;
    const auto expectHours = [&](bool counts) {
        expected += counts ? 1 : 0;
        for (const size_t record : {1, 2}) {
            EXPECT_NEAR(records()[record].editingTime.hours, expected, 1e-9);
            records()[record].editingTime.lastActivity = 0;
        }
    };
    m_reactor.commandWillStart(nullptr, nullptr);
    expectHours(true);
    m_reactor.lispWillStart(nullptr, u"(foo)"_s);
    expectHours(true);
    for (const auto &[name, counts] : variables) {
        SCOPED_TRACE(name.toStdString());
        m_reactor.sysVarWillChange(nullptr, name);
        expectHours(counts);
    }
    EXPECT_FALSE(hasRecord(m_active));
    m_host.documents().activate(nullptr);
    m_reactor.beginSave(nullptr, {});
    expectHours(false);
    m_host.documents().activate(m_active);
    m_reactor.beginSave(nullptr, u"plan.dxf"_s);
    expectHours(true);
    EXPECT_TRUE(hasRecord(m_active));
    EXPECT_FALSE(hasRecord(m_first));
    EXPECT_EQ(records()[0].editingTime.hours, 0);

    records()[0].editingTime = {};
    m_host.documents().activate(m_first);
    m_reactor.beginSave(nullptr, {});
    EXPECT_EQ(records()[0].editingTime.lastActivity, 0) << "not tracked";
    EXPECT_FALSE(hasRecord(m_first));
}

} // namespace
