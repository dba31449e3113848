#pragma once

#include "host/kernel/documents/Document.h"

#include <QFrame>
#include <QPointer>

class QHBoxLayout;
class QLabel;
class QListWidget;

namespace host::app {

class WindowServices;

/// A bar above the drawing with news of the active document: a sentence, a list behind "Details", and a way to close
/// it. Hidden while there is nothing to say.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    /// Widgets are named after it: `name` + "Text", "List", "Details", "Close". The services must outlive it.
    NoticeBar(const QString &name, WindowServices &services, QWidget *parent);

protected:
    /// Another document became active; null when none is open. Whoever overrides it calls it first.
    virtual void follow(kernel::Document *document);
    kernel::Document *document() const { return m_document; }
    WindowServices &services() { return m_services; }
    QListWidget &list() { return *m_list; }
    const QListWidget &list() const { return *m_list; }
    /// Replaces sentence and list; shows nothing by itself.
    void say(const QString &text, const QStringList &lines);
    /// Puts a button in front of "Details".
    void addButton(QWidget *button);

private:
    WindowServices &m_services;
    QPointer<kernel::Document> m_document;
    QLabel *m_text;
    QListWidget *m_list;
    QHBoxLayout *m_line;
};

} // namespace host::app
