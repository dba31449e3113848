#pragma once

#include <QStringList>

namespace ortakit {

/// Keywords as programs write them, with "," between; blanks round them and empty ones do not count.
QStringList splitKeywords(const QString &text);
/// Options as prompts show them, with "/" between.
QStringList splitOptions(const QString &text);

} // namespace ortakit
