// What closes the pattern hatch dialog with an action for the program behind it.

#include "dialogs/patternhatch/DLG_QT_PatternHatch.h"
#include "dialogs/patternhatch/MaskPatterns.h"
#include "state/pickers/DrawingPicker.h"
#include "state/pickers/FilePicker.h"
#include "ui_DLG_QT_PatternHatch.h"

namespace {

constexpr double smallestTolerance = 0.01;

} // namespace

void DLG_QT_PatternHatch::takeFile(const Type &type, const QString &path)
{
    type.file->setFullPath(path);
    state().setFavouriteValue(type.file->name(), path);
    showSource();
    m_sizes->takeOwnSize(m_source.kind == ortakit::PatternSource::Kind::Drawing);
}

void DLG_QT_PatternHatch::selectBlock()
{
    const Type &type = m_types[Block];
    const QString path = ortakit::pickDrawing(
        this, {.start = type.file->fullPath(), .circularReferences = ortakit::CircularReferences::Allow});
    if (path.isEmpty())
        return;
    takeFile(type, path);
    closeWith(QStringLiteral("GET_BLOCK=") + path);
}

void DLG_QT_PatternHatch::selectXref()
{
    const Type &type = m_types[Xref];
    const QString path = ortakit::pickDrawing(this, {.start = type.file->fullPath()});
    if (path.isEmpty())
        return;
    takeFile(type, path);
    closeWith(QStringLiteral("GET_XREF=") + m_ui->LbTitleXref->toolTip());
}

void DLG_QT_PatternHatch::selectImage()
{
    const Type &type = m_types[Image];
    const QString path = ortakit::pickFileToOpen(
        this,
        {.title = tr("Select image for pattern"), .filter = ortakit::imageFilter(), .start = type.file->fullPath()});
    if (path.isEmpty())
        return;
    takeFile(type, path);
    closeWith(QStringLiteral("GET_IMAGE=") + path);
}

void DLG_QT_PatternHatch::selectPattern()
{
    const QString name = ortakit::pickMaskPattern(m_ui->SelectPattern);
    if (!name.isEmpty())
        m_patternName->setFullPath(name);
}

void DLG_QT_PatternHatch::getEntityFromDwg()
{
    closeWith(QStringLiteral("GET_ENTITY"));
}

void DLG_QT_PatternHatch::selectEntities()
{
    closeWith(QStringLiteral("GET_ENTITIES"));
}

void DLG_QT_PatternHatch::selectPoints()
{
    closeWith(QStringLiteral("GET_POINTS"));
}

void DLG_QT_PatternHatch::deleteEntities()
{
    closeWith(QStringLiteral("DELETE"));
}

void DLG_QT_PatternHatch::showEntities()
{
    closeWith(QStringLiteral("SHOW"));
}

void DLG_QT_PatternHatch::ExtractFromHatch()
{
    closeWith(QStringLiteral("GET_FROMHATCH"));
}

void DLG_QT_PatternHatch::selectOrigin()
{
    closeWith(QStringLiteral("GET_ORIGIN"));
}

void DLG_QT_PatternHatch::selectRotation()
{
    closeWith(QStringLiteral("GET_ROTATION"));
}

void DLG_QT_PatternHatch::ClosePreview()
{
    if (acceptsValues())
        closeWith(QStringLiteral("PREVIEW"));
}

void DLG_QT_PatternHatch::CloseAccept()
{
    if (acceptsValues())
        closeWith(QStringLiteral("OK"));
}

void DLG_QT_PatternHatch::closeWith(const QString &action)
{
    state().setAction(action);
    state().save();
    accept();
}

bool DLG_QT_PatternHatch::acceptsValues()
{
    if (const Type &type = currentType(); type.file && type.file->fullPath().isEmpty())
        warn(tr("Specify Pattern "));
    else if (!(m_ui->Width->value() > 0 && m_ui->Height->value() > 0))
        warn(tr("Scale must be higher than zero. "));
    else if (m_ui->tolerance->value() < smallestTolerance)
        warn(tr("The tolerance value is less than minimum. The value is reset to minimum (0.01). "));
    else
        return true;
    return false;
}
