#pragma once

#include "host/app/window/frame/NoticeBar.h"

namespace host::app {

/// Says how many objects of the active drawing's file could not be read, or that it is damaged; its list has which
/// objects, and why. Closed, it stays closed until another drawing is shown; it goes when the drawing gets another
/// file.
class LossBar final : public NoticeBar
{
    Q_OBJECT

public:
    explicit LossBar(WindowServices &services, QWidget *parent = nullptr);

protected:
    void follow(kernel::Document *document) override;

private:
    void leaveWhenSaved();
};

} // namespace host::app
