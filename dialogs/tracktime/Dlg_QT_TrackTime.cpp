#include "dialogs/tracktime/Dlg_QT_TrackTime.h"

#include "formats/FileWriting.h"
#include "formats/NameFilter.h"
#include "formats/SeparatedText.h"
#include "platform/db/OdDbDatabase.h"
#include "platform/kernel/CKvDocument.h"
#include "state/favourites/FavouritesBox.h"
#include "state/pickers/FilePicker.h"
#include "state/pickers/FolderPicker.h"
#include "state/pickers/PathChecks.h"
#include "state/pickers/PathMessages.h"
#include "state/tables/TableOrder.h"
#include "state/tables/TableRows.h"
#include "state/tables/TableSelection.h"
#include "state/tables/WholeTextItem.h"
#include "state/widgets/FullText.h"
#include "state/widgets/LongWork.h"
#include "state/widgets/ReturnKey.h"
#include "ui_Dlg_QT_TrackTime.h"

#include <QDir>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QSet>
#include <QSignalBlocker>

namespace {

constexpr int drawingRole = Qt::UserRole;
/// More names than this are not read in a message.
constexpr qsizetype mostNamedFailures = 12;

QString folderOfActiveDrawing()
{
    CKvDocument *document = ACTIVE_DOCUMENT();
    const OdDbDatabase *database = document ? document->database() : nullptr;
    const QString path = database ? database->getFilename() : QString();
    return path.isEmpty() ? QString() : QFileInfo(path).absolutePath();
}

} // namespace

Dlg_QT_TrackTime::Dlg_QT_TrackTime(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("tracktime")), m_ui(std::make_unique<Ui::Dlg_QT_TrackTime>())
{
    m_ui->setupUi(this);
    setUpButtons();
    setUpTable();
    m_directory = std::make_unique<ElidedPathField>(m_ui->directory);
    m_favourites = new FavouritesBox(this, state(), QStringLiteral("TrackTime"),
                                     {m_ui->cb_favorits, m_ui->btnSave, m_ui->btnRemove});
    m_favourites->refresh();
    connectFolder();
    connectTable();
}

Dlg_QT_TrackTime::~Dlg_QT_TrackTime() = default;

void Dlg_QT_TrackTime::setUpTable()
{
    QTableWidget &table = *m_ui->tblDrawings;
    ortakit::makeNewSelectionsQuick(table);
    ortakit::setTableHeaders(table, tr("Name;Track Active;EditTime (hr)"));
    ortakit::setHeaderForSorting(table);
    QHeaderView &header = *table.horizontalHeader();
    header.setSortIndicator(int(m_sortColumn), m_sortOrder);
    header.setSectionResizeMode(QHeaderView::Fixed);
    header.setSectionResizeMode(int(TimeColumn::Name), QHeaderView::Stretch);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.horizontalHeaderItem(int(TimeColumn::Hours))->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    table.setColumnWidth(int(TimeColumn::Tracked), 130);
    table.setColumnWidth(int(TimeColumn::Hours), 110);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 8);
    table.installEventFilter(this);
}

void Dlg_QT_TrackTime::connectFolder()
{
    connect(m_directory.get(), &ElidedPathField::pathEntered, this, &Dlg_QT_TrackTime::LeaveFolder);
    // Behind the field's own connection, so that the typed path has been taken.
    connect(m_ui->directory, &QLineEdit::returnPressed, this, &Dlg_QT_TrackTime::EnterFolder);
    connect(m_ui->btnBrowse, &QPushButton::clicked, this, &Dlg_QT_TrackTime::SelectFolder);
    connect(m_ui->btnRefresh, &QPushButton::clicked, this, &Dlg_QT_TrackTime::Refresh);
    connect(m_ui->subfolders, &QCheckBox::toggled, this, &Dlg_QT_TrackTime::Refresh);
    connect(m_favourites, &FavouritesBox::loading, this, [this] { m_isBusy = true; });
    connect(m_favourites, &FavouritesBox::loaded, this, [this] {
        m_isBusy = false;
        EnterFolder();
    });
}

