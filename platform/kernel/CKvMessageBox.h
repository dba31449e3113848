#pragma once

#include "platform/Export.h"

#include <QMessageBox>

/// The host's message boxes. Each runs until the user answers and returns the button; closing the box counts as the
/// box's escape button.
class KV_EXPORT CKvMessageBox
{
public:
    using Button = QMessageBox::StandardButton;
    using Buttons = QMessageBox::StandardButtons;

    static Button information(QWidget *parent, const QString &title, const QString &text,
                              Buttons buttons = QMessageBox::Ok);
    /// `explanation` is shown below the text, in a smaller or plainer hand.
    static Button warning(QWidget *parent, const QString &title, const QString &text, Buttons buttons = QMessageBox::Ok,
                          const QString &explanation = {});
    static Button critical(QWidget *parent, const QString &title, const QString &text,
                           Buttons buttons = QMessageBox::Ok);
    static Button question(QWidget *parent, const QString &title, const QString &text,
                           Buttons buttons = QMessageBox::Yes | QMessageBox::No);
};
