#pragma once

#include "host/app/window/frame/NoticeBar.h"
#include "host/kernel/files/TrustedFolders.h"

class QPushButton;

namespace host::app {

/// A bar that says what the active drawing, or a program in it, was kept from doing, while there is
/// something. Its list has what it was and why; what is chosen there, or all of it, can be allowed this once or for its
/// folder. Closed, it comes back with the next news. It changes nothing while something runs.
class TrustBar final : public NoticeBar
{
    Q_OBJECT

public:
    /// The services must outlive it.
    explicit TrustBar(WindowServices &services, QWidget *parent = nullptr);

protected:
    void follow(kernel::Document *document) override;

private:
    void showNews();
    /// What there is now; hides the bar when that is nothing.
    void update();
    QString summary() const;
    void allow(kernel::TrustedFolders::Allowance allowance);
    /// What is chosen in the list, else all that can be allowed.
    std::vector<kernel::KeptBack> meant() const;

    QPushButton *m_once;
    QPushButton *m_folder;
};

} // namespace host::app
