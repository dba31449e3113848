#include "dialogs/lispexplorer/Dlg_QT_LispExplorer.h"

#include "dialogs/lispexplorer/Highlighter.h"
#include "dialogs/lispexplorer/SourceView.h"
#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvLispEngine.h"
#include "platform/kernel/CKvUtils.h"
#include "state/host/CommandLineText.h"
#include "state/pickers/FilePicker.h"
#include "state/pickers/FolderPicker.h"
#include "state/tables/TableOrder.h"
#include "state/tables/TableRows.h"
#include "state/widgets/FullText.h"
#include "ui_Dlg_QT_LispExplorer.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QIcon>
#include <QKeyEvent>
#include <QListWidget>
#include <QPointer>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTextCursor>

namespace {

/// Of sources in no form of Unicode: the same as the engine's.
QByteArray sourceCodePage()
{
    return ACTIVE_DOCUMENT() ? ACTIVE_DOCUMENT()->systemVariable(QStringLiteral("LISPCODEPAGE")).toLatin1()
                             : QByteArray();
}

/// Names of the Lisp files of a folder as the file system lists them. What stands behind the last dot counts, or the
/// whole name where there is none.
QStringList lispFiles(const QString &folder)
{
    QStringList names = QDir(folder).entryList(QDir::Files, QDir::Unsorted);
    names.removeIf([](const QString &name) {
        return name.mid(name.lastIndexOf(u'.') + 1).compare(QLatin1String("lsp"), Qt::CaseInsensitive) != 0;
    });
    return names;
}

/// A text view is busy for minutes with a line of megabytes, and no person reads that far.
constexpr qsizetype longestShownLine = 10'000;
constexpr qsizetype mostShownLines = 100'000;

/// `text` without what is beyond these limits; the places say so.
QString withinLimits(const QString &text)
{
    if (text.size() <= longestShownLine)
        return text;
    QStringList shown;
    const QStringList lines = text.split(u'\n');
    for (const QString &line : lines.first(std::min(lines.size(), mostShownLines)))
        shown.append(line.size() <= longestShownLine ? line : line.first(longestShownLine) + u'\u2026');
    if (lines.size() > mostShownLines)
        shown.append(Dlg_QT_LispExplorer::tr("; %1 more lines").arg(lines.size() - mostShownLines));
    return shown.join(u'\n');
}

QIcon toolIcon(const QString &name)
{
    return CKvUtils::icon(QStringLiteral(":/images"), name);
}

} // namespace

Dlg_QT_LispExplorer::Dlg_QT_LispExplorer(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("lispexplorer")), m_ui(std::make_unique<Ui::Dlg_QT_LispExplorer>())
{
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    setAttribute(Qt::WA_QuitOnClose, false);
    m_ui->setupUi(this);
    setUpButtons();
    setUpLibraryPage();
    setUpLoadedPage();

    connect(m_ui->isUser, &QRadioButton::clicked, this, &Dlg_QT_LispExplorer::changeType);
    connect(m_ui->isKora, &QRadioButton::clicked, this, &Dlg_QT_LispExplorer::changeType);
    for (const QDialogButtonBox *box : {m_ui->buttonBox, m_ui->buttonBox_2})
        connect(box, &QDialogButtonBox::rejected, this, &Dlg_QT_LispExplorer::reject);
    // Enter belongs to the field that has the focus, so there is no default button; see keyPressEvent().
    for (QPushButton *button : findChildren<QPushButton *>())
        button->setAutoDefault(false);
}

Dlg_QT_LispExplorer::~Dlg_QT_LispExplorer() = default;

void Dlg_QT_LispExplorer::setUpLibraryPage()
{
    QFont font(QStringLiteral("Courier"), 10);
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    m_ui->tx_EditLisp->setFont(font);
    giveLightGround(*m_ui->tx_EditLisp);
    m_ui->Cb_Format->addItems(tr("Header Only;Function Only;Both").split(u';'));
    m_ui->Cb_Format->setCurrentIndex(int(ortakit::LispPart::Both));
    m_highlighter = std::make_unique<Highlighter>(m_ui->txSearch, m_ui->tx_EditLisp->document());

    connect(m_ui->bt_Directory, &QPushButton::clicked, this, &Dlg_QT_LispExplorer::Selectdirectory);
    connect(m_ui->TxDirectory, &QLineEdit::returnPressed, this, &Dlg_QT_LispExplorer::Loaddirectory);
    connect(m_ui->List_files, &QListWidget::currentRowChanged, this, &Dlg_QT_LispExplorer::OpenfileFromInt);
    connect(m_ui->List_functions, &QListWidget::currentRowChanged, this, &Dlg_QT_LispExplorer::OnFunctionSelected);
    connect(m_ui->Cb_Format, &QComboBox::currentIndexChanged, this, &Dlg_QT_LispExplorer::updateFunctionView);
    connect(m_ui->txSearch, &QLineEdit::textChanged, this, &Dlg_QT_LispExplorer::OnSearchTyped);
    connect(m_ui->txSearch, &QLineEdit::returnPressed, m_ui->bt_Search, &QPushButton::click);
    connect(m_ui->bt_Search, &QPushButton::clicked, this, &Dlg_QT_LispExplorer::OnSearchClicked);
    connect(m_ui->Bt_Load, &QPushButton::clicked, this, &Dlg_QT_LispExplorer::LoadInKora);
}

