#include "host/app/window/files/StartPage.h"

#include "files/qt/VisibleText.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr QSize startPictureSize(160, 110);
constexpr int pathRole = Qt::UserRole;
constexpr int pinnedRole = Qt::UserRole + 1;

QLabel *startHeading(const QString &text)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    font.setBold(true);
    label->setFont(font);
    return label;
}

/// What stands for a picture that is not made yet, or cannot be.
QPixmap noPicture(const QPalette &palette)
{
    QPixmap pixmap(startPictureSize);
    pixmap.fill(palette.color(QPalette::AlternateBase));
    return pixmap;
}

QString shownFolder(const QString &path)
{
    return files::visibleText(QDir::toNativeSeparators(QFileInfo(path).absolutePath()));
}

} // namespace

StartPage::StartPage(RecentFiles &recent, const QString &samples, const QString &pictureFolder, QWidget *parent)
    : QWidget(parent), m_recent(recent), m_pictures(startPictureSize, pictureFolder),
      m_recentList(makeList(u"recentFiles"_s, tr("Recent drawings"))), m_samples(makeList(u"samples"_s, tr("Samples")))
{
    setObjectName(u"startPage"_s);
    setAutoFillBackground(true);
    auto *side = new QVBoxLayout;
    side->addWidget(startHeading(tr("Ortakit")));
    side->addWidget(makeButtons());
    side->addSpacing(16);
    side->addWidget(startHeading(tr("First steps")));
    side->addWidget(makeFirstSteps());
    side->addStretch(1);
    auto *lists = new QVBoxLayout;
    lists->addWidget(startHeading(tr("Recent drawings")));
    lists->addWidget(m_recentList, 2);
    lists->addWidget(startHeading(tr("Samples")));
    lists->addWidget(m_samples, 1);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(24);
    layout->addLayout(side);
    layout->addLayout(lists, 1);

    m_recentList->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_recentList, &QWidget::customContextMenuRequested, this, &StartPage::showMenu);
    connect(m_recentList, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem *item) { emit fileWanted(item->data(pathRole).toString()); });
    connect(m_samples, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem *item) { emit sampleWanted(item->data(pathRole).toString()); });
    connect(&m_pictures, &FilePictures::made, this, &StartPage::showPicture);
    connect(&m_recent, &RecentFiles::changed, this, &StartPage::fillRecent);
    setFocusProxy(m_recent.all().isEmpty() ? findChild<QPushButton *>(u"startNew"_s)
                                           : static_cast<QWidget *>(m_recentList));
    fillRecent();
    fillSamples(samples);
}

QWidget *StartPage::makeButtons()
{
    auto *buttons = new QWidget;
    auto *layout = new QVBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const QString &text, const QString &name, auto signal) {
        auto *button = new QPushButton(text);
        button->setObjectName(name);
        button->setAutoDefault(true); // Enter presses it where it has the keyboard
        connect(button, &QPushButton::clicked, this, signal);
        layout->addWidget(button);
        return button;
    };
    add(tr("&New drawing"), u"startNew"_s, &StartPage::newWanted);
    add(tr("&Open drawings..."), u"startOpen"_s, &StartPage::openWanted);
    m_lastTime = add(tr("Open &last time's drawings"), u"startLastTime"_s, &StartPage::lastTimeWanted);
    m_lastTime->hide();
    return buttons;
}

QWidget *StartPage::makeFirstSteps()
{
    auto *steps = new QLabel(
        u"<p><a href=\"sample\">%1</a></p><p><a href=\"line\">%2</a></p><p><a href=\"help\">%3</a></p>"_s.arg(
            tr("Look at a sample").toHtmlEscaped(), tr("Draw a line").toHtmlEscaped(),
            tr("Read the help").toHtmlEscaped()));
    steps->setObjectName(u"firstSteps"_s);
    steps->setAccessibleName(tr("First steps"));
    steps->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    steps->setFocusPolicy(Qt::StrongFocus);
    connect(steps, &QLabel::linkActivated, this, &StartPage::followStep);
    return steps;
}

