#include "dialogs/importblockattributes/Dlg_QT_ImportBlockAttributes.h"

#include "formats/AttributeTable.h"
#include "formats/TextReading.h"
#include "state/pickers/FilePicker.h"
#include "state/pickers/PathChecks.h"
#include "state/pickers/PathMessages.h"
#include "state/tables/TableOrder.h"
#include "state/tables/TableReplacing.h"
#include "state/tables/TableRows.h"
#include "state/tables/TableSelection.h"
#include "state/tables/WholeTextItem.h"
#include "state/widgets/FullText.h"
#include "state/widgets/LongWork.h"
#include "ui_Dlg_QT_ImportBlockAttributes.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

Dlg_QT_ImportBlockAttributes::Dlg_QT_ImportBlockAttributes(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("importblockattributes")),
      m_ui(std::make_unique<Ui::Dlg_QT_ImportBlockAttributes>())
{
    m_ui->setupUi(this);
    setUpButtons();
    setUpTable();
    // Before the field's own filter, which then comes first and takes what was typed.
    m_ui->AttributeFile->installEventFilter(this);
    m_file = std::make_unique<ElidedPathField>(m_ui->AttributeFile);
    connectWidgets();
}

Dlg_QT_ImportBlockAttributes::~Dlg_QT_ImportBlockAttributes() = default;

void Dlg_QT_ImportBlockAttributes::setUpTable()
{
    ortakit::makeNewSelectionsQuick(*m_ui->Attributes);
    ortakit::setHeaderForSorting(*m_ui->Attributes);
    m_ui->Attributes->horizontalHeader()->setSortIndicator(m_sortColumn, Qt::AscendingOrder);
    m_ui->Attributes->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_ui->Attributes->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_ui->Attributes->verticalHeader()->setFixedWidth(26);
}

void Dlg_QT_ImportBlockAttributes::connectWidgets()
{
    // Behind the field's own connection, so that the typed path has been taken.
    connect(m_ui->AttributeFile, &QLineEdit::returnPressed, this, &Dlg_QT_ImportBlockAttributes::fillAttributes);
    connect(m_ui->selectfile, &QPushButton::clicked, this, &Dlg_QT_ImportBlockAttributes::SelectFileAtt);
    connect(m_ui->btReplace, &QPushButton::clicked, this, &Dlg_QT_ImportBlockAttributes::replace);
    for (const QLineEdit *field : {m_ui->txsearch, m_ui->txreplace})
        connect(field, &QLineEdit::returnPressed, m_ui->btReplace, &QPushButton::click);
    connect(m_ui->Attributes, &QTableWidget::itemSelectionChanged, this, &Dlg_QT_ImportBlockAttributes::SelectChanged);
    connect(m_ui->Attributes->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &Dlg_QT_ImportBlockAttributes::ClickHeaderTable);
    connect(m_ui->selectAll, &QCheckBox::clicked, this, &Dlg_QT_ImportBlockAttributes::Select);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &Dlg_QT_ImportBlockAttributes::ReadSelected);
}

void Dlg_QT_ImportBlockAttributes::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // A field has used it and passes it on to the dialog, which would press OK.
    if (!isEnter || !qobject_cast<QLineEdit *>(focusWidget()))
        ToolDialog::keyPressEvent(event);
}

void Dlg_QT_ImportBlockAttributes::afterShow()
{
    // The field's width is known only now.
    m_file->setFullPath(m_file->fullPath());
    if (ortakit::checkFile(m_file->fullPath()) == ortakit::PathProblem::None)
        takeFile(Report::Silent);
    followSelection();
    (m_acceptedFile.isEmpty() ? static_cast<QWidget *>(m_ui->selectfile) : m_ui->Attributes)->setFocus();
}

void Dlg_QT_ImportBlockAttributes::SelectFileAtt()
{
    const QString chosen = ortakit::pickFileToOpen(
        this, {.title = tr("Select the file to import"), .filter = tr("Attributes files (*.txt)"), .start = m_folder});
    if (chosen.isEmpty())
        return;
    m_folder = QFileInfo(chosen).absolutePath();
    m_file->setFullPath(chosen);
    fillAttributes();
}

