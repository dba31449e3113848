#include "dialogs/mergesheets/Dlg_QT_MergeSheets.h"

#include "platform/db/OdDbDatabase.h"
#include "platform/kernel/CKvDocument.h"
#include "state/favourites/FavouritesBox.h"
#include "state/pickers/FilePicker.h"
#include "state/pickers/FolderPicker.h"
#include "state/pickers/PathMessages.h"
#include "state/tables/RowMover.h"
#include "state/tables/TableRows.h"
#include "state/tables/TableSelection.h"
#include "state/tables/WholeTextItem.h"
#include "state/widgets/FullText.h"
#include "ui_Dlg_QT_MergeSheets.h"

#include <QApplication>
#include <QDir>
#include <QHeaderView>
#include <QKeyEvent>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>
#include <numeric>

using ortakit::SheetNameProblem;

namespace {

enum MergeColumn
{
    MergeSheetColumn,
    MergeNameColumn
};

constexpr int sheetWidth = 210;
/// Place of the sheet among those that were given, from 0.
constexpr int sheetRole = Qt::UserRole;

/// Items are replaced where they change: for each change of an item, its table would search for it among all others.
QTableWidgetItem *sheetItem(const QString &sheet, int index, Qt::CheckState state)
{
    auto *item = new ortakit::WholeTextItem(sheet);
    item->setData(sheetRole, index);
    item->setFlags((item->flags() | Qt::ItemIsUserCheckable) & ~Qt::ItemIsDropEnabled);
    item->setCheckState(state);
    return item;
}

/// A name for a message, in which a very long one would take the place of the rest.
QString shortened(const QString &name)
{
    constexpr int mostCharacters = 40;
    return name.size() <= mostCharacters ? name : name.first(mostCharacters) + u'\u2026';
}

QString problemText(const ortakit::SheetName &name)
{
    switch (name.problem) {
    case SheetNameProblem::None:
        return {};
    case SheetNameProblem::Empty:
        return Dlg_QT_MergeSheets::tr("A sheet must have a name.");
    case SheetNameProblem::TooLong:
        return Dlg_QT_MergeSheets::tr("A name has at most 255 characters.");
    case SheetNameProblem::Reserved:
        return Dlg_QT_MergeSheets::tr("No sheet can have the name \"%1\".").arg(shortened(name.text));
    case SheetNameProblem::Repeated:
        return Dlg_QT_MergeSheets::tr("Two sheets have the name \"%1\".").arg(shortened(name.text));
    }
    Q_UNREACHABLE();
}

QTableWidgetItem *nameItem(const ortakit::SheetName &name)
{
    const bool isGood = name.problem == SheetNameProblem::None;
    auto *item = new QTableWidgetItem(name.text);
    item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled);
    item->setToolTip(isGood ? name.text : problemText(name));
    if (!isGood)
        item->setIcon(QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning));
    return item;
}

/// The active drawing's file; empty when it has none.
QString currentDrawing()
{
    CKvDocument *document = ACTIVE_DOCUMENT();
    const OdDbDatabase *database = document ? document->database() : nullptr;
    return database ? database->getFilename() : QString();
}

QDir currentFolder()
{
    const QString drawing = currentDrawing();
    return drawing.isEmpty() ? QDir(ortakit::existingFolder({})) : QFileInfo(drawing).dir();
}

/// A typed name is one in the folder of the current drawing, and a DXF file where it has no ending: a host that reads
/// DWG files may not write them.
QString wholeTarget(const QString &typed)
{
    if (typed.isEmpty())
        return {};
    const QString suffix = QFileInfo(currentDrawing()).suffix();
    const bool isDxf = suffix.compare(QLatin1String("dxf"), Qt::CaseInsensitive) == 0;
    const QString path =
        ortakit::isDrawingFile(typed) ? typed : typed + u'.' + (isDxf ? suffix : QStringLiteral("dxf"));
    return QDir::cleanPath(currentFolder().absoluteFilePath(path));
}

} // namespace

Dlg_QT_MergeSheets::Dlg_QT_MergeSheets(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("mergesheets")), m_ui(std::make_unique<Ui::Dlg_QT_MergeSheets>())
{
    m_ui->setupUi(this);
    setUpButtons();
    setUpTable();
    m_target = std::make_unique<ElidedPathField>(m_ui->targetFile);
    m_favourites = new FavouritesBox(this, state(), QStringLiteral("MergeSheets"),
                                     {m_ui->cb_favorits, m_ui->saveFavorite, m_ui->removeFavorite});
    // Before what holds names and paths, in which "prefix=" may stand.
    state().prependKeys({QStringLiteral("tocurrent"), QStringLiteral("tonew"), QStringLiteral("numberequal"),
                         QStringLiteral("prefix"), QStringLiteral("targetfile")});
    state().setFavouriteValue(m_ui->lstSheets->objectName(), {});
    connectWidgets();
}

Dlg_QT_MergeSheets::~Dlg_QT_MergeSheets() = default;

