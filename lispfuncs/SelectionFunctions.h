#pragma once

namespace ortakit {

/// Functions that give Lisp a selection set or an entity, as external Lisp functions of the active document. What they
/// take and give is in docs/lisp-functions.md. Each sets the Lisp variable LispCanceled to 0, and to 1 when the user
/// cancelled, which gives nil. Wrong arguments are an error, which the command line explains.
/// @{
/// (KORA_ssget [prompt [mode [points] [filter]]])
int koraSsget();
/// (KORA_ssget_filter filter [prompt [mode or selection set [points]]])
int koraSsgetFilter();
/// (KORA_EntSel [prompt [filter [keywords]]])
int koraEntSel();
/// @}

} // namespace ortakit