void Dlg_QT_TrackTime::connectTable()
{
    connect(m_ui->filter, &QLineEdit::textChanged, this, &Dlg_QT_TrackTime::FillTable);
    ortakit::setReturnAction(*m_ui->filter, [this] { m_ui->tblDrawings->setFocus(); });
    connect(m_ui->tblDrawings, &QTableWidget::itemSelectionChanged, this, &Dlg_QT_TrackTime::SelectChanged);
    connect(m_ui->tblDrawings, &QTableWidget::itemChanged, this, &Dlg_QT_TrackTime::TrackChanged);
    connect(m_ui->tblDrawings->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &Dlg_QT_TrackTime::ClickHeaderTable);
    connect(m_ui->btnTrackOn, &QPushButton::clicked, this, [this] { Track(true); });
    connect(m_ui->btnTrackOff, &QPushButton::clicked, this, [this] { Track(false); });
    connect(m_ui->btnIdle, &QPushButton::clicked, this, &Dlg_QT_TrackTime::ApplyIdleLimit);
    connect(m_ui->btnReset, &QPushButton::clicked, this, &Dlg_QT_TrackTime::ResetTime);
    connect(m_ui->btnExport, &QPushButton::clicked, this, &Dlg_QT_TrackTime::ExportTable);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &Dlg_QT_TrackTime::CloseDialog);
}

bool Dlg_QT_TrackTime::eventFilter(QObject *watched, QEvent *event)
{
    const bool isSpace = event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space;
    if (watched != m_ui->tblDrawings || !isSpace)
        return ToolDialog::eventFilter(watched, event);
    // In whatever column the user is: all on, unless all are on already.
    Track(anySelected([](const DrawingTime &drawing) { return drawing.isReadable() && !drawing.time().isTracked; }));
    return true;
}

void Dlg_QT_TrackTime::keyPressEvent(QKeyEvent *event)
{
    // Enter in the folder field takes the folder and does not also press the default button.
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || focusWidget() != m_ui->directory)
        ToolDialog::keyPressEvent(event);
}

void Dlg_QT_TrackTime::beforeShow()
{
    m_isBusy = true;
}

void Dlg_QT_TrackTime::afterShow()
{
    m_isBusy = false;
    if (m_directory->fullPath().isEmpty())
        m_directory->setFullPath(ortakit::existingFolder(folderOfActiveDrawing()));
    // The field's width is known only now.
    m_directory->setFullPath(m_directory->fullPath());
    if (ortakit::checkFolder(m_directory->fullPath()) == ortakit::PathProblem::None)
        readFolder();
    SelectChanged();
    ortakit::selectByTexts(*m_ui->tblDrawings, state().lookup(m_ui->tblDrawings->objectName()));
    (m_drawings.isEmpty() ? static_cast<QWidget *>(m_ui->directory) : m_ui->tblDrawings)->setFocus();
}

void Dlg_QT_TrackTime::SelectFolder()
{
    const QString folder = ortakit::pickFolder(this, m_directory->fullPath());
    if (folder.isEmpty())
        return;
    m_directory->setFullPath(folder);
    listFolder();
}

void Dlg_QT_TrackTime::EnterFolder()
{
    if (m_isBusy)
        return;
    if (hasFolder() &&
        (m_directory->fullPath() != m_listedFolder || m_ui->subfolders->isChecked() != m_hasListedSubFolders))
        listFolder();
}

/// Whether the field leads to a folder; tells the user when it does not.
bool Dlg_QT_TrackTime::hasFolder()
{
    const QScopedValueRollback busy(m_isBusy, true); // the message takes the focus from the field
    return ortakit::acceptsFolder(this, m_directory->fullPath(), windowTitle());
}

/// A folder that was typed counts when its field is left, as with Enter.
void Dlg_QT_TrackTime::LeaveFolder()
{
    const QString folder = m_directory->fullPath();
    if (!m_isBusy && folder != m_listedFolder && ortakit::checkFolder(folder) == ortakit::PathProblem::None)
        listFolder();
}

void Dlg_QT_TrackTime::Refresh()
{
    if (!m_isBusy && ortakit::checkFolder(m_directory->fullPath()) == ortakit::PathProblem::None)
        listFolder();
}

/// Lists what the fields say; when the user does not want to wait or to lose changes, the fields say again what is
/// listed.
void Dlg_QT_TrackTime::listFolder()
{
    const QScopedValueRollback busy(m_isBusy, true);
    if (!mayDropChanges() || !readFolder())
        showListedFolder();
}

