#include "dialogs/dimensionstyle/Dlg_QT_ImportDimensionStyle.h"

#include "dialogs/dimensionstyle/StyleTables.h"
#include "formats/DimensionStyleFile.h"
#include "state/pickers/FilePicker.h"
#include "ui_Dlg_QT_ImportDimensionStyle.h"

Dlg_QT_ImportDimensionStyle::Dlg_QT_ImportDimensionStyle(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("importdimensionstyle")),
      m_ui(std::make_unique<Ui::Dlg_QT_ImportDimensionStyle>())
{
    m_ui->setupUi(this);
    setUpButtons();
    m_tables = new StyleTables(m_ui->lstStyles, m_ui->lstVariables, this);
    m_file = std::make_unique<ElidedPathField>(m_ui->txExport);

    connect(m_ui->selectfile, &QPushButton::clicked, this, &Dlg_QT_ImportDimensionStyle::SelectExportFile);
    connect(m_file.get(), &ElidedPathField::pathEntered, this, &Dlg_QT_ImportDimensionStyle::listStylesOfNewPath);
    connect(m_tables, &StyleTables::selectionChanged, this, &Dlg_QT_ImportDimensionStyle::styleSelect);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &Dlg_QT_ImportDimensionStyle::acceptDialog);
}

Dlg_QT_ImportDimensionStyle::~Dlg_QT_ImportDimensionStyle() = default;

void Dlg_QT_ImportDimensionStyle::afterShow()
{
    listStyles();
    // In the file field Enter only takes the path, so the focus goes where the user's next choice is.
    if (m_ui->lstStyles->rowCount() > 0)
        m_ui->lstStyles->setFocus();
    else
        m_ui->selectfile->setFocus();
}

void Dlg_QT_ImportDimensionStyle::SelectExportFile()
{
    const QString chosen = ortakit::pickFileToOpen(this, {.title = tr("Select Dimension Style file"),
                                                          .filter = tr("DimStyle files (*.dim)"),
                                                          .start = QStringLiteral(".")});
    if (chosen.isEmpty())
        return;
    m_file->setFullPath(chosen);
    listStyles();
}

void Dlg_QT_ImportDimensionStyle::listStylesOfNewPath()
{
    if (m_file->fullPath() != m_listedFile)
        listStyles();
}

void Dlg_QT_ImportDimensionStyle::listStyles()
{
    m_listedFile = m_file->fullPath();
    m_tables->showStyles(ortakit::listStyleNamesFirstWord(m_listedFile));
}

void Dlg_QT_ImportDimensionStyle::styleSelect()
{
    m_ui->groupBox_2->setEnabled(false);
    m_ui->cbTextStyle->setChecked(false);
    m_ui->cbDimensionStyle->setChecked(false);

    const QStringList selected = m_tables->selectedStyles();
    if (selected.size() != 1) {
        m_tables->showVariables({});
        for (QWidget *option : {static_cast<QWidget *>(m_ui->groupBox_2), static_cast<QWidget *>(m_ui->cbTextStyle),
                                static_cast<QWidget *>(m_ui->cbDimensionStyle)})
            option->setEnabled(true);
        return;
    }
    const ortakit::StyleVariables style = ortakit::readStyleVariablesForImport(
        m_listedFile, selected.first(), state().lookupList(QStringLiteral("textstyle")));
    offerOverwriting(selected.first(), style.usesExistingTextStyle);
    m_tables->showVariables(style.entries);
}

/// Each option is offered for the clash that there is; without one the whole group stays disabled.
void Dlg_QT_ImportDimensionStyle::offerOverwriting(const QString &style, bool usesExistingTextStyle)
{
    const bool isExisting = state().lookupList(QStringLiteral("dimstyle")).contains(style);
    m_ui->groupBox_2->setEnabled(isExisting || usesExistingTextStyle);
    m_ui->cbDimensionStyle->setEnabled(isExisting);
    m_ui->cbTextStyle->setEnabled(usesExistingTextStyle);
}

void Dlg_QT_ImportDimensionStyle::acceptDialog()
{
    // Enter in the file field also presses the default button; the path is taken first.
    if (m_ui->txExport->hasFocus())
        return;
    const QStringList selected = m_tables->selectedStyles();
    if (selected.isEmpty()) {
        inform(tr("No dimension style selected, please select a dimension style to import. "));
        return;
    }
    QString names;
    for (const QString &name : selected)
        names += u',' + name;
    state().setWrittenValue(m_ui->lstStyles->objectName(), names);
    accept();
}
