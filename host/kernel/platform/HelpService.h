#pragma once

#include "platform/kernel/CKvHelp.h"

#include <QStringList>

#include <memory>

namespace host::kernel {

class HelpTopics;
class Session;

/// Shows pages of help in a window.
class HelpViewer
{
public:
    virtual ~HelpViewer() = default;
    /// `address` is a page of the folder, with or without an anchor. `keepOpen` leaves what is shown already.
    virtual void show(const QString &folder, const QString &address, bool keepOpen) = 0;
};

/// The help pages of the host: says which page is meant and has the viewer show it. In a run without a window the
/// page's file name is printed on the command line instead.
class HelpService final : public CKvHelp
{
public:
    explicit HelpService(Session &session);
    ~HelpService() override;

    /// Not owned; null, as in the beginning, for a run without a window.
    void setViewer(HelpViewer *viewer) { m_viewer = viewer; }

    /// `helpFile` is the folder of the pages; empty means the session's. The page is that of the topic (see
    /// HelpTopics), <topic>.html where the folder says none, or index.html. In the session's own folder a modal dialog
    /// that has a page of its own gets that, whatever number is asked for: some dialogs share one, some have none.
    void Help(const OdString &helpFile, int topic, bool keepOpen, QWidget *parent, int style) override;

    /// Shows the page of the first of these topics that there is one of, else the start page.
    void show(const QStringList &keys);
    /// Whether one of these topics has a page in the session's folder.
    bool knows(const QStringList &keys) const;

private:
    void show(const QString &folder, const QStringList &keys, bool keepOpen);
    /// Of the session's folder, read when it is first asked for.
    const HelpTopics &topics() const;

    Session &m_session;
    HelpViewer *m_viewer = nullptr;
    mutable std::unique_ptr<HelpTopics> m_topics;
};

} // namespace host::kernel
