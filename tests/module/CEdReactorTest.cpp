#include "module/CEdReactor.h"

#include "module/DialogRegistry.h"
#include "tests/support/FakeHost.h"
#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;
using ortakit::test::FakeDocument;
using ortakit::test::FakeHost;

qint64 now = 0;

qint64 testClock()
{
    return now;
}

/// Two documents, the second one active; time stands an hour after the last activity of every record.
class EditorReactor : public testing::Test
{
protected:
    EditorReactor()
    {
        ortakit::setClock(testClock);
        now = hour;
        for (FakeDocument *document : {m_first, m_active}) {
            registry().append(document);
            registry().records().back().editingTime.isTracked = true;
        }
    }
    ~EditorReactor() override
    {
        registry().records().clear();
        ortakit::setClock(nullptr);
    }

    static DialogRegistry &registry() { return DialogRegistry::instance(); }
    static double hours(size_t record) { return registry().records().at(record).editingTime.hours; }
    static bool hasRecord(FakeDocument *document) { return document->fakeDatabase().getAt(u"KORA_TRACKTIME"_s); }

    static constexpr qint64 hour = 3600 * 1000;
    FakeHost m_host;
    FakeDocument *m_first = &m_host.document();
    FakeDocument *m_active = m_host.documents().open();
    OdStaticRxObject<CEdReactor> m_reactor;
};

TEST_F(EditorReactor, ActivityCountsForTheActiveDocumentAndSavingWritesItsTime)
{
    const auto variable = [](const char *name) {
        return [name](CEdReactor &reactor) { reactor.sysVarWillChange(nullptr, QString::fromLatin1(name)); };
    };
    const struct
    {
        const char *name;
        std::function<void(CEdReactor &)> notify;
        bool counts;
    } rows[] = {
        {"command", [](CEdReactor &reactor) { reactor.commandWillStart(nullptr, nullptr); }, true},
        {"Lisp", [](CEdReactor &reactor) { reactor.lispWillStart(nullptr, u"(foo)"_s); }, true},
        {"variable", variable("CLAYER"), true},
        {"nameless variable", variable(""), true},
        {"longer name", variable("LASTPROMPT2"), true},
        {"prompt", variable("LASTPROMPT"), false},
        {"prompt, mixed", variable("LastPrompt"), false},
    };
    double expected = 0;
    for (const auto &row : rows) {
        registry().records()[1].editingTime.lastActivity = now - hour;
        row.notify(m_reactor);
        expected += row.counts ? 1 : 0;
        EXPECT_NEAR(hours(1), expected, 1e-9) << row.name;
        EXPECT_FALSE(hasRecord(m_active)) << row.name;
    }
    registry().records()[1].editingTime.lastActivity = now - hour;
    m_reactor.beginSave(nullptr, u"plan.dxf"_s);
    EXPECT_NEAR(hours(1), expected + 1, 1e-9);
    EXPECT_TRUE(hasRecord(m_active));
    EXPECT_FALSE(hasRecord(m_first));
    EXPECT_EQ(hours(0), 0);
}

TEST_F(EditorReactor, UntrackedDocumentsAreLeftAlone)
{
    registry().records()[1].editingTime = {};
    m_reactor.beginSave(nullptr, {});
    EXPECT_EQ(hours(1), 0);
    EXPECT_EQ(registry().records()[1].editingTime.lastActivity, 0);
    EXPECT_FALSE(hasRecord(m_active));

    m_host.documents().activate(nullptr);
    m_reactor.beginSave(nullptr, {});
    EXPECT_EQ(hours(0), 0) << "no document, no activity";
}

TEST_F(EditorReactor, EveryRecordOfTheDocumentCounts)
{
    registry().append(m_active);
    registry().records().back().editingTime.isTracked = true;
    m_reactor.commandWillStart(nullptr, nullptr);
    EXPECT_NEAR(hours(1), 1, 1e-9);
    EXPECT_NEAR(hours(2), 1, 1e-9);
}

} // namespace
