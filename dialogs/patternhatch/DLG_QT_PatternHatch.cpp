#include "dialogs/patternhatch/DLG_QT_PatternHatch.h"

#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvUtils.h"
#include "state/widgets/DialogPicture.h"
#include "ui_DLG_QT_PatternHatch.h"

#include <QDoubleSpinBox>
#include <QEvent>
#include <QRadioButton>

using Kind = ortakit::PatternSource::Kind;

namespace {

constexpr QSize largestPreview(600, 600);

/// Keys of numbers and options. They come first in the state, so that a file or a pattern whose name holds "width=" is
/// not taken for one of them.
QStringList plainKeys()
{
    return {QStringLiteral("pattern_block"), QStringLiteral("pattern_image"),   QStringLiteral("pattern_xref"),
            QStringLiteral("pattern_mask"),  QStringLiteral("scalefactor"),     QStringLiteral("aspectratio"),
            QStringLiteral("width"),         QStringLiteral("height"),          QStringLiteral("offsetx"),
            QStringLiteral("offsety"),       QStringLiteral("positionx"),       QStringLiteral("positiony"),
            QStringLiteral("rotation"),      QStringLiteral("typeobjectblock"), QStringLiteral("typeobjectgroup"),
            QStringLiteral("trimtolimits"),  QStringLiteral("notexceedlimits"), QStringLiteral("tolerance"),
            QStringLiteral("qtentities")};
}

} // namespace

DLG_QT_PatternHatch::DLG_QT_PatternHatch(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("patternhatch")), m_ui(std::make_unique<Ui::DLG_QT_PatternHatch>())
{
    m_ui->setupUi(this);
    setUpButtons();
    m_types = {{
        {m_ui->pattern_block, m_ui->Pageblock, Kind::Drawing, new ElidedPathLabel(m_ui->LbTitleblock),
         m_ui->Bt_selectBlock},
        {m_ui->pattern_image, m_ui->pageImage, Kind::Image, new ElidedPathLabel(m_ui->LbTitleimage),
         m_ui->Bt_selectImage},
        {m_ui->pattern_xref, m_ui->pageXref, Kind::Drawing, new ElidedPathLabel(m_ui->LbTitleXref),
         m_ui->Bt_selectBlock_2},
        {m_ui->pattern_mask, m_ui->pageMask, Kind::None, nullptr, m_ui->patternName},
    }};
    m_patternName = std::make_unique<ElidedPathField>(m_ui->patternName);
    new DialogPicture(m_ui->pictureSpacing, QStringLiteral(":/images/spacing.png"), QStringLiteral("positionSize"));
    new DialogPicture(m_ui->pictureTolerance, QStringLiteral(":/images/arcTolerance.png"));
    m_favourites = new FavouritesBox(this, state(), QStringLiteral("PatternHatch"),
                                     {m_ui->Cb_Favorits, m_ui->Btn_SaveFav, m_ui->Btn_Erase});
    m_favourites->refresh();
    state().prependKeys(plainKeys());
    m_sizes = std::make_unique<ortakit::PatternSizes>(
        ortakit::PatternSizes::Fields{m_ui->Width, m_ui->Height, m_ui->ScaleFactor, m_ui->aspectRatio});
    connectSource();
    connectSizes();
    connectBoundaries();
}

DLG_QT_PatternHatch::~DLG_QT_PatternHatch() = default;

void DLG_QT_PatternHatch::connectSource()
{
    for (const Type &type : m_types)
        connect(type.radio, &QRadioButton::toggled, this, &DLG_QT_PatternHatch::changeTab);
    connect(m_ui->Bt_selectBlock, &QPushButton::clicked, this, &DLG_QT_PatternHatch::selectBlock);
    connect(m_ui->Bt_selectImage, &QPushButton::clicked, this, &DLG_QT_PatternHatch::selectImage);
    connect(m_ui->Bt_selectBlock_2, &QPushButton::clicked, this, &DLG_QT_PatternHatch::selectXref);
    connect(m_ui->SelectPattern, &QPushButton::clicked, this, &DLG_QT_PatternHatch::selectPattern);
    connect(m_ui->Btn_ExtractFromEntity, &QPushButton::clicked, this, &DLG_QT_PatternHatch::getEntityFromDwg);
    connect(m_favourites, &FavouritesBox::loading, this, [this] { m_isApplying = true; });
    connect(m_favourites, &FavouritesBox::loaded, this, [this] {
        m_isApplying = false;
        takeSources();
        // The program has only heard of files that were chosen.
        for (const Type &type : m_types) {
            if (type.file)
                state().setWrittenValue(type.file->name(), type.file->fullPath());
        }
        changeTab();
    });
}

void DLG_QT_PatternHatch::connectSizes()
{
    connect(m_ui->Width, &QDoubleSpinBox::valueChanged, this, &DLG_QT_PatternHatch::checkAspectWidth);
    connect(m_ui->Height, &QDoubleSpinBox::valueChanged, this, &DLG_QT_PatternHatch::checkAspectHeight);
    connect(m_ui->ScaleFactor, &QCheckBox::clicked, this, &DLG_QT_PatternHatch::checkAspectWidth);
    connect(m_ui->aspectRatio, &QCheckBox::clicked, this, &DLG_QT_PatternHatch::refreshSizes);
    connect(m_ui->selOrigin, &QPushButton::clicked, this, &DLG_QT_PatternHatch::selectOrigin);
    connect(m_ui->selRotation, &QPushButton::clicked, this, &DLG_QT_PatternHatch::selectRotation);
}

