#include "Hand.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMetaProperty>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>

#include <algorithm>
#include <cstdio>

namespace sample {

namespace {

constexpr int milliseconds = 20;

/// Sets what the widget is for: the text of a line, the choice of a combo box, the number of a spin box.
void setValue(QWidget *widget, const QString &text)
{
    if (!widget || !widget->metaObject()->userProperty().write(widget, text))
        std::fprintf(stderr, "hand: nothing there takes \"%s\"\n", qPrintable(text));
}

void press(QAbstractButton *button)
{
    if (button)
        button->click();
    else
        std::fputs("hand: there is no such button\n", stderr);
}

/// The button that ends the dialog as it was meant to: the one with such a name, or what Enter presses.
QAbstractButton *acceptingButton(const QWidget &dialog)
{
    const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
    for (const char *name : {"acceptButton", "okButton", "saveButton"}) {
        if (auto *button = dialog.findChild<QAbstractButton *>(QString::fromLatin1(name)))
            return button;
    }
    const auto found = std::ranges::find_if(buttons, &QPushButton::isDefault);
    return found == buttons.end() ? nullptr : *found;
}

} // namespace

Hand::Hand(bool hasDisplay) : m_hasDisplay(hasDisplay)
{
    m_clock.callOnTimeout([this] { look(); });
    m_clock.setSingleShot(true);
    m_clock.start(milliseconds);
}

void Hand::look()
{
    m_clock.start(); // anew each time: a timer does not go off within what it has set off, which may be a message box
    const QPointer<QWidget> dialog = QApplication::activeModalWidget();
    if (!dialog || !dialog->isVisible())
        return;
    const bool isOpenAgain = dialog == m_accepted;
    if (m_steps.isEmpty() && m_acceptsAll && !isOpenAgain)
        m_steps.append({{QStringLiteral("accept")}, {}});
    else if (m_steps.isEmpty() && (m_acceptsAll || !m_hasDisplay))
        m_steps.append({{QStringLiteral("reject")}, {}});
    // A step may bring up another dialog, which runs within it, or destroy this one.
    while (dialog && dialog == QApplication::activeModalWidget() && !m_steps.isEmpty())
        act(*dialog, m_steps.takeFirst());
}

void Hand::act(QWidget &dialog, const Step &step)
{
    const QString verb = step.words.value(0);
    if (verb == u"set")
        setValue(dialog.findChild<QWidget *>(step.words.value(1)), step.words.value(2));
    else if (verb == u"press")
        press(dialog.findChild<QAbstractButton *>(step.words.value(1)));
    else if (verb == u"picture")
        dialog.grab().save(step.words.value(1));
    else if (verb == u"accept")
        press(acceptingButton(*(m_accepted = &dialog)));
    else if (step.work)
        step.work();
    else
        dialog.close();
}

} // namespace sample