void Dlg_QT_ImportBlockAttributes::fillAttributes()
{
    if (hasFile(Report::Told))
        takeFile(Report::Told);
}

/// A path that was typed counts when its field is left, as with Enter; one that leads nowhere goes at the next step.
bool Dlg_QT_ImportBlockAttributes::eventFilter(QObject *watched, QEvent *event)
{
    const bool isLeft = watched == m_ui->AttributeFile && event->type() == QEvent::FocusOut && isVisible();
    if (isLeft && m_file->fullPath() != m_acceptedFile &&
        ortakit::checkFile(m_file->fullPath()) == ortakit::PathProblem::None)
        takeFile(Report::Told);
    return ToolDialog::eventFilter(watched, event);
}

/// Whether the field leads to a file. Otherwise it gets the accepted one back.
bool Dlg_QT_ImportBlockAttributes::hasFile(Report report)
{
    m_file->takeText();
    const QString path = m_file->fullPath();
    const bool isFile = report == Report::Told ? ortakit::acceptsFile(this, path)
                                               : ortakit::checkFile(path) == ortakit::PathProblem::None;
    if (!isFile)
        m_file->setFullPath(m_acceptedFile);
    return isFile;
}

void Dlg_QT_ImportBlockAttributes::takeFile(Report report)
{
    const QString before = std::exchange(m_acceptedFile, m_file->fullPath());
    if (readTable(m_acceptedFile, report))
        return;
    m_acceptedFile = before;
    m_file->setFullPath(before);
}

/// False when the user did not wait; the table is as it was then.
bool Dlg_QT_ImportBlockAttributes::readTable(const QString &path, Report report)
{
    const ortakit::TextReading file = ortakit::readTextFile(path);
    const QByteArray text = ortakit::utf8OfLegacy(file.text);
    ortakit::AttributeTableReader reader(text);
    const QString error = reader.isTooLarge() ? tr("The table is too large.") : file.error;
    if (!error.isEmpty()) {
        showTable({}, 0, {});
        m_ui->selectAll->setEnabled(false);
        if (report == Report::Told)
            warn(error, windowTitle());
        return true;
    }
    const qsizetype columnCount = reader.headers().size();
    TableItems items(size_t(reader.rowCount() * columnCount));
    LongWork work(this, tr("Reading the attributes..."), reader.rowCount());
    for (size_t row = 0; reader.next(); ++row) {
        if (!work.goesOn())
            return false;
        size_t cell = row * size_t(columnCount);
        for (const QString &field : reader.fields())
            items[cell++] = std::make_unique<ortakit::WholeTextItem>(field);
    }
    showTable(reader.headers(), int(reader.rowCount()), std::move(items));
    m_ui->selectAll->setEnabled(true);
    return true;
}

void Dlg_QT_ImportBlockAttributes::showTable(const QStringList &headers, int rowCount, TableItems items)
{
    {
        const QScopedValueRollback filling(m_isSelecting, true);
        QTableWidget &table = *m_ui->Attributes;
        table.setRowCount(0);
        table.setColumnCount(int(headers.size()));
        for (int column = 0; column < int(headers.size()); ++column)
            table.setHorizontalHeaderItem(column, new ortakit::WholeTextItem(headers[column]));
        m_sortColumn = -1;
        table.horizontalHeader()->setSortIndicator(m_sortColumn, Qt::AscendingOrder);
        m_itemCount = std::count_if(items.cbegin(), items.cend(), [](const auto &item) { return item != nullptr; });
        ortakit::setTableRows(table, rowCount, [&items, &headers](int row, int column) {
            return items[size_t(row) * size_t(headers.size()) + size_t(column)].release();
        });
    }
    followSelection();
}

void Dlg_QT_ImportBlockAttributes::SelectChanged()
{
    if (!m_isSelecting && hasFile(Report::Silent))
        followSelection();
}