void DLG_QT_PatternHatch::connectBoundaries()
{
    connect(m_ui->Btn_SelectEntities, &QPushButton::clicked, this, &DLG_QT_PatternHatch::selectEntities);
    connect(m_ui->Btn_SelectPoints, &QPushButton::clicked, this, &DLG_QT_PatternHatch::selectPoints);
    connect(m_ui->Btn_DeleteEntities, &QPushButton::clicked, this, &DLG_QT_PatternHatch::deleteEntities);
    connect(m_ui->Btn_ShowBoundaries, &QPushButton::clicked, this, &DLG_QT_PatternHatch::showEntities);
    connect(m_ui->Btn_ExtractHatch, &QPushButton::clicked, this, &DLG_QT_PatternHatch::ExtractFromHatch);
    for (QRadioButton *option : {m_ui->TypeObjectBlock, m_ui->TypeObjectGroup, m_ui->trimtolimits})
        connect(option, &QRadioButton::clicked, this, &DLG_QT_PatternHatch::UpdateFav);
    connect(m_ui->notexceedlimits, &QRadioButton::clicked, this, &DLG_QT_PatternHatch::ReviewDialog);
    connect(m_ui->Btn_Preview, &QPushButton::clicked, this, &DLG_QT_PatternHatch::ClosePreview);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &DLG_QT_PatternHatch::CloseAccept);
}

void DLG_QT_PatternHatch::setIcons()
{
    static constexpr struct
    {
        QPushButton *Ui::DLG_QT_PatternHatch::*button;
        const char *folder;
        const char *icon;
    } rows[] = {
        {&Ui::DLG_QT_PatternHatch::Btn_SaveFav, ":/images/shared", "save"},
        {&Ui::DLG_QT_PatternHatch::Btn_Erase, ":/images/shared", "cancel"},
        {&Ui::DLG_QT_PatternHatch::selOrigin, ":/images/shared", "select_point"},
        {&Ui::DLG_QT_PatternHatch::selRotation, ":/images/shared", "select_angle"},
        {&Ui::DLG_QT_PatternHatch::Btn_ExtractFromEntity, ":/images/shared", "select_object"},
        {&Ui::DLG_QT_PatternHatch::Btn_SelectEntities, ":/images/shared", "select_object"},
        {&Ui::DLG_QT_PatternHatch::Btn_SelectPoints, ":/images/shared", "select_point"},
        {&Ui::DLG_QT_PatternHatch::Btn_DeleteEntities, ":/images/shared", "cancel"},
        {&Ui::DLG_QT_PatternHatch::Btn_ShowBoundaries, ":/images/hatch", "zoom1"},
        {&Ui::DLG_QT_PatternHatch::Btn_ExtractHatch, ":/images/hatch", "recreate_boundary"},
        {&Ui::DLG_QT_PatternHatch::Btn_Preview, ":/images/hatch", "zoom1"},
    };
    for (const auto &[button, folder, icon] : rows)
        ((*m_ui).*button)->setIcon(CKvUtils::icon(QString::fromLatin1(folder), QString::fromLatin1(icon)));
}

void DLG_QT_PatternHatch::beforeShow()
{
    m_isApplying = true;
    for (const Type &type : m_types) {
        if (type.file)
            state().setWrittenValue(type.file->name(), {});
    }
    // Bound before the state is applied, so that its lengths keep the digits that the drawing's units do not show.
    OdDbDatabase *database = ACTIVE_DOCUMENT() ? ACTIVE_DOCUMENT()->database() : nullptr;
    for (CKvQtUnitSpinBox *box : {m_ui->OffsetX, m_ui->OffsetY, m_ui->positionX, m_ui->positionY, m_ui->Rotation})
        box->setDatabase(database);
    m_sizes->showInUnits();
    refreshFavourites();
}

ToolDialog::Reentry DLG_QT_PatternHatch::reentry() const
{
    static const QStringList applying = {QStringLiteral("NEW"), QStringLiteral("EDIT"),
                                         QStringLiteral("EXTRACTENTITY")};
    return applying.contains(m_mode) ? Reentry::WholeState : Reentry::Nothing;
}

void DLG_QT_PatternHatch::afterShow()
{
    m_isApplying = false;
    takeSources();
    takeBoundaryCount();
    setIcons();
    changeTab();
    focusFirst();
}

void DLG_QT_PatternHatch::changeEvent(QEvent *event)
{
    ToolDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        setIcons();
}

void DLG_QT_PatternHatch::changeTab()
{
    if (m_isApplying)
        return;
    m_ui->Types->setCurrentWidget(currentType().page);
    m_ui->limitsNote->setText(limitsOfCutting());
    showSource();
    refreshSizes();
    enableButtons();
}

