#include "host/app/playback/WidgetRecorder.h"

#include "host/app/playback/PlaybackLine.h"
#include "host/app/playback/WidgetFinder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMetaEnum>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QTimer>
#include <QToolButton>

#include <memory>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// How a session names the widget; empty where nothing would find it.
QString referenceTo(QWidget &dialog, const QWidget &widget)
{
    QStringList names;
    if (!widget.objectName().isEmpty() && !widget.objectName().startsWith("qt_"_L1))
        names.append(widget.objectName());
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    if (const auto *box = qobject_cast<const QDialogButtonBox *>(widget.parentWidget()); box && button) {
        const auto key = box->standardButton(const_cast<QAbstractButton *>(button));
        names.append(u"button:"_s +
                     QString::fromLatin1(QMetaEnum::fromType<QDialogButtonBox::StandardButtons>().valueToKey(key)));
    }
    if (button)
        names.append(u"text:"_s + plainCaption(button->text()));
    const QString className = QString::fromLatin1(widget.metaObject()->className());
    for (int i = 1; i <= 20; ++i)
        names.append(u"class:%1#%2"_s.arg(className).arg(i));
    const auto leads = [&](const QString &name) { return findWidget(dialog, name).widget == &widget; };
    const auto found = std::ranges::find_if(names, leads);
    return found == names.end() ? QString() : *found;
}

/// The class where it is one of its own; of dialogs made of files and the toolkit's the object name.
QString nameOfDialog(const QDialog &dialog)
{
    const QString className = QString::fromLatin1(dialog.metaObject()->className()).section(u"::"_s, -1);
    const bool isCommon = className.startsWith(u'Q') || !dialog.objectName().isEmpty();
    const bool isOwn = className.startsWith("Dlg_"_L1);
    return isCommon && !isOwn && !dialog.objectName().isEmpty() ? dialog.objectName() : className;
}

/// The row as a session names it: in a tree by its text.
QString rowName(const QModelIndex &index)
{
    const bool isByText = index.parent().isValid() || index.model()->columnCount() == 0;
    return isByText ? sessionWord(index.siblingAtColumn(0).data().toString()) : u"#%1"_s.arg(index.row());
}

/// The rows that are chosen.
QString chosenRows(const QAbstractItemView &view)
{
    QString rows;
    for (const QModelIndex &index : view.selectionModel()->selectedIndexes()) {
        const bool isFirst = index.column() == 0 || !view.selectionModel()->isSelected(index.siblingAtColumn(0));
        if (isFirst &&
            (index.column() == 0 || !view.selectionModel()->isSelected(index.siblingAtColumn(index.column() - 1))))
            rows += u' ' + rowName(index);
    }
    return rows;
}

/// The line that puts in what the widget shows.
QString lineSetting(const QString &reference, QWidget &widget)
{
    const QString name = sessionWord(reference);
    const auto check = [&](bool isChecked) { return u"check %1 %2"_s.arg(name, isChecked ? u"yes"_s : u"no"_s); };
    const auto set = [&](const QString &value) { return u"set %1 %2"_s.arg(name, sessionWord(value)); };
    if (const auto *button = qobject_cast<QAbstractButton *>(&widget))
        return check(button->isChecked());
    if (const auto *box = qobject_cast<QGroupBox *>(&widget))
        return check(box->isChecked());
    if (const auto *edit = qobject_cast<QLineEdit *>(&widget))
        return set(edit->text());
    if (const auto *box = qobject_cast<QSpinBox *>(&widget))
        return set(box->cleanText());
    if (const auto *box = qobject_cast<QDoubleSpinBox *>(&widget))
        return set(box->cleanText());
    if (const auto *box = qobject_cast<QAbstractSpinBox *>(&widget))
        return set(box->text());
    if (const auto *box = qobject_cast<QComboBox *>(&widget))
        return set(box->currentText());
    if (const auto *edit = qobject_cast<QTextEdit *>(&widget))
        return set(edit->toPlainText());
    if (const auto *edit = qobject_cast<QPlainTextEdit *>(&widget))
        return set(edit->toPlainText());
    if (const auto *slider = qobject_cast<QAbstractSlider *>(&widget))
        return set(QString::number(slider->value()));
    if (const auto *view = qobject_cast<QAbstractItemView *>(&widget))
        return u"row "_s + name + chosenRows(*view);
    return {};
}