void Dlg_QT_ImportBlockAttributes::followSelection()
{
    const bool hasSelection = m_ui->Attributes->selectionModel()->hasSelection();
    m_ui->groupSearch->setEnabled(hasSelection);
    m_ui->acceptButton->setEnabled(hasSelection);
    // Counting takes its time, and what is not checked need not be unchecked.
    if (m_ui->selectAll->isChecked() && (!hasSelection || ortakit::selectedItemCount(*m_ui->Attributes) != m_itemCount))
        m_ui->selectAll->setChecked(false);
}

void Dlg_QT_ImportBlockAttributes::Select()
{
    {
        const QScopedValueRollback selecting(m_isSelecting, true);
        // With the cells that have no item, which nobody counts: each gap would be a range of its own, and Qt takes
        // time that grows with the square of their number.
        if (m_ui->selectAll->isChecked())
            m_ui->Attributes->selectAll();
        else
            m_ui->Attributes->clearSelection();
    }
    SelectChanged();
}

void Dlg_QT_ImportBlockAttributes::replace()
{
    QTableWidget &table = *m_ui->Attributes;
    if (!table.selectionModel()->hasSelection()) {
        inform(tr("Select items of table for search."), windowTitle());
        return;
    }
    const QString found = ortakit::wholeText(*m_ui->txsearch);
    const QString replacement = ortakit::wholeText(*m_ui->txreplace);
    if (found.isEmpty())
        return; // which Qt would find between all characters
    ortakit::replaceTexts(this, selectedItems(), [&](const QString &text) {
        return QString(text).replace(found, replacement, Qt::CaseInsensitive);
    });
}

QList<QTableWidgetItem *> Dlg_QT_ImportBlockAttributes::selectedItems() const
{
    // The table's own answer asks each cell whether it is selected.
    const QTableWidget &table = *m_ui->Attributes;
    QList<QTableWidgetItem *> items;
    for (const QItemSelectionRange &range : table.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            for (int column = range.left(); column <= range.right(); ++column) {
                if (QTableWidgetItem *item = table.item(row, column))
                    items.append(item);
            }
        }
    }
    return items;
}

void Dlg_QT_ImportBlockAttributes::ReadSelected()
{
    if (!hasFile(Report::Told))
        return;
    const QList<int> rows = ortakit::wholeSelectedRows(*m_ui->Attributes);
    if (rows.isEmpty()) {
        inform(tr("Select the rows of table for import."), windowTitle());
        return;
    }
    QList<QStringList> texts;
    LongWork work(this, tr("Collecting the rows..."), rows.size());
    for (const int row : rows) {
        if (!work.goesOn())
            return;
        texts.append(rowTexts(row));
    }
    state().setWrittenValue(m_ui->Attributes->objectName(), ortakit::attributeText(headers(), texts));
    accept();
}

QStringList Dlg_QT_ImportBlockAttributes::headers() const
{
    QStringList texts;
    for (int column = 0; column < m_ui->Attributes->columnCount(); ++column)
        texts.append(m_ui->Attributes->horizontalHeaderItem(column)->text());
    return texts;
}

/// Of the cells that there are.
QStringList Dlg_QT_ImportBlockAttributes::rowTexts(int row) const
{
    QStringList texts;
    for (int column = 0; column < m_ui->Attributes->columnCount(); ++column) {
        if (const QTableWidgetItem *item = m_ui->Attributes->item(row, column))
            texts.append(item->text());
    }
    return texts;
}

void Dlg_QT_ImportBlockAttributes::ClickHeaderTable(int column)
{
    {
        const QScopedValueRollback sorting(m_isSelecting, true);
        if (ortakit::sortTableRows(*m_ui->Attributes, column, tr("Sorting...")))
            m_sortColumn = column;
    }
    // The click has turned the header's mark.
    m_ui->Attributes->horizontalHeader()->setSortIndicator(m_sortColumn, Qt::AscendingOrder);
}
