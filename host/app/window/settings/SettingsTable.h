#pragma once

#include <span>

namespace host::app {

/// How a setting is shown and changed.
enum class SettingForm
{
    Switch, ///< on or off: 1 and 0, or one bit of a number
    Number, ///< whole, within the variable's limits
    Real,
    Choice, ///< one of a few whole numbers, each with a name
    Text,
    Folders, ///< full paths between ";"
    Programs ///< likewise, of Lisp programs
};

/// One setting of the settings window. Captions, sections and names of choices are to be translated in the context
/// "Settings".
struct SettingRow
{
    const char *section;
    const char *caption;
    /// A system variable; with "@" in front something that the window keeps itself, see SettingsWindow.
    const char *name;
    SettingForm form = SettingForm::Switch;
    int bit = 0;              ///< Switch: the bit of the variable; 0: all of it
    const char *choices = ""; ///< Choice: "0=None|1=All"
    const char *tip = "";     ///< one line; empty: what the table of variables says
};

/// All settings, in the order in which they are shown; those of a section stand together.
std::span<const SettingRow> settingRows();

} // namespace host::app
