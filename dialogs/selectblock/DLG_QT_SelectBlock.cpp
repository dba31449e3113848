#include "dialogs/selectblock/DLG_QT_SelectBlock.h"

#include "formats/NameFilter.h"
#include "state/pickers/DrawingPicker.h"
#include "state/pickers/PathMessages.h"
#include "state/tables/TableRows.h"
#include "state/tables/WholeTextItem.h"
#include "state/widgets/FullText.h"
#include "state/widgets/ReturnKey.h"
#include "ui_DLG_QT_SelectBlock.h"

#include <QFileInfo>
#include <QModelIndexList>
#include <QRadioButton>

#include <algorithm>

namespace {

enum BlockColumn
{
    BlockNameColumn,
    BlockTypeColumn
};

const QString activeSource = QStringLiteral("active");

} // namespace

DLG_QT_SelectBlock::DLG_QT_SelectBlock(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("selectblock")), m_ui(std::make_unique<Ui::DLG_QT_SelectBlock>())
{
    m_ui->setupUi(this);
    setUpButtons();
    m_drawing = std::make_unique<ElidedPathField>(m_ui->tx_drawing);
    QTableWidget &table = *m_ui->lstBlocks;
    ortakit::setTableHeaders(table, tr("Name;Type"));
    table.horizontalHeader()->setSectionResizeMode(BlockNameColumn, QHeaderView::Stretch);
    table.setColumnWidth(BlockTypeColumn, table.fontMetrics().horizontalAdvance(tr("External reference")) + 24);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 8);

    connect(m_ui->activeDrawing, &QRadioButton::toggled, this, &DLG_QT_SelectBlock::changeSource);
    connect(m_drawing.get(), &ElidedPathField::pathEntered, this, &DLG_QT_SelectBlock::leaveDrawing);
    ortakit::setReturnAction(*m_ui->tx_drawing, [this] { enterDrawing(); });
    connect(m_ui->Bt_selectDrawing, &QPushButton::clicked, this, &DLG_QT_SelectBlock::selectDrawing);
    connect(m_ui->filter, &QLineEdit::textChanged, this, &DLG_QT_SelectBlock::fillBlocks);
    connect(m_ui->showAnonymous, &QCheckBox::toggled, this, &DLG_QT_SelectBlock::fillBlocks);
    connect(&table, &QTableWidget::itemSelectionChanged, this, &DLG_QT_SelectBlock::blockSelect);
    connect(&table, &QTableWidget::cellDoubleClicked, this, &DLG_QT_SelectBlock::clickOK);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &DLG_QT_SelectBlock::clickOK);
}

DLG_QT_SelectBlock::~DLG_QT_SelectBlock() = default;

void DLG_QT_SelectBlock::beforeShow()
{
    m_isShowing = true;
}

void DLG_QT_SelectBlock::afterShow()
{
    applySource();
    // A filter of the last time would hide blocks that somebody looks for now.
    m_ui->filter->clear();
    m_isShowing = false;
    changeSource();
    choose(state().lookup(QStringLiteral("name")));
    if (chosenName().isEmpty())
        m_ui->filter->setFocus();
    else
        m_ui->lstBlocks->setFocus();
}

void DLG_QT_SelectBlock::applySource()
{
    const QString source = state().lookup(QStringLiteral("source"));
    const bool isFile = !source.isEmpty() && source != activeSource;
    if (isFile)
        m_drawing->setFullPath(source);
    (isFile ? m_ui->otherDrawing : m_ui->activeDrawing)->setChecked(true);
}

void DLG_QT_SelectBlock::changeSource()
{
    if (m_isShowing)
        return;
    const bool isFile = m_ui->otherDrawing->isChecked();
    m_ui->tx_drawing->setEnabled(isFile);
    m_ui->Bt_selectDrawing->setEnabled(isFile);
    m_ui->lstBlocks->clearSelection();
    readBlocks();
}

void DLG_QT_SelectBlock::leaveDrawing()
{
    if (!m_ui->otherDrawing->isChecked() || m_drawing->fullPath() == m_source.path())
        return;
    // A block must never be taken for one of a drawing that was typed behind its back.
    m_ui->lstBlocks->clearSelection();
    readBlocks();
}

void DLG_QT_SelectBlock::enterDrawing()
{
    m_drawing->takeText();
    leaveDrawing();
    if (acceptsSource())
        m_ui->filter->setFocus();
}

void DLG_QT_SelectBlock::selectDrawing()
{
    // The blocks are copied, so that a drawing may lead back to the active one.
    const QString chosen = ortakit::pickDrawing(this, {.filter = tr("Drawing files (*.dwg *.dxf)"),
                                                       .start = m_drawing->fullPath(),
                                                       .circularReferences = ortakit::CircularReferences::Allow});
    if (chosen.isEmpty())
        return;
    m_drawing->setFullPath(chosen);
    leaveDrawing();
    acceptsSource();
}

void DLG_QT_SelectBlock::readBlocks()
{
    if (m_ui->otherDrawing->isChecked())
        m_source.useFile(m_drawing->fullPath());
    else
        m_source.useActiveDrawing();
    fillBlocks();
}

