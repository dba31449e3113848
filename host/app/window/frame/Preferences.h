#pragma once

#include "host/app/window/frame/AppStyle.h"
#include "host/view/display/AciColor.h"

#include <QByteArray>
#include <QStringList>

namespace host::kernel {
class Session;
}

namespace host::app {

/// What the window keeps from one run to the next, in the file workbench.ini of the user's settings. What the file
/// lacks, or cannot give, is as in a new Preferences; a folder that cannot be written to is no reason to complain.
struct Preferences
{
    Style style = Style::Light; ///< of all windows
    view::Ground ground = view::Ground::Black;
    QByteArray geometry;          ///< of the window; empty: as it comes
    QByteArray places;            ///< of its panels and bars; empty likewise
    QStringList entries;          ///< of the command line, oldest first
    QStringList forms;            ///< of the Lisp console, likewise
    QStringList drawings;         ///< that were open when the window was closed last, by their paths
    bool reopensDrawings = false; ///< when the program starts without others
    QStringList recent;           ///< what was run from the palette, newest first

    /// The folder that has that file.
    static QString folder(const kernel::Session &session);
    /// A file that is no settings file is left alone, and not read.
    static Preferences load(const QString &folder);
    /// What else is in the file stays. Nobody is told when it cannot be written: windows close when nobody is there.
    void save(const QString &folder) const;
};

} // namespace host::app
