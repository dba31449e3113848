#include "host/dcl/widgets/DialogWindow.h"

#include "host/dcl/widgets/DialogBuilder.h"
#include "host/dcl/widgets/FieldTiles.h"
#include "host/dcl/widgets/ImageControl.h"
#include "host/dcl/widgets/ListTiles.h"
#include "host/dcl/widgets/TileMetrics.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

constexpr int roomAroundTiles = 12;

/// Programs ask how large tiles are before the window is shown, which is when Qt would settle it.
void settleLayouts(QWidget &widget)
{
    if (QLayout *layout = widget.layout()) {
        layout->invalidate();
        layout->activate();
    }
    for (QWidget *child : widget.findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        settleLayouts(*child);
}

/// What is larger than the screen is moved behind a window of its own.
QWidget *fittedTo(const QSize &room, QWidget &contents)
{
    const QSize wanted = contents.sizeHint();
    if (wanted.width() <= room.width() && wanted.height() <= room.height())
        return &contents;
    auto *area = new QScrollArea;
    area->setWidget(&contents);
    area->setFrameShape(QFrame::NoFrame);
    const int bar = area->verticalScrollBar()->sizeHint().width();
    area->setMinimumSize((wanted + QSize(bar, bar)).boundedTo(room));
    return area;
}

} // namespace

DialogWindow::DialogWindow(const QString &name, const Tile &dialog, QWidget *parent)
    : QDialog(parent), m_key(dialog.key())
{
    setObjectName(name);
    setWindowTitle(dialog.text(dialog.has(u"value"_s) ? u"value"_s : u"label"_s));
    const TileMetrics metrics(font());
    auto *contents = new QWidget;
    DialogBuilder(*this, metrics).fill(*contents, dialog);
    contents->setMinimumSize(metrics.asked(dialog));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(roomAroundTiles, roomAroundTiles, roomAroundTiles, roomAroundTiles);
    constexpr double share = 0.9;
    layout->addWidget(fittedTo((QSizeF(screen()->availableSize()) * share).toSize(), *contents));
    layout->setSizeConstraint(QLayout::SetFixedSize);
    if (TileControl *button = firstWith(u"is_default"_s))
        static_cast<QPushButton *>(button->field())->setDefault(true);
    ensurePolished();
    adjustSize();
    settleLayouts(*this);
    focusFirst(dialog.text(u"initial_focus"_s));
}

DialogWindow::~DialogWindow() = default;

void DialogWindow::add(TileControl &control, TileControl *radioCluster)
{
    m_controls.append(&control);
    if (!control.key().isEmpty() && !m_byKey.contains(control.key()))
        m_byKey.insert(control.key(), &control);
    if (radioCluster)
        m_clusters.insert(&control, radioCluster);
    control.setListener([this](const TileControl &from, Reason reason, const QPoint &at) { tell(from, reason, at); });
    const auto accepts = [this](const TileControl &from) {
        if (from.tile().flag(u"allow_accept"_s))
            pressDefault();
    };
    if (auto *list = dynamic_cast<ListControl *>(&control))
        list->setOnDoubleClick(accepts);
    else if (auto *image = dynamic_cast<ImageControl *>(&control))
        image->setOnDoubleClick(accepts);
    else if (auto *edit = dynamic_cast<EditControl *>(&control)) {
        m_edits.append(edit);
        edit->setOnEnter([this, accepts](const TileControl &from) {
            accepts(from);
            // Where Enter does not press it, it goes on to it.
            TileControl *button = isFinished() ? nullptr : firstWith(u"is_default"_s);
            if (button && !from.tile().flag(u"allow_accept"_s))
                button->giveFocus();
        });
    }
}

void DialogWindow::tell(const TileControl &control, Reason reason, const QPoint &at)
{
    // A shortcut presses a button without taking the keyboard from the edit box where something was typed.
    if (control.tile().kind == TileKind::Button)
        for (EditControl *edit : m_edits)
            edit->tellLeft();
    if (!m_isFinished && m_listener)
        m_listener(control, {control.key(), control.value(), reason, at});
}

TileControl *DialogWindow::firstWith(const QString &flag) const
{
    for (TileControl *control : m_controls)
        if (control->tile().kind == TileKind::Button && control->tile().flag(flag))
            return control;
    return nullptr;
}

void DialogWindow::focusFirst(const QString &key)
{
    if (TileControl *first = tile(key))
        first->giveFocus();
}

void DialogWindow::finish(int status)
{
    m_isFinished = true;
    done(status);
}

void DialogWindow::reject()
{
    if (m_isFinished)
        return;
    TileControl *button = firstWith(u"is_cancel"_s);
    if (!button)
        finish(Rejected);
    else if (button->widget()->isEnabled())
        static_cast<QPushButton *>(button->field())->click();
}

void DialogWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return QDialog::keyPressEvent(event);
    if (auto *focused = qobject_cast<QPushButton *>(focusWidget()))
        focused->click();
    else
        pressDefault();
}

void DialogWindow::pressDefault()
{
    if (m_isFinished)
        return;
    if (TileControl *button = firstWith(u"is_default"_s))
        static_cast<QPushButton *>(button->field())->click();
}

} // namespace host::dcl
