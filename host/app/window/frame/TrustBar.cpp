#include "host/app/window/frame/TrustBar.h"

#include "files/qt/VisibleText.h"
#include "host/app/window/frame/WindowServices.h"

#include <QDir>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using Allowance = kernel::TrustedFolders::Allowance;
using kernel::KeptBack;

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
    : NoticeBar(u"trust"_s, services, parent), m_once(new QPushButton(tr("Allow &once"), this)),
      m_folder(new QPushButton(tr("Trust the folde&r"), this))
{
    setAccessibleName(tr("What was kept from running or being read"));
    list().setAccessibleName(tr("Files and programs that were kept back"));
    m_once->setObjectName(u"trustOnce"_s);
    m_folder->setObjectName(u"trustFolder"_s);
    for (QPushButton *button : {m_once, m_folder})
        addButton(button);
    connect(m_once, &QPushButton::clicked, this, [this] { allow(Allowance::Once); });
    connect(m_folder, &QPushButton::clicked, this, [this] { allow(Allowance::Folder); });
    connect(&services, &WindowServices::stateChanged, this, [this] {
        if (isVisible())
            update();
    });
}

void TrustBar::follow(kernel::Document *document)
{
    NoticeBar::follow(document);
    // Files are looked for while the drawing is painted, which is no moment to make room for a bar.
    if (document)
        connect(document, &kernel::Document::keptBackChanged, this, &TrustBar::showNews, Qt::QueuedConnection);
    showNews();
}

void TrustBar::showNews()
{
    update();
    setVisible(document() && !document()->keptBack().isEmpty());
}

void TrustBar::update()
{
    QStringList lines;
    bool canAllow = false;
    if (document())
        for (const KeptBack &item : document()->keptBack().items()) {
            lines.append(lineFor(item));
            canAllow = canAllow || item.mayBeAllowed;
        }
    say(summary(), lines);
    m_once->setEnabled(canAllow && !services().isBusy());
    m_folder->setEnabled(canAllow && !services().isBusy());
}

QString TrustBar::summary() const
{
    if (!document() || document()->keptBack().isEmpty())
        return {};
    const kernel::KeptBackList &list = document()->keptBack();
    const std::size_t count = list.items().size() + list.furtherCount();
    return count == 1 ? lineFor(list.items().front())
                      : tr("%1 things were kept back: they are named here but not in trusted folders.").arg(count);
}

std::vector<KeptBack> TrustBar::meant() const
{
    std::vector<KeptBack> wanted;
    const QList<QListWidgetItem *> chosen = list().selectedItems();
    const std::vector<KeptBack> &items = document()->keptBack().items();
    for (std::size_t i = 0; i < items.size(); ++i)
        if (items[i].mayBeAllowed && (chosen.isEmpty() || chosen.contains(list().item(int(i)))))
            wanted.push_back(items[i]);
    return wanted;
}

void TrustBar::allow(Allowance allowance)
{
    if (!document() || services().isBusy())
        return;
    const QPointer<kernel::Document> kept = document();
    for (const KeptBack &item : meant()) {
        const QString problem = services().session().trustedFolders().allow(*kept, item, allowance);
        if (!problem.isEmpty()) {
            services().tell(problem);
            continue;
        }
        // The program was wanted a moment ago; it may close the drawing.
        if (item.act == KeptBack::Act::Run)
            services().run(
                item.path.endsWith(u".scr"_s, Qt::CaseInsensitive)
                    ? u"_.SCRIPT \"%1\""_s.arg(item.path)
                    : u"(load \"%1\")"_s.arg(QString(item.path).replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s)));
        if (!kept)
            return;
    }
}

} // namespace host::app
