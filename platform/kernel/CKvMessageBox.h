#pragma once

#include "platform/Export.h"

#include <QMessageBox>

/// The host's message boxes. Each runs until the user answers and returns the button; closing the box counts as the
/// box's escape button, and where it has none as No or else as its last button. Texts are plain: what a file name or
/// message holds is never taken for markup. `parent` may be null, and may be gone when the call returns.
class KV_EXPORT CKvMessageBox
{
public:
    // Buttons are Qt's; the box shows them in the order that the platform has them.
    using Button = QMessageBox::StandardButton;
    using Buttons = QMessageBox::StandardButtons;

    /// Tells of something that needs no decision.
    static Button information(QWidget *parent, const QString &title, const QString &text,
                              Buttons buttons = QMessageBox::Ok);
    /// Tells of something that went wrong or may be unwanted. `explanation` is shown below the text, in a smaller or
    /// plainer hand; without one the box has its text alone.
    static Button warning(QWidget *parent, const QString &title, const QString &text, Buttons buttons = QMessageBox::Ok,
                          const QString &explanation = {});
    /// Tells of something that cannot go on. Nothing is ended by it.
    static Button critical(QWidget *parent, const QString &title, const QString &text,
                           Buttons buttons = QMessageBox::Ok);
    /// Asks, and returns one of `buttons`. None of them is pressed by itself, so a run that nobody watches needs
    /// somebody who answers for it.
    static Button question(QWidget *parent, const QString &title, const QString &text,
                           Buttons buttons = QMessageBox::Yes | QMessageBox::No);
};
