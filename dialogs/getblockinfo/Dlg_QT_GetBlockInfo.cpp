#include "dialogs/getblockinfo/Dlg_QT_GetBlockInfo.h"

#include "state/host/CommandLineText.h"
#include "state/pickers/FilePicker.h"
#include "state/tables/RowSorting.h"
#include "state/tables/TableRows.h"
#include "ui_Dlg_QT_GetBlockInfo.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QPointer>
#include <QPushButton>

namespace {

enum InfoColumn
{
    InfoNameColumn,
    InfoInstancesColumn
};

constexpr QChar separator = u';';

/// Numbers stand as numbers in their cells.
QTableWidgetItem *makeItem(const ortakit::BlockCount &block, int column)
{
    auto *item = new QTableWidgetItem;
    item->setData(Qt::DisplayRole, column == InfoNameColumn ? QVariant(block.name) : QVariant(block.references));
    if (column == InfoInstancesColumn)
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

} // namespace

Dlg_QT_GetBlockInfo::Dlg_QT_GetBlockInfo(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("getblockinfo")), m_ui(std::make_unique<Ui::Dlg_QT_GetBlockInfo>())
{
    m_ui->setupUi(this);
    setUpButtons();
    ortakit::setTableHeaders(*m_ui->blocksTable, tr("Name;Instances"));
    ortakit::setHeaderForSorting(*m_ui->blocksTable);
    QHeaderView *header = m_ui->blocksTable->horizontalHeader();
    header->setSectionResizeMode(InfoNameColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(InfoInstancesColumn, QHeaderView::Fixed);
    header->resizeSection(InfoInstancesColumn, 100);

    m_ui->buttonBox->button(QDialogButtonBox::Close)->setDefault(true);

    connect(m_ui->nestedCheckBox, &QCheckBox::clicked, this, &Dlg_QT_GetBlockInfo::fillTable);
    connect(m_ui->exportTable, &QPushButton::clicked, this, &Dlg_QT_GetBlockInfo::exportToTable);
    connect(m_ui->exportButton, &QPushButton::clicked, this, &Dlg_QT_GetBlockInfo::ClickInFileButton);
    connect(header, &QHeaderView::sectionClicked, this, &Dlg_QT_GetBlockInfo::ClickHeaderTable);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &Dlg_QT_GetBlockInfo::accept);
}

Dlg_QT_GetBlockInfo::~Dlg_QT_GetBlockInfo() = default;

void Dlg_QT_GetBlockInfo::setEntries(const QList<QStringList> &lists)
{
    m_topLevel = lists.value(0);
    m_withNested = lists.value(1);
}

void Dlg_QT_GetBlockInfo::afterShow()
{
    m_resultText.clear();
    fillTable();
    m_ui->blocksTable->setFocus();
}

void Dlg_QT_GetBlockInfo::fillTable()
{
    m_blocks = ortakit::blockCounts(sortedEntries());
    ortakit::setTableRows(*m_ui->blocksTable, int(m_blocks.size()),
                          [this](int row, int column) { return makeItem(m_blocks[row], column); });
    m_ui->blocksTable->horizontalHeader()->setSortIndicator(m_sortColumn, m_sortOrder);
}

QStringList Dlg_QT_GetBlockInfo::sortedEntries() const
{
    QStringList entries = m_ui->nestedCheckBox->isChecked() ? m_withNested : m_topLevel;
    const auto sort = m_sortColumn == InfoInstancesColumn ? ortakit::sortRowsByNumber : ortakit::sortRows;
    sort(entries, separator, m_sortColumn, m_sortOrder);
    return entries;
}

void Dlg_QT_GetBlockInfo::ClickHeaderTable(int column)
{
    m_sortColumn = column;
    m_sortOrder = m_sortOrder == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    fillTable();
}

void Dlg_QT_GetBlockInfo::exportToTable()
{
    m_resultText = QStringLiteral("TABLE");
    accept();
}

void Dlg_QT_GetBlockInfo::ClickInFileButton()
{
    const QByteArray report = ortakit::blockReport(m_blocks);
    // The user looks at the drawing while the file is chosen. The call goes on when this slot has ended, so that the
    // file is there when the Lisp program has its result.
    accept();
    const QPointer<Dlg_QT_GetBlockInfo> self = this;
    const QString path = ortakit::pickFileToSave(
        parentWidget(), {.title = tr("Resulting file"), .filter = tr("Text files (*.txt)"), .start = m_folder});
    if (path.isEmpty())
        return;
    if (self)
        m_folder = QFileInfo(path).absolutePath();
    ortakit::replaceFileOrTell(path, report);
}
