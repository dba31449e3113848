#include "dialogs/exportinfo/Dlg_QT_ExportInfo.h"
#include "tests/dialogs/DialogTest.h"

#include <QTextEdit>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

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
    dialog->setSystemFile(host.writeFile(u"system.txt"_s, "OS=x\r\nRAM=<b>y</b>\r\n"));
    showWith(u"lineedit=Ann\nlineedit_2=ann@example.com\n"_s);
    EXPECT_EQ(focusName(), u"lineEdit"_s);
    EXPECT_EQ(textOf("steps"), u"1. \n2. \n3. \n4. \n5. \n... \n"_s);
    setText("lineEdit_3", u"12"_s);
    setTextOf("textEdit_2", u"It\nstöps"_s);
    host.writeFile(u"report.txt"_s, QByteArray(5000, 'x'));
    shownChoosing("acceptButton", reportPath, {QMessageBox::Yes});
    EXPECT_TRUE(isAccepted());
    const QByteArray report = FakeHost::readFile(reportPath);
    EXPECT_TRUE(
        report.contains("NAME:   Ann\nE-MAIL: ann@example.com\nPHONE:  12\n\nISSUE DESCRIPTION:\nIt\nst\xC3\xB6ps\n"));
    EXPECT_TRUE(report.contains("\n1. \n2. \n3. \n4. \n5. \n... \n")) << report.data();
    EXPECT_TRUE(report.endsWith("\n\nOS=x\nRAM=<b>y</b>")) << report.data();
    EXPECT_EQ(savedState(), u"lineedit=Ann\n!action!=\nlineedit_2=ann@example.com\nlineedit_3=12\n"_s);
}

// Whether or not a report was written, the dialog ends with acceptance and names the file.
TEST_F(ExportInfo, EndsWhateverBecomesOfTheFile)
{
    using enum QMessageBox::StandardButton;
    const std::pair<QString, QList<QMessageBox::StandardButton>> rows[] = {
        {reportPath, {}}, {{}, {}}, {u"/dev/full"_s, {Yes}}};
    for (const auto &[chosen, answers] : rows) {
        show();
        shownChoosing("acceptButton", chosen, answers);
        EXPECT_TRUE(isAccepted());
        EXPECT_EQ(dialog->reportFile(), chosen);
        EXPECT_EQ(QFile::remove(reportPath), chosen == reportPath) << chosen.toStdString();
    }
}

// Each call begins with the template and its own system information; who reports stays.
TEST_F(ExportInfo, ALaterCallKeepsWhoReports)
{
    dialog->setSystemFile(host.writeFile(u"system.txt"_s, "OS=x\n"));
    showWith(u"lineedit=Ann\nlineedit_3=1\n"_s);
    setText("lineEdit", u"Bea"_s);
    setTextOf("textEdit_2", u"issue"_s);
    setTextOf("steps", u"steps"_s);
    dialog->setSystemFile({});
    showWith(u"lineedit_3=2\n"_s);
    EXPECT_EQ(text("lineEdit"), u"Bea"_s);
    EXPECT_EQ(text("lineEdit_3"), u"2"_s);
    EXPECT_EQ(textOf("textEdit_2"), u"issue"_s);
    EXPECT_TRUE(textOf("steps").startsWith(u"1. \n"_s));
    EXPECT_EQ(textOf("lstInfo"), QString());
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

} // namespace
