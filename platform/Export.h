#pragma once

#include <QtCore/qglobal.h>

/// Marks what crosses the boundary between host and module. Both sides use default visibility, because the module
/// finds the host's definitions by name when it is loaded.
#define KV_EXPORT Q_DECL_EXPORT