/// What a person means by working in a part of a widget: a line within a box is the box.
QWidget &wholeOf(QWidget &part)
{
    QWidget *parent = part.parentWidget();
    const bool isPart = qobject_cast<QComboBox *>(parent) || qobject_cast<QAbstractSpinBox *>(parent);
    return isPart ? *parent : part;
}

/// Changes of a widget that has the keyboard in its window are the person's.
bool isUsed(const QWidget &widget)
{
    const QWidget *focus = widget.window()->focusWidget();
    return focus && (focus == &widget || widget.isAncestorOf(focus));
}

/// What the button itself pops up; null when its click does something else.
QMenu *menuOf(const QAbstractButton &button)
{
    if (const auto *push = qobject_cast<const QPushButton *>(&button))
        return push->menu();
    const auto *tool = qobject_cast<const QToolButton *>(&button);
    return tool && tool->popupMode() == QToolButton::InstantPopup ? tool->menu() : nullptr;
}

/// The button that pops the menu up by itself; null when there is none.
QAbstractButton *buttonOf(const QDialog &dialog, const QMenu &menu)
{
    const QList<QAbstractButton *> buttons = dialog.findChildren<QAbstractButton *>();
    const auto found = std::ranges::find_if(buttons, [&](const auto *button) { return menuOf(*button) == &menu; });
    return found == buttons.end() ? nullptr : *found;
}

QString captionOf(const QAction &action)
{
    return plainCaption(action.text().section(u'\t', 0, 0));
}

QString buttonName(const QMessageBox &message, QAbstractButton &button)
{
    const QMessageBox::StandardButton key = message.standardButton(&button);
    const char *name = QMetaEnum::fromType<QMessageBox::StandardButtons>().valueToKey(key);
    return key != QMessageBox::NoButton && name ? QString::fromLatin1(name) : plainCaption(button.text());
}

} // namespace

WidgetRecorder::WidgetRecorder(std::function<bool()> isWanted, std::function<void(const QString &)> add)
    : m_isWanted(std::move(isWanted)), m_add(std::move(add))
{
    qApp->installEventFilter(this);
}

WidgetRecorder::~WidgetRecorder() = default;

bool WidgetRecorder::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Show && object->isWidgetType()) {
        auto &widget = static_cast<QWidget &>(*object);
        if (widget.isWindow() && widget.isModal() && m_isWanted())
            watch(widget);
        auto *menu = qobject_cast<QMenu *>(&widget);
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (menu && !qobject_cast<QMenu *>(menu->parentWidget()) && m_watched.contains(QPointer<QWidget>(dialog)))
            watchMenu(*dialog, *menu);
    } else if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress) {
        m_isClicked = false;
    } else if (event->type() == QEvent::MouseButtonDblClick && object->isWidgetType()) {
        auto *view = qobject_cast<QAbstractItemView *>(object->parent());
        auto *dialog = view ? qobject_cast<QDialog *>(view->window()) : nullptr;
        if (dialog && m_watched.contains(QPointer<QWidget>(dialog))) {
            flush(*dialog);
            m_pressed = dialog;
            m_add(u"  double-click "_s + sessionWord(referenceTo(*dialog, *view)) + chosenRows(*view));
        }
    }
    return QObject::eventFilter(object, event);
}

void WidgetRecorder::watch(QWidget &window)
{
    m_pressed = nullptr;
    m_watched.removeAll(QPointer<QWidget>());
    const bool isKnown = m_watched.contains(QPointer<QWidget>(&window));
    m_watched.append(&window);
    if (auto *message = qobject_cast<QMessageBox *>(&window)) {
        if (!isKnown)
            watchMessage(*message);
    } else if (auto *files = qobject_cast<QFileDialog *>(&window)) {
        if (!isKnown)
            watchFiles(*files);
    } else if (auto *dialog = qobject_cast<QDialog *>(&window)) {
        m_add(u"dialog "_s + sessionWord(nameOfDialog(*dialog)));
        watchDialog(*dialog);
        if (!isKnown)
            watchEnd(*dialog);
    }
}

