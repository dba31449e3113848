#pragma once

#include "dialogs/textmask/DrawingSetting.h"
#include "state/ToolDialog.h"

#include <memory>

namespace Ui {
class Dlg_QT_TextMask;
}

/// The text mask dialog: what is put behind texts to hide what lies there, and how far it reaches beyond them.
///
/// The frames of masks are hidden (WIPEOUTFRAME 0) while "Mask" is chosen. For the other types the drawing's setting is
/// the one that the dialog found when it was made, and so it is again when the dialog is destroyed. Cancelling puts
/// back what there was when the dialog was shown; confirming leaves the setting for the masks that are then made.
///
/// | key | value |
/// |---|---|
/// | type_mask, type_3dface, type_solid | TRUE for what the mask is made of |
/// | offset | distance from the text, as typed |
/// | color | number of a solid's colour, 0 to 256 |
///
/// OK wants an offset that Lisp reads as a finite number, zero or more; otherwise it says "Wrong dimension value." with
/// "Must be positive or zero." below, and stays open. It sets no action word.
class Dlg_QT_TextMask final : public ToolDialog
{
    Q_OBJECT

public:
    /// Reads WIPEOUTFRAME of the document that is active then, which is the one whose setting it changes from then on
    /// and which may be closed before the dialog goes.
    explicit Dlg_QT_TextMask(QWidget *parent = nullptr);
    /// Puts the setting back to what it was when the dialog was made.
    ~Dlg_QT_TextMask() override;

public slots:
    /// Puts the drawing's setting back to what it was when the dialog was shown.
    void reject() override;

protected:
    /// Remembers the setting for a cancel.
    void beforeShow() override;
    void afterShow() override;

private:
    /// With each type: the setting changes at once, before OK.
    void updateDialog();
    /// The slot of OK.
    void checkValues();

    std::unique_ptr<Ui::Dlg_QT_TextMask> m_ui;
    const DrawingSetting m_maskFrames; ///< WIPEOUTFRAME
    /// The setting when the dialog was made, and when it was last shown; nothing where the drawing has none.
    const std::optional<qint16> m_savedFrames;
    std::optional<qint16> m_shownFrames;
};
