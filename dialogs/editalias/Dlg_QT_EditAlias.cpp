#include "dialogs/editalias/Dlg_QT_EditAlias.h"

#include "platform/kernel/CKvSystemServices.h"
#include "platform/kernel/CKvUtils.h"
#include "state/host/CommandLineText.h"
#include "state/host/DocumentPrinting.h"
#include "state/host/ModuleFolder.h"
#include "state/pickers/FilePicker.h"
#include "state/tables/TableOrder.h"
#include "state/tables/TableRows.h"
#include "state/widgets/PlainTexts.h"
#include "ui_Dlg_QT_EditAlias.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QPersistentModelIndex>
#include <QScopedValueRollback>
#include <QTextDocument>
#include <QToolButton>

#include <functional>

namespace {

enum AliasColumn
{
    AliasCommandColumn,
    AliasColumn
};

/// Says which cell is about to be edited, by whatever way the user came there.
class CellDelegate final : public ortakit::VisibleTextDelegate
{
public:
    CellDelegate(QObject *parent, std::function<void(const QModelIndex &)> onEdit)
        : VisibleTextDelegate(parent), m_onEdit(std::move(onEdit))
    {
    }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        m_onEdit(index);
        return VisibleTextDelegate::createEditor(parent, option, index);
    }

private:
    std::function<void(const QModelIndex &)> m_onEdit;
};

} // namespace

Dlg_QT_EditAlias::Dlg_QT_EditAlias(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("editalias")), m_ui(std::make_unique<Ui::Dlg_QT_EditAlias>())
{
    m_ui->setupUi(this);
    setUpButtons();
    ortakit::setTableHeaders(*m_ui->lstAlias, tr("Command;Alias"));
    ortakit::setHeaderForSorting(*m_ui->lstAlias);
    m_ui->lstAlias->setColumnWidth(AliasColumn, 100);
    m_ui->lstAlias->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_ui->lstAlias->installEventFilter(this);
    // A cell that is reached with the keyboard is as good as clicked: what is refused there gives it back its own text.
    const auto remember = [this](const QModelIndex &cell) { aliasclick(cell.row(), cell.column()); };
    m_ui->lstAlias->setItemDelegate(new CellDelegate(m_ui->lstAlias, remember));
    connectWidgets();
}

Dlg_QT_EditAlias::~Dlg_QT_EditAlias() = default;

void Dlg_QT_EditAlias::connectWidgets()
{
    connect(m_ui->btnAdd, &QToolButton::clicked, this, &Dlg_QT_EditAlias::AddAlias);
    connect(m_ui->btnDel, &QToolButton::clicked, this, &Dlg_QT_EditAlias::delAlias);
    connect(m_ui->btnClean, &QToolButton::clicked, this, &Dlg_QT_EditAlias::cleanAlias);
    connect(m_ui->btnSave, &QToolButton::clicked, this, &Dlg_QT_EditAlias::saveAlias);
    connect(m_ui->btnImport, &QToolButton::clicked, this, &Dlg_QT_EditAlias::importAlias);
    connect(m_ui->btnExport, &QToolButton::clicked, this, &Dlg_QT_EditAlias::exportAlias);
    connect(m_ui->btnPrint, &QToolButton::clicked, this, &Dlg_QT_EditAlias::printAlias);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &Dlg_QT_EditAlias::CerrarDialogo);
    connect(m_ui->lstAlias, &QTableWidget::cellChanged, this, &Dlg_QT_EditAlias::aliasChanged);
    connect(m_ui->lstAlias, &QTableWidget::cellClicked, this, &Dlg_QT_EditAlias::aliasclick);
    connect(m_ui->lstAlias, &QTableWidget::itemSelectionChanged, this, &Dlg_QT_EditAlias::SelectChanged);
    connect(m_ui->lstAlias->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &Dlg_QT_EditAlias::ClickHeaderTable);
}

bool Dlg_QT_EditAlias::eventFilter(QObject *watched, QEvent *event)
{
    // Only what is pressed on the table itself comes here: the editor of a cell keeps its keys.
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event)->key() : 0;
    if (key == Qt::Key_Delete)
        delAlias();
    else if (key == Qt::Key_F2 && m_ui->lstAlias->currentItem())
        m_ui->lstAlias->editItem(m_ui->lstAlias->currentItem());
    else
        return ToolDialog::eventFilter(watched, event);
    return true;
}

void Dlg_QT_EditAlias::beforeShow()
{
    setIcons();
    const CKvSystemServices *services = GetKvSystemServices();
    m_hasExportFailed = false;
    const ortakit::AliasReading reading =
        m_aliasFile.open((services ? services->userSupportFolder() : QString()) + QStringLiteral("alias.xml"));
    showAliasFile();
    fillTable(reading.aliases);
    if (!reading)
        reportErrorSoon(reading.error);
}

