#pragma once

#include "host/kernel/input/PromptRequest.h"

namespace host::kernel {

/// A request of a built-in command as people who speak the current language get it; in English it stays as it is.
///
/// Commands are written with English keywords, and get the answers so. Here each becomes the word of the language, from
/// the catalogue "Keywords": in what is taken as an answer (PromptRequest::answers has the English ones), in the last
/// brackets of the prompt and in the default behind them. A source text is what stands between two strokes of the
/// brackets ("Add area"), or the keyword alone where the prompt lists none. Its comment may be the command's name, for
/// words that mean different things. Words that are not in the catalogue stay English. A request that has answers of
/// its own, as programs make them, is left alone.
PromptRequest inLanguage(PromptRequest request, const QString &command);

/// One keyword, as the catalogue has it.
QString localKeyword(const QString &english, const QString &command = {});

} // namespace host::kernel
