#include "dialogs/redefinepaths/Dlg_QT_RedefinePaths.h"

#include "formats/NameFilter.h"
#include "state/tables/TableOrder.h"
#include "state/tables/TableReplacing.h"
#include "state/tables/TableRows.h"
#include "state/tables/TableSelection.h"
#include "state/tables/WholeTextItem.h"
#include "state/widgets/FullText.h"
#include "state/widgets/LongWork.h"
#include "state/widgets/ReturnKey.h"
#include "ui_Dlg_QT_RedefinePaths.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <utility>

namespace {

enum PathColumn
{
    PathTypeColumn,
    PathNameColumn,
    PathColumn
};

constexpr int typeWidth = 90;
constexpr int nameWidth = 140;
constexpr int pathWidth = 140;
/// What is left beside the columns for a scroll bar.
constexpr int scrollBarWidth = 20;

} // namespace

Dlg_QT_RedefinePaths::Dlg_QT_RedefinePaths(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("redefinepaths")), m_ui(std::make_unique<Ui::Dlg_QT_RedefinePaths>())
{
    m_ui->setupUi(this);
    setUpButtons();
    setUpTable();
    connectWidgets();
}

Dlg_QT_RedefinePaths::~Dlg_QT_RedefinePaths() = default;

void Dlg_QT_RedefinePaths::setUpTable()
{
    QTableWidget &table = *m_ui->lstFiles;
    ortakit::setTableHeaders(table, tr("Type;Name;Path"));
    ortakit::setHeaderForSorting(table);
    table.setColumnWidth(PathTypeColumn, typeWidth);
    table.setColumnWidth(PathNameColumn, nameWidth);
    table.setColumnWidth(PathColumn, pathWidth);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.horizontalHeader()->setHighlightSections(false);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 8);
    table.installEventFilter(this);
}

void Dlg_QT_RedefinePaths::connectWidgets()
{
    for (const QCheckBox *box : {m_ui->tyXref, m_ui->tyImages, m_ui->tyStyles, m_ui->tyRtext})
        connect(box, &QCheckBox::toggled, this, &Dlg_QT_RedefinePaths::fillTable);
    connect(m_ui->filter, &QLineEdit::textChanged, this, &Dlg_QT_RedefinePaths::fillTable);
    connect(m_ui->selectAll, &QCheckBox::toggled, this, &Dlg_QT_RedefinePaths::Select);
    connect(m_ui->lstFiles, &QTableWidget::itemSelectionChanged, this, &Dlg_QT_RedefinePaths::SelectChanged);
    connect(m_ui->lstFiles->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &Dlg_QT_RedefinePaths::ClickHeaderTable);
    connect(m_ui->btReplace, &QPushButton::clicked, this, &Dlg_QT_RedefinePaths::replace);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &Dlg_QT_RedefinePaths::ReadSelected);
    for (QLineEdit *field : {m_ui->txsearch, m_ui->txreplace})
        ortakit::setReturnAction(*field, [this] { replace(); });
    // A user who has typed what to look for wants to go on with what was found, not to close the dialog.
    ortakit::setReturnAction(*m_ui->filter, [this] { m_ui->lstFiles->setFocus(); });
}

void Dlg_QT_RedefinePaths::setEntries(const QStringList &entries)
{
    m_entries = entries;
    m_references.clear();
    m_references.reserve(entries.size());
    for (const QString &text : entries) {
        ortakit::ReferenceEntry entry = ortakit::referenceOf(text);
        const QCheckBox *typeBox = boxOfType(entry.type);
        m_references.append({std::move(entry), typeBox});
    }
}

const QCheckBox *Dlg_QT_RedefinePaths::boxOfType(const QString &type) const
{
    const std::pair<QString, const QCheckBox *> boxes[] = {
        {tr("Xref"), m_ui->tyXref},
        {tr("Image"), m_ui->tyImages},
        {tr("TextStyle"), m_ui->tyStyles},
        {tr("RemoteText"), m_ui->tyRtext},
    };
    for (const auto &[word, box] : boxes) {
        if (word.toUpper() == type.toUpper())
            return box;
    }
    return nullptr;
}

bool Dlg_QT_RedefinePaths::eventFilter(QObject *watched, QEvent *event)
{
    QTableWidget &table = *m_ui->lstFiles;
    if (event->type() == QEvent::FocusIn && table.rowCount() > 0 && !table.selectionModel()->hasSelection())
        table.selectRow(0);
    // In a larger dialog the paths get the place.
    if (event->type() == QEvent::Resize)
        table.horizontalHeader()->setStretchLastSection(table.width() >
                                                        typeWidth + nameWidth + pathWidth + scrollBarWidth);
    return ToolDialog::eventFilter(watched, event);
}

