#include "state/DefinitionDialog.h"

#include "state/tables/TableRows.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableWidget>

namespace {

/// Nobody reads more of a text in a table, and laying out a file that is one line costs a minute.
constexpr qsizetype longestShown = 500;

QString shown(const QString &text)
{
    return text.size() <= longestShown ? text : text.left(longestShown) + QChar(0x2026);
}

} // namespace

void DefinitionDialog::setUpDefinitions(QLineEdit *file, QTableWidget *table, const QString &headers, int firstWidth)
{
    m_file = file;
    m_table = table;
    ortakit::setTableHeaders(*table, headers);
    QHeaderView *header = table->horizontalHeader();
    header->setSectionResizeMode(0, QHeaderView::Fixed);
    header->resizeSection(0, firstWidth);
    header->setSectionResizeMode(1, QHeaderView::Stretch);
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void DefinitionDialog::showDefinitions(const QList<QStringList> &rows, int nameColumn)
{
    m_names.clear();
    QList<QStringList> shownRows;
    for (const QStringList &row : rows) {
        m_names.insert(row.value(nameColumn).toUpper());
        QStringList &cells = shownRows.emplaceBack();
        std::ranges::transform(row, std::back_inserter(cells), shown);
    }
    ortakit::setTableRows(*m_table, shownRows);
}

bool DefinitionDialog::acceptsDefinition(const QString &path, const QString &name, const Messages &messages)
{
    const QString text = problem(path, name, messages);
    if (!text.isEmpty()) {
        inform(text, messages.title);
        return false;
    }
    return !m_names.contains(name.toUpper()) || ask(messages.exists, messages.title);
}

QString DefinitionDialog::problem(const QString &path, const QString &name, const Messages &messages) const
{
    if (path.isEmpty())
        return messages.noFile;
    if (name.isEmpty())
        return messages.noName;
    return name.contains(u' ') ? messages.blankInName : QString();
}

void DefinitionDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // The field has heard of it and passes it on to the dialog.
    if (!isEnter || !m_file->hasFocus())
        ToolDialog::keyPressEvent(event);
}