void Dlg_QT_TrackTime::showListedFolder()
{
    const QScopedValueRollback busy(m_isBusy, true);
    m_directory->setFullPath(m_listedFolder);
    m_ui->subfolders->setChecked(m_hasListedSubFolders);
}

bool Dlg_QT_TrackTime::mayDropChanges()
{
    const bool isChanged = std::any_of(m_drawings.cbegin(), m_drawings.cend(), std::mem_fn(&DrawingTime::isChanged));
    return !isChanged || ask(tr("The changes have not been written yet. Do you want to discard them?"), windowTitle());
}

/// False when the user did not want to wait; everything is as it was then.
bool Dlg_QT_TrackTime::readFolder()
{
    const QScopedValueRollback busy(m_isBusy, true);
    const QString folder = m_directory->fullPath();
    const bool withSubFolders = m_ui->subfolders->isChecked();
    QStringList paths;
    {
        LongWork search(this, tr("Looking for drawings..."), LongWork::manyUnknown);
        if (!findDrawings(
                folder, withSubFolders, [&search] { return search.goesOn(); }, paths))
            return false;
    }
    const DrawingTimeReader reader(folder, m_open ? m_open->drawings() : QList<OpenDrawings::Drawing>());
    QList<DrawingTime> drawings;
    drawings.reserve(paths.size());
    LongWork work(this, tr("Reading the drawings..."), paths.size(), WorkSteps::Large);
    for (const QString &path : std::as_const(paths)) {
        if (!work.goesOn())
            return false;
        drawings.append(reader.read(path));
    }
    m_drawings = drawings;
    m_listedFolder = folder;
    m_hasListedSubFolders = withSubFolders;
    FillTable();
    return true;
}

/// The drawings that the filter finds, in the order of the table.
QList<int> Dlg_QT_TrackTime::shownDrawings() const
{
    ortakit::NameFilter filter(ortakit::wholeText(*m_ui->filter));
    QList<int> shown = sortedBy(m_sortColumn, m_sortOrder, m_drawings);
    shown.removeIf([&](int drawing) { return !filter.accepts(m_drawings[drawing].name); });
    return filter.isUsable() ? shown : QList<int>();
}

void Dlg_QT_TrackTime::FillTable()
{
    QSet<QString> selected;
    for (const int row : selectedRows())
        selected.insert(m_ui->tblDrawings->item(row, int(TimeColumn::Name))->text());
    const QList<int> shown = shownDrawings();
    ortakit::setTableRows(*m_ui->tblDrawings, int(shown.size()),
                          [&](int row, int column) { return makeItem(shown[row], TimeColumn(column)); });
    QList<int> rows;
    for (int row = 0; row < int(shown.size()); ++row) {
        showDrawing(row);
        if (selected.contains(m_drawings[shown[row]].name))
            rows.append(row);
    }
    ortakit::selectRows(*m_ui->tblDrawings, rows);
    m_ui->btnExport->setEnabled(!shown.isEmpty());
    showTotal();
}

QTableWidgetItem *Dlg_QT_TrackTime::makeItem(int drawing, TimeColumn column) const
{
    const DrawingTime &shown = m_drawings[drawing];
    auto item = column == TimeColumn::Name ? std::make_unique<ortakit::WholeTextItem>(shown.name)
                                           : std::make_unique<QTableWidgetItem>();
    if (column == TimeColumn::Name)
        item->setData(drawingRole, drawing);
    if (column == TimeColumn::Tracked && shown.isReadable())
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    if (column == TimeColumn::Hours)
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont font = m_ui->tblDrawings->font();
    font.setBold(shown.isOpen);
    item->setFont(font);
    return item.release();
}

/// What the table says in a word about a drawing.
QString Dlg_QT_TrackTime::trackedText(const DrawingTime &drawing) const
{
    if (!drawing.isReadable())
        return tr("Not readable");
    return drawing.time().isTracked ? tr("On") : tr("Off");
}

