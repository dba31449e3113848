#include "dialogs/dimensionstyle/Dlg_QT_ExchangedDimensionStyle.h"

#include "dialogs/dimensionstyle/StyleTables.h"
#include "formats/DimensionStyleFile.h"
#include "platform/kernel/CKvUtils.h"
#include "state/host/CommandLineText.h"
#include "state/pickers/FilePicker.h"
#include "ui_Dlg_QT_ExchangedDimensionStyle.h"

#include <QDialogButtonBox>
#include <QFileInfo>

Dlg_QT_ExchangedDimensionStyle::Dlg_QT_ExchangedDimensionStyle(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("exchangeddimensionstyle")),
      m_ui(std::make_unique<Ui::Dlg_QT_ExchangedDimensionStyle>())
{
    m_ui->setupUi(this);
    setUpButtons();
    m_tables = new StyleTables(m_ui->lstStyles, m_ui->lstVariables, this);
    m_ui->lstVariables->horizontalHeader()->setStretchLastSection(false);
    m_ui->lstVariables->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_ui->lstVariables->setColumnWidth(1, 100);

    connect(m_ui->selectfile, &QPushButton::clicked, this, &Dlg_QT_ExchangedDimensionStyle::SelectExportFile);
    connect(m_tables, &StyleTables::selectionChanged, this, &Dlg_QT_ExchangedDimensionStyle::styleSelect);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

Dlg_QT_ExchangedDimensionStyle::~Dlg_QT_ExchangedDimensionStyle() = default;

void Dlg_QT_ExchangedDimensionStyle::afterShow()
{
    m_ui->selectfile->setIcon(CKvUtils::icon(QStringLiteral(":/images"), QStringLiteral("export")));
    m_sourceFile = state().lookup(QStringLiteral("filedim"));
    m_tables->showStyles(ortakit::listStyleNames(m_sourceFile));
    m_ui->lstStyles->setFocus();
}

void Dlg_QT_ExchangedDimensionStyle::styleSelect()
{
    const QStringList selected = m_tables->selectedStyles();
    m_tables->showVariables(selected.size() == 1 ? ortakit::readStyleVariables(m_sourceFile, selected.first()).entries
                                                 : QStringList());
}

void Dlg_QT_ExchangedDimensionStyle::SelectExportFile()
{
    const QString chosen = ortakit::pickFileToSave(this, {.title = tr("Select Dimension Style file"),
                                                          .filter = tr("DimStyle files (*.dim)"),
                                                          .start = QStringLiteral(".")});
    if (chosen.isEmpty())
        return;
    const QString path = ortakit::withDimensionStyleExtension(chosen);
    const QStringList selected = m_tables->selectedStyles();
    if (selected.isEmpty()) {
        inform(tr("No dimension style selected, please select a dimension style to export. "),
               tr("Exchange Dimension Style"));
        return;
    }
    if (!mayWrite(chosen, path))
        return;
    state().setWrittenValue(QStringLiteral("exportfile"), path);
    state().setWrittenValue(QStringLiteral("exportedstyles"),
                            writeStyles(path, selected) ? QString::number(selected.size()) : QString());
    accept();
}

/// The file picker has asked about the file that was chosen, not about the one that its extension makes of it.
bool Dlg_QT_ExchangedDimensionStyle::mayWrite(const QString &chosen, const QString &path)
{
    return path == chosen || !QFileInfo::exists(path) ||
           ask(tr("%1 already exists. Do you want to replace it?").arg(QFileInfo(path).fileName()),
               tr("Exchange Dimension Style"));
}

bool Dlg_QT_ExchangedDimensionStyle::writeStyles(const QString &path, const QStringList &names) const
{
    const bool isFull = m_ui->rbFullText->isChecked();
    const ortakit::StyleCopy copy = ortakit::copyStyles(
        m_sourceFile, names, isFull ? ortakit::TextStyleCopy::Full : ortakit::TextStyleCopy::NameOnly);
    // A source that is gone must not empty the user's file.
    return copy && ortakit::replaceFileOrTell(path, copy.text);
}
