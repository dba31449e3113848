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
class Dlg_QT_TextMask final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_TextMask(QWidget *parent = nullptr);
    ~Dlg_QT_TextMask() override;

public slots:
    /// Puts the drawing's setting back to what it was when the dialog was shown.
    void reject() override;

protected:
    void beforeShow() override;
    void afterShow() override;

private:
    /// Follows the type: sets the drawing's setting, and turns off what has no meaning.
    void updateDialog();
    /// Closes when the offset is a number that is not negative.
    void checkValues();

    std::unique_ptr<Ui::Dlg_QT_TextMask> m_ui;
    const DrawingSetting m_maskFrames;
    /// The setting when the dialog was made, and when it was last shown; nothing where the drawing has none.
    const std::optional<qint16> m_savedFrames;
    std::optional<qint16> m_shownFrames;
};
