#pragma once

#include "platform/Export.h"

#include <QString>

#include <span>

namespace host::kernel {

/// A language that the program speaks.
struct Language
{
    const char *code;   ///< "de": of its translation files, --language and ORTAKIT_LANGUAGE
    const char *locale; ///< "DEU": what the system variable LOCALE says, as programs compare it
    const char *name;   ///< what it calls itself, in UTF-8
};

/// All of them, English first, whose texts are those of the sources.
KV_EXPORT std::span<const Language> languages();

/// The language of a code, a locale's name ("de_AT.UTF-8") or what LOCALE says, in any case; null when none is meant.
KV_EXPORT const Language *findLanguage(const QString &name);

/// Translates the texts of this process from now on, the toolkit's own included where its translations are installed.
/// What is shown already stays. Needs a QCoreApplication; until the first call the language is English.
KV_EXPORT void useLanguage(const Language &language);

KV_EXPORT const Language &currentLanguage();

} // namespace host::kernel
