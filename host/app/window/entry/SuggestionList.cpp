#include "host/app/window/entry/SuggestionList.h"

#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr int mostRowsShown = 10;
constexpr int widestHelp = 420;

} // namespace

SuggestionList::SuggestionList(QWidget *field) : QTreeWidget(field), m_field(field)
{
    // A tool tip gets no focus, so that typing goes on in the field.
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setObjectName(u"suggestions"_s);
    setAccessibleName(tr("Suggestions"));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setColumnCount(2);
    setHeaderHidden(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    connect(this, &QTreeWidget::itemClicked, this,
            [this](const QTreeWidgetItem *item) { emit clickedName(item->text(0)); });
    hide();
}

void SuggestionList::offer(const QList<Suggestion> &suggestions)
{
    clear();
    QList<QTreeWidgetItem *> items;
    for (const Suggestion &each : suggestions)
        items.append(new QTreeWidgetItem({each.name, each.help}));
    addTopLevelItems(items);
    setCurrentItem(nullptr);
    if (items.isEmpty() || !m_field->isVisible())
        return hide();
    place();
    show();
}

QString SuggestionList::choose(int direction)
{
    const int count = topLevelItemCount();
    if (count == 0)
        return {};
    const int before = hasChoice() ? indexOfTopLevelItem(currentItem()) : (direction > 0 ? -1 : 0);
    setCurrentItem(topLevelItem((before + direction + count) % count));
    return currentItem()->text(0);
}

void SuggestionList::place()
{
    const int nameWidth = sizeHintForColumn(0) + 12;
    setColumnWidth(0, nameWidth);
    const int rows = std::min(topLevelItemCount(), mostRowsShown);
    const int helpWidth = std::min(sizeHintForColumn(1) + 12, widestHelp);
    const QSize size(nameWidth + helpWidth + verticalScrollBar()->sizeHint().width() + 2 * frameWidth(),
                     rows * sizeHintForRow(0) + 2 * frameWidth());
    const QRect screen = m_field->screen()->availableGeometry();
    const QPoint below = m_field->mapToGlobal(QPoint(0, m_field->height()));
    const QPoint above = m_field->mapToGlobal(QPoint(0, -size.height()));
    const bool fitsBelow = below.y() + size.height() <= screen.bottom();
    setGeometry({fitsBelow ? below : above, size});
}

} // namespace host::app
