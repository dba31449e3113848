#pragma once

#include <QCoreApplication>

namespace host::kernel {

// Texts that people read, one class a room as the catalogues' contexts: Commands::tr("Specify first point: "). A text
// with a place in it is translated first and filled then: Commands::tr("%1 found").arg(count). What programs compare
// and files hold stays as it is: names of commands and variables, errors of Lisp, words of formats.

/// Prompts and messages of commands. Their options in brackets stay English here and in the translations: see
/// KeywordCatalogue.h.
struct Commands
{
    Q_DECLARE_TR_FUNCTIONS(Commands)
};

/// What the kernel itself prints and asks.
struct Kernel
{
    Q_DECLARE_TR_FUNCTIONS(Kernel)
};

/// What functions of Lisp print and ask; not their errors.
struct Functions
{
    Q_DECLARE_TR_FUNCTIONS(Functions)
};

/// The one-line help of commands and system variables, which their tables have in English: HelpLines::tr(row.help).
struct HelpLines
{
    Q_DECLARE_TR_FUNCTIONS(Help)
};

} // namespace host::kernel
