// The dialogs that write what they show to a file.

#include "dialogs/exportinfo/Dlg_QT_ExportInfo.h"
#include "dialogs/exportsettings/Dlg_QT_ExportSettings.h"
#include "dialogs/getblockinfo/Dlg_QT_GetBlockInfo.h"
#include "tests/dialogs/DialogTest.h"
#include "tests/support/Texts.h"

#include <QDialogButtonBox>
#include <QTextEdit>

namespace {

class ExportInfo : public DialogTest<Dlg_QT_ExportInfo>
{
protected:
    QString textOf(const char *textEdit) const { return find<QTextEdit>(textEdit)->toPlainText(); }
    void setTextOf(const char *textEdit, const QString &text) { find<QTextEdit>(textEdit)->setPlainText(text); }
    QString reportPath = host.path(u"report.txt"_s);
};

TEST_F(ExportInfo, WritesTheReport)
{
    dialog->setSystemFile(host.writeFile(u"system.txt"_s, "OS=x\r\n\r\nRAM=<b>y</b>"));
    showWith(u"lineedit=Ann\nlineedit_2=ann@example.com\n"_s);
    EXPECT_EQ(focusName(), u"lineEdit"_s);
    EXPECT_EQ(textOf("steps"), u"1. \n2. \n3. \n4. \n5. \n... \n"_s);
    setText("lineEdit_3", u"12"_s);
    setTextOf("textEdit_2", u"It\nstöps"_s);
    host.writeFile(u"report.txt"_s, QByteArray(5000, 'x'));
    shownChoosing("acceptButton", reportPath, {QMessageBox::Yes});
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(FakeHost::readFile(reportPath), testText("dialogs/exportinfo/report.txt"));
    EXPECT_EQ(savedState(), u"lineedit=Ann\n!action!=\nlineedit_2=ann@example.com\nlineedit_3=12\n"_s);

    // Whether or not a report is written, the dialog ends with acceptance; each call begins with the template.
    setTextOf("steps", u"steps"_s);
    dialog->setSystemFile({});
    show();
    EXPECT_EQ(textOf("steps").section(u'\n', 0, 0) + textOf("textEdit_2") + textOf("lstInfo"), u"1. It\nst\u00F6ps"_s);
    shownChoosing("acceptButton", u"/dev/full"_s, {QMessageBox::Yes});
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(dialog->reportFile(), u"/dev/full"_s);
}

// The state shows what is longer than a field shortened; the report must not.
TEST_F(ExportInfo, LongAndDottedNamesStayWhole)
{
    for (const QString &name : {u"x"_s.repeated(500), u"Ann...Lee"_s, u"Ann … Lee"_s}) {
        showWith(u"lineedit=%1\n"_s.arg(name));
        QFile::remove(reportPath);
        shownChoosing("acceptButton", reportPath);
        EXPECT_TRUE(FakeHost::readFile(reportPath).contains("NAME:   " + name.toUtf8() + '\n')) << name.toStdString();
        EXPECT_TRUE(savedState().contains(u"lineedit=%1\n"_s.arg(name))) << name.toStdString();
    }
}

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

    const QByteArray listing = testText("dialogs/exportsettings/listing.txt");
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
    const QByteArray a = R"((setvar "A" 1)
E Read-only DANGEROUS readonly)";
    const QByteArray b = R"((setvar "B" 2) ;dangerous
non-dangerously)";
    const QByteArray c = R"((setvar "C" 3) ;read-only
(setvar "D" 4) ;dangerous read-only)";
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
    for (int number = 0; number < 3'000; ++number)
        large += "(setvar \"VARIABLE" + QByteArray::number(number) + "\" 1)" + (number % 3 ? " ;dangerous\n" : "\n");
    showListing(large, u"new"_s);
    choose(2);
    choose(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(shown().trimmed().count(u'\n'), 2'999);
}

class GetBlockInfo : public DialogTest<Dlg_QT_GetBlockInfo>
{
protected:
    void showBlocks(const QString &topLevel, const QString &withNested = {}, const QString &state = {})
    {
        dialog->setEntries({topLevel.split(u' '), withNested.split(u' ')});
        showWith(state);
    }
    QString rows() const { return tableText("blocksTable"); }
};

TEST_F(GetBlockInfo, ShowsBlocksThatHaveReferencesInOrder)
{
    const QString ascending = u"chair|9 DESK|10 Tree|100"_s;
    const QString descending = u"Tree|100 DESK|10 chair|9"_s;
    for (const int column : {0, 1}) {
        SetUp();
        showBlocks(u"DESK;10 GONE;0 Tree;100;7 chair;9 ODD;x NONE NO; LESS;-3 MUCH;99999999999"_s);
        for (const QString &order : {ascending, descending, ascending}) {
            EXPECT_EQ(rows(), order) << column;
            clickHeader("blocksTable", column);
        }
    }
}

TEST_F(GetBlockInfo, NestedBlocksAreCountedOnDemand)
{
    showBlocks(u"A;1"_s, u"A;2 B;7"_s);
    EXPECT_EQ(rows(), u"A|1"_s);
    click("nestedCheckBox");
    EXPECT_EQ(rows(), u"A|2 B|7"_s);
    // The next call has its own blocks and keeps the choice.
    showBlocks(u"C;3"_s, u"C;4"_s);
    EXPECT_EQ(rows(), u"C|4"_s);
    dialog->setEntries({});
    show();
    EXPECT_EQ(rows(), QString());

    SetUp();
    showBlocks(u"A;1"_s, u"A;2"_s, u"nestedcheckbox=TRUE\n"_s);
    EXPECT_EQ(rows(), u"A|2"_s);
}

TEST_F(GetBlockInfo, ThreeWaysOutAccept)
{
    showBlocks(u"A;1"_s);
    click("exportTable");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(dialog->resultText(), u"TABLE"_s);

    show();
    find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Close)->click();
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(dialog->resultText(), QString()) << "each showing begins anew";

    show();
    ModalAnswers answers;
    answers.drive([this](QWidget *picker) {
        EXPECT_TRUE(isAccepted()) << "the dialog has closed before the file is asked for";
        picker->close();
    });
    click("exportButton");
    EXPECT_TRUE(answers.isDone());
    EXPECT_EQ(dialog->resultText(), QString());
}

TEST_F(GetBlockInfo, TheFileHoldsWhatIsShown)
{
    const QString folder = host.path(u"reports"_s);
    const QString path = folder + u"/blocks.txt"_s;
    QDir().mkpath(folder);
    showBlocks(u"A;1 LONGN\u00C4ME;3000 GONE;0"_s);
    clickHeader("blocksTable", 1);
    shownChoosing("exportButton", path);
    EXPECT_EQ(FakeHost::readFile(path), "Name        Instances\r\nLONGN\xC3\x84ME       3000\r\nA              1\r\n");
    showBlocks(u""_s);
    EXPECT_TRUE(shownChoosing("exportButton", path, {QMessageBox::Yes}).value(0).contains(u" \"%1\""_s.arg(folder)));
    EXPECT_EQ(FakeHost::readFile(path), "Name Instances\r\n") << "the old file was longer";
    show();
    EXPECT_EQ(shownChoosing("exportButton", u"/dev/full"_s, {QMessageBox::Yes}).size(), 2) << "passed over";
    EXPECT_TRUE(isAccepted());
}

} // namespace
