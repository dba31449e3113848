#pragma once

#include <QStringList>

#include <optional>

namespace ortakit {

/// The lines of the text file at `path`, without their ends: UTF-8, or what a byte-order mark says. Nothing when it is
/// no regular file, cannot be read, or is larger than any dialog's state (16 MiB).
std::optional<QStringList> readStateFile(const QString &path);

/// Replaces the file at `path` by `text` as UTF-8 with a byte-order mark; empty text gives an empty file. False when it
/// could not be written, which the command line tells; see replaceFile().
bool writeStateFile(const QString &path, const QString &text);

} // namespace ortakit
