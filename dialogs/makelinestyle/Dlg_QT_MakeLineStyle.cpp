#include "dialogs/makelinestyle/Dlg_QT_MakeLineStyle.h"

#include "formats/LinetypeFile.h"
#include "state/pickers/FilePicker.h"
#include "state/widgets/FullText.h"
#include "ui_Dlg_QT_MakeLineStyle.h"

Dlg_QT_MakeLineStyle::Dlg_QT_MakeLineStyle(QWidget *parent)
    : DefinitionDialog(parent, QStringLiteral("makelinestyle")), m_ui(std::make_unique<Ui::Dlg_QT_MakeLineStyle>())
{
    m_ui->setupUi(this);
    setUpButtons();
    setUpDefinitions(m_ui->Linetypefile, m_ui->LinetypefileLst, tr("Name;Description"), 150);
    m_file = std::make_unique<ElidedPathField>(m_ui->Linetypefile);

    connect(m_file.get(), &ElidedPathField::pathEntered, this, &Dlg_QT_MakeLineStyle::refreshLinetypes);
    connect(m_ui->selectfile, &QPushButton::clicked, this, &Dlg_QT_MakeLineStyle::SelectLinetypeFile);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &Dlg_QT_MakeLineStyle::CheckName);
}

Dlg_QT_MakeLineStyle::~Dlg_QT_MakeLineStyle() = default;

void Dlg_QT_MakeLineStyle::afterShow()
{
    refreshLinetypes();
    // The field's width is known only now.
    m_file->setFullPath(m_file->fullPath());
    (m_file->fullPath().isEmpty() ? static_cast<QWidget *>(m_ui->selectfile) : m_ui->name)->setFocus();
}

void Dlg_QT_MakeLineStyle::refreshLinetypes()
{
    QList<QStringList> rows;
    for (const ortakit::LinetypeHeader &linetype : ortakit::readLinetypeFile(m_file->fullPath()).definitions)
        rows.append({linetype.name, linetype.description});
    showDefinitions(rows, 0);
}

void Dlg_QT_MakeLineStyle::SelectLinetypeFile()
{
    const QString chosen = ortakit::pickFileToSave(this, {.title = tr("Specify Linestyle file"),
                                                          .filter = tr("Linestyle files (*.lin)"),
                                                          .start = m_file->fullPath(),
                                                          .overwriting = ortakit::Overwriting::Silent});
    if (chosen.isEmpty())
        return;
    if (!ortakit::isAcceptableLinetypeFile(chosen, QStringLiteral(".lin"))) {
        inform(tr("The format of the file is not valid. "), tr("Invalid file format"));
        return;
    }
    m_file->setFullPath(chosen);
    refreshLinetypes();
}

void Dlg_QT_MakeLineStyle::CheckName()
{
    const QString listed = m_file->fullPath();
    m_file->takeText();
    if (m_file->fullPath() != listed)
        refreshLinetypes();
    if (acceptsDefinition(m_file->fullPath(), ortakit::wholeText(*m_ui->name),
                          {.title = tr("Make Linestyle"),
                           .noFile = tr("You must select a file. "),
                           .noName = tr("You must provide a name for the Linestyle. "),
                           .blankInName = tr("Linestyle names cannot include blank spaces."),
                           .exists = tr("Linestyle already exists, you want to replace it?")}))
        accept();
}
