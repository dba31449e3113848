#pragma once

namespace ortakit {

/// The command ORTAKIT_IMPORTBLOCK: asks for a drawing file and for one of its blocks, and brings that block into the
/// active drawing with all that it needs. What the active drawing has under the same name stays; the command line says
/// so, and what went wrong.
void importBlock();

} // namespace ortakit
