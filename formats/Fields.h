#pragma once

#include <QStringView>

namespace ortakit {

/// Field `number` (from 0) of a line whose fields are divided by `separator`; empty when the line has fewer. The fields
/// behind it are not looked at.
QStringView fieldOf(QStringView line, QChar separator, int number);

} // namespace ortakit
