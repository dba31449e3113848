#include "dialogs/multiviewsetup/Dlg_QT_MultiViewSetup.h"

#include "dialogs/multiviewsetup/ScaleList.h"
#include "dialogs/multiviewsetup/TitleBlockFolder.h"
#include "platform/kernel/CKvSystemServices.h"
#include "state/host/StarterFiles.h"
#include "state/pickers/FolderPicker.h"
#include "state/pickers/PathMessages.h"
#include "state/tables/TableRows.h"
#include "state/tables/TableSelection.h"
#include "state/widgets/DialogPicture.h"
#include "state/widgets/FullText.h"
#include "ui_Dlg_QT_MultiViewSetup.h"

#include <QRadioButton>

namespace {

constexpr int factorColumn = 1;
constexpr int factorWidth = 100;

QString templateFolder()
{
    const CKvSystemServices *services = GetKvSystemServices();
    return (services ? services->supportFolder() : QString()) + QStringLiteral("/Template");
}

} // namespace

Dlg_QT_MultiViewSetup::Dlg_QT_MultiViewSetup(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("multiviewsetup")), m_ui(std::make_unique<Ui::Dlg_QT_MultiViewSetup>()),
      m_listedStyle(UnitStyle::None)
{
    m_ui->setupUi(this);
    setUpButtons();
    new DialogPicture(m_ui->pictureTitle, QStringLiteral(":/images/titleblock.png"));
    new DialogPicture(m_ui->pictureViewports, QStringLiteral(":/images/viewports.png"));
    setUpTables();
    connectChoices();
    connectActions();
}

Dlg_QT_MultiViewSetup::~Dlg_QT_MultiViewSetup() = default;

void Dlg_QT_MultiViewSetup::setUpTables()
{
    ortakit::setTableHeaders(*m_ui->lstBlocks, tr("Blocks"));
    m_ui->lstBlocks->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    ortakit::setTableHeaders(*m_ui->msLstScales, tr("Scales;Factors"));
    QHeaderView *scales = m_ui->msLstScales->horizontalHeader();
    scales->setSectionResizeMode(QHeaderView::Stretch);
    scales->setSectionResizeMode(factorColumn, QHeaderView::Fixed);
    scales->resizeSection(factorColumn, factorWidth);
    connect(m_ui->lstBlocks, &QTableWidget::itemSelectionChanged, this, &Dlg_QT_MultiViewSetup::SelectChanged);
    connect(m_ui->msLstScales, &QTableWidget::itemSelectionChanged, this, &Dlg_QT_MultiViewSetup::ShowCurScale);
}

void Dlg_QT_MultiViewSetup::connectChoices()
{
    for (const QAbstractButton *choice : std::initializer_list<QAbstractButton *>{
             m_ui->SpacePaper, m_ui->SpaceModel, m_ui->psTitle, m_ui->psCreate, m_ui->psAlign, m_ui->psScale,
             m_ui->oplay, m_ui->singleViewp, m_ui->arrayViewp, m_ui->msScientific, m_ui->msDecimal, m_ui->msEngeneering,
             m_ui->msArchitectural, m_ui->msMetric})
        connect(choice, &QAbstractButton::clicked, this, &Dlg_QT_MultiViewSetup::UpdateDialog);
}

void Dlg_QT_MultiViewSetup::connectActions()
{
    connect(m_ui->selDir, &QPushButton::clicked, this, &Dlg_QT_MultiViewSetup::selDirect);
    connect(m_ui->InsertTitle, &QPushButton::clicked, this, &Dlg_QT_MultiViewSetup::_insertTitle);
    connect(m_ui->CreateViewports, &QPushButton::clicked, this, &Dlg_QT_MultiViewSetup::_createViewports);
    connect(m_ui->AlignViewports, &QPushButton::clicked, this, &Dlg_QT_MultiViewSetup::_alingViewports);
    connect(m_ui->ScaleViewports, &QPushButton::clicked, this, &Dlg_QT_MultiViewSetup::_scaleViewports);
    connect(m_ui->InsertMsTitle, &QPushButton::clicked, this, &Dlg_QT_MultiViewSetup::_insertMSTitle);
}

