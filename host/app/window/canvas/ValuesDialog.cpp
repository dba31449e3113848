#include "host/app/window/canvas/ValuesDialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace host::app {

namespace {

constexpr int valueColumn = 2;

QTableWidgetItem *cellOf(const QString &text, bool isFixed, const QString &tip = {})
{
    auto *cell = new QTableWidgetItem(text);
    if (isFixed)
        cell->setFlags(cell->flags() & ~Qt::ItemIsEditable);
    cell->setToolTip(tip);
    return cell;
}

} // namespace

ValuesDialog::ValuesDialog(const QString &title, std::vector<Row> rows, std::size_t current, QWidget *parent)
    : QDialog(parent), m_rows(std::move(rows)), m_table(new QTableWidget(int(m_rows.size()), 3, this))
{
    setObjectName(QStringLiteral("valuesEditor"));
    setWindowTitle(title);
    m_table->setObjectName(QStringLiteral("values"));
    m_table->setAccessibleName(title);
    m_table->setHorizontalHeaderLabels({tr("Tag"), tr("Prompt"), tr("Value")});
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->setTabKeyNavigation(false);
    m_table->setEditTriggers(QAbstractItemView::AllEditTriggers);
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        m_table->setItem(int(i), 0, cellOf(m_rows[i].name, true));
        m_table->setItem(int(i), 1, cellOf(m_rows[i].hint, true));
        m_table->setItem(int(i), valueColumn, cellOf(m_rows[i].value, m_rows[i].isFixed, m_rows[i].tip));
    }
    m_table->resizeColumnsToContents();
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_table, 1);
    column->addWidget(buttons);
    resize(560, 300);
    // The editor of a cell needs the dialog to be shown.
    QTimer::singleShot(0, this, [this, current] { m_table->setCurrentCell(int(current), valueColumn); });
}

QString ValuesDialog::value(std::size_t row) const
{
    return m_table->item(int(row), valueColumn)->text();
}

} // namespace host::app
