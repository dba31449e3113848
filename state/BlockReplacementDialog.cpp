#include "state/BlockReplacementDialog.h"

#include "state/widgets/DrawingPreview.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QHeaderView>
#include <QTableWidget>

namespace {

QTableWidget *tableOf(const QWidget &dialog, const char *name)
{
    return dialog.findChild<QTableWidget *>(QString::fromLatin1(name));
}

} // namespace

BlockReplacementDialog::BlockReplacementDialog(QWidget *parent, const QString &helpTopic)
    : ToolDialog(parent, helpTopic)
{
}

BlockReplacementDialog::~BlockReplacementDialog() = default;

void BlockReplacementDialog::setBlocks(const QStringList &descriptions)
{
    m_blocks.clear();
    m_blocks.reserve(descriptions.size());
    for (const QString &description : descriptions) {
        const Block block{description.section(u'^', 0, 0), description.section(u'^', 3, 3).toInt()};
        if (!block.name.isEmpty())
            m_blocks.append(block);
    }
}

void BlockReplacementDialog::setUpBlocks()
{
    setUpButtons();
    m_preview = findChild<DrawingPreview *>(QStringLiteral("PreviewBlock"));
    QTableWidget *left = tableOf(*this, "blocksTable");
    QTableWidget *right = tableOf(*this, "blocksTableRep");
    m_replaced = std::make_unique<NameTable>(left);
    m_replacing = std::make_unique<NameTable>(right);
    connect(left->horizontalHeader(), &QHeaderView::sectionClicked, this, &BlockReplacementDialog::ClickHeaderTable);
    connect(right->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &BlockReplacementDialog::ClickHeaderTableRep);
    connect(left, &QTableWidget::itemSelectionChanged, this, &BlockReplacementDialog::blockSelect);
    connect(right, &QTableWidget::itemSelectionChanged, this, &BlockReplacementDialog::blockSelectRep);
    connect(findChild<QAbstractButton *>(QStringLiteral("selblocks")), &QAbstractButton::clicked, this,
            &BlockReplacementDialog::selectblocks);
    connect(findChild<QAbstractButton *>(QStringLiteral("acceptButton")), &QAbstractButton::clicked, this,
            &BlockReplacementDialog::closeDialog);
}

ToolDialog::Reentry BlockReplacementDialog::reentry() const
{
    // Lisp has written the names of the blocks that were picked in the drawing.
    return state().lookup(QStringLiteral("!Action!")) == QLatin1String("SETBLOCKS") ? Reentry::WholeState
                                                                                    : Reentry::Nothing;
}

void BlockReplacementDialog::beforeShow()
{
    m_replaced->setNames(blockNames());
}

void BlockReplacementDialog::afterShow()
{
    // Also behind an applied state, which knows the blocks by what their cells show only.
    m_replaced->select(state().lookup(QStringLiteral("blocksTable")));
    m_replacing->select(state().lookup(QStringLiteral("blocksTableRep")).section(u'^', 0, 0));
    // A table that was filled with nothing to select tells of no change.
    blockSelect();
    blockSelectRep();
    setFirstFocus();
}

void BlockReplacementDialog::setFirstFocus()
{
    const bool isRightNext = m_replaced->hasSelection() && !m_replacing->hasSelection();
    tableOf(*this, isRightNext ? "blocksTableRep" : "blocksTable")->setFocus();
}

QStringList BlockReplacementDialog::blockNames() const
{
    QStringList names;
    names.reserve(m_blocks.size());
    for (const Block &block : m_blocks)
        names.append(block.name);
    return names;
}

void BlockReplacementDialog::ClickHeaderTable(int column)
{
    m_replaced->clickHeader(column);
}

void BlockReplacementDialog::ClickHeaderTableRep(int column)
{
    m_replacing->clickHeader(column);
}

void BlockReplacementDialog::blockSelect()
{
    m_preview->setBlock(m_replaced->shownName());
}

void BlockReplacementDialog::selectblocks()
{
    acceptWith(QStringLiteral("GETBLOCKS"));
}

QString BlockReplacementDialog::chooseBlocksText()
{
    return QCoreApplication::translate("LispExtension", "You must first select the blocks to replace. ");
}

bool BlockReplacementDialog::refusesIndistinctName(const NameTable &table, const QString &title)
{
    const QString name = table.indistinctName();
    if (name.isEmpty())
        return false;
    warn(tr("The block \"%1\" is taken for %2, as another block of the drawing is. Rename one of the two first.")
             .arg(name, NameTable::shownText(name)),
         title);
    return true;
}
