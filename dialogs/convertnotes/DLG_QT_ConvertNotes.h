#pragma once

#include "state/ToolDialog.h"

#include <memory>

namespace Ui {
class DLG_QT_ConvertNotes;
}

/// The options of the tool that converts simple notes: what of a note is kept, in which order the notes are taken, and
/// whether the new text wraps. Closes with no action word; Lisp converts the notes.
///
/// All options are in the state file under their widgets' names, and none of them depends on another or on the drawing:
/// OK takes them as they are.
class DLG_QT_ConvertNotes final : public ToolDialog
{
    Q_OBJECT

public:
    explicit DLG_QT_ConvertNotes(QWidget *parent = nullptr);
    ~DLG_QT_ConvertNotes() override;

protected:
    /// The keyboard begins at the first option.
    void afterShow() override;

private:
    std::unique_ptr<Ui::DLG_QT_ConvertNotes> m_ui;
};
