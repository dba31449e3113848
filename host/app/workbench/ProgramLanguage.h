#pragma once

#include "host/app/workbench/ProgramOptions.h"
#include "host/kernel/languages/Languages.h"

namespace host::kernel {
class SettingsStore;
}

namespace host::app {

/// The language that the program starts in: what --language says, or the environment's ORTAKIT_LANGUAGE; in a window
/// that a person works in, what the settings in the user's data folder say, else the desktop's language. English where
/// none of them names a language that there is: without a window and of recorded sessions scripts read the texts.
const kernel::Language &programLanguage(const ProgramOptions &options);

/// Which language the settings ask windows for from the next start on: its place in kernel::languages() plus one; 0 for
/// the desktop's.
int chosenLanguage(const kernel::SettingsStore &settings);
/// False when that cannot be kept.
bool chooseLanguage(kernel::SettingsStore &settings, int choice);

} // namespace host::app
