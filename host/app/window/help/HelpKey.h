#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

class QMenu;
class QWidget;

namespace host::app {

/// The topics (see kernel::HelpTopics) that help is wanted about where the keyboard is, the closest first: the name
/// that is being written at the command line or in the Lisp console, the entry of a menu, the setting, the part of the
/// window, the dialog.
struct HelpKeys
{
    QStringList word;  ///< about a name
    QStringList place; ///< about where it is
};
HelpKeys helpKeysAt(const QWidget &widget);
HelpKeys helpKeysOf(const QMenu &menu);

/// F1 in the windows and menus that have no F1 of their own: settings, boxes, dialogs of Lisp programs.
class HelpKey : public QObject
{
public:
    /// `wanted` gets the topics of the place; an open menu is closed before.
    HelpKey(std::function<void(const HelpKeys &)> wanted, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::function<void(const HelpKeys &)> m_wanted;
};

} // namespace host::app
