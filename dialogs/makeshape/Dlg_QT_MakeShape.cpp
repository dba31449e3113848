#include "dialogs/makeshape/Dlg_QT_MakeShape.h"

#include "formats/ShapeFile.h"
#include "state/pickers/FilePicker.h"
#include "state/pickers/FolderPicker.h"
#include "state/widgets/FullText.h"
#include "ui_Dlg_QT_MakeShape.h"

#include <QFileInfo>

namespace {

/// Where the chooser starts: the folder of the file at `path`. A bare file name says nothing of where the user's shapes
/// are, so it counts as no folder.
QString startFolder(const QString &path)
{
    const QFileInfo file(path);
    const bool isBareName = path.isEmpty() || file.path() == QLatin1StringView(".");
    return ortakit::existingFolder(isBareName ? QString() : file.absolutePath());
}

} // namespace

Dlg_QT_MakeShape::Dlg_QT_MakeShape(QWidget *parent)
    : DefinitionDialog(parent, QStringLiteral("makeshape")), m_ui(std::make_unique<Ui::Dlg_QT_MakeShape>())
{
    m_ui->setupUi(this);
    setUpButtons();
    setUpDefinitions(m_ui->shapeFile, m_ui->lstShapes, tr("Number;Name"), 90);
    ortakit::setNeverElided(*m_ui->shapeFile);

    connect(m_ui->shapeFile, &QLineEdit::editingFinished, this, &Dlg_QT_MakeShape::refreshShapes);
    connect(m_ui->selectfile, &QPushButton::clicked, this, &Dlg_QT_MakeShape::SelectLinetypeFile);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &Dlg_QT_MakeShape::CheckName);
}

Dlg_QT_MakeShape::~Dlg_QT_MakeShape() = default;

void Dlg_QT_MakeShape::afterShow()
{
    refreshShapes();
    (m_ui->shapeFile->text().isEmpty() ? static_cast<QWidget *>(m_ui->selectfile) : m_ui->name)->setFocus();
}

void Dlg_QT_MakeShape::refreshShapes()
{
    m_listedFile = m_ui->shapeFile->text();
    QList<QStringList> rows;
    for (const ortakit::ShapeHeader &shape : ortakit::readShapeFile(m_listedFile).definitions)
        rows.append({shape.number, shape.name});
    showDefinitions(rows, 1);
}

void Dlg_QT_MakeShape::SelectLinetypeFile()
{
    const QString chosen = ortakit::pickFileToSave(this, {.title = tr("Select shape file"),
                                                          .filter = tr("Shape files (*.shp);; All files (*.*)"),
                                                          .start = startFolder(m_ui->shapeFile->text()),
                                                          .overwriting = ortakit::Overwriting::Silent});
    if (chosen.isEmpty())
        return;
    ortakit::storeFullText(*m_ui->shapeFile, chosen);
    m_ui->shapeFile->setText(chosen);
    refreshShapes();
}

void Dlg_QT_MakeShape::CheckName()
{
    // A program may set the field and press the button without leaving it.
    if (m_ui->shapeFile->text() != m_listedFile)
        refreshShapes();
    if (!acceptsDefinition(m_ui->shapeFile->text(), ortakit::wholeText(*m_ui->name),
                           {.title = tr("Make Shape"),
                            .noFile = tr("You must select a file. "),
                            .noName = tr("You must provide a name for the shape. "),
                            .blankInName = tr("Shape names cannot include blank spaces."),
                            .exists = tr("Shape already exists, you want to replace it?")}))
        return;
    // Of a path with three dots in it the stored one is saved.
    ortakit::storeFullText(*m_ui->shapeFile, m_ui->shapeFile->text());
    accept();
}