void Dlg_QT_MergeSheets::setUpTable()
{
    QTableWidget &table = *m_ui->lstSheets;
    ortakit::setTableHeaders(table, tr("Sheet;New name"));
    table.setColumnWidth(MergeSheetColumn, sheetWidth);
    table.horizontalHeader()->setStretchLastSection(true);
    table.horizontalHeader()->setSectionsClickable(false);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 8);
    table.installEventFilter(this);
}

void Dlg_QT_MergeSheets::connectWidgets()
{
    const auto *mover = new RowMover(m_ui->lstSheets, {m_ui->moveTop, m_ui->moveUp, m_ui->moveDown, m_ui->moveBottom});
    connect(mover, &RowMover::arranged, this, &Dlg_QT_MergeSheets::refreshNames);
    connect(m_ui->lstSheets, &QTableWidget::itemChanged, this, &Dlg_QT_MergeSheets::refreshNames);
    connect(m_ui->selectAll, &QCheckBox::clicked, this, &Dlg_QT_MergeSheets::selectAll);
    connect(m_ui->prefix, &QLineEdit::textChanged, this, &Dlg_QT_MergeSheets::setPrefix);
    connect(m_ui->numberEqual, &QCheckBox::toggled, this, &Dlg_QT_MergeSheets::refreshNames);
    connect(m_ui->toNew, &QRadioButton::toggled, this, &Dlg_QT_MergeSheets::refreshTarget);
    connect(m_ui->selectTarget, &QPushButton::clicked, this, &Dlg_QT_MergeSheets::selectTarget);
    connect(m_favourites, &FavouritesBox::loaded, this, &Dlg_QT_MergeSheets::refreshTarget);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &Dlg_QT_MergeSheets::CloseAccept);
}

void Dlg_QT_MergeSheets::setSheets(const QStringList &sheets)
{
    m_sheets = sheets;
    ortakit::setTableRows(*m_ui->lstSheets, int(sheets.size()), [&sheets](int row, int column) {
        return column == MergeSheetColumn ? sheetItem(sheets[row], row, Qt::Checked) : nullptr;
    });
    refreshNames();
}

void Dlg_QT_MergeSheets::afterShow()
{
    m_favourites->refresh();
    m_target->setFullPath(m_target->fullPath());
    m_ui->lstSheets->clearSelection();
    if (m_ui->lstSheets->rowCount() > 0)
        m_ui->lstSheets->selectRow(0);
    refreshNames();
    refreshTarget();
    m_ui->lstSheets->setFocus();
}

/// The space bar checks or unchecks all selected rows as one.
bool Dlg_QT_MergeSheets::eventFilter(QObject *watched, QEvent *event)
{
    const bool isSpace = event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space;
    const QList<int> rows =
        isSpace && watched == m_ui->lstSheets ? ortakit::rowsWithSelection(*m_ui->lstSheets) : QList<int>();
    if (rows.isEmpty())
        return ToolDialog::eventFilter(watched, event);
    const bool wasChecked = m_ui->lstSheets->item(rows.first(), MergeSheetColumn)->checkState() == Qt::Checked;
    checkRows(rows, wasChecked ? Qt::Unchecked : Qt::Checked);
    return true;
}

void Dlg_QT_MergeSheets::checkRows(const QList<int> &rows, Qt::CheckState state)
{
    {
        const QSignalBlocker noSignals(m_ui->lstSheets->model());
        for (const int row : rows)
            m_ui->lstSheets->setItem(row, MergeSheetColumn, sheetItem(sheetAt(row), numberAt(row) - 1, state));
    }
    refreshNames();
}

