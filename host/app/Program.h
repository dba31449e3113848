#pragma once

namespace host::app {

/// The whole program: reads the arguments, and works in a window or without one. Returns the status to end with.
int runProgram(int argc, char **argv);

} // namespace host::app