void DLG_QT_PatternHatch::takeSources()
{
    for (const Type &type : m_types) {
        if (!type.file)
            continue;
        type.file->takeText();
        // Labels are not written by themselves.
        state().setFavouriteValue(type.file->name(), type.file->fullPath());
    }
}

const DLG_QT_PatternHatch::Type &DLG_QT_PatternHatch::currentType() const
{
    for (const Type &type : m_types) {
        if (type.radio->isChecked())
            return type;
    }
    return m_types[Block];
}

QString DLG_QT_PatternHatch::limitsOfCutting() const
{
    // Drawings of the oldest version have no clips, images or masks.
    const bool isOldest =
        ACTIVE_DOCUMENT() && ACTIVE_DOCUMENT()->systemVariable(QStringLiteral("DXFVERSION")) == QLatin1String("AC1009");
    if (m_ui->pattern_image->isChecked() || m_ui->pattern_mask->isChecked())
        return isOldest ? tr("A drawing of this version has neither images nor masks.") : QString();
    if (isOldest)
        return m_ui->pattern_xref->isChecked()
                   ? tr("At the boundary copies of references are left out: they cannot be cut.")
                   : tr("At the boundary copies with anything but lines, arcs and polylines are left out.");
    return m_ui->pattern_xref->isChecked() ? tr("Copies of references are clipped at the boundary, not cut.")
                                           : tr("Copies with texts, images or tilted entities are clipped, not cut.");
}

void DLG_QT_PatternHatch::showSource()
{
    const Type &type = currentType();
    auto source = ortakit::PatternSource::of(type.kind, type.file ? type.file->fullPath() : QString());
    if (&type == &m_types[Block] && !source.path.isEmpty() && !source.changed.isValid())
        source.kind = Kind::Block;
    if (source == m_source && source.kind != Kind::Block)
        return; // reading a large drawing takes a while
    m_source = source;
    m_sizes->setOwnSize(ortakit::ownSize(source));
    if (source.kind == Kind::Image && source.changed.isValid())
        m_ui->PreviewBlock->setImage(ortakit::imagePicture(source.path, largestPreview));
    else if (source.kind == Kind::Block)
        m_ui->PreviewBlock->setBlock(source.path);
    else
        m_ui->PreviewBlock->setDrawing(source.path);
}

void DLG_QT_PatternHatch::refreshSizes()
{
    m_sizes->keepProportions();
    checkAspectWidth();
}

void DLG_QT_PatternHatch::checkAspectWidth()
{
    if (!m_isApplying)
        m_sizes->followWidth();
}

void DLG_QT_PatternHatch::checkAspectHeight()
{
    if (!m_isApplying)
        m_sizes->followHeight();
}

void DLG_QT_PatternHatch::takeBoundaryCount()
{
    // Picking a favourite empties the state, while the boundary stays: a missing line says nothing new.
    const QString count = state().lookup(QStringLiteral("qtentities"));
    if (!count.isEmpty())
        m_boundaryEntities = int(std::clamp(count.toDouble(), 0.0, 1e9));
}

bool DLG_QT_PatternHatch::hasSource() const
{
    const auto isNamed = [](const Type &type) { return type.file && !type.file->fullPath().isEmpty(); };
    return m_ui->pattern_mask->isChecked() || std::any_of(m_types.cbegin(), m_types.cend(), isNamed);
}

void DLG_QT_PatternHatch::enableButtons()
{
    const bool hasBoundary = m_boundaryEntities.value_or(0) > 0;
    const bool mayHaveBoundary = m_boundaryEntities.value_or(1) > 0;
    m_ui->Btn_DeleteEntities->setEnabled(hasBoundary);
    m_ui->Btn_ShowBoundaries->setEnabled(hasBoundary);
    m_ui->Btn_Preview->setEnabled(mayHaveBoundary && hasSource());
    m_ui->acceptButton->setEnabled(mayHaveBoundary);
}

void DLG_QT_PatternHatch::focusFirst()
{
    const Type &type = currentType();
    if (type.file ? type.file->fullPath().isEmpty() : m_patternName->fullPath().isEmpty())
        type.start->setFocus();
    else if (m_ui->acceptButton->isEnabled())
        m_ui->acceptButton->setFocus();
    else
        m_ui->Btn_SelectEntities->setFocus();
}

void DLG_QT_PatternHatch::refreshFavourites()
{
    const QString shown = m_ui->Cb_Favorits->currentText();
    m_favourites->refresh();
    m_ui->Cb_Favorits->setCurrentIndex(m_ui->Cb_Favorits->findText(shown, Qt::MatchExactly | Qt::MatchCaseSensitive));
    m_ui->Cb_Favorits->setEditText(shown);
}

void DLG_QT_PatternHatch::UpdateFav()
{
    // The dialog is no longer what the favourite says, so its name goes; one that is being typed stays.
    refreshFavourites();
    if (m_ui->Cb_Favorits->currentIndex() >= 0)
        m_ui->Cb_Favorits->setCurrentIndex(-1);
}

void DLG_QT_PatternHatch::ReviewDialog()
{
    UpdateFav();
    changeTab();
}
