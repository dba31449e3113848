#include "state/host/DocumentPrinting.h"

#include "tests/support/FakeHost.h"
#include "tests/support/ModalAnswers.h"
#include "tests/support/PdfText.h"

#include <QDialog>
#include <QLineEdit>
#include <QTextDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace ortakit;
using namespace ortakit::test;

namespace {

TEST(DocumentPrinting, PrintsWhatTheDialogConfirms)
{
    const FakeHost host;
    const QString file = host.path(u"list.pdf"_s);
    QStringList lines;
    for (int i = 0; i < 500; ++i)
        lines.append(u"line %1"_s.arg(i));
    QTextDocument document;
    document.setPlainText(lines.join(u'\n'));

    ModalAnswers user;
    user.drive([](QWidget *window) { window->close(); });
    printDocument(document, nullptr);
    EXPECT_FALSE(QFile::exists(file));

    user.drive(printingTo(file));
    printDocument(document, nullptr);
    EXPECT_EQ(pdfLines(file), lines);
    EXPECT_GT(document.pageCount(), 3);
    EXPECT_EQ(user.shown().size(), 2) << "no message";
}

TEST(DocumentPrinting, AFileThatTakesNothingIsSaid)
{
    const FakeHost host;
    QTextDocument document;
    document.setPlainText(u"text"_s);
    ModalAnswers user;
    user.drive(printingTo(u"/dev/full"_s));
    user.press(QMessageBox::Yes); // write over what is there
    user.press(QMessageBox::Ok);
    printDocument(document, nullptr);
    EXPECT_EQ(user.shown().value(2), u"critical \"\" \"The document could not be printed.\" OK"_s);
}

} // namespace
