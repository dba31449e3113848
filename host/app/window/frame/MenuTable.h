#pragma once

#include <QString>

#include <span>

namespace host::app {

/// What becomes of an entry while something runs.
enum class WhenBusy
{
    Disabled, ///< it would start something else; of a line: unless its command may be called in the middle of a prompt
    Enabled   ///< it only looks, or stops what runs
};

/// One entry of the window's menus. Texts are to be translated in the context "Menus".
struct MenuRow
{
    /// The menu, behind slashes the ones within: "File", "File/Export". It comes into being with its first row.
    const char *menu;
    /// The caption. Its mnemonic may be left out: then it gets one that is free. "-" is a line between entries.
    const char *text;
    /// "_LINE": what is run as a line of the command line. Else the name of what the window does, which is its affair:
    /// "open". Behind "@" the name of entries that the window puts in this place: "@tools"; the row has no caption.
    const char *does;
    const char *keys = "";    ///< "Ctrl+N"; empty for none
    const char *toolbar = ""; ///< that it is on too: "Standard", "Draw", "Modify"; empty for none
    const char *icon = "";    ///< see menuIcon(); there when there is a toolbar
    const char *tip = "";     ///< one line; empty: of a line, what the commands' table says
    WhenBusy whenBusy = WhenBusy::Disabled;
    const char *choice = ""; ///< a group of entries of which one is marked; empty: none

    bool isLine() const { return does[0] == '_'; }
    bool isPlace() const { return does[0] == '@'; }
    bool isSeparator() const { return text[0] == '-'; }
    /// The command that a line runs, without the prefix and its answers; empty of others.
    QString command() const;
};

/// All entries, in the order in which they are shown. A new one is a row here, and for a name of the window's own
/// its line in MainMenus.cpp.
std::span<const MenuRow> menuRows();

/// Whether the row's entry can be chosen while a prompt waits.
bool isForPrompts(const MenuRow &row);

/// What the entry does, in a line, translated; may be empty.
QString menuTip(const MenuRow &row);

} // namespace host::app
