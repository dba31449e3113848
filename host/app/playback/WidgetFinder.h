#pragma once

#include <QString>

class QWidget;

namespace host::app {

/// A widget that a session names, or why there is none.
struct FoundWidget
{
    QWidget *widget = nullptr;
    QString error; ///< empty when there is a widget

    explicit operator bool() const { return widget != nullptr; }
};

/// The widget within `root` that `reference` names:
///     dist_size           by object name; letter case matters only when two names differ in nothing else
///     text:Make symbol    the button, check box or label with this text, mnemonic left out
///     button:Ok           a standard button of the dialog's button box or message box
///     class:QLineEdit     the first widget of the class or one derived from it; class:QLineEdit#2 the second
/// Of several, a visible one goes before hidden ones. The error lists what there is.
FoundWidget findWidget(QWidget &root, const QString &reference);

/// Whether a dialog is what `name` says: its object name, or the name of its class or of a class it is derived from,
/// the namespace left out or not.
bool isDialogNamed(const QWidget &dialog, const QString &name);

/// Text of a button or action without its mnemonic and ellipsis.
QString plainCaption(QString text);

/// A widget as messages name it: its object name, that of the widget it is a part of, or its class.
QString nameOf(const QWidget &widget);

/// A dialog as messages name it: class, object name, title, and the text of a message box.
QString describeDialog(const QWidget &dialog);

} // namespace host::app