void StartPage::followStep(const QString &link)
{
    if (link == "help"_L1)
        emit helpWanted();
    else if (link == "line"_L1)
        emit commandWanted(u"_LINE"_s);
    else if (const QListWidgetItem *first = m_samples->item(0))
        emit sampleWanted(first->data(pathRole).toString());
}

QListWidget *StartPage::makeList(const QString &objectName, const QString &accessibleName)
{
    auto *list = new QListWidget;
    list->setObjectName(objectName);
    list->setAccessibleName(accessibleName);
    list->setViewMode(QListView::IconMode);
    list->setIconSize(startPictureSize);
    list->setGridSize(startPictureSize + QSize(24, 2 * list->fontMetrics().lineSpacing() + 20));
    list->setResizeMode(QListView::Adjust);
    list->setMovement(QListView::Static);
    list->setWordWrap(true);
    list->setTextElideMode(Qt::ElideMiddle);
    return list;
}

void StartPage::setLastTime(bool areThere)
{
    m_lastTime->setVisible(areThere);
}

QListWidgetItem *StartPage::addFile(QListWidget &list, const QString &path, const QString &text)
{
    auto *item = new QListWidgetItem(text, &list);
    item->setData(pathRole, path);
    item->setToolTip(
        Qt::convertFromPlainText(files::visibleText(QDir::toNativeSeparators(path)), Qt::WhiteSpaceNormal));
    const QImage picture = m_made.value(path);
    item->setIcon(picture.isNull() ? QIcon(noPicture(palette())) : QIcon(QPixmap::fromImage(picture)));
    m_pictures.want(path);
    return item;
}

void StartPage::fillRecent()
{
    m_recentList->clear();
    for (const RecentFile &file : m_recent.all()) {
        const QString name = files::visibleText(QFileInfo(file.path).fileName());
        const bool isThere = QFileInfo(file.path).isFile();
        const QString state = isThere ? shownFolder(file.path) : tr("(not there any more)");
        QListWidgetItem *item =
            addFile(*m_recentList, file.path, (file.isPinned ? tr("%1 (pinned)").arg(name) : name) + u'\n' + state);
        item->setData(pinnedRole, file.isPinned);
        if (!isThere)
            item->setForeground(palette().color(QPalette::Disabled, QPalette::Text));
    }
    if (m_recentList->count() > 0)
        m_recentList->setCurrentRow(0);
}

void StartPage::fillSamples(const QString &folder)
{
    if (!folder.isEmpty())
        for (const QFileInfo &file : QDir(folder).entryInfoList({u"*.dxf"_s}, QDir::Files, QDir::Name))
            addFile(*m_samples, file.absoluteFilePath(), file.completeBaseName());
    if (m_samples->count() > 0)
        m_samples->setCurrentRow(0);
}

void StartPage::showPicture(const QString &path, const QImage &picture)
{
    if (picture.isNull())
        return;
    m_made.insert(path, picture);
    for (QListWidget *list : {m_recentList, m_samples})
        for (int i = 0; i < list->count(); ++i)
            if (QListWidgetItem *item = list->item(i); item->data(pathRole) == path)
                item->setIcon(QIcon(QPixmap::fromImage(picture)));
}

void StartPage::showMenu(const QPoint &place)
{
    const QListWidgetItem *item = m_recentList->itemAt(place);
    if (!item)
        return;
    const QString path = item->data(pathRole).toString();
    const bool isPinned = item->data(pinnedRole).toBool();
    QMenu menu(this);
    // The list is filled anew by what these do, when the menu is closed.
    menu.addAction(isPinned ? tr("Un&pin") : tr("&Pin"), this,
                   [this, path, isPinned] { m_recent.setPinned(path, !isPinned); });
    menu.addAction(tr("&Remove from the list"), this, [this, path] { m_recent.remove(path); });
    menu.exec(m_recentList->viewport()->mapToGlobal(place));
}

} // namespace host::app
