#include "module/DialogRegistry.h"

#include "tests/module/SampleDialog.h"
#include "tests/support/ModuleTest.h"

namespace {

using testing::ElementsAre;

CKvDialog *makeSample(QWidget *parent)
{
    return new SampleDialog(parent);
}

class Registry : public testing::Test
{
protected:
    Registry()
    {
        for (FakeDocument *document : m_documents)
            m_registry.append(document);
    }

    CKvDialog *dialog(FakeDocument *document, DialogSlot slot)
    {
        return m_registry.dialog(document, slot, makeSample, nullptr);
    }

    std::vector<CKvDocument *> documents()
    {
        std::vector<CKvDocument *> found;
        for (const DocumentDialogSet &record : m_registry.records())
            found.push_back(record.document());
        return found;
    }

    FakeHost m_host;
    FakeDocument *m_first = &m_host.document();
    FakeDocument *m_second = m_host.documents().open();
    FakeDocument *m_third = m_host.documents().open();
    const std::vector<FakeDocument *> m_documents = {m_first, m_second, m_third};
    DialogRegistry m_registry;
};

TEST_F(Registry, RemovingTheMiddleRecordClosesTheGap)
{
    const CKvDialog *first = dialog(m_first, DialogSlot::BreakLine);
    const QPointer<CKvDialog> second = dialog(m_second, DialogSlot::BreakLine);
    const QPointer<CKvDialog> other = dialog(m_second, DialogSlot::MultiViewSetup);
    const CKvDialog *third = dialog(m_third, DialogSlot::BreakLine);
    m_registry.records()[2].editingTime.hours = 3;
    const int made = SampleDialog::made;

    m_registry.remove(m_second);

    EXPECT_THAT(documents(), ElementsAre(m_first, m_third));
    EXPECT_TRUE(second.isNull() && other.isNull());
    EXPECT_EQ(m_registry.records()[1].editingTime.hours, 3);
    EXPECT_EQ(dialog(m_first, DialogSlot::BreakLine), first);
    EXPECT_EQ(dialog(m_third, DialogSlot::BreakLine), third);
    EXPECT_EQ(SampleDialog::made, made);
    EXPECT_EQ(dialog(m_second, DialogSlot::BreakLine), nullptr);

    delete dialog(m_first, DialogSlot::BreakLine);
    EXPECT_TRUE(dialog(m_first, DialogSlot::BreakLine)) << "what the host destroyed is made anew";
}

TEST_F(Registry, OfTwoRecordsTheFirstIsRemovedAndTheLaterAsked)
{
    m_registry.append(m_first);
    const CKvDialog *used = dialog(m_first, DialogSlot::BreakLine);
    EXPECT_EQ(m_registry.records()[3].dialog(DialogSlot::BreakLine), used);
    m_registry.remove(m_first);
    EXPECT_THAT(documents(), ElementsAre(m_second, m_third, m_first));
    EXPECT_EQ(dialog(m_first, DialogSlot::BreakLine), used);
}

TEST_F(Registry, NoDialogOutlivesItsRecord)
{
    const int before = SampleDialog::alive;
    {
        DialogRegistry registry;
        for (int record = 0; record < 20; ++record) {
            registry.append(m_second);
            registry.dialog(m_second, DialogSlot::Spare, makeSample, nullptr)->show();
        }
        EXPECT_GT(SampleDialog::alive, before);
        registry.records().erase(registry.records().begin(), registry.records().begin() + 7);
        EXPECT_EQ(SampleDialog::alive, before + 13);
    }
    EXPECT_EQ(SampleDialog::alive, before);
}

TEST_F(Registry, DialogsOfAClosedMainWindowAreGone)
{
    auto window = std::make_unique<QWidget>();
    CKvDialog *shown = m_registry.dialog(m_first, DialogSlot::BreakLine, makeSample, window.get());
    EXPECT_EQ(shown->parentWidget(), window.get());
    window.reset();
    m_registry.remove(m_first);
    EXPECT_THAT(documents(), ElementsAre(m_second, m_third));
}

} // namespace