void Dlg_QT_MergeSheets::selectAll()
{
    QList<int> rows(m_ui->lstSheets->rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    checkRows(rows, m_ui->selectAll->isChecked() ? Qt::Checked : Qt::Unchecked);
}

void Dlg_QT_MergeSheets::setPrefix()
{
    // Three dots in a prefix are no shortened text, also when the state gave it.
    ortakit::storeFullText(*m_ui->prefix, ortakit::wholeText(*m_ui->prefix));
    refreshNames();
}

void Dlg_QT_MergeSheets::refreshNames()
{
    const QList<int> checked = checkedRows();
    QStringList sheets;
    for (const int row : checked)
        sheets.append(sheetAt(row));
    m_names = ortakit::mergedSheetNames(sheets, ortakit::wholeText(*m_ui->prefix),
                                        m_ui->numberEqual->isChecked() ? ortakit::EqualNames::Number
                                                                       : ortakit::EqualNames::Refuse);
    showNames(checked);
    m_ui->selectAll->setEnabled(m_ui->lstSheets->rowCount() > 0);
    m_ui->selectAll->setChecked(!checked.isEmpty() && checked.size() == m_ui->lstSheets->rowCount());
    m_ui->nameMessage->setText(message(checked.size()));
}

void Dlg_QT_MergeSheets::showNames(const QList<int> &checked)
{
    const QSignalBlocker noSignals(m_ui->lstSheets->model());
    for (int row = 0, name = 0; row < m_ui->lstSheets->rowCount(); ++row) {
        const bool isChecked = name < checked.size() && checked[name] == row;
        m_ui->lstSheets->setItem(row, MergeNameColumn, nameItem(isChecked ? m_names[name++] : ortakit::SheetName()));
    }
    m_ui->lstSheets->viewport()->update();
}

QString Dlg_QT_MergeSheets::message(qsizetype checkedCount) const
{
    if (!ortakit::canBeInName(ortakit::wholeText(*m_ui->prefix)))
        return tr("A name cannot have any of < > / \\ \" : ; ? * | , = `");
    for (const ortakit::SheetName &name : m_names) {
        if (name.problem != SheetNameProblem::None)
            return problemText(name);
    }
    return tr("%1 of %2 sheets are merged.").arg(checkedCount).arg(m_ui->lstSheets->rowCount());
}

void Dlg_QT_MergeSheets::refreshTarget()
{
    m_ui->targetFile->setEnabled(m_ui->toNew->isChecked());
    m_ui->selectTarget->setEnabled(m_ui->toNew->isChecked());
}

void Dlg_QT_MergeSheets::selectTarget()
{
    const QString before = wholeTarget(m_target->fullPath());
    const QString chosen = ortakit::pickFileToSave(this, {.title = tr("Specify the target drawing"),
                                                          .filter = tr("Drawing files (*.dwg *.dxf)"),
                                                          .start = before.isEmpty() ? currentFolder().path() : before,
                                                          .overwriting = ortakit::Overwriting::Silent});
    if (!chosen.isEmpty())
        m_target->setFullPath(wholeTarget(chosen));
}

void Dlg_QT_MergeSheets::CloseAccept()
{
    if (m_ui->targetFile->hasFocus())
        m_target->takeText();
    if (!acceptsNames() || !acceptsTarget())
        return;
    writeSheets();
    acceptWith(QStringLiteral("OK"));
}

bool Dlg_QT_MergeSheets::acceptsNames()
{
    if (m_names.isEmpty()) {
        inform(tr("Select the sheets to merge."), windowTitle());
        m_ui->lstSheets->setFocus();
        return false;
    }
    const bool isGoodPrefix = ortakit::canBeInName(ortakit::wholeText(*m_ui->prefix));
    const auto bad = std::find_if(m_names.cbegin(), m_names.cend(), [](const ortakit::SheetName &name) {
        return name.problem != SheetNameProblem::None;
    });
    if (isGoodPrefix && bad == m_names.cend())
        return true;
    warn(message(m_names.size()), windowTitle());
    if (isGoodPrefix)
        m_ui->lstSheets->selectRow(checkedRows().at(bad - m_names.cbegin()));
    m_ui->prefix->setFocus();
    return false;
}

bool Dlg_QT_MergeSheets::acceptsTarget()
{
    if (m_ui->toCurrent->isChecked())
        return true;
    const QString path = wholeTarget(m_target->fullPath());
    if (!path.isEmpty())
        m_target->setFullPath(path);
    const QFileInfo file(path);
    bool isGood = false;
    if (isSource(path))
        warn(tr("The target cannot be the current drawing or one of its sheets."), windowTitle());
    else
        isGood = (path.isEmpty() || ortakit::acceptsFolder(this, file.path(), windowTitle())) &&
                 ortakit::acceptsNewDrawingName(this, file.completeBaseName(), path, windowTitle());
    if (!isGood)
        m_ui->targetFile->setFocus();
    return isGood;
}

/// Whether writing to `path` would destroy what is to be merged.
bool Dlg_QT_MergeSheets::isSource(const QString &path) const
{
    const QString target = QFileInfo(path).canonicalFilePath();
    if (target.isEmpty())
        return false;
    const QDir folder = currentFolder();
    QStringList sources = m_sheets;
    sources.removeIf([](const QString &sheet) { return !ortakit::isDrawingFile(sheet); });
    if (!currentDrawing().isEmpty())
        sources.append(currentDrawing());
    return std::any_of(sources.cbegin(), sources.cend(),
                       [&](const QString &source) { return QFileInfo(folder, source).canonicalFilePath() == target; });
}

void Dlg_QT_MergeSheets::writeSheets()
{
    QString sheets;
    QString numbers;
    for (const int row : checkedRows()) {
        sheets += sheetAt(row) + u'^';
        numbers += QString::number(numberAt(row)) + u'^';
    }
    QString names;
    for (const ortakit::SheetName &name : std::as_const(m_names))
        names += name.text + u'^';
    state().setWrittenValue(m_ui->lstSheets->objectName(), sheets);
    state().setWrittenValue(QStringLiteral("sheetnumbers"), numbers);
    state().setWrittenValue(QStringLiteral("newnames"), names);
}

QList<int> Dlg_QT_MergeSheets::checkedRows() const
{
    QList<int> rows;
    for (int row = 0; row < m_ui->lstSheets->rowCount(); ++row) {
        if (m_ui->lstSheets->item(row, MergeSheetColumn)->checkState() == Qt::Checked)
            rows.append(row);
    }
    return rows;
}

QString Dlg_QT_MergeSheets::sheetAt(int row) const
{
    return m_sheets[numberAt(row) - 1];
}

int Dlg_QT_MergeSheets::numberAt(int row) const
{
    return m_ui->lstSheets->item(row, MergeSheetColumn)->data(sheetRole).toInt() + 1;
}
