#pragma once

#include <QTextBrowser>

namespace host::app {

/// Shows pages of help in the colours of the desktop, light or dark; pictures have a dark twin (x-dark.png) for that.
/// Links lead to pages of the same folder and, in the system's browser, to the web: refused() tells of all others.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget *parent = nullptr);

    /// Marks these words wherever they stand at the begin of a word, on this page and those shown later; an empty list
    /// takes the marks off. The row or heading that a link led to is marked as well.
    void mark(const QStringList &words);

    QVariant loadResource(int type, const QUrl &name) override;

signals:
    void refused(const QUrl &link);

protected:
    void changeEvent(QEvent *event) override;

private:
    void follow(const QUrl &link);
    void updateMarks();
    QTextCursor target() const;
    bool isDark() const;

    QStringList m_marked;
    QString m_anchor; ///< that the page was opened at
};

} // namespace host::app
