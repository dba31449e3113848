#include "host/app/window/help/HelpWindow.h"

#include "host/app/window/help/HelpBrowser.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyle>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr int addressRole = Qt::UserRole;
constexpr QSize helpWindowSize(1040, 720);
constexpr int sideWidth = 280;

} // namespace

HelpWindow::HelpWindow(QWidget &window)
    : QWidget(&window, Qt::Window), m_window(window), m_search(new QLineEdit(this)), m_contents(new QTreeWidget(this)),
      m_hits(new QListWidget(this)), m_side(new QStackedWidget(this)), m_page(new HelpBrowser(this))
{
    setObjectName(u"helpWindow"_s);
    setWindowTitle(tr("Help"));
    setWindowModality(Qt::NonModal);
    auto *parts = new QSplitter(this);
    parts->addWidget(makeSide());
    parts->addWidget(m_page);
    parts->setStretchFactor(1, 1);
    parts->setSizes({sideWidth, helpWindowSize.width() - sideWidth});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeTools());
    layout->addWidget(parts, 1);
    resize(helpWindowSize);
    connect(m_page, &HelpBrowser::refused, this, &HelpWindow::refused);
    connect(m_page, &QTextBrowser::sourceChanged, this, &HelpWindow::selectInContents);
}

QWidget *HelpWindow::makeSide()
{
    m_search->setObjectName(u"helpSearch"_s);
    m_search->setPlaceholderText(tr("Search"));
    m_search->setAccessibleName(tr("Search"));
    m_search->setClearButtonEnabled(true);
    m_contents->setObjectName(u"helpContents"_s);
    m_contents->setAccessibleName(tr("Contents"));
    m_contents->setHeaderHidden(true);
    m_hits->setObjectName(u"helpHits"_s);
    m_hits->setAccessibleName(tr("What was found"));
    m_hits->setWordWrap(true);
    m_hits->setSpacing(2);
    m_hits->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_side->addWidget(m_contents);
    m_side->addWidget(m_hits);
    auto *side = new QWidget(this);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(4, 4, 0, 4);
    layout->addWidget(m_search);
    layout->addWidget(m_side, 1);
    connect(m_search, &QLineEdit::textChanged, this, &HelpWindow::search);
    connect(m_search, &QLineEdit::returnPressed, this, [this] { openHit(std::max(m_hits->currentRow(), 0)); });
    connect(m_hits, &QListWidget::currentRowChanged, this, &HelpWindow::openHit);
    connect(m_contents, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem *item) {
        if (item)
            open(item->data(0, addressRole).toString());
    });
    return side;
}

QToolBar *HelpWindow::makeTools()
{
    auto *tools = new QToolBar(this);
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const auto add = [&](const QString &text, const QString &name, const QList<QKeySequence> &keys, auto body) {
        QAction *action = tools->addAction(text);
        action->setObjectName(name);
        action->setShortcuts(keys);
        if (!keys.isEmpty())
            action->setToolTip(u"%1 (%2)"_s.arg(text, keys.first().toString(QKeySequence::NativeText)));
        connect(action, &QAction::triggered, this, body);
        addAction(action);
        return action;
    };
    QAction *back = add(tr("Back"), u"helpBack"_s, {QKeySequence::Back}, [this] { m_page->backward(); });
    back->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    QAction *forward = add(tr("Forward"), u"helpForward"_s, {QKeySequence::Forward}, [this] { m_page->forward(); });
    forward->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
    add(tr("Contents"), u"helpStart"_s, {QKeySequence(u"Alt+Home"_s)}, [this] { open(u"index.html"_s); });
    add(tr("Index"), u"helpIndex"_s, {}, [this] { open(u"keywords.html"_s); });
    tools->addSeparator();
    add(tr("Larger"), u"helpLarger"_s, {QKeySequence::ZoomIn, QKeySequence(u"Ctrl+="_s)}, [this] { m_page->zoomIn(); });
    add(tr("Smaller"), u"helpSmaller"_s, {QKeySequence::ZoomOut}, [this] { m_page->zoomOut(); });
    add(tr("Print..."), u"helpPrint"_s, {QKeySequence::Print}, [this] { print(); });
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(m_page, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_page, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_search, [this] {
        m_search->setFocus();
        m_search->selectAll();
    });
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), m_search, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, m_search, &QLineEdit::clear);
    return tools;
}

