#include "dialogs/exportsettings/Dlg_QT_ExportSettings.h"
#include "tests/dialogs/DialogTest.h"

#include <QDialogButtonBox>
#include <QTextEdit>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

class ExportSettings : public DialogTest<Dlg_QT_ExportSettings>
{
protected:
    void showListing(const QByteArray &content, const QString &mode)
    {
        dialog->setListing(host.writeFile(u"listing.txt"_s, content));
        dialog->setMode(mode);
        show();
    }
    QString shown() const { return find<QTextEdit>("plainTextEdit")->toPlainText(); }
    void choose(int type) { find<QComboBox>("Type")->setCurrentIndex(type); }

    const QByteArray listing = "(setvar \"A\" 1)\n(setvar \"B\" 2) ;dangerous\n(setvar \"C\" 3) ;read-only\n"
                               "(setvar \"D\" 4) ;dangerous read-only\n";
    QString script = host.path(u"out.scr"_s);
};

TEST_F(ExportSettings, ModeNamesTheDialogAndItsButton)
{
    const std::tuple<QString, QString, QString, QString> rows[] = {
        {u"add"_s, u"VariableToScript"_s, u"Append to script..."_s, u"9135"_s},
        {u"new"_s, u"ExportVariables"_s, u"Export to script..."_s, u"9134"_s},
        {u"Add"_s, u"ExportVariables"_s, u"Export to script..."_s, u"9134"_s},
    };
    for (const auto &[mode, title, button, help] : rows) {
        showListing({}, mode);
        EXPECT_EQ(dialog->windowTitle(), title);
        EXPECT_EQ(find<QPushButton>("saveButton")->text(), button);
        find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Help)->click();
        EXPECT_TRUE(host.help().requests.takeLast().contains(u' ' + help + u' '));
    }
    find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Close)->click();
    EXPECT_TRUE(isAccepted());
}

TEST_F(ExportSettings, WhatIsShownIsWhatIsSaved)
{
    const QByteArray a = "(setvar \"A\" 1)";
    const QByteArray b = "(setvar \"B\" 2) ;dangerous";
    const QByteArray c = "(setvar \"C\" 3) ;read-only\n(setvar \"D\" 4) ;dangerous read-only";
    const std::pair<int, QByteArray> rows[] = {{0, c + '\n' + b + '\n' + a}, {1, c}, {2, b}, {3, a}};
    showListing(listing, u"new"_s);
    for (const auto &[type, expected] : rows) {
        choose(type);
        EXPECT_EQ(shown().trimmed().toUtf8(), expected) << type;
        host.writeFile(u"out.scr"_s, QByteArray(5000, 'x'));
        EXPECT_TRUE(shownChoosing("saveButton", script, {QMessageBox::Yes}).value(0).startsWith(u"choose \"Save"_s));
        EXPECT_EQ(FakeHost::readFile(script), expected) << type;
        EXPECT_TRUE(dialog->isVisible());
    }
    // The next call has the type that was chosen, and its own listing.
    showListing("E 5 <read-only>\nF 6\n", u"new"_s);
    EXPECT_EQ(shown().trimmed(), u"F 6"_s);
}

// A line is data: what looks like markup, several blanks and odd bytes come out as they went in.
TEST_F(ExportSettings, LinesAreShownAndSavedAsTheyAre)
{
    const std::tuple<const char *, QByteArray, QString> rows[] = {
        {"markup", "A \"<b>&amp;</b>\" <br>x</span>", u"A \"<b>&amp;</b>\" <br>x</span>"_s},
        {"an open tag", "A <!-- \" <", u"A <!-- \" <"_s},
        {"blanks and empty lines", "A \"two  blanks\"\t \ttabs\n\n\nB", u"A \"two  blanks\"\t \ttabs\n\n\nB"_s},
        {"not UTF-8", "A \"\xE4\xC3\xA4\" B", u"A \"\uFFFDä\" B"_s},
    };
    for (const auto &[what, line, text] : rows) {
        showListing("1\n  " + line + "\r\n2\n", u"new"_s);
        EXPECT_EQ(shown().trimmed(), u"1\n  %1\n2"_s.arg(text)) << what;
        QFile::remove(script);
        shownChoosing("saveButton", script);
        EXPECT_EQ(FakeHost::readFile(script), "1\n  " + line + "\n2") << what;
    }
}

TEST_F(ExportSettings, AppendingJoinsWithoutALineEnd)
{
    for (const QString &mode : {u"add"_s, u"NEW"_s}) {
        host.writeFile(u"out.scr"_s, "LINE\n");
        showListing("\n A 1\nB 2\n\n", mode);
        for (int time = 0; time < 2; ++time)
            EXPECT_TRUE(shownChoosing("saveButton", script).value(0).startsWith(u"choose \"Append"_s));
        EXPECT_EQ(FakeHost::readFile(script), "LINE\nA 1\nB 2A 1\nB 2");
    }
}

TEST_F(ExportSettings, WhatCannotBeReadOrWrittenIsSilent)
{
    for (const QString &path : {QString(), host.path(u"missing"_s), host.path({})}) {
        dialog->setListing(path);
        show();
        EXPECT_EQ(shown().trimmed(), QString());
    }
    showListing(listing, u"new"_s);
    EXPECT_EQ(shownChoosing("saveButton", {}).size(), 1);
    EXPECT_EQ(shownChoosing("saveButton", u"/dev/full"_s, {QMessageBox::Yes}).size(), 2)
        << "the chooser and its question";
    EXPECT_FALSE(QFile::exists(script));
    EXPECT_TRUE(dialog->isVisible());
}

// Far more than any host has of variables.
TEST_F(ExportSettings, ALargeListingIsShownWhole)
{
    QByteArray large;
    for (int number = 0; number < 10'000; ++number)
        large += "(setvar \"VARIABLE" + QByteArray::number(number) + "\" 1)" + (number % 3 ? " ;dangerous\n" : "\n");
    showListing(large, u"new"_s);
    choose(2);
    choose(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(shown().trimmed().count(u'\n'), 9'999);
}

} // namespace