void Dlg_QT_MultiViewSetup::fillCombos()
{
    m_ui->UnitsTitle->addItems({tr("Feet"), tr("Inches"), tr("Meters"), tr("Milimeters")});
    m_ui->removeTitles->addItems(
        {tr("Do not remove entities"), tr("Remove all entities"), tr("Specify entities for remove")});
    m_ui->removeViewports->addItems(
        {tr("Do not remove viewports"), tr("Remove all viewports"), tr("Specify viewports to remove")});
}

void Dlg_QT_MultiViewSetup::beforeShow()
{
    if (state().isLoaded())
        listTitleBlocks();
}

void Dlg_QT_MultiViewSetup::beforeFirstShow()
{
    ortakit::putStarterFiles(templateFolder(), QStringLiteral("Template"));
    setFolder(templateFolder());
    fillCombos();
    // What fills the tables comes first: the rows that the state has selected must be there when it is applied.
    for (const QWidget *widget :
         std::initializer_list<const QWidget *>{m_ui->directory, m_ui->msScientific, m_ui->msDecimal,
                                                m_ui->msEngeneering, m_ui->msArchitectural, m_ui->msMetric})
        state().apply(widget->objectName());
    listTitleBlocks();
    listScales();
}

void Dlg_QT_MultiViewSetup::afterShow()
{
    state().setAction(QStringLiteral("CANCEL"));
    setFolder(folder());
    UpdateDialog();
    SelectChanged();
    if (!focusWidget())
        (m_ui->SpaceModel->isChecked() ? m_ui->msLstScales : m_ui->lstBlocks)->setFocus();
}

void Dlg_QT_MultiViewSetup::UpdateDialog()
{
    const bool isModel = m_ui->SpaceModel->isChecked();
    m_ui->PageSpace->setCurrentWidget(isModel ? m_ui->pageModel : m_ui->pagePaper);
    QWidget *tool = m_ui->pageTitle;
    if (m_ui->psTitle->isChecked())
        tool = m_ui->pageTitle;
    else if (m_ui->psCreate->isChecked())
        tool = m_ui->pageCreate;
    else if (m_ui->psAlign->isChecked())
        tool = m_ui->pageAlign;
    else if (m_ui->psScale->isChecked())
        tool = m_ui->pageScale;
    m_ui->psPages->setCurrentWidget(tool);

    m_ui->layer->setEnabled(m_ui->oplay->isChecked());
    for (QWidget *widget : std::initializer_list<QWidget *>{
             m_ui->labelRows, m_ui->viewrows, m_ui->labelColumns, m_ui->viewcols, m_ui->labelOffsetX, m_ui->viewoffsetx,
             m_ui->labelOffsetY, m_ui->viewoffsety, m_ui->pictureViewports})
        widget->setEnabled(m_ui->arrayViewp->isChecked());
    listScales();
    pageAction()->setDefault(true);
}

QPushButton *Dlg_QT_MultiViewSetup::pageAction() const
{
    if (m_ui->PageSpace->currentWidget() == m_ui->pageModel)
        return m_ui->InsertMsTitle;
    QPushButton *const actions[] = {m_ui->InsertTitle, m_ui->CreateViewports, m_ui->AlignViewports,
                                    m_ui->ScaleViewports};
    return actions[m_ui->psPages->currentIndex()];
}

UnitStyle Dlg_QT_MultiViewSetup::unitStyle() const
{
    const std::pair<const QRadioButton *, UnitStyle> styles[] = {
        {m_ui->msScientific, UnitStyle::Scientific},   {m_ui->msDecimal, UnitStyle::Decimal},
        {m_ui->msEngeneering, UnitStyle::Engineering}, {m_ui->msArchitectural, UnitStyle::Architectural},
        {m_ui->msMetric, UnitStyle::Metric},
    };
    for (const auto &[button, style] : styles) {
        if (button->isChecked())
            return style;
    }
    return UnitStyle::None;
}