void HelpWindow::showPage(const QString &folder, const QString &address)
{
    openBook(folder);
    QWidget *const modal = QApplication::activeModalWidget();
    standInFrontOf(modal ? *modal : m_window);
    open(address);
    show();
    raise();
    activateWindow();
    m_page->setFocus();
}

void HelpWindow::openBook(const QString &folder)
{
    if (m_book.folder() == folder)
        return;
    m_book = HelpBook(folder);
    m_search->clear();
    fillContents();
}

void HelpWindow::fillContents()
{
    const QSignalBlocker blocker(m_contents);
    m_contents->clear();
    QTreeWidgetItem *above[3] = {};
    for (const HelpBook::Entry &entry : m_book.contents()) {
        const int depth = std::clamp(entry.depth, 0, 2);
        QTreeWidgetItem *outer = depth > 0 ? above[depth - 1] : nullptr;
        auto *item = outer ? new QTreeWidgetItem(outer, {entry.title}) : new QTreeWidgetItem(m_contents, {entry.title});
        item->setData(0, addressRole, entry.address);
        // What is between a part and its pages is opened as one.
        item->setExpanded(depth == 0);
        above[depth] = item;
    }
}

void HelpWindow::selectInContents(const QUrl &page)
{
    const QSignalBlocker blocker(m_contents);
    for (QTreeWidgetItemIterator each(m_contents); *each; ++each) {
        if ((*each)->data(0, addressRole).toString() != page.fileName())
            continue;
        m_contents->setCurrentItem(*each);
        m_contents->scrollToItem(*each);
        return;
    }
    m_contents->setCurrentItem(nullptr);
}

void HelpWindow::search(const QString &sought)
{
    const QSignalBlocker blocker(m_hits);
    m_hits->clear();
    const QStringList words = HelpBook::words(sought);
    m_side->setCurrentWidget(words.isEmpty() ? static_cast<QWidget *>(m_contents) : m_hits);
    m_page->mark(words);
    if (words.isEmpty())
        return;
    for (const HelpBook::Hit &hit : m_book.search(sought)) {
        const QString title = hit.heading == hit.page ? hit.page : u"%1 – %2"_s.arg(hit.heading, hit.page);
        auto *item = new QListWidgetItem(title + u'\n' + hit.excerpt, m_hits);
        item->setData(addressRole, hit.address);
    }
    if (m_hits->count() == 0)
        new QListWidgetItem(tr("Nothing was found."), m_hits);
}

void HelpWindow::openHit(int row)
{
    if (const QListWidgetItem *item = m_hits->item(row))
        open(item->data(addressRole).toString());
}

void HelpWindow::open(const QString &address)
{
    if (address.isEmpty())
        return;
    QUrl page = QUrl::fromLocalFile(m_book.folder() + u'/' + address.section(u'#', 0, 0));
    if (address.contains(u'#'))
        page.setFragment(address.section(u'#', 1));
    if (page != m_page->source())
        m_page->setSource(page);
}

void HelpWindow::print()
{
    QPrinter printer;
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        m_page->print(&printer);
}

void HelpWindow::standInFrontOf(QWidget &owner)
{
    if (parentWidget() == &owner)
        return;
    const bool wasOpen = isVisible();
    const QRect place = geometry();
    setParent(&owner, windowFlags());
    setGeometry(place);
    // Who answers prompts when the dialog has gone keeps the keyboard.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setVisible(wasOpen);
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    if (&owner == &m_window)
        return;
    const auto leave = [this, &owner] {
        if (parentWidget() == &owner)
            standInFrontOf(m_window);
    };
    connect(&owner, &QObject::destroyed, this, leave);
    if (auto *dialog = qobject_cast<QDialog *>(&owner))
        connect(dialog, &QDialog::finished, this, leave);
}

WindowHelpViewer::WindowHelpViewer(QWidget &window, std::function<void(const QUrl &)> refused)
    : m_window(window), m_refused(std::move(refused))
{
}

WindowHelpViewer::~WindowHelpViewer()
{
    delete m_help;
}

void WindowHelpViewer::show(const QString &folder, const QString &address, bool keepOpen)
{
    if (!m_help) {
        m_help = new HelpWindow(m_window);
        QObject::connect(m_help, &HelpWindow::refused, m_help, m_refused);
    }
    if (keepOpen && m_help->isVisible())
        m_help->raise();
    else
        m_help->showPage(folder, address);
}

} // namespace host::app