/// Brings the cells of a row up to date.
void Dlg_QT_TrackTime::showDrawing(int row)
{
    const QSignalBlocker noSignals(m_ui->tblDrawings);
    const DrawingTime &drawing = m_drawings[drawingAt(row)];
    const ortakit::EditingTime time = drawing.time();
    QTableWidgetItem &tracked = *m_ui->tblDrawings->item(row, int(TimeColumn::Tracked));
    if (!drawing.isReadable()) {
        tracked.setText(trackedText(drawing));
        tracked.setToolTip(drawing.problem);
        return;
    }
    const QString limit = time.idleLimitMinutes > 0 ? tr(", %1 min").arg(time.idleLimitMinutes) : QString();
    tracked.setCheckState(time.isTracked ? Qt::Checked : Qt::Unchecked);
    tracked.setText(trackedText(drawing) + (time.isTracked ? limit : QString()));
    tracked.setToolTip(time.isTracked && limit.isEmpty() ? tr("Every pause counts.") : QString());
    m_ui->tblDrawings->item(row, int(TimeColumn::Hours))->setText(hoursText(time.hours));
}

void Dlg_QT_TrackTime::showTotal()
{
    double hours = 0;
    int open = 0;
    const int rowCount = m_ui->tblDrawings->rowCount();
    for (int row = 0; row < rowCount; ++row) {
        const DrawingTime &drawing = m_drawings[drawingAt(row)];
        hours += drawing.time().hours;
        open += drawing.isOpen ? 1 : 0;
    }
    const QString opened = open > 0 ? tr(", open (bold): %1").arg(open) : QString();
    m_ui->lblTotal->setText(tr("Total: %1 h. Drawings: %2%3").arg(hoursText(hours)).arg(rowCount).arg(opened));
}

int Dlg_QT_TrackTime::drawingAt(int row) const
{
    return m_ui->tblDrawings->item(row, int(TimeColumn::Name))->data(drawingRole).toInt();
}

QList<int> Dlg_QT_TrackTime::selectedRows() const
{
    return ortakit::rowsWithSelection(*m_ui->tblDrawings);
}

bool Dlg_QT_TrackTime::anySelected(const std::function<bool(const DrawingTime &)> &is) const
{
    const QList<int> rows = selectedRows();
    return std::any_of(rows.cbegin(), rows.cend(), [&](int row) { return is(m_drawings[drawingAt(row)]); });
}

void Dlg_QT_TrackTime::ClickHeaderTable(int column)
{
    const bool isAgain = column == int(m_sortColumn) && m_sortOrder == Qt::AscendingOrder;
    m_sortOrder = isAgain ? Qt::DescendingOrder : Qt::AscendingOrder;
    m_sortColumn = TimeColumn(column);
    m_ui->tblDrawings->horizontalHeader()->setSortIndicator(column, m_sortOrder);
    QList<int> rowOf(m_drawings.size());
    for (int row = 0; row < m_ui->tblDrawings->rowCount(); ++row)
        rowOf[drawingAt(row)] = row;
    QList<int> rows = shownDrawings();
    std::transform(rows.cbegin(), rows.cend(), rows.begin(), [&rowOf](int drawing) { return rowOf[drawing]; });
    ortakit::arrangeTableRows(*m_ui->tblDrawings, rows);
}

void Dlg_QT_TrackTime::SelectChanged()
{
    const auto isTracked = [](const DrawingTime &drawing) { return drawing.time().isTracked; };
    m_ui->btnTrackOn->setEnabled(
        anySelected([](const DrawingTime &drawing) { return drawing.isReadable() && !drawing.time().isTracked; }));
    m_ui->btnTrackOff->setEnabled(anySelected(isTracked));
    m_ui->btnIdle->setEnabled(anySelected(std::mem_fn(&DrawingTime::hasLimit)));
    m_ui->btnReset->setEnabled(anySelected([](const DrawingTime &drawing) { return drawing.time().hours > 0; }));
}

void Dlg_QT_TrackTime::changeRows(const QList<int> &rows, const std::function<void(DrawingTime &)> &change)
{
    for (const int row : rows) {
        change(m_drawings[drawingAt(row)]);
        showDrawing(row);
    }
    showTotal();
    SelectChanged();
}

