#include "dialogs/showlinks/Dlg_QT_ShowLinks.h"

#include "files/qt/VisibleText.h"
#include "platform/kernel/CKvMessageBox.h"
#include "platform/kernel/CKvUtils.h"
#include "state/host/ActiveDrawing.h"
#include "state/host/CommandLineText.h"
#include "state/tables/TableOrder.h"
#include "state/tables/TableReplacing.h"
#include "state/tables/TableRows.h"
#include "state/tables/TableSelection.h"
#include "state/tables/WholeTextItem.h"
#include "state/widgets/FullText.h"
#include "state/widgets/ReturnKey.h"
#include "ui_Dlg_QT_ShowLinks.h"

#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QMessageBox>
#include <QSet>
#include <QUrl>

#include <numeric>
#include <utility>

Dlg_QT_ShowLinks::Dlg_QT_ShowLinks(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("showlinks")), m_ui(std::make_unique<Ui::Dlg_QT_ShowLinks>())
{
    m_ui->setupUi(this);
    setUpButtons();
    setUpTable();
    connectWidgets();
    SelectChanged();
}

Dlg_QT_ShowLinks::~Dlg_QT_ShowLinks() = default;

void Dlg_QT_ShowLinks::setUpTable()
{
    constexpr int width = 160;
    QTableWidget &table = *m_ui->tableUrl;
    ortakit::setTableHeaders(table, tr(";URL Name;Entity Type;Space"));
    ortakit::setHeaderForSorting(table);
    QHeaderView &header = *table.horizontalHeader();
    header.setSortIndicatorShown(false);
    // The entity is carried, not shown.
    header.setMinimumSectionSize(0);
    header.setSectionResizeMode(QHeaderView::Fixed);
    header.resizeSection(ortakit::EntityField, 0);
    for (const int column : {ortakit::UrlField, ortakit::TypeField, ortakit::SpaceField})
        header.resizeSection(column, width);
    header.setSectionResizeMode(ortakit::UrlField, QHeaderView::Stretch);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header.setHighlightSections(false);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 8);
}

void Dlg_QT_ShowLinks::connectWidgets()
{
    connect(m_ui->btnShowUrl, &QPushButton::clicked, this, &Dlg_QT_ShowLinks::showUrl);
    connect(m_ui->btnRemoveUrl, &QPushButton::clicked, this, &Dlg_QT_ShowLinks::removeSelected);
    connect(m_ui->btnShowEntity, &QPushButton::clicked, this, &Dlg_QT_ShowLinks::showEntity);
    connect(m_ui->btnReplace, &QPushButton::clicked, this, &Dlg_QT_ShowLinks::replace);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &Dlg_QT_ShowLinks::CloseDialog);
    connect(m_ui->btnHelp, &QPushButton::clicked, this, &Dlg_QT_ShowLinks::showHelp);
    connect(m_ui->tableUrl, &QTableWidget::itemSelectionChanged, this, &Dlg_QT_ShowLinks::SelectChanged);
    connect(m_ui->tableUrl->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &Dlg_QT_ShowLinks::ClickHeaderTable);
    for (QLineEdit *field : {m_ui->txsearch, m_ui->txreplace})
        ortakit::setReturnAction(*field, [this] { replace(); });
}

void Dlg_QT_ShowLinks::done(int result)
{
    m_isStarting = state().action() != QLatin1String("SHOWENTITY");
    ToolDialog::done(result);
}

/// Where relative links lead from; empty for a drawing that was never saved.
QString Dlg_QT_ShowLinks::drawingFolder()
{
    const QString drawing = ortakit::activeDrawing();
    return drawing.isEmpty() ? QString() : QFileInfo(drawing).absolutePath();
}

QString Dlg_QT_ShowLinks::action() const
{
    return state().lookup(QStringLiteral("!Action!"));
}

bool Dlg_QT_ShowLinks::isReturning() const
{
    return action() == QLatin1String("RETURN");
}

void Dlg_QT_ShowLinks::beforeShow()
{
    setIcons();
    state().setAction(QStringLiteral("CANCEL"));
}

void Dlg_QT_ShowLinks::afterShow()
{
    // Behind the state, which would select rows by what was selected another time.
    const bool isStarting = m_isStarting || action() == QLatin1String("START");
    m_isStarting = false;
    if (isStarting)
        m_removed.clear();
    if (isStarting || isReturning())
        loadLinks();
    m_ui->linkfile->setText(linkFile());
    ortakit::storeFullText(*m_ui->linkfile, linkFile());
    SelectChanged();
    m_ui->tableUrl->setFocus();
}

void Dlg_QT_ShowLinks::changeEvent(QEvent *event)
{
    ToolDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        setIcons();
}

void Dlg_QT_ShowLinks::setIcons()
{
    m_ui->btnClose->setIcon(CKvUtils::icon(QStringLiteral(":/images"), QStringLiteral("cancel")));
    m_ui->btnHelp->setIcon(CKvUtils::icon(QStringLiteral(":/images"), QStringLiteral("help")));
}

/// Not by lookup(), which cuts a value at its "=": the rest of the path could be another file.
QString Dlg_QT_ShowLinks::linkFile() const
{
    const QString key = QStringLiteral("linkfile=");
    for (const QString &line : state().lines()) {
        if (line.startsWith(key, Qt::CaseInsensitive))
            return line.sliced(key.size());
    }
    return {};
}