void WidgetRecorder::goBackFrom(const QDialog &dialog)
{
    QWidget *parent = dialog.parentWidget();
    m_pressed = parent ? qobject_cast<QDialog *>(parent->window()) : nullptr;
}

void WidgetRecorder::watchMessage(QMessageBox &message)
{
    // A part of the text is enough to know it by.
    constexpr qsizetype enough = 60;
    const QString line = u"message "_s + sessionWord(message.text().simplified().left(enough)) + u' ';
    for (QAbstractButton *button : message.buttons()) {
        connect(button, &QAbstractButton::pressed, this, [this, &message, button, line] {
            m_pressed = &message;
            m_add(line + sessionWord(buttonName(message, *button)));
        });
    }
    connect(&message, &QDialog::finished, this, [this, &message, line] {
        if (m_pressed != &message)
            m_add(line + u"close"_s);
        goBackFrom(message);
    });
}

/// The button of a menu is told with it: a menu that is left again does nothing.
void WidgetRecorder::watchMenu(QDialog &dialog, QMenu &menu)
{
    QAbstractButton *const button = buttonOf(dialog, menu);
    if (m_isClicked && !button)
        return watchClickedMenu(dialog, menu);
    if (m_watched.contains(QPointer<QWidget>(&menu)))
        return;
    m_watched.append(&menu);
    connect(&menu, &QMenu::triggered, this, [this, &dialog, button = QPointer(button)](QAction *action) {
        if (!button)
            return m_add(u"# menu %1: those of the right button are not opened again"_s.arg(captionOf(*action)));
        flush(dialog);
        m_pressed = &dialog;
        m_add(u"  click "_s + sessionWord(referenceTo(dialog, *button)));
        m_add(u"menu "_s + sessionWord(captionOf(*action)));
    });
}

/// The click was told that a menu is opened by: something must be told of the menu as well.
void WidgetRecorder::watchClickedMenu(QDialog &dialog, QMenu &menu)
{
    m_isClicked = false;
    const auto isTold = std::make_shared<bool>(false);
    const auto tell = [this, dialog = QPointer(&dialog), isTold](const QString &entry) {
        if (std::exchange(*isTold, true))
            return;
        m_pressed = dialog;
        m_add(u"menu "_s + sessionWord(entry));
    };
    connect(&menu, &QMenu::triggered, this, [tell](QAction *action) { tell(captionOf(*action)); });
    // It is hidden before it says what was chosen.
    connect(&menu, &QMenu::aboutToHide, this,
            [this, tell] { QTimer::singleShot(0, this, [tell] { tell(u"cancel"_s); }); });
}

void WidgetRecorder::watchFiles(QFileDialog &dialog)
{
    connect(&dialog, &QDialog::finished, this, [this, &dialog](int result) {
        m_add(u"file "_s + (result == QDialog::Accepted ? sessionWord(dialog.selectedFiles().value(0)) : u"cancel"_s));
        goBackFrom(dialog);
    });
}

void WidgetRecorder::watchDialog(QDialog &dialog)
{
    for (QWidget *widget : dialog.findChildren<QWidget *>()) {
        if (widget->window() == &dialog && !m_watched.contains(QPointer<QWidget>(widget))) {
            m_watched.append(widget);
            watchWidget(dialog, *widget);
        }
    }
}

void WidgetRecorder::watchEnd(QDialog &dialog)
{
    connect(&dialog, &QDialog::finished, this, [this, &dialog](int result) {
        if (result == QDialog::Rejected && m_pressed != &dialog)
            m_add(u"  close"_s);
        m_touched.removeIf([&](const Touched &touched) { return touched.dialog == &dialog; });
        goBackFrom(dialog);
    });
}