void Dlg_QT_EditAlias::afterShow()
{
    // A state file might hold a text for the label.
    showAliasFile();
    m_ui->lstAlias->setFocus();
}

void Dlg_QT_EditAlias::changeEvent(QEvent *event)
{
    ToolDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        setIcons();
}

void Dlg_QT_EditAlias::setIcons()
{
    const std::pair<QToolButton *, const char *> icons[] = {
        {m_ui->btnAdd, "AliasAdd"},     {m_ui->btnDel, "AliasDelete"},    {m_ui->btnClean, "AliasClean"},
        {m_ui->btnSave, "AliasSave"},   {m_ui->btnImport, "AliasImport"}, {m_ui->btnExport, "AliasExport"},
        {m_ui->btnPrint, "AliasPrint"},
    };
    for (const auto &[button, name] : icons)
        button->setIcon(CKvUtils::icon(QStringLiteral(":/images"), QString::fromLatin1(name)));
}

void Dlg_QT_EditAlias::showAliasFile()
{
    m_ui->txAlias->setText(m_aliasFile.path());
}

void Dlg_QT_EditAlias::fillTable(const QList<ortakit::CommandAlias> &aliases)
{
    const QScopedValueRollback filling(m_isFilling, true);
    QList<QStringList> rows;
    rows.reserve(aliases.size());
    for (const ortakit::CommandAlias &pair : aliases)
        rows.append({pair.command, pair.alias});
    ortakit::setTableRows(*m_ui->lstAlias, rows);
    m_ui->lstAlias->horizontalHeader()->setSortIndicatorShown(false);
    for (int row = 0; row < int(aliases.size()); ++row)
        m_ui->lstAlias->item(row, AliasCommandColumn)->setWhatsThis(QString(aliases[row].command).remove(u'_'));
}

QString Dlg_QT_EditAlias::cellText(int row, int column) const
{
    const QTableWidgetItem *item = m_ui->lstAlias->item(row, column);
    return item ? item->text() : QString();
}

QList<ortakit::CommandAlias> Dlg_QT_EditAlias::tableAliases() const
{
    QList<ortakit::CommandAlias> aliases;
    aliases.reserve(m_ui->lstAlias->rowCount());
    for (int row = 0; row < m_ui->lstAlias->rowCount(); ++row)
        aliases.append({cellText(row, AliasCommandColumn), cellText(row, AliasColumn)});
    return aliases;
}

bool Dlg_QT_EditAlias::mayWrite()
{
    const QString damage = m_aliasFile.damage();
    return damage.isEmpty() ||
           ask(tr("The alias file could not be read whole (%1). Keep it as it is under another name, and write what "
                  "the table holds in its place?")
                   .arg(damage));
}

bool Dlg_QT_EditAlias::writeTable()
{
    const ortakit::AliasFile::Written written = m_aliasFile.write(tableAliases());
    if (!written.kept.isEmpty() && written.error.isEmpty())
        ortakit::tellOnCommandLine(tr("What %1 held before is in %2.").arg(m_aliasFile.path(), written.kept));
    return ortakit::tellNotWritten(m_aliasFile.path(), written.error);
}

void Dlg_QT_EditAlias::AddAlias()
{
    QTableWidget &table = *m_ui->lstAlias;
    {
        const QScopedValueRollback filling(m_isFilling, true);
        table.insertRow(0);
        // With a text, though empty: the first edit that leaves an item without one empty would count as a change.
        table.setItem(0, AliasCommandColumn, new QTableWidgetItem(QString()));
        table.setItem(0, AliasColumn, new QTableWidgetItem(QString()));
    }
    table.setFocus();
    table.setCurrentCell(0, AliasCommandColumn);
    table.editItem(table.item(0, AliasCommandColumn));
}

void Dlg_QT_EditAlias::delAlias()
{
    const QList<QTableWidgetItem *> cells = m_ui->lstAlias->selectedItems();
    if (cells.isEmpty()) {
        inform(tr("Select the rows of table for remove."));
        return;
    }
    // Each question is about the row that was selected, wherever earlier answers have moved it. A row with both cells
    // selected is asked about twice; when it is gone by then, there is nothing more to do for the second answer.
    QList<std::pair<QPersistentModelIndex, QString>> rows;
    for (const QTableWidgetItem *cell : cells)
        rows.append({m_ui->lstAlias->model()->index(cell->row(), AliasCommandColumn),
                     cellText(cell->row(), AliasCommandColumn)});
    for (const auto &[row, command] : rows) {
        const bool isConfirmed = ask(tr("Are you sure you want to remove this alias for %1?").arg(command));
        if (isConfirmed && row.isValid())
            m_ui->lstAlias->removeRow(row.row());
    }
}

