#pragma once

#include "state/ToolDialog.h"

#include <memory>

namespace Ui {
class DLG_QT_ConvertNotes;
}

/// The options of the tool that converts simple notes: what of a note is kept, in which order the notes are taken, and
/// whether the new text wraps. Closes with no action word; Lisp converts the notes.
///
/// The state is that of the widgets alone, each TRUE or FALSE:
///
/// | key | meaning |
/// |---|---|
/// | keepfonts, keepcolors, keepsizes | a note's font, colour and height go along into the text |
/// | select_entity, select_topdow, select_alfa | the order: as picked, from top to bottom, by alphabet |
/// | word_wrap | the notes flow as one paragraph; otherwise each stays a line |
///
/// Any choice is a good one, so that accepting checks nothing.
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
