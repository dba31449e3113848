#include "host/dcl/widgets/ListTiles.h"

#include "host/dcl/widgets/TabbedItems.h"
#include "host/dcl/widgets/TileCaption.h"
#include "host/dcl/widgets/TileMetrics.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QListView>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStringListModel>

#include <algorithm>

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

// Where the file does not say.
constexpr int usualListWidth = 20;
constexpr int usualListHeight = 6;
constexpr int usualPopupWidth = 10;
/// Arrow and margins of a popup list.
constexpr int popupMargins = 36;

QStringList itemsInFile(const Tile &tile)
{
    const QString list = tile.text(u"list"_s);
    return list.isEmpty() ? QStringList() : list.split(u'\n');
}

/// A list that wants to be no larger than its tile asks for.
class TileList final : public QListView
{
public:
    QSize sizeHint() const override { return minimumSize(); }
};

QListView *makeList(const Tile &tile, const TileMetrics &metrics)
{
    auto *list = new TileList;
    list->setFont(fontOf(tile, list->font()));
    list->setModel(new QStringListModel(itemsInFile(tile), list));
    list->setItemDelegate(new TabbedItems(tile, metrics, list));
    list->setUniformItemSizes(true);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    const bool isMultiple = tile.flag(u"multiple_select"_s);
    list->setSelectionMode(isMultiple ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
    const double lines = tile.number(u"height"_s, usualListHeight);
    const double characters = tile.number(u"width"_s, usualListWidth);
    list->setMinimumSize(metrics.width(characters), metrics.height(std::max(lines, 1.0)) + 2 * list->frameWidth());
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return list;
}

QWidget *listFrame(const Tile &tile, QListView &list)
{
    auto *frame = new QWidget;
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins({});
    addLabel(*layout, tile, list);
    layout->addWidget(&list, 1);
    return frame;
}

QComboBox *makePopup(const Tile &tile, const TileMetrics &metrics)
{
    auto *box = new QComboBox;
    box->setFont(fontOf(tile, box->font()));
    box->setItemDelegate(new TabbedItems(tile, metrics, box));
    box->addItems(itemsInFile(tile));
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setFocusPolicy(Qt::StrongFocus);
    return box;
}

QWidget *popupFrame(const Tile &tile, QComboBox &box, const TileMetrics &metrics)
{
    auto *frame = new QWidget;
    auto *layout = new QHBoxLayout(frame);
    layout->setContentsMargins({});
    addLabel(*layout, tile, box);
    const double characters = tile.number(u"edit_width"_s);
    if (characters > 0) {
        layout->addStretch();
        box.setFixedWidth(metrics.width(characters) + popupMargins);
    } else {
        box.setMinimumWidth(metrics.width(usualPopupWidth) + popupMargins);
        box.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }
    layout->addWidget(&box, characters > 0 ? 0 : 1);
    // A height in a file is that of the list which drops down, which sees to itself.
    frame->setMinimumWidth(metrics.asked(tile).width());
    frame->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return frame;
}

} // namespace

ListControl::ListControl(const Tile &tile, const TileMetrics &metrics)
    : ListControl(tile, metrics, makeList(tile, metrics))
{
}

ListControl::ListControl(const Tile &tile, const TileMetrics &, QListView *list)
    : TileControl(tile, listFrame(tile, *list), list)
{
    setValue(tile.text(u"value"_s));
    list->viewport()->installEventFilter(this);
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!m_isPressed && !m_isSetting)
            report(Reason::Chosen);
    });
    connect(list, &QListView::clicked, this, [this] { report(Reason::Chosen); });
    connect(list, &QListView::doubleClicked, this, [this] {
        report(Reason::DoubleClick);
        if (m_onDoubleClick)
            m_onDoubleClick(*this);
    });
}

QListView *ListControl::list() const
{
    return static_cast<QListView *>(field());
}

QStringListModel *ListControl::model() const
{
    return static_cast<QStringListModel *>(list()->model());
}

bool ListControl::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick)
        m_isPressed = true;
    else if (event->type() == QEvent::MouseButtonRelease)
        m_isPressed = false;
    return TileControl::eventFilter(object, event);
}

QString ListControl::value() const
{
    QList<int> rows;
    for (const QModelIndex &index : list()->selectionModel()->selectedIndexes())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    QStringList numbers;
    for (const int row : rows)
        numbers.append(QString::number(row));
    return numbers.join(u' ');
}

void ListControl::setValue(const QString &value)
{
    const QScopedValueRollback setting(m_isSetting, true);
    list()->clearSelection();
    QItemSelection selection;
    for (const QString &number : value.split(u' ', Qt::SkipEmptyParts)) {
        bool isNumber = false;
        const QModelIndex index = model()->index(number.toInt(&isNumber));
        if (!isNumber || !index.isValid())
            continue;
        // The first one is brought into sight, which making it the current one does.
        if (selection.isEmpty())
            list()->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        selection.select(index, index);
        if (list()->selectionMode() == QAbstractItemView::SingleSelection)
            break;
    }
    list()->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

QStringList ListControl::items() const
{
    return model()->stringList();
}

void ListControl::setItems(const QStringList &items)
{
    // The value in the file is that of items which only the program brings.
    const QString selected = model()->rowCount() == 0 ? tile().text(u"value"_s) : value();
    const QScopedValueRollback setting(m_isSetting, true);
    model()->setStringList(items);
    setValue(selected);
}

PopupControl::PopupControl(const Tile &tile, const TileMetrics &metrics)
    : PopupControl(tile, metrics, makePopup(tile, metrics))
{
}

PopupControl::PopupControl(const Tile &tile, const TileMetrics &metrics, QComboBox *box)
    : TileControl(tile, popupFrame(tile, *box, metrics), box)
{
    setValue(tile.text(u"value"_s));
    connect(box, &QComboBox::activated, this, [this] { report(Reason::Chosen); });
}

QComboBox *PopupControl::box() const
{
    return static_cast<QComboBox *>(field());
}

QString PopupControl::value() const
{
    return box()->currentIndex() < 0 ? QString() : QString::number(box()->currentIndex());
}

void PopupControl::setValue(const QString &value)
{
    bool isNumber = false;
    const int index = value.trimmed().toInt(&isNumber);
    if (isNumber && index >= 0 && index < box()->count())
        box()->setCurrentIndex(index);
}

QStringList PopupControl::items() const
{
    QStringList items;
    for (int i = 0; i < box()->count(); ++i)
        items.append(box()->itemText(i));
    return items;
}

void PopupControl::setItems(const QStringList &items)
{
    const QString selected = box()->count() == 0 ? tile().text(u"value"_s) : value();
    box()->clear();
    box()->addItems(items);
    setValue(selected);
}

} // namespace host::dcl
