#include "dialogs/dimensionstyle/StyleTables.h"

#include "formats/DimensionStyleFile.h"
#include "state/tables/TableRows.h"
#include "state/tables/TableSelection.h"

#include <QEvent>
#include <QHeaderView>
#include <QTableWidget>

StyleTables::StyleTables(QTableWidget *styles, QTableWidget *variables, QObject *parent)
    : QObject(parent), m_styles(styles), m_variables(variables)
{
    ortakit::setTableHeaders(*styles, tr("Name"));
    ortakit::setTableHeaders(*variables, tr("Variable;Value"));
    for (QTableWidget *table : {styles, variables}) {
        table->installEventFilter(this);
        table->horizontalHeader()->setHighlightSections(false);
        table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    }
    connect(styles, &QTableWidget::itemSelectionChanged, this, &StyleTables::selectionChanged);
}

void StyleTables::showStyles(const QStringList &names)
{
    QList<QStringList> rows;
    for (const QString &name : names)
        rows.append({name});
    ortakit::setTableRows(*m_styles, rows);
    m_styles->sortItems(0);
}

void StyleTables::showVariables(const QStringList &entries)
{
    ortakit::setTableRows(*m_variables, ortakit::variableRows(entries));
    m_variables->sortItems(0);
}

QStringList StyleTables::selectedStyles() const
{
    QStringList names;
    for (const int row : ortakit::wholeSelectedRows(*m_styles))
        names.append(m_styles->item(row, 0)->text());
    return names;
}

bool StyleTables::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        auto *table = static_cast<QTableWidget *>(watched);
        if (table->rowCount() > 0 && !table->selectionModel()->hasSelection())
            table->selectRow(0);
    }
    return QObject::eventFilter(watched, event);
}
