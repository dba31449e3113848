#include "dialogs/exportsettings/Dlg_QT_ExportSettings.h"
#include "tests/dialogs/DialogTest.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QPushButton>
#include <QTextEdit>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

enum class Overwrites
{
    No,
    Yes
};

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
    /// Presses the button and chooses `path`; what came up is in `dialogs`.
    void save(const QString &path, Overwrites overwrites = Overwrites::No)
    {
        ModalAnswers answers;
        answers.choose(path);
        if (overwrites == Overwrites::Yes)
            answers.press(QMessageBox::Yes);
        click("saveButton");
        dialogs = answers.shown();
    }

    const QByteArray listing = "(setvar \"A\" 1)\n(setvar \"B\" 2) ;dangerous\n(setvar \"C\" 3) ;read-only\n"
                               "(setvar \"D\" 4) ;dangerous read-only\n";
    QString script = host.path(u"out.scr"_s);
    QStringList dialogs;
};

TEST_F(ExportSettings, ModeNamesTheDialogAndItsButton)
{
    EXPECT_EQ(dialog->windowTitle(), u"Export Settings"_s);
    const struct
    {
        QString mode;
        QString title;
        QString text;
        QString toolTip;
        QString help;
    } rows[] = {
        {u"add"_s, u"VariableToScript"_s, u"Append to script..."_s, u"Append settings to an existing file"_s,
         u"9135"_s},
        {u"new"_s, u"ExportVariables"_s, u"Export to script..."_s, u"Save modified settings"_s, u"9134"_s},
        {u"Add"_s, u"ExportVariables"_s, u"Export to script..."_s, u"Save modified settings"_s, u"9134"_s},
    };
    for (const auto &row : rows) {
        showListing({}, row.mode);
        EXPECT_EQ(dialog->windowTitle(), row.title);
        EXPECT_EQ(find<QPushButton>("saveButton")->text(), row.text);
        EXPECT_EQ(find("saveButton")->toolTip(), row.toolTip);
        find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Help)->click();
        EXPECT_TRUE(host.help().requests.takeLast().contains(u' ' + row.help + u' '));
    }
    find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Close)->click();
    EXPECT_TRUE(isAccepted());
}

TEST_F(ExportSettings, WhatIsShownIsWhatIsSaved)
{
    const QByteArray a = "(setvar \"A\" 1)";
    const QByteArray b = "(setvar \"B\" 2) ;dangerous";
    const QByteArray c = "(setvar \"C\" 3) ;read-only\n(setvar \"D\" 4) ;dangerous read-only";
    const struct
    {
        int type;
        QByteArray script;
    } rows[] = {{0, c + '\n' + b + '\n' + a}, {1, c}, {2, b}, {3, a}};
    showListing(listing, u"new"_s);
    for (const auto &row : rows) {
        choose(row.type);
        EXPECT_EQ(shown().trimmed().toUtf8(), row.script) << row.type;
        host.writeFile(u"out.scr"_s, QByteArray(5000, 'x'));
        save(script, Overwrites::Yes);
        EXPECT_EQ(dialogs.value(0),
                  u"choose \"Save script file\" \"%1\" \"Script files (*.scr)\""_s.arg(QDir::currentPath()));
        EXPECT_EQ(FakeHost::readFile(script), row.script) << row.type;
        EXPECT_TRUE(dialog->isVisible());
    }
    // The next call has the type that was chosen, and its own listing.
    showListing("E 5 <read-only>\nF 6\n", u"new"_s);
    EXPECT_EQ(shown().trimmed(), u"F 6"_s);
}

// A line is data: what looks like markup, several blanks and odd bytes come out as they went in.
TEST_F(ExportSettings, LinesAreShownAndSavedAsTheyAre)
{
    const struct
    {
        const char *what;
        QByteArray line;
        QString shown;
    } rows[] = {
        {"markup", "A \"<b>&amp;</b>\" <br>x</span>", u"A \"<b>&amp;</b>\" <br>x</span>"_s},
        {"an open tag", "A <!-- \" <", u"A <!-- \" <"_s},
        {"blanks", "A \"two  blanks\"\t \ttabs", u"A \"two  blanks\"\t \ttabs"_s},
        {"empty lines", "A\n\n\nB", u"A\n\n\nB"_s},
        {"non-ASCII", "A \"\xC3\xA4\xE2\x82\xAC\"", u"A \"ä€\""_s},
        {"not UTF-8", "A \"\xE4\" B", u"A \"\uFFFD\" B"_s},
    };
    for (const auto &row : rows) {
        showListing("1\n  " + row.line + "\r\n2\n", u"new"_s);
        EXPECT_EQ(shown().trimmed(), u"1\n  %1\n2"_s.arg(row.shown)) << row.what;
        QFile::remove(script);
        save(script);
        EXPECT_EQ(FakeHost::readFile(script), "1\n  " + row.line + "\n2") << row.what;
    }
}

TEST_F(ExportSettings, AppendingJoinsWithoutALineEnd)
{
    for (const QString &mode : {u"add"_s, u"NEW"_s}) {
        host.writeFile(u"out.scr"_s, "LINE\n");
        showListing("\n A 1\nB 2\n\n", mode);
        save(script);
        EXPECT_EQ(dialogs.value(0),
                  u"choose \"Append to script file\" \"%1\" \"Script files (*.scr)\""_s.arg(QDir::currentPath()));
        save(script);
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
    save({});
    EXPECT_EQ(dialogs.size(), 1);
    save(u"/dev/full"_s, Overwrites::Yes);
    EXPECT_EQ(dialogs.size(), 2) << "the chooser and its question";
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
