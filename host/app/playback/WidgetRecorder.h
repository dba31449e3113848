#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>

class QAbstractButton;
class QAbstractItemView;
class QDialog;
class QFileDialog;
class QMenu;
class QMessageBox;

namespace host::app {

/// Writes down what a person does in modal dialogs, as lines of a recorded session. What was changed in a widget is
/// told when something follows from it: a button is pressed, a tab turned, the dialog closed. Then it is one line
/// with the value, whatever way led to it.
class WidgetRecorder final : public QObject
{
    Q_OBJECT

public:
    /// `isWanted` says of a dialog that opens whether it is to be recorded; `add` takes the lines.
    WidgetRecorder(std::function<bool()> isWanted, std::function<void(const QString &)> add);
    ~WidgetRecorder() override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void watch(QWidget &window);
    void watchDialog(QDialog &dialog);
    void watchMessage(QMessageBox &message);
    void watchFiles(QFileDialog &dialog);
    /// One that pops up in a dialog.
    void watchMenu(QDialog &dialog, QMenu &menu);
    void watchClickedMenu(QDialog &dialog, QMenu &menu);
    /// Tells of one that is closed without a button.
    void watchEnd(QDialog &dialog);
    /// A window closed: what was pressed last is in the one behind it, which opened it.
    void goBackFrom(const QDialog &dialog);
    void watchWidget(QDialog &dialog, QWidget &widget);
    void watchRows(QDialog &dialog, QAbstractItemView &view);
    void press(QDialog &dialog, QAbstractButton &button);
    /// It changed by the person's hand.
    void touch(QDialog &dialog, QWidget &widget);
    /// Tells what changed in the dialog.
    void flush(QDialog &dialog);

    struct Touched
    {
        QPointer<QDialog> dialog;
        QPointer<QWidget> widget;
    };

    std::function<bool()> m_isWanted;
    std::function<void(const QString &)> m_add;
    QList<Touched> m_touched;           ///< in the order of the last touch
    bool m_isClicked = false;           ///< nothing was done since a button was pressed
    QPointer<QDialog> m_pressed;        ///< in which a button was the last thing
    QList<QPointer<QWidget>> m_watched; ///< connections are made once
};

} // namespace host::app
