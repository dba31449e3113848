#include "host/app/window/frame/TrustBar.h"

#include "files/qt/VisibleText.h"
#include "host/app/window/frame/WindowServices.h"

#include <QBoxLayout>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using Allowance = kernel::TrustedFolders::Allowance;
using kernel::KeptBack;

constexpr int listHeight = 110;

QString wordsFor(KeptBack::Act act)
{
    switch (act) {
    case KeptBack::Act::Read:
        return TrustBar::tr("%1 was not read: %2");
    case KeptBack::Act::Run:
        return TrustBar::tr("%1 was not loaded: %2");
    case KeptBack::Act::Start:
        break;
    }
    return TrustBar::tr("%1 was not started: %2");
}

QString lineFor(const KeptBack &item)
{
    return wordsFor(item.act).arg(files::visibleText(QDir::toNativeSeparators(item.path)), item.reason);
}

} // namespace

TrustBar::TrustBar(WindowServices &services, QWidget *parent)
    : QFrame(parent), m_services(services), m_text(new QLabel(this)), m_list(new QListWidget(this)),
      m_once(new QPushButton(tr("Allow &once"), this)), m_folder(new QPushButton(tr("Trust the folde&r"), this))
{
    setObjectName(u"trustBar"_s);
    setAccessibleName(tr("What was kept from running or being read"));
    setFrameShape(QFrame::StyledPanel);
    m_text->setObjectName(u"trustText"_s);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_list->setObjectName(u"trustList"_s);
    m_list->setAccessibleName(tr("Files and programs that were kept back"));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setMaximumHeight(listHeight);
    m_list->hide();
    m_once->setObjectName(u"trustOnce"_s);
    m_folder->setObjectName(u"trustFolder"_s);
    auto *details = new QPushButton(tr("Detai&ls"), this);
    details->setObjectName(u"trustDetails"_s);
    details->setCheckable(true);
    auto *close = new QToolButton(this);
    close->setObjectName(u"trustClose"_s);
    close->setAccessibleName(tr("Close"));
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setAutoRaise(true);

    auto *line = new QHBoxLayout;
    line->addWidget(m_text, 1);
    for (QPushButton *button : {m_once, m_folder, details})
        line->addWidget(button);
    line->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 3, 6, 3);
    layout->addLayout(line);
    layout->addWidget(m_list);

    connect(details, &QPushButton::toggled, m_list, &QWidget::setVisible);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    connect(m_once, &QPushButton::clicked, this, [this] { allow(Allowance::Once); });
    connect(m_folder, &QPushButton::clicked, this, [this] { allow(Allowance::Folder); });
    connect(&m_services, &WindowServices::documentChanged, this, &TrustBar::follow);
    connect(&m_services, &WindowServices::stateChanged, this, [this] {
        if (isVisible())
            update();
    });
    hide();
}

void TrustBar::follow(kernel::Document *document)
{
    if (m_document)
        m_document->disconnect(this);
    m_document = document;
    // Files are looked for while the drawing is painted, which is no moment to make room for a bar.
    if (document)
        connect(document, &kernel::Document::keptBackChanged, this, &TrustBar::showNews, Qt::QueuedConnection);
    showNews();
}

void TrustBar::showNews()
{
    update();
    setVisible(m_document && !m_document->keptBack().isEmpty());
}

void TrustBar::update()
{
    m_list->clear();
    bool canAllow = false;
    if (m_document)
        for (const KeptBack &item : m_document->keptBack().items()) {
            m_list->addItem(lineFor(item));
            m_list->item(m_list->count() - 1)->setToolTip(lineFor(item));
            canAllow = canAllow || item.mayBeAllowed;
        }
    m_text->setText(summary());
    m_once->setEnabled(canAllow && !m_services.isBusy());
    m_folder->setEnabled(canAllow && !m_services.isBusy());
}

QString TrustBar::summary() const
{
    if (!m_document || m_document->keptBack().isEmpty())
        return {};
    const kernel::KeptBackList &list = m_document->keptBack();
    const std::size_t count = list.items().size() + list.furtherCount();
    return count == 1 ? lineFor(list.items().front())
                      : tr("%1 things were kept back: they are named here but not in trusted folders.").arg(count);
}

std::vector<KeptBack> TrustBar::meant() const
{
    std::vector<KeptBack> wanted;
    const QList<QListWidgetItem *> chosen = m_list->selectedItems();
    const std::vector<KeptBack> &items = m_document->keptBack().items();
    for (std::size_t i = 0; i < items.size(); ++i)
        if (items[i].mayBeAllowed && (chosen.isEmpty() || chosen.contains(m_list->item(int(i)))))
            wanted.push_back(items[i]);
    return wanted;
}

void TrustBar::allow(Allowance allowance)
{
    if (!m_document || m_services.isBusy())
        return;
    const QPointer<kernel::Document> document = m_document;
    for (const KeptBack &item : meant()) {
        const QString problem = m_services.session().trustedFolders().allow(*document, item, allowance);
        if (!problem.isEmpty()) {
            m_services.tell(problem);
            continue;
        }
        // The program was wanted a moment ago; it may close the drawing.
        if (item.act == KeptBack::Act::Run)
            m_services.run(
                item.path.endsWith(u".scr"_s, Qt::CaseInsensitive)
                    ? u"_.SCRIPT \"%1\""_s.arg(item.path)
                    : u"(load \"%1\")"_s.arg(QString(item.path).replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s)));
        if (!document)
            return;
    }
}

} // namespace host::app