void Dlg_QT_TrackTime::TrackChanged(const QTableWidgetItem *item)
{
    const bool isTracked = item->checkState() == Qt::Checked;
    if (item->column() != int(TimeColumn::Tracked) || isTracked == m_drawings[drawingAt(item->row())].time().isTracked)
        return;
    // A box among the selected rows stands for all of them.
    const QList<int> selected = selectedRows();
    const QList<int> rows = selected.contains(item->row()) ? selected : QList<int>{item->row()};
    changeRows(rows, [&](DrawingTime &drawing) { drawing.setTracked(isTracked, m_ui->idleLimit->value()); });
    // The click goes on and would leave only its own row selected.
    if (rows.size() > 1)
        QMetaObject::invokeMethod(
            this, [this, rows] { ortakit::selectRows(*m_ui->tblDrawings, rows); }, Qt::QueuedConnection);
}

void Dlg_QT_TrackTime::Track(bool isTracked)
{
    changeRows(selectedRows(), [&](DrawingTime &drawing) { drawing.setTracked(isTracked, m_ui->idleLimit->value()); });
}

void Dlg_QT_TrackTime::ApplyIdleLimit()
{
    changeRows(selectedRows(), [this](DrawingTime &drawing) { drawing.setIdleLimit(m_ui->idleLimit->value()); });
}

void Dlg_QT_TrackTime::ResetTime()
{
    if (ask(tr("Are you sure you want to set the editing time of the selected drawings to 0?"), windowTitle()))
        changeRows(selectedRows(), [](DrawingTime &drawing) { drawing.reset(); });
}

void Dlg_QT_TrackTime::ExportTable()
{
    const QString chosen = ortakit::pickFileToSave(
        this, {.title = tr("Export editing time"),
               .filter = tr("Text with tabs (*.txt);; Text with semicolons (*.csv);; All files (*.*)"),
               .start = m_exportFile.isEmpty() ? QDir(m_listedFolder).filePath(QStringLiteral("edittime.txt"))
                                               : m_exportFile});
    if (chosen.isEmpty())
        return;
    m_exportFile = chosen;
    QList<QStringList> rows{tr("Name;Track Active;EditTime (hr)").split(u';')};
    for (int row = 0; row < m_ui->tblDrawings->rowCount(); ++row) {
        const DrawingTime &drawing = m_drawings[drawingAt(row)];
        rows.append(
            {drawing.name, trackedText(drawing), drawing.isReadable() ? hoursText(drawing.time().hours) : QString()});
    }
    const QChar separator = chosen.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive) ? u';' : u'\t';
    QString error;
    const QByteArray text = ortakit::withPlatformLineEnds(ortakit::separatedText(rows, separator));
    if (!ortakit::replaceFile(chosen, text, &error))
        reportError(tr("The file could not be written: %1").arg(error), windowTitle());
}

void Dlg_QT_TrackTime::CloseDialog()
{
    // A folder that leads nowhere is not what the next run begins with.
    showListedFolder();
    QStringList failures;
    const bool isDone = writeChanges(failures);
    if (!failures.isEmpty())
        reportFailures(failures);
    if (isDone) {
        // Spin boxes write nothing of their own.
        state().setWrittenValue(m_ui->idleLimit->objectName(), QString::number(m_ui->idleLimit->value()));
        acceptWith(QStringLiteral("OK"));
    } else {
        FillTable();
    }
}

/// False when the user cancelled: what is written by then is no change any more.
bool Dlg_QT_TrackTime::writeChanges(QStringList &failures)
{
    const QScopedValueRollback busy(m_isBusy, true);
    LongWork work(this, tr("Writing the drawings..."),
                  std::count_if(m_drawings.cbegin(), m_drawings.cend(), std::mem_fn(&DrawingTime::isChanged)),
                  WorkSteps::Large);
    for (DrawingTime &drawing : m_drawings) {
        if (!drawing.isChanged())
            continue;
        if (!work.goesOn())
            return false;
        const QString error =
            drawing.isOpen && m_open ? m_open->change(drawing.path, drawing.change) : writeToFile(drawing);
        if (!error.isEmpty()) {
            failures.append(error);
            continue;
        }
        drawing.stored = drawing.time();
        drawing.change = {};
    }
    return true;
}

void Dlg_QT_TrackTime::reportFailures(const QStringList &failures)
{
    QStringList named = failures.first(std::min(failures.size(), mostNamedFailures));
    if (named.size() < failures.size())
        named.append(tr("and %1 more").arg(failures.size() - named.size()));
    warn(tr("Some drawings could not be changed."), windowTitle(), named.join(u'\n'));
}
