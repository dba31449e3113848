#include "dialogs/drawordercolor/Dlg_QT_DrawOderColor.h"

#include "state/favourites/FavouritesBox.h"
#include "state/tables/RowMover.h"
#include "state/tables/TableOrder.h"
#include "state/tables/TableRows.h"
#include "state/tables/TableSelection.h"
#include "ui_Dlg_QT_DrawOderColor.h"

#include <QHeaderView>
#include <QKeySequence>
#include <QSet>
#include <QShortcut>

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

constexpr int lastColor = 256;
constexpr int colorRole = Qt::UserRole;
constexpr int swatchSize = 16;

int colorNumber(const QString &text)
{
    const qint64 number = std::abs(std::max(text.toLongLong(), -std::numeric_limits<qint64>::max()));
    return number <= std::numeric_limits<qint16>::max() ? int(number) : 0;
}

QList<int> colorNumbers(const QStringList &texts)
{
    QList<int> colors;
    for (const QString &text : texts)
        colors.append(colorNumber(text));
    return colors;
}

QString orderText(const QList<int> &colors)
{
    QString text;
    for (const int color : colors)
        text += QString::number(color) + u'^';
    return text;
}

QString shownName(int color)
{
    const QString number = QString::number(color);
    if (color > lastColor)
        return Dlg_QT_DrawOderColor::tr("%1 (no color)").arg(number);
    const QString name = CKvQtColorComboBox::colorName(color);
    return name.contains(number) ? name : number + u' ' + name;
}

QTableWidgetItem *colorItem(int color)
{
    auto *item = new QTableWidgetItem(shownName(color));
    item->setData(colorRole, color);
    item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled);
    if (color <= lastColor)
        item->setIcon(CKvQtColorComboBox::colorSwatch(color));
    return item;
}

} // namespace

Dlg_QT_DrawOderColor::Dlg_QT_DrawOderColor(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("drawordercolor")), m_ui(std::make_unique<Ui::Dlg_QT_DrawOderColor>())
{
    m_ui->setupUi(this);
    setUpButtons();
    setUpTable();
    for (int color = 0; color <= lastColor; ++color)
        m_ui->newColor->setColorIndex(color);
    m_ui->newColor->setColorIndex(1);
    m_mover = new RowMover(m_ui->lstColors, {m_ui->toBack, m_ui->moveUp, m_ui->moveDown, m_ui->toFront});
    m_favourites = new FavouritesBox(this, state(), QStringLiteral("DrawOrderColor"),
                                     {m_ui->cb_favorits, m_ui->saveFavorite, m_ui->removeFavorite});
    connectWidgets();
    followOrder();
}

Dlg_QT_DrawOderColor::~Dlg_QT_DrawOderColor() = default;

void Dlg_QT_DrawOderColor::setUpTable()
{
    QTableWidget &table = *m_ui->lstColors;
    ortakit::setTableHeaders(table, tr("Color"));
    table.horizontalHeader()->setStretchLastSection(true);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(std::max(table.fontMetrics().height(), swatchSize) + 6);
    table.setIconSize(QSize(swatchSize, swatchSize));
}

void Dlg_QT_DrawOderColor::connectWidgets()
{
    connect(m_mover, &RowMover::arranged, this, &Dlg_QT_DrawOderColor::followOrder);
    connect(m_ui->lstColors, &QTableWidget::itemSelectionChanged, this, &Dlg_QT_DrawOderColor::enableButtons);
    connect(m_ui->reverse, &QPushButton::clicked, this, &Dlg_QT_DrawOderColor::reverse);
    connect(m_ui->sortNumbers, &QPushButton::clicked, this, &Dlg_QT_DrawOderColor::sortNumbers);
    connect(m_ui->removeColors, &QPushButton::clicked, this, &Dlg_QT_DrawOderColor::removeColors);
    connect(new QShortcut(QKeySequence::Delete, m_ui->lstColors, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, &Dlg_QT_DrawOderColor::removeColors);
    connect(m_ui->addColor, &QPushButton::clicked, this, &Dlg_QT_DrawOderColor::addColor);
    connect(m_favourites, &FavouritesBox::loaded, this, &Dlg_QT_DrawOderColor::takeFavourite);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, [this] { acceptWith(QStringLiteral("OK")); });
}

