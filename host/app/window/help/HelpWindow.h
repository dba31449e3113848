#pragma once

#include "host/app/window/help/HelpBook.h"
#include "host/kernel/platform/HelpService.h"

#include <QPointer>
#include <QWidget>

#include <functional>

class QLineEdit;
class QListWidget;
class QStackedWidget;
class QToolBar;
class QTreeWidget;
class QUrl;

namespace host::app {

class HelpBrowser;

/// The manual: its contents as a tree, a field that finds words in all of it, the page. Made when it is first wanted,
/// it stands in front of the window, and in front of a modal dialog that help was asked for from: it can be used beside
/// that, and stays when the dialog goes.
class HelpWindow : public QWidget
{
    Q_OBJECT

public:
    /// `window` is the program's, which owns this.
    explicit HelpWindow(QWidget &window);

    /// Shows a page of the folder, with or without an anchor, and comes to the front.
    void showPage(const QString &folder, const QString &address);

signals:
    /// A link that leads out of the pages, and not to the web.
    void refused(const QUrl &link);

private:
    QWidget *makeSide();
    QToolBar *makeTools();
    void openBook(const QString &folder);
    void fillContents();
    /// The page's line in the tree.
    void selectInContents(const QUrl &page);
    void search(const QString &sought);
    void openHit(int row);
    void open(const QString &address);
    void print();
    /// A modal dialog blocks every window but those that belong to it.
    void standInFrontOf(QWidget &owner);

    QWidget &m_window;
    HelpBook m_book{QString()};
    QLineEdit *m_search;
    QTreeWidget *m_contents;
    QListWidget *m_hits;
    QStackedWidget *m_side; ///< the contents, or what was found
    HelpBrowser *m_page;
};

/// Makes the window when the first page is to be shown.
class WindowHelpViewer : public kernel::HelpViewer
{
public:
    /// `refused` is told of links that are not followed.
    WindowHelpViewer(QWidget &window, std::function<void(const QUrl &)> refused);
    ~WindowHelpViewer() override;

    void show(const QString &folder, const QString &address, bool keepOpen) override;

private:
    QWidget &m_window;
    std::function<void(const QUrl &)> m_refused;
    QPointer<HelpWindow> m_help;
};

} // namespace host::app