void Dlg_QT_MultiViewSetup::listScales()
{
    // The same rows are not listed again: that would lose the scale that the user chose.
    const UnitStyle style = unitStyle();
    if (style == m_listedStyle)
        return;
    m_listedStyle = style;
    ortakit::setTableRows(*m_ui->msLstScales, scaleRows(style));
}

void Dlg_QT_MultiViewSetup::ShowCurScale()
{
    const QList<int> rows = ortakit::rowsWithSelection(*m_ui->msLstScales);
    m_ui->curScale->setText(rows.size() == 1 ? m_ui->msLstScales->item(rows.first(), factorColumn)->text()
                                             : QStringLiteral("1.0"));
}

void Dlg_QT_MultiViewSetup::SelectChanged()
{
    m_ui->InsertTitle->setEnabled(!ortakit::rowsWithSelection(*m_ui->lstBlocks).isEmpty());
}

void Dlg_QT_MultiViewSetup::selDirect()
{
    const QString chosen = ortakit::pickFolder(this, folder(), tr("Specify folder"));
    if (chosen.isEmpty())
        return;
    setFolder(chosen);
    listTitleBlocks();
}

QString Dlg_QT_MultiViewSetup::folder() const
{
    const QString shown = m_ui->directory->text();
    return ortakit::isElided(shown) ? ortakit::storedFullText(*m_ui->directory) : shown;
}

void Dlg_QT_MultiViewSetup::setFolder(const QString &folder)
{
    ortakit::storeFullText(*m_ui->directory, folder);
    m_ui->directory->setText(
        m_ui->directory->fontMetrics().elidedText(folder, Qt::ElideMiddle, m_ui->directory->width()));
    m_ui->directory->setToolTip(folder);
    // Labels are not written by themselves, and the tool has to find the block's file.
    state().setWrittenValue(m_ui->directory->objectName(), folder);
}

void Dlg_QT_MultiViewSetup::listTitleBlocks()
{
    if (!ortakit::acceptsFolder(this, folder()))
        return;
    QList<QStringList> rows;
    for (const QString &file : titleBlockFiles(folder()))
        rows.append({file});
    const QString selected = ortakit::selectedRowTexts(*m_ui->lstBlocks);
    ortakit::setTableRows(*m_ui->lstBlocks, rows);
    if (!selected.isEmpty())
        ortakit::selectByTexts(*m_ui->lstBlocks, selected);
}

void Dlg_QT_MultiViewSetup::_insertTitle()
{
    // Several selected rows, like none, mean the first of the table: existing tools rely on it.
    const QList<int> rows = ortakit::rowsWithSelection(*m_ui->lstBlocks);
    const QTableWidgetItem *block = m_ui->lstBlocks->item(rows.size() == 1 ? rows.first() : 0, 0);
    m_ui->titleblock->setText(block ? block->text() : QString());
    state().setWrittenValue(m_ui->titleblock->objectName(), m_ui->titleblock->text());
    acceptWith(QStringLiteral("INSERTTITLE"));
}

void Dlg_QT_MultiViewSetup::_createViewports()
{
    acceptWith(QStringLiteral("CREATEVIEWPORTS"));
}

void Dlg_QT_MultiViewSetup::_alingViewports()
{
    acceptWith(QStringLiteral("ALIGNVIEWPORTS"));
}

void Dlg_QT_MultiViewSetup::_scaleViewports()
{
    acceptWith(QStringLiteral("SCALEVIEWPORTS"));
}

void Dlg_QT_MultiViewSetup::_insertMSTitle()
{
    acceptWith(QStringLiteral("INSERTMSTITLE"));
}
