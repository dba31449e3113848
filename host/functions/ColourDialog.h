#pragma once

#include <QColor>
#include <QDialog>

#include <optional>

class QLineEdit;
class QPushButton;

namespace host::kernel {

/// A colour as drawings have it: a number of the table, where there is one also the true colour that it stands near.
struct ChosenColour
{
    int index = 7; ///< 0 by block, 1 to 255, 256 by layer
    std::optional<QRgb> trueColour = {};
};

/// What the dialog lets a person choose.
struct ColourChoice
{
    bool hasLogical = true; ///< by layer and by block
    bool hasTrue = false;   ///< any colour, by a dialog of its own
};

/// A window with the colours of the table, each a button, and a field for a number or a name. Its parts are called
/// "colour" (the field), "byLayer", "byBlock", "more" and "colour_1" to "colour_255".
class ColourDialog final : public QDialog
{
public:
    ColourDialog(QWidget *parent, const ChosenColour &present, ColourChoice choice);

    const ChosenColour &chosen() const { return m_chosen; }

private:
    QWidget *madeTable();
    QWidget *madeWords(ColourChoice choice);
    void choose(const ChosenColour &colour);
    void read(const QString &text);
    void chooseTrue();

    ColourChoice m_choice;
    ChosenColour m_chosen;
    QLineEdit *m_field = nullptr;
    QPushButton *m_ok = nullptr;
};

/// The number that a text says, or the name of one of the first seven colours, in any letter case; nothing for another
/// text. "BYLAYER" and "BYBLOCK" are 256 and 0 where they are allowed.
std::optional<int> colourNumber(const QString &text, bool allowsLogical);

/// The number of the table whose colour differs least from this one.
int nearestIndex(QRgb colour);

} // namespace host::kernel
