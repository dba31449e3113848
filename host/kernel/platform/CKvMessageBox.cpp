#include "platform/kernel/CKvMessageBox.h"

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QMetaEnum>
#include <QPushButton>

namespace {

/// Names the buttons after what they stand for ("okButton", "yesButton"), so that a recorded session can press them
/// whatever the language.
void nameButtons(QMessageBox &box)
{
    // Both classes number their buttons alike; only one of them tells the names.
    const QMetaEnum names = QMetaEnum::fromType<QDialogButtonBox::StandardButtons>();
    for (QAbstractButton *button : box.buttons()) {
        const char *name = names.valueToKey(int(box.standardButton(button)));
        button->setObjectName(QString::fromLatin1(name ? name : "").toLower() + QStringLiteral("Button"));
    }
}

CKvMessageBox::Button run(QMessageBox::Icon icon, QWidget *parent, const QString &title, const QString &text,
                          CKvMessageBox::Buttons buttons, const QString &explanation = {})
{
    QMessageBox box(icon, title, text, buttons, parent);
    box.setInformativeText(explanation);
    box.setObjectName(QStringLiteral("messageBox"));
    // Texts quote file names and characters such as "<"; none of them is markup.
    box.setTextFormat(Qt::PlainText);
    nameButtons(box);
    const auto answer = static_cast<CKvMessageBox::Button>(box.exec());
    if (buttons.testFlag(answer))
        return answer;
    // Closed by reject() rather than by a button.
    QAbstractButton *escape = box.escapeButton();
    if (!escape)
        return buttons.testFlag(QMessageBox::No) ? QMessageBox::No : box.standardButton(box.buttons().constLast());
    return box.standardButton(escape);
}

} // namespace

CKvMessageBox::Button CKvMessageBox::information(QWidget *parent, const QString &title, const QString &text,
                                                 Buttons buttons)
{
    return run(QMessageBox::Information, parent, title, text, buttons);
}

CKvMessageBox::Button CKvMessageBox::warning(QWidget *parent, const QString &title, const QString &text,
                                             Buttons buttons, const QString &explanation)
{
    return run(QMessageBox::Warning, parent, title, text, buttons, explanation);
}

CKvMessageBox::Button CKvMessageBox::critical(QWidget *parent, const QString &title, const QString &text,
                                              Buttons buttons)
{
    return run(QMessageBox::Critical, parent, title, text, buttons);
}

CKvMessageBox::Button CKvMessageBox::question(QWidget *parent, const QString &title, const QString &text,
                                              Buttons buttons)
{
    return run(QMessageBox::Question, parent, title, text, buttons);
}
