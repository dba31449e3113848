#include "tests/support/PdfText.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QWidget>

#include <gtest/gtest.h>

namespace ortakit::test {

std::function<void(QWidget *)> printingTo(const QString &path)
{
    return [path](QWidget *window) {
        auto *file = window->findChild<QLineEdit *>(QStringLiteral("filename"));
        auto *buttons = window->findChild<QDialogButtonBox *>();
        if (file && buttons) {
            file->setText(path);
            buttons->button(QDialogButtonBox::Ok)->click();
        } else {
            ADD_FAILURE() << "no print dialog: " << window->metaObject()->className();
            window->close();
        }
    };
}

QStringList pdfLines(const QString &path)
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"),
                 {QStringLiteral("-layout"), QStringLiteral("-nopgbrk"), path, QStringLiteral("-")});
    EXPECT_TRUE(reader.waitForFinished()) << "pdftotext does not run";
    QStringList lines;
    for (const QString &line : QString::fromUtf8(reader.readAllStandardOutput()).split(u'\n')) {
        if (!line.trimmed().isEmpty())
            lines.append(line.trimmed());
    }
    return lines;
}

} // namespace ortakit::test