void WidgetRecorder::watchWidget(QDialog &dialog, QWidget &widget)
{
    const auto touched = [this, &dialog, &widget] { touch(dialog, wholeOf(widget)); };
    const auto touchedByHand = [&widget, touched] {
        if (isUsed(widget))
            touched();
    };
    if (auto *button = qobject_cast<QAbstractButton *>(&widget))
        connect(button, &QAbstractButton::pressed, this, [this, &dialog, button] { press(dialog, *button); });
    else if (auto *edit = qobject_cast<QLineEdit *>(&widget))
        connect(edit, &QLineEdit::textEdited, this, touched);
    else if (auto *combo = qobject_cast<QComboBox *>(&widget))
        connect(combo, &QComboBox::activated, this, touched);
    else if (auto *spin = qobject_cast<QSpinBox *>(&widget))
        connect(spin, &QSpinBox::textChanged, this, touchedByHand);
    else if (auto *real = qobject_cast<QDoubleSpinBox *>(&widget))
        connect(real, &QDoubleSpinBox::textChanged, this, touchedByHand);
    else if (auto *text = qobject_cast<QTextEdit *>(&widget))
        connect(text, &QTextEdit::textChanged, this, touchedByHand);
    else if (auto *plain = qobject_cast<QPlainTextEdit *>(&widget))
        connect(plain, &QPlainTextEdit::textChanged, this, touchedByHand);
    else if (auto *group = qobject_cast<QGroupBox *>(&widget))
        connect(group, &QGroupBox::clicked, this, touched);
    else if (auto *tabs = qobject_cast<QTabBar *>(&widget))
        connect(tabs, &QTabBar::tabBarClicked, this, [this, &dialog, tabs](int index) {
            QWidget *whole = qobject_cast<QTabWidget *>(tabs->parentWidget());
            flush(dialog);
            m_add(u"  set %1 %2"_s.arg(sessionWord(referenceTo(dialog, whole ? *whole : *tabs)),
                                       sessionWord(plainCaption(tabs->tabText(index)))));
        });
    else if (auto *slider = qobject_cast<QAbstractSlider *>(&widget);
             slider && !widget.objectName().startsWith("qt_"_L1))
        connect(slider, &QAbstractSlider::sliderMoved, this, touched);
    else if (auto *view = qobject_cast<QAbstractItemView *>(&widget))
        watchRows(dialog, *view);
}

void WidgetRecorder::watchRows(QDialog &dialog, QAbstractItemView &view)
{
    if (!view.selectionModel() || !view.model())
        return;
    connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this, &dialog, &view] {
        if (isUsed(view))
            touch(dialog, view);
    });
    connect(
        view.model(), &QAbstractItemModel::dataChanged, this,
        [this, &dialog, &view](const QModelIndex &index, const QModelIndex &, const QList<int> &roles) {
            if (!isUsed(view) || referenceTo(dialog, view).isEmpty())
                return;
            const QString name = sessionWord(referenceTo(dialog, view));
            flush(dialog);
            if (roles.contains(Qt::CheckStateRole))
                m_add(u"  check-row %1 %2 %3"_s.arg(
                    name, rowName(index), index.data(Qt::CheckStateRole).toInt() == Qt::Checked ? u"yes"_s : u"no"_s));
            else if (roles.contains(Qt::EditRole) && index.parent().isValid())
                m_add(u"# in %1 was written what a session has no cell for: %2"_s.arg(
                    name, sessionWord(index.data(Qt::EditRole).toString())));
            else if (roles.contains(Qt::EditRole))
                m_add(u"  cell %1 %2 %3 %4"_s.arg(name)
                          .arg(index.row())
                          .arg(index.column())
                          .arg(sessionWord(index.data(Qt::EditRole).toString())));
        });
}

void WidgetRecorder::press(QDialog &dialog, QAbstractButton &button)
{
    if (button.isCheckable())
        return touch(dialog, button);
    if (menuOf(button))
        return;
    const QString reference = referenceTo(dialog, button);
    if (reference.isEmpty())
        return;
    flush(dialog);
    m_pressed = &dialog;
    m_isClicked = true;
    m_add(u"  click "_s + sessionWord(reference));
}

void WidgetRecorder::touch(QDialog &dialog, QWidget &widget)
{
    m_pressed = nullptr;
    m_touched.removeIf([&](const Touched &touched) { return touched.widget == &widget; });
    m_touched.append({&dialog, &widget});
}

void WidgetRecorder::flush(QDialog &dialog)
{
    QList<Touched> others;
    for (const Touched &touched : std::exchange(m_touched, {})) {
        if (touched.dialog != &dialog) {
            others.append(touched);
            continue;
        }
        const QString reference = touched.widget ? referenceTo(dialog, *touched.widget) : QString();
        if (!reference.isEmpty())
            m_add(u"  "_s + lineSetting(reference, *touched.widget));
    }
    m_touched = others;
}

} // namespace host::app
