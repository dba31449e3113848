#pragma once

#include <QString>

/// The host's string: UTF-16, shared on copy. A host whose string is another class maps it here, where it has to
/// convert to and from QString without loss.
using OdString = QString;
