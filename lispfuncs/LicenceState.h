#pragma once

namespace ortakit {

/// Whether the host is a demo version: T or nil. Takes no arguments. -5001 without an active document or its Lisp
/// engine.
int isItDemoVersion();

} // namespace ortakit
