#include "host/app/window/frame/NoticeBar.h"

#include "host/app/window/frame/WindowServices.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr int listHeight = 110;

} // namespace

NoticeBar::NoticeBar(const QString &name, WindowServices &services, QWidget *parent)
    : QFrame(parent), m_services(services), m_text(new QLabel(this)), m_list(new QListWidget(this)),
      m_line(new QHBoxLayout)
{
    setObjectName(name + u"Bar"_s);
    setFrameShape(QFrame::StyledPanel);
    m_text->setObjectName(name + u"Text"_s);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_list->setObjectName(name + u"List"_s);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setMaximumHeight(listHeight);
    m_list->hide();
    auto *details = new QPushButton(tr("Detai&ls"), this);
    details->setObjectName(name + u"Details"_s);
    details->setCheckable(true);
    auto *close = new QToolButton(this);
    close->setObjectName(name + u"Close"_s);
    close->setAccessibleName(tr("Close"));
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setAutoRaise(true);
    m_line->addWidget(m_text, 1);
    m_line->addWidget(details);
    m_line->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 3, 6, 3);
    layout->addLayout(m_line);
    layout->addWidget(m_list);

    connect(details, &QPushButton::toggled, m_list, &QWidget::setVisible);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    connect(&m_services, &WindowServices::documentChanged, this, &NoticeBar::follow);
    hide();
}

void NoticeBar::follow(kernel::Document *document)
{
    if (m_document)
        m_document->disconnect(this);
    m_document = document;
}

void NoticeBar::say(const QString &text, const QStringList &lines)
{
    m_text->setText(text);
    m_list->clear();
    for (const QString &line : lines) {
        m_list->addItem(line);
        m_list->item(m_list->count() - 1)->setToolTip(line);
    }
}

void NoticeBar::addButton(QWidget *button)
{
    m_line->insertWidget(m_line->count() - 2, button);
}

} // namespace host::app