void Dlg_QT_EditAlias::cleanAlias()
{
    if (ask(tr("Are you sure you want to delete all alias?")))
        m_ui->lstAlias->setRowCount(0);
}

void Dlg_QT_EditAlias::saveAlias()
{
    if (!takesOpenEdit() || !mayWrite())
        return;
    if (writeTable())
        inform(tr("The alias file has been saved."), windowTitle());
    else
        reportError(tr("The alias file could not be saved."));
}

void Dlg_QT_EditAlias::exportAlias()
{
    if (!takesOpenEdit())
        return;
    const QString chosen = ortakit::pickFileToSave(this, {.title = tr("Save As"),
                                                          .filter = tr("Alias files (*.xml);; All files (*.*)"),
                                                          .start = ortakit::moduleFolder()});
    if (chosen.isEmpty())
        return;
    m_aliasFile.choose(chosen);
    showAliasFile();
    m_hasExportFailed = !writeTable();
    if (!m_hasExportFailed)
        inform(tr("The alias file has been exported."), windowTitle());
    else
        reportError(tr("The alias file could not be exported."));
}

void Dlg_QT_EditAlias::importAlias()
{
    const QString chosen = ortakit::pickFileToOpen(this, {.title = tr("Select the file to import"),
                                                          .filter = tr("Alias files (*.txt);; All files (*.*)"),
                                                          .start = ortakit::moduleFolder()});
    if (chosen.isEmpty())
        return;
    const ortakit::AliasReading reading = ortakit::readAliasFile(chosen);
    if (reading) {
        fillTable(reading.aliases);
        return;
    }
    reportError(reading.error);
    reportError(tr("The alias file could not be imported."));
}

void Dlg_QT_EditAlias::printAlias()
{
    if (!takesOpenEdit())
        return;
    QFont font(QStringLiteral("Monospace"));
    font.setStyleHint(QFont::Monospace);
    // So small that a few hundred aliases fit on a sheet.
    font.setPointSize(2);
    QTextDocument document;
    document.setDefaultFont(font);
    document.setPlainText(ortakit::aliasListing(tableAliases()));
    ortakit::printDocument(document, this);
}

void Dlg_QT_EditAlias::aliasChanged(int row, int column)
{
    if (m_isFilling || !isAliasOfOther(cellText(row, column), row))
        return;
    m_wasRefused = true;
    const QScopedValueRollback filling(m_isFilling, true);
    m_ui->lstAlias->item(row, column)->setText(m_previousAlias);
    reportErrorSoon(tr("This alias already begin used for other command."));
}

bool Dlg_QT_EditAlias::isAliasOfOther(const QString &text, int row) const
{
    const QString wanted = text.toUpper();
    for (int other = 0; other < m_ui->lstAlias->rowCount(); ++other) {
        if (other != row && cellText(other, AliasColumn).toUpper() == wanted)
            return true;
    }
    return false;
}

void Dlg_QT_EditAlias::aliasclick(int row, int column)
{
    if (!m_isFilling && column == AliasColumn)
        m_previousAlias = cellText(row, column);
}

void Dlg_QT_EditAlias::ClickHeaderTable(int column)
{
    ortakit::sortTableRows(*m_ui->lstAlias, column, tr("Sorting..."));
}

void Dlg_QT_EditAlias::SelectChanged()
{
    // Tells of nothing that matters: a selection is no edit.
}

void Dlg_QT_EditAlias::CerrarDialogo()
{
    if (!takesOpenEdit() || !mayWrite())
        return;
    // The user's own file fails in silence; one that was chosen for an export has failed before.
    if (!writeTable() && m_hasExportFailed)
        reportError(tr("The alias file could not be saved."));
    accept();
}

/// Takes what is being typed into a cell, as moving on would. False when it was refused.
bool Dlg_QT_EditAlias::takesOpenEdit()
{
    m_wasRefused = false;
    QTableWidget &table = *m_ui->lstAlias;
    if (table.viewport()->isAncestorOf(focusWidget())) {
        const QPersistentModelIndex current = table.currentIndex();
        table.selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
        table.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    }
    return !m_wasRefused;
}

/// Once the dialog is on the screen, or the editor of a cell has closed: a message that runs inside these would take
/// their focus away while they work.
void Dlg_QT_EditAlias::reportErrorSoon(const QString &text)
{
    const auto report = [this, text] {
        if (isVisible())
            reportError(text);
    };
    QMetaObject::invokeMethod(this, report, Qt::QueuedConnection);
}