void DLG_QT_SelectBlock::fillBlocks()
{
    if (m_isShowing)
        return;
    const QString chosen = chosenName();
    const bool withAnonymous = m_ui->showAnonymous->isChecked();
    ortakit::NameFilter filter(ortakit::wholeText(*m_ui->filter), Qt::CaseInsensitive);
    QList<const BlockEntry *> shown;
    qsizetype all = 0;
    for (const BlockEntry &entry : m_source.entries()) {
        if (entry.kind == BlockKind::Anonymous && !withAnonymous)
            continue;
        ++all;
        if (filter.accepts(entry.name))
            shown.append(&entry);
    }
    if (!filter.isUsable())
        shown.clear();
    const QString types[] = {tr("Block"), tr("Anonymous block"), tr("External reference")};
    ortakit::setTableRows(*m_ui->lstBlocks, int(shown.size()), [&](int row, int column) -> QTableWidgetItem * {
        const BlockEntry &entry = *shown[row];
        if (column == BlockNameColumn)
            return new ortakit::WholeTextItem(entry.name);
        return new QTableWidgetItem(types[int(entry.kind)]);
    });
    showCount(shown.size(), all);
    const bool isFound = shown.size() == 1 && !ortakit::wholeText(*m_ui->filter).isEmpty();
    choose(isFound ? shown.first()->name : chosen);
    // A table without a selection, before and now, tells of no change.
    blockSelect();
}

void DLG_QT_SelectBlock::showCount(qsizetype shown, qsizetype all)
{
    const bool isMissing = m_source.isFile() && !m_source.database();
    if (isMissing && !m_source.path().isEmpty())
        m_ui->labelCount->setText(m_source.error().isEmpty() ? tr("Cannot find the specified file.")
                                                             : tr("The drawing file cannot be read."));
    else if (shown == all)
        m_ui->labelCount->setText(tr("Blocks: %1").arg(all));
    else
        m_ui->labelCount->setText(tr("Blocks: %1 of %2").arg(shown).arg(all));
}

QString DLG_QT_SelectBlock::chosenName() const
{
    const QModelIndexList rows = m_ui->lstBlocks->selectionModel()->selectedRows(BlockNameColumn);
    return rows.isEmpty() ? QString() : rows.first().data().toString();
}

void DLG_QT_SelectBlock::choose(const QString &name)
{
    QTableWidget &table = *m_ui->lstBlocks;
    for (int row = 0; !name.isEmpty() && row < table.rowCount(); ++row) {
        if (table.item(row, BlockNameColumn)->text().compare(name, Qt::CaseInsensitive) != 0)
            continue;
        table.selectRow(row);
        table.scrollToItem(table.item(row, BlockNameColumn));
        return;
    }
}

void DLG_QT_SelectBlock::blockSelect()
{
    m_ui->PreviewBlock->setBlock(chosenName(), m_source.database());
}

bool DLG_QT_SelectBlock::acceptsSource()
{
    if (m_source.isFile() && !ortakit::acceptsFile(this, m_source.path()))
        return false;
    if (!m_source.error().isEmpty()) {
        warn(tr("The drawing file cannot be read."), {}, m_source.error());
        return false;
    }
    if (m_source.entries().isEmpty()) {
        warn(tr("The drawing has no blocks."));
        return false;
    }
    return true;
}

bool DLG_QT_SelectBlock::acceptsBlock(const QString &name)
{
    const BlockEntry *entry = m_source.find(name);
    if (!entry) {
        warn(tr("You must first select a block."));
        return false;
    }
    // A state file has lines.
    if (std::any_of(name.cbegin(), name.cend(), [](QChar c) { return c < u' '; })) {
        warn(tr("The name of the block holds characters that no program can take. Rename it first."));
        return false;
    }
    if (!m_source.isFile() || entry->kind == BlockKind::Plain)
        return true;
    warn(entry->kind == BlockKind::External
             ? tr("The block \"%1\" is an external reference of the other drawing. Attach its drawing instead.")
                   .arg(name)
             : tr("The block \"%1\" is anonymous: it cannot be brought in from another drawing.").arg(name));
    return false;
}

void DLG_QT_SelectBlock::clickOK()
{
    // The mnemonic does not move the focus out of the file field.
    m_drawing->takeText();
    leaveDrawing();
    const QString chosen = chosenName();
    if (m_source.hasChanged())
        readBlocks();
    if (!acceptsSource())
        return;
    if (!chosen.isEmpty() && chosenName() != chosen) {
        warn(tr("The drawing file does not have the block \"%1\" any more.").arg(chosen));
        return;
    }
    if (!acceptsBlock(chosen))
        return;
    state().setWrittenValue(QStringLiteral("name"), chosen);
    // The next session may begin in another folder.
    const QString source = m_source.isFile() ? QFileInfo(m_source.path()).absoluteFilePath() : activeSource;
    state().setWrittenValue(QStringLiteral("source"), source);
    acceptWith(QStringLiteral("OK"));
}