void Dlg_QT_RedefinePaths::beforeShow()
{
    m_isShowing = true;
    m_ui->filter->setFocus();
}

void Dlg_QT_RedefinePaths::afterShow()
{
    if (!std::exchange(m_hasCheckedModes, true))
        checkModes();
    m_isShowing = false;
    m_ui->groupSearch->setEnabled(false);
    fillTable();
}

void Dlg_QT_RedefinePaths::checkModes()
{
    const QString modes = state().lookup(QStringLiteral("modes"));
    const std::pair<QLatin1String, QCheckBox *> boxes[] = {
        {QLatin1String("Xrefs"), m_ui->tyXref},
        {QLatin1String("Images"), m_ui->tyImages},
        {QLatin1String("Styles"), m_ui->tyStyles},
        {QLatin1String("Rtext"), m_ui->tyRtext},
    };
    for (const auto &[word, box] : boxes) {
        if (modes.contains(word))
            box->setChecked(true);
    }
}

void Dlg_QT_RedefinePaths::fillTable()
{
    if (m_isShowing)
        return;
    QList<const ortakit::ReferenceEntry *> shown;
    if (!findShown(shown))
        return;
    ortakit::setTableRows(*m_ui->lstFiles, int(shown.size()), [&shown](int row, int column) -> QTableWidgetItem * {
        const ortakit::ReferenceEntry &entry = *shown[row];
        if (column == PathColumn)
            return new ortakit::WholeTextItem(ortakit::withBackslashes(entry.path));
        return new QTableWidgetItem(column == PathTypeColumn ? entry.type : entry.name);
    });
    m_ui->lstFiles->horizontalHeader()->setSortIndicatorShown(false);
    // The rows are new, and none is selected.
    const QSignalBlocker noSelecting(m_ui->selectAll);
    m_ui->selectAll->setChecked(false);
}

/// False when the user did not want to wait for it.
bool Dlg_QT_RedefinePaths::findShown(QList<const ortakit::ReferenceEntry *> &shown)
{
    ortakit::NameFilter filter(ortakit::wholeText(*m_ui->filter));
    LongWork work(this, tr("Filtering..."), m_references.size());
    for (const Reference &reference : std::as_const(m_references)) {
        if (!work.goesOn())
            return false;
        if (reference.typeBox && reference.typeBox->isChecked() && filter.accepts(reference.entry.name))
            shown.append(&reference.entry);
    }
    if (!filter.isUsable())
        shown.clear();
    return true;
}

void Dlg_QT_RedefinePaths::Select()
{
    {
        const QScopedValueRollback selecting(m_isSelecting, true);
        if (m_ui->selectAll->isChecked())
            m_ui->lstFiles->selectAll();
        else
            m_ui->lstFiles->clearSelection();
    }
    SelectChanged();
}

void Dlg_QT_RedefinePaths::SelectChanged()
{
    if (!m_isSelecting)
        m_ui->groupSearch->setEnabled(!ortakit::wholeSelectedRows(*m_ui->lstFiles).isEmpty());
}

void Dlg_QT_RedefinePaths::replace()
{
    const QList<int> rows = ortakit::wholeSelectedRows(*m_ui->lstFiles);
    if (rows.isEmpty()) {
        inform(tr("Select the rows of table for search."), tr("Redefine Paths"));
        return;
    }
    const QString found = ortakit::wholeText(*m_ui->txsearch);
    const QString replacement = ortakit::wholeText(*m_ui->txreplace);
    ortakit::replaceTexts(this, ortakit::itemsInColumn(*m_ui->lstFiles, rows, PathColumn),
                          [&](const QString &path) { return ortakit::redefinedPath(path, found, replacement); });
}

void Dlg_QT_RedefinePaths::ReadSelected()
{
    const QTableWidget &table = *m_ui->lstFiles;
    QStringList entries;
    entries.reserve(table.rowCount());
    for (int row = 0; row < table.rowCount(); ++row) {
        entries.append(
            ortakit::writtenReference({table.item(row, PathTypeColumn)->text(), table.item(row, PathNameColumn)->text(),
                                       table.item(row, PathColumn)->text()}));
    }
    setEntries(entries);
    accept();
}

void Dlg_QT_RedefinePaths::ClickHeaderTable(int column)
{
    ortakit::sortTableRows(*m_ui->lstFiles, column, tr("Sorting..."));
}
