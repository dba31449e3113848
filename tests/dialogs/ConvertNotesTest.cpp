#include "dialogs/convertnotes/DLG_QT_ConvertNotes.h"
#include "tests/dialogs/DialogTest.h"

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

class ConvertNotes : public DialogTest<DLG_QT_ConvertNotes>
{
protected:
    /// What is checked, in the order of the form.
    QStringList checked() const
    {
        QStringList names;
        for (const char *name :
             {"keepfonts", "keepcolors", "keepsizes", "select_entity", "select_topdow", "select_alfa", "word_wrap"}) {
            if (isChecked(name))
                names.append(QString::fromLatin1(name));
        }
        return names;
    }
};

TEST_F(ConvertNotes, ExactlyOneOrderIsSaved)
{
    showWith(u"keepcolors=FALSE\nselect_topdow=TRUE\n"_s);
    EXPECT_EQ(checked().join(u' '), u"keepfonts keepsizes select_topdow word_wrap"_s);
    click("select_alfa");
    click("word_wrap");
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(savedState(), u"keepfonts=TRUE\n!action!=\nkeepcolors=FALSE\nkeepsizes=TRUE\nselect_entity=FALSE\n"
                            "select_topdow=FALSE\nselect_alfa=TRUE\nword_wrap=FALSE\n"_s);
}

TEST_F(ConvertNotes, EachCallSetsWhatItsFileSays)
{
    showWith({});
    EXPECT_EQ(checked().join(u' '), u"keepfonts keepcolors keepsizes select_entity word_wrap"_s);
    showWith(u"keepfonts=FALSE\nselect_topdow=TRUE\n"_s);
    click("keepfonts");
    showWith(u"keepsizes=FALSE\nselect_entity=TRUE\n"_s);
    EXPECT_EQ(checked().join(u' '), u"keepfonts keepcolors select_entity word_wrap"_s);
}

} // namespace
