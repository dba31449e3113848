#include "state/widgets/PlainTexts.h"

#include "files/qt/VisibleText.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLocale>
#include <QToolTip>

#include <typeinfo>

namespace ortakit {

namespace {

constexpr char markupProperty[] = "hasToolTipMarkup";

/// Of the cell or the heading there.
QString toolTipOfView(const QAbstractItemView &view, const QPoint &place)
{
    if (const auto *header = qobject_cast<const QHeaderView *>(&view)) {
        const int section = header->logicalIndexAt(place);
        if (section < 0 || !header->model())
            return {};
        return header->model()->headerData(section, header->orientation(), Qt::ToolTipRole).toString();
    }
    return view.indexAt(place).data(Qt::ToolTipRole).toString();
}

QString toolTipOf(const QWidget &widget, const QPoint &place)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(widget.parentWidget());
    const bool isViewport = view && view->viewport() == &widget;
    const QString text = isViewport ? toolTipOfView(*view, place) : QString();
    return text.isEmpty() ? widget.toolTip() : text;
}

class PlainToolTips final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::ToolTip)
            return false;
        auto *widget = static_cast<QWidget *>(watched);
        const auto *help = static_cast<const QHelpEvent *>(event);
        QString text = toolTipOf(*widget, help->pos());
        if (text.isEmpty() || widget->property(markupProperty).toBool())
            return false;
        // Its own line ends part the lines of a tool tip.
        QStringList lines = text.split(u'\n');
        std::transform(lines.begin(), lines.end(), lines.begin(), files::visibleText);
        text = lines.join(u'\n');
        QToolTip::showText(help->globalPos(), Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text, widget,
                           {}, widget->toolTipDuration());
        return true;
    }
};

} // namespace

QString VisibleTextDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    if (value.userType() != QMetaType::QString)
        return QStyledItemDelegate::displayText(value, locale);
    return files::visibleText(value.toString());
}

void showPlainTexts(QWidget &window)
{
    const QString name = QStringLiteral("plainToolTips");
    auto *toolTips = window.findChild<QObject *>(name, Qt::FindDirectChildrenOnly);
    if (!toolTips) {
        toolTips = new PlainToolTips(&window);
        toolTips->setObjectName(name);
    }
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        widget->installEventFilter(toolTips);
        auto *view = qobject_cast<QAbstractItemView *>(widget);
        const QAbstractItemDelegate *delegate = view ? view->itemDelegate() : nullptr;
        if (delegate && typeid(*delegate) == typeid(QStyledItemDelegate))
            view->setItemDelegate(new VisibleTextDelegate(view));
    }
}

void keepToolTipMarkup(QWidget &widget)
{
    widget.setProperty(markupProperty, true);
}

} // namespace ortakit
