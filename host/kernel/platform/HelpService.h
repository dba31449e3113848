#pragma once

#include "platform/kernel/CKvHelp.h"

#include <QPointer>

class QTextBrowser;
class QUrl;

namespace host::kernel {

class Session;

/// Shows help pages: <topic>.html of a folder, index.html for a topic without a page. The window stands in front of the
/// modal dialog it was asked for from, can be used beside it and stays when the dialog goes. In a run without a window
/// the page's file name is printed on the command line instead.
class HelpService final : public CKvHelp
{
public:
    explicit HelpService(Session &session) : m_session(session) {}
    ~HelpService() override;

    /// `helpFile` is the folder of the pages; empty means the session's.
    void Help(const OdString &helpFile, int topic, bool keepOpen, QWidget *parent, int style) override;

    /// The page of a topic; empty when the folder has neither that nor a start page.
    static QString page(const QString &folder, int topic);

private:
    QTextBrowser &browser();
    void follow(const QUrl &link);
    void standInFrontOf(QWidget &owner);

    Session &m_session;
    QPointer<QTextBrowser> m_browser;
};

} // namespace host::kernel
