#include "host/app/window/files/TrustQuestion.h"

#include "files/qt/VisibleText.h"

#include <QCoreApplication>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("TrustQuestion", text);
}

} // namespace

kernel::TrustedFolders::Question trustQuestion(QWidget &window)
{
    using Answer = kernel::TrustedFolders::Answer;
    return [&window](const QString &path, const QString &reason, bool canTrust) {
        const QString question = translated("Load this program? It can do whatever you can.") + u"\n\n"_s +
                                 files::visibleLines(QDir::toNativeSeparators(path));
        QMessageBox box(QMessageBox::Question, u"Ortakit"_s,
                        reason.isEmpty() ? question : question + u"\n\n("_s + reason + u')', QMessageBox::NoButton,
                        &window);
        box.setObjectName(u"trustQuestion"_s);
        box.setTextFormat(Qt::PlainText);
        const QPushButton *once = box.addButton(translated("&Load once"), QMessageBox::AcceptRole);
        const QPushButton *always =
            canTrust ? box.addButton(translated("&Trust this folder"), QMessageBox::AcceptRole) : nullptr;
        box.setDefaultButton(box.addButton(QMessageBox::No));
        box.setEscapeButton(QMessageBox::No);
        box.exec();
        if (box.clickedButton() == once)
            return Answer::Once;
        return always && box.clickedButton() == always ? Answer::Always : Answer::No;
    };
}

} // namespace host::app