void Dlg_QT_LispExplorer::setUpLoadedPage()
{
    ortakit::setHeaderForSorting(*m_ui->tableFunctions);
    connect(m_ui->tableFunctions->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &Dlg_QT_LispExplorer::ClickHeaderTable);
    for (const QRadioButton *button : {m_ui->isCommands, m_ui->isFunctions, m_ui->isVariables})
        connect(button, &QRadioButton::clicked, this, &Dlg_QT_LispExplorer::changeKora);
    connect(m_ui->btnExport, &QPushButton::clicked, this, &Dlg_QT_LispExplorer::lispDump);
}

void Dlg_QT_LispExplorer::afterShow()
{
    m_ui->bt_Search->setIcon(toolIcon(QStringLiteral("zoom1")));
    changeType();
    scanFolder();
    m_ui->txSearch->clear();
    updateSearchControls();
    focusBeginning();
}

void Dlg_QT_LispExplorer::focusBeginning()
{
    // Not in the list of files: coming there opens the first one, unasked.
    (m_ui->isKora->isChecked() ? static_cast<QWidget *>(m_ui->tableFunctions) : m_ui->TxDirectory)->setFocus();
}

void Dlg_QT_LispExplorer::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        ToolDialog::keyPressEvent(event);
        return;
    }
    if (auto *button = qobject_cast<QPushButton *>(focusWidget()))
        button->click();
}

void Dlg_QT_LispExplorer::changeType()
{
    const bool isLoaded = m_ui->isKora->isChecked();
    if (isLoaded)
        fillKoraTabs();
    m_ui->stack1->setCurrentWidget(isLoaded ? m_ui->page_2 : m_ui->page);
}

// The library: a folder, its files, their functions.

void Dlg_QT_LispExplorer::Selectdirectory()
{
    const QString folder = ortakit::pickFolder(this, {}, tr("Specify a folder for lisp files"), tr("Specify Folder"));
    if (!folder.isEmpty())
        m_ui->TxDirectory->setText(folder);
    scanFolder();
}

void Dlg_QT_LispExplorer::Loaddirectory()
{
    scanFolder();
}

void Dlg_QT_LispExplorer::scanFolder()
{
    m_folder = ortakit::wholeText(*m_ui->TxDirectory);
    clearFunctions();
    {
        const QSignalBlocker noSignals(m_ui->List_files);
        m_ui->List_files->clear();
        if (!m_folder.isEmpty())
            m_ui->List_files->addItems(lispFiles(m_folder));
    }
    m_ui->Bt_Load->setEnabled(m_ui->List_files->count() > 0);
    updateSearchControls();
}

void Dlg_QT_LispExplorer::clearFunctions()
{
    const QSignalBlocker noSignals(m_ui->List_functions);
    m_ui->List_functions->clear();
    m_ui->tx_EditLisp->clear();
    m_entries.clear();
}

void Dlg_QT_LispExplorer::OpenfileFromInt(int row)
{
    if (row < 0)
        return;
    // A list that gets the focus makes its first row the current one and leaves it unselected; what is open can be
    // loaded, so it is selected.
    m_ui->List_files->item(row)->setSelected(true);
    Openfile(m_ui->List_files->item(row));
}

void Dlg_QT_LispExplorer::Openfile(QListWidgetItem *item)
{
    clearFunctions();
    const ortakit::LispSourceReading source = ortakit::readLispSource(m_folder + u'/' + item->text(), sourceCodePage());
    m_entries = source.functions;
    listFunctions();
    m_ui->Bt_Load->setEnabled(true);
    updateSearchControls();
    if (!source.error.isEmpty())
        inform(source.error, tr("Error"));
}

void Dlg_QT_LispExplorer::listFunctions()
{
    const QSignalBlocker noSignals(m_ui->List_functions);
    QIcon icon = toolIcon(QStringLiteral("Lispfunction"));
    // A selected row is dark in every style.
    icon.addFile(QStringLiteral(":/images/svg_icons/dark/Lispfunction.svg"), {}, QIcon::Selected);
    for (const ortakit::LispFunctionEntry &entry : std::as_const(m_entries))
        m_ui->List_functions->addItem(new QListWidgetItem(icon, entry.name));
}

