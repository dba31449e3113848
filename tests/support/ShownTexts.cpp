#include "tests/support/ShownTexts.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace ortakit::test {

namespace {

template <class Widget>
QList<const Widget *> shown(const QWidget &window)
{
    QList<const Widget *> widgets;
    for (const Widget *widget : window.findChildren<Widget *>())
        if (widget->isVisible())
            widgets.append(widget);
    return widgets;
}

} // namespace

QStringList cutTexts(const QWidget &window)
{
    QStringList cut;
    const auto check = [&cut](const QWidget *widget, const QString &text) {
        const QSize lack = widget->sizeHint() - widget->size();
        if (!text.isEmpty() && (lack.width() > 0 || lack.height() > 0))
            cut.append(u"%1 (%2 by %3 too small)"_s.arg(text).arg(lack.width()).arg(lack.height()));
    };
    for (const QLabel *label : shown<QLabel>(window))
        check(label, label->wordWrap() ? QString() : label->text());
    for (const QAbstractButton *button : shown<QAbstractButton>(window))
        check(button, button->text());
    return cut;
}

QStringList textsWithMnemonics(const QWidget &window)
{
    QStringList texts;
    for (const QLabel *label : shown<QLabel>(window))
        texts.append(label->buddy() ? label->text() : QString());
    for (const QAbstractButton *button : shown<QAbstractButton>(window))
        texts.append(button->text());
    for (const QGroupBox *box : shown<QGroupBox>(window))
        texts.append(box->title());
    return texts;
}

QMap<QChar, QStringList> sharedMnemonics(const QWidget &window)
{
    QMap<QChar, QStringList> owners;
    for (QString text : textsWithMnemonics(window)) {
        const qsizetype mark = text.remove(u"&&"_s).indexOf(u'&');
        if (mark >= 0)
            owners[text.at(mark + 1).toLower()].append(text);
    }
    owners.removeIf([](const auto &letter) { return letter.value().size() < 2; });
    return owners;
}

} // namespace ortakit::test
