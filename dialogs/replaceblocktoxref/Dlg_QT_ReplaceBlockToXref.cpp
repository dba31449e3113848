#include "dialogs/replaceblocktoxref/Dlg_QT_ReplaceBlockToXref.h"

#include "state/pickers/FolderPicker.h"
#include "state/pickers/PathMessages.h"
#include "ui_Dlg_QT_ReplaceBlockToXref.h"

#include <QDir>
#include <QKeyEvent>

namespace {

bool isReferenceName(const QString &fileName)
{
    const QStringList parts = fileName.split(u'.');
    return parts.size() == 2 && parts[1].toUpper() == QLatin1String("DWG");
}

/// File names of the drawings in `folder` that can be referred to, in no particular order.
QStringList referencesIn(const QString &folder)
{
    // An empty path would be the folder that the program was started in.
    QStringList names = folder.isEmpty() ? QStringList() : QDir(folder).entryList(QDir::Files, QDir::Unsorted);
    names.removeIf([](const QString &name) { return !isReferenceName(name); });
    return names;
}

} // namespace

Dlg_QT_ReplaceBlockToXref::Dlg_QT_ReplaceBlockToXref(QWidget *parent)
    : BlockReplacementDialog(parent, QStringLiteral("replaceblockbyreference")),
      m_ui(std::make_unique<Ui::Dlg_QT_ReplaceBlockToXref>())
{
    m_ui->setupUi(this);
    setUpBlocks();
    m_directory = std::make_unique<ElidedPathField>(m_ui->directory);
    connect(m_directory.get(), &ElidedPathField::pathEntered, this, &Dlg_QT_ReplaceBlockToXref::leaveDirectory);
    connect(m_ui->directory, &QLineEdit::returnPressed, this, &Dlg_QT_ReplaceBlockToXref::processdir);
    connect(m_ui->selDirectory, &QPushButton::clicked, this, &Dlg_QT_ReplaceBlockToXref::selectDir);
}

Dlg_QT_ReplaceBlockToXref::~Dlg_QT_ReplaceBlockToXref() = default;

void Dlg_QT_ReplaceBlockToXref::afterShow()
{
    m_ui->acceptButton->setEnabled(false);
    listReferences();
    BlockReplacementDialog::afterShow();
    if (!m_directory->fullPath().isEmpty() && !state().lookup(QStringLiteral("blocksTableRep")).isEmpty())
        m_ui->acceptButton->setEnabled(true);
}

void Dlg_QT_ReplaceBlockToXref::listReferences()
{
    m_listedFolder = m_directory->fullPath();
    replacing().setNames(referencesIn(m_listedFolder));
    blockSelectRep();
}

void Dlg_QT_ReplaceBlockToXref::blockSelectRep()
{
    const QString name = replacing().shownName();
    m_ui->PreviewBlock2->setDrawing(name.isEmpty() ? QString() : QDir(m_listedFolder).filePath(name));
    if (!name.isEmpty())
        m_ui->acceptButton->setEnabled(true);
}

void Dlg_QT_ReplaceBlockToXref::selectDir()
{
    const QString folder = ortakit::pickFolder(this, m_directory->fullPath());
    if (folder.isEmpty())
        return;
    m_directory->setFullPath(folder);
    listReferences();
}

void Dlg_QT_ReplaceBlockToXref::processdir()
{
    if (ortakit::acceptsFolder(this, m_directory->fullPath()))
        listReferences();
}

void Dlg_QT_ReplaceBlockToXref::leaveDirectory()
{
    // A reference must never be taken for one of a folder that was typed behind its back.
    if (m_directory->fullPath() != m_listedFolder)
        listReferences();
}

void Dlg_QT_ReplaceBlockToXref::keyPressEvent(QKeyEvent *event)
{
    // Enter in the folder field takes the folder and does not also press the default button.
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && focusWidget() == m_ui->directory)
        return;
    BlockReplacementDialog::keyPressEvent(event);
}

void Dlg_QT_ReplaceBlockToXref::closeDialog()
{
    // The mnemonic does not move the focus out of the folder field.
    m_directory->takeText();
    leaveDirectory();
    const QString title = tr("Replace blocks");
    if (!replaced().hasSelection()) {
        warn(chooseBlocksText(), title);
        return;
    }
    if (!replacing().hasSelection()) {
        warn(tr("You must first select the replacing reference. "), title);
        return;
    }
    if (!refusesIndistinctName(replaced(), title))
        acceptWith(QStringLiteral("OK"));
}