void Dlg_QT_LispExplorer::OnFunctionSelected(int row)
{
    if (row >= 0) {
        m_ui->List_functions->item(row)->setSelected(true);
        showEntry(row);
    } else {
        const QSignalBlocker noSignals(m_ui->List_functions);
        m_ui->List_functions->clear();
    }
    updateSearchControls();
}

void Dlg_QT_LispExplorer::updateFunctionView()
{
    showEntry(m_ui->List_functions->currentRow());
    updateSearchControls();
}

void Dlg_QT_LispExplorer::showEntry(int row)
{
    if (row < 0 || row >= m_entries.size())
        return;
    const auto part = ortakit::LispPart(m_ui->Cb_Format->currentIndex());
    showSource(*m_ui->tx_EditLisp, *m_highlighter, withinLimits(lispText(m_entries[row], part)));
}

void Dlg_QT_LispExplorer::OnSearchTyped()
{
    updateFunctionView();
}

void Dlg_QT_LispExplorer::updateSearchControls()
{
    const bool hasText = !m_ui->tx_EditLisp->document()->isEmpty();
    m_ui->txSearch->setEnabled(hasText);
    m_ui->bt_Search->setEnabled(hasText && !ortakit::wholeText(*m_ui->txSearch).isEmpty());
}

void Dlg_QT_LispExplorer::OnSearchClicked()
{
    const QString searched = ortakit::wholeText(*m_ui->txSearch);
    if (m_ui->tx_EditLisp->find(searched))
        return;
    m_ui->tx_EditLisp->moveCursor(QTextCursor::Start);
    if (!m_ui->tx_EditLisp->find(searched))
        inform(tr("No matches found for") + QStringLiteral(" '") + searched + u'\'');
}

void Dlg_QT_LispExplorer::LoadInKora()
{
    const QList<QListWidgetItem *> selected = m_ui->List_files->selectedItems();
    if (selected.size() != 1)
        return;
    QString path = ortakit::wholeText(*m_ui->TxDirectory) + u'/' + selected.front()->text();
    if (!path.endsWith(QLatin1String(".lsp"), Qt::CaseInsensitive))
        path += QLatin1String(".lsp");
    // The program may close the document, and this dialog with it.
    const QPointer<Dlg_QT_LispExplorer> self(this);
    if (CKvDocument *document = ACTIVE_DOCUMENT(); document && document->lispEngine())
        document->lispEngine()->loadFile(path);
    if (self)
        inform(tr("The file has been loaded."), tr("LispExplorer"));
}

// The symbols that the engine holds.

void Dlg_QT_LispExplorer::beginWithLoaded()
{
    m_ui->isKora->setChecked(true);
}

void Dlg_QT_LispExplorer::readCatalogue(const QString &path)
{
    ortakit::LispCatalogueReading reading = ortakit::readLispCatalogue(path);
    if (reading)
        m_catalogue = std::move(reading.catalogue);
    else
        inform(reading.error, tr("Error loading database"));
}

void Dlg_QT_LispExplorer::changeKora()
{
    fillKoraTabs();
}

const QStringList &Dlg_QT_LispExplorer::chosenSymbols() const
{
    if (m_ui->isVariables->isChecked())
        return m_catalogue.variables;
    return m_ui->isFunctions->isChecked() ? m_catalogue.functions : m_catalogue.commands;
}

void Dlg_QT_LispExplorer::fillKoraTabs()
{
    static constexpr int widths[] = {250, 160, 240};
    QTableWidget &table = *m_ui->tableFunctions;
    ortakit::setTableHeaders(table,
                             m_ui->isVariables->isChecked() ? tr("Name;Data type;Value") : tr("Name;Data type;Type"));
    for (int column = 0; column < table.columnCount(); ++column) {
        table.setColumnWidth(column, widths[column]);
        table.horizontalHeader()->setSectionResizeMode(column, column < 2 ? QHeaderView::Fixed : QHeaderView::Stretch);
    }
    QList<QStringList> rows;
    for (const QString &line : chosenSymbols())
        rows.append(ortakit::lispSymbolColumns(line));
    ortakit::setTableRows(table, rows);
    table.horizontalHeader()->setSortIndicatorShown(false);
}

void Dlg_QT_LispExplorer::ClickHeaderTable(int column)
{
    ortakit::sortTableRows(*m_ui->tableFunctions, column, tr("Sorting..."));
}

void Dlg_QT_LispExplorer::lispDump()
{
    const QString path = ortakit::pickFileToSave(
        this, {.title = tr("Save dump file"), .filter = tr("Dump files (*.dmp)"), .start = QStringLiteral(".")});
    // Without a message box: the old file stays and the command line tells.
    if (!path.isEmpty())
        ortakit::replaceFileOrTell(path, ortakit::lispDump(m_catalogue));
}