void Dlg_QT_DrawOderColor::setColors(const QStringList &numbers)
{
    m_givenColors = colorNumbers(numbers);
    fill(m_givenColors);
}

QList<int> Dlg_QT_DrawOderColor::colors() const
{
    QList<int> colors;
    for (int row = 0; row < m_ui->lstColors->rowCount(); ++row)
        colors.append(m_ui->lstColors->item(row, 0)->data(colorRole).toInt());
    return colors;
}

void Dlg_QT_DrawOderColor::afterShow()
{
    m_favourites->refresh();
    m_ui->lstColors->clearSelection();
    if (m_ui->lstColors->rowCount() > 0)
        m_ui->lstColors->selectRow(0);
    m_ui->lstColors->setFocus();
}

void Dlg_QT_DrawOderColor::fill(const QList<int> &colors)
{
    ortakit::setTableRows(*m_ui->lstColors, int(colors.size()),
                          [&colors](int row, int) { return colorItem(colors[row]); });
    followOrder();
}

void Dlg_QT_DrawOderColor::followOrder()
{
    const QList<int> order = colors();
    const QString name = m_ui->lstColors->objectName();
    state().setWrittenValue(name, orderText(order));
    state().setFavouriteValue(name, orderText(order));
    m_ui->picture->setColors(order);
    enableButtons();
}

void Dlg_QT_DrawOderColor::enableButtons()
{
    const bool hasSelection = m_ui->lstColors->selectionModel()->hasSelection();
    const bool hasOrder = m_ui->lstColors->rowCount() > 1;
    m_ui->removeColors->setEnabled(hasSelection);
    m_ui->reverse->setEnabled(hasOrder);
    m_ui->sortNumbers->setEnabled(hasOrder);
}

/// A colour that is in the list already is shown there.
void Dlg_QT_DrawOderColor::addColor()
{
    const int color = m_ui->newColor->colorIndex();
    int row = int(colors().indexOf(color));
    if (row < 0) {
        row = m_ui->lstColors->rowCount();
        m_ui->lstColors->insertRow(row);
        m_ui->lstColors->setItem(row, 0, colorItem(color));
        followOrder();
    }
    m_ui->lstColors->selectRow(row);
    m_ui->lstColors->scrollToItem(m_ui->lstColors->item(row, 0));
}

void Dlg_QT_DrawOderColor::removeColors()
{
    QTableWidget &table = *m_ui->lstColors;
    const QList<int> selected = ortakit::rowsWithSelection(table);
    if (selected.isEmpty())
        return;
    ortakit::removeTableRows(table, selected);
    // The next one, for whoever removes several one after the other.
    if (table.rowCount() > 0)
        table.selectRow(std::min(selected.first(), table.rowCount() - 1));
    followOrder();
    if (!m_ui->removeColors->isEnabled())
        table.setFocus();
}

void Dlg_QT_DrawOderColor::reverse()
{
    QList<int> rows(m_ui->lstColors->rowCount());
    std::iota(rows.rbegin(), rows.rend(), 0);
    m_mover->arrange(rows);
}

void Dlg_QT_DrawOderColor::sortNumbers()
{
    const QList<int> numbers = colors();
    QList<int> rows(numbers.size());
    std::iota(rows.begin(), rows.end(), 0);
    std::stable_sort(rows.begin(), rows.end(), [&numbers](int a, int b) { return numbers[a] < numbers[b]; });
    m_mover->arrange(rows);
}

void Dlg_QT_DrawOderColor::takeFavourite()
{
    const QString order = state().lookup(m_ui->lstColors->objectName());
    if (order.isEmpty())
        return;
    QList<int> colors = colorNumbers(order.split(u'^', Qt::SkipEmptyParts));
    const QSet<int> known(colors.cbegin(), colors.cend());
    for (const int color : std::as_const(m_givenColors)) {
        if (!known.contains(color))
            colors.append(color);
    }
    fill(colors);
}
