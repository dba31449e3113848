#include "host/app/window/files/RecoveryDialog.h"

#include "files/qt/VisibleText.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr QSize recoveryPictureSize(128, 96);

constexpr int drawingColumn = 0;

/// What became of the drawing's own file since.
QString stateOfOriginal(const kernel::RecoveryNote &note)
{
    using kernel::FileChange;
    if (note.path.isEmpty())
        return RecoveryDialog::tr("never saved");
    const QString path = files::visibleText(QDir::toNativeSeparators(note.path));
    switch (note.base ? note.base->changeOf(note.path) : FileChange::Content) {
    case FileChange::Content:
        return RecoveryDialog::tr("%1\n(changed since by another program)").arg(path);
    case FileChange::Gone:
        return RecoveryDialog::tr("%1\n(not there any more)").arg(path);
    case FileChange::None:
        break;
    }
    return path;
}

} // namespace

RecoveryDialog::RecoveryDialog(const QList<kernel::RecoveryFile> &files, QWidget *parent)
    : QDialog(parent), m_files(files), m_list(new QTreeWidget), m_pictures(recoveryPictureSize)
{
    setObjectName(u"RecoveryDialog"_s);
    setWindowTitle(tr("Recover drawings"));
    resize(900, 480);
    auto *told = new QLabel(tr("The program ended without closing these drawings. What had not been saved of them was "
                               "kept in copies."));
    told->setWordWrap(true);
    m_list->setObjectName(u"recoveryList"_s);
    m_list->setAccessibleName(tr("Drawings to recover"));
    m_list->setHeaderLabels({tr("Drawing"), tr("Copied"), tr("Size"), tr("File")});
    m_list->setRootIsDecorated(false);
    m_list->setIconSize(recoveryPictureSize);
    m_list->setUniformRowHeights(true);
    connect(&m_pictures, &FilePictures::made, this, &RecoveryDialog::showPicture);
    for (const kernel::RecoveryFile &file : files)
        addRow(file);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->setCurrentItem(m_list->topLevelItem(0));

    auto *buttons = new QDialogButtonBox;
    m_open = buttons->addButton(tr("&Open selected"), QDialogButtonBox::AcceptRole);
    m_open->setObjectName(u"recoveryOpen"_s);
    m_discard = buttons->addButton(tr("&Discard selected..."), QDialogButtonBox::ActionRole);
    m_discard->setObjectName(u"recoveryDiscard"_s);
    QPushButton *later = buttons->addButton(tr("&Later"), QDialogButtonBox::RejectRole);
    later->setObjectName(u"recoveryLater"_s);
    later->setToolTip(tr("The copies are offered again at the next start"));
    m_open->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_discard, &QPushButton::clicked, this, &RecoveryDialog::discard);
    connect(m_list, &QTreeWidget::itemChanged, this, &RecoveryDialog::updateButtons);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(told);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
    m_list->setFocus();
}

QTreeWidgetItem *RecoveryDialog::addRow(const kernel::RecoveryFile &file)
{
    const kernel::RecoveryNote &note = file.note;
    const QLocale locale;
    auto *row = new QTreeWidgetItem(m_list, {note.title.isEmpty() ? tr("(no name)") : files::visibleText(note.title),
                                             locale.toString(note.time.toLocalTime(), QLocale::ShortFormat),
                                             locale.formattedDataSize(file.size), stateOfOriginal(note)});
    row->setCheckState(drawingColumn, Qt::Checked);
    row->setData(drawingColumn, Qt::UserRole, file.file);
    QPixmap place(recoveryPictureSize); // of the picture that is being made
    place.fill(Qt::transparent);
    row->setIcon(drawingColumn, QIcon(place));
    m_pictures.want(file.file);
    return row;
}

void RecoveryDialog::showPicture(const QString &path, const QImage &picture)
{
    for (int i = 0; i < m_list->topLevelItemCount(); ++i)
        if (QTreeWidgetItem *row = m_list->topLevelItem(i); row->data(drawingColumn, Qt::UserRole) == path)
            row->setIcon(drawingColumn, QIcon(QPixmap::fromImage(picture)));
}

QList<kernel::RecoveryFile> RecoveryDialog::chosen() const
{
    QList<kernel::RecoveryFile> files;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i)
        if (m_list->topLevelItem(i)->checkState(drawingColumn) == Qt::Checked)
            files.append(m_files[i]);
    return files;
}

void RecoveryDialog::discard()
{
    const qsizetype count = chosen().size();
    QMessageBox box(
        QMessageBox::Warning, u"Ortakit"_s,
        tr("Discard what was not saved of %n drawing(s)? It cannot be brought back.", nullptr, static_cast<int>(count)),
        QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setDefaultButton(QMessageBox::Cancel);
    if (box.exec() != QMessageBox::Discard)
        return;
    for (qsizetype i = m_files.size() - 1; i >= 0; --i) {
        if (m_list->topLevelItem(static_cast<int>(i))->checkState(drawingColumn) != Qt::Checked)
            continue;
        // Another program may have taken it over meanwhile.
        if (const auto copy = kernel::RecoveryCopy::adopt(m_files[i].file))
            copy->remove();
        delete m_list->takeTopLevelItem(static_cast<int>(i));
        m_files.removeAt(i);
    }
    updateButtons();
    if (m_files.isEmpty())
        reject();
}

void RecoveryDialog::updateButtons()
{
    const bool hasChosen = !chosen().isEmpty();
    m_open->setEnabled(hasChosen);
    m_discard->setEnabled(hasChosen);
}

} // namespace host::app