void Dlg_QT_ShowLinks::loadLinks()
{
    const ortakit::LinkReading reading = ortakit::readLinkFile(linkFile());
    m_encoding = reading.encoding;
    m_unread = QFileInfo::exists(linkFile()) ? reading.error : QString();
    m_ui->tableUrl->horizontalHeader()->setSortIndicatorShown(false);
    ortakit::setTableRows(*m_ui->tableUrl, int(reading.links.size()), [&reading](int row, int column) {
        return new ortakit::WholeTextItem(reading.links[row][std::size_t(column)]);
    });
    // What is listed is not removed.
    QSet<QString> listed;
    for (const ortakit::Link &link : reading.links)
        listed.insert(link[ortakit::EntityField]);
    m_removed.removeIf([&listed](const QString &entity) { return listed.contains(entity); });
}

QList<int> Dlg_QT_ShowLinks::allRows() const
{
    QList<int> rows(m_ui->tableUrl->rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

ortakit::Link Dlg_QT_ShowLinks::linkAt(int row) const
{
    ortakit::Link link;
    for (int column = 0; column < ortakit::LinkFieldCount; ++column)
        link[std::size_t(column)] = m_ui->tableUrl->item(row, column)->text();
    return link;
}

void Dlg_QT_ShowLinks::writeLinks(const QList<int> &rows, const QStringList &removed) const
{
    QList<ortakit::Link> links;
    links.reserve(rows.size());
    for (const int row : rows)
        links.append(linkAt(row));
    // What was not read is not written over.
    if (!ortakit::tellNotWritten(linkFile(), m_unread))
        return;
    // What cannot be written leaves the file as it was; the command line tells, and Lisp sees what was meant.
    ortakit::replaceFileOrTell(linkFile(), ortakit::writtenLinks(links, removed, m_encoding));
}

void Dlg_QT_ShowLinks::SelectChanged()
{
    const bool isSelected = m_ui->tableUrl->selectionModel()->hasSelection();
    for (QPushButton *button : {m_ui->btnShowUrl, m_ui->btnRemoveUrl, m_ui->btnShowEntity})
        button->setEnabled(isSelected);
}

void Dlg_QT_ShowLinks::showUrl()
{
    const QList<int> rows = ortakit::rowsWithSelection(*m_ui->tableUrl);
    if (rows.size() != 1) {
        warn(tr("Select one row of table for show."));
        return;
    }
    // The URL goes to the program that the user's desktop has for it, as it is: nothing takes it for a command line.
    const QUrl target = ortakit::linkTarget(linkAt(rows.first())[ortakit::UrlField], drawingFolder());
    if (!mayOpen(target))
        return;
    if (!target.isValid() || ortakit::linkCaution(target) == ortakit::LinkCaution::Refuse ||
        !QDesktopServices::openUrl(target))
        warn(tr("Unable to display the link."));
}

/// Links to pages are opened as they are; of every other one the user sees where it leads, whole and as it is.
bool Dlg_QT_ShowLinks::mayOpen(const QUrl &target)
{
    const ortakit::LinkCaution caution = ortakit::linkCaution(target);
    if (caution != ortakit::LinkCaution::Ask && caution != ortakit::LinkCaution::AskProgram)
        return true;
    const QString shown =
        target.isLocalFile() ? QDir::toNativeSeparators(target.toLocalFile()) : QString::fromLatin1(target.toEncoded());
    QString question = tr("Open this link?") + QStringLiteral("\n\n") + files::visibleLines(shown);
    if (caution == ortakit::LinkCaution::AskProgram)
        question += QStringLiteral("\n\n") + tr("It is a program, or starts one.");
    return CKvMessageBox::warning(this, tr("Warning"), question, QMessageBox::Cancel | QMessageBox::Open) ==
           QMessageBox::Open;
}

void Dlg_QT_ShowLinks::replace()
{
    const QList<int> rows = ortakit::rowsWithSelection(*m_ui->tableUrl);
    if (rows.isEmpty()) {
        inform(tr("Select the rows of table for searching."), tr("Replace text"));
        return;
    }
    const QString found = ortakit::wholeText(*m_ui->txsearch);
    const QString replacement = ortakit::wholeText(*m_ui->txreplace);
    if (found.isEmpty())
        return; // which Qt would find between all characters
    ortakit::replaceTexts(this, ortakit::itemsInColumn(*m_ui->tableUrl, rows, ortakit::UrlField),
                          [&](const QString &url) { return QString(url).replace(found, replacement); });
}

void Dlg_QT_ShowLinks::removeSelected()
{
    const QList<int> rows = ortakit::rowsWithSelection(*m_ui->tableUrl);
    if (rows.isEmpty()) {
        inform(tr("The are no items selected."), tr("Information"));
        return;
    }
    const auto answer = CKvMessageBox::warning(this, tr("Warning"), tr("Remove urls for selected items?"),
                                               QMessageBox::Ok | QMessageBox::Cancel);
    if (answer != QMessageBox::Ok)
        return;
    for (const QTableWidgetItem *entity : ortakit::itemsInColumn(*m_ui->tableUrl, rows, ortakit::EntityField))
        m_removed.append(entity->text());
    ortakit::removeTableRows(*m_ui->tableUrl, rows);
}

void Dlg_QT_ShowLinks::showEntity()
{
    const QList<int> rows = ortakit::rowsWithSelection(*m_ui->tableUrl);
    writeLinks(rows, {});
    if (rows.isEmpty())
        inform(tr("The are no items selected."), tr("Information"));
    acceptWith(QStringLiteral("SHOWENTITY"));
}

void Dlg_QT_ShowLinks::CloseDialog()
{
    writeLinks(allRows(), m_removed);
    acceptWith(QStringLiteral("OK"));
}

void Dlg_QT_ShowLinks::ClickHeaderTable(int column)
{
    ortakit::sortTableRows(*m_ui->tableUrl, column, tr("Sorting..."));
}
