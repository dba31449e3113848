#pragma once

#include <QList>
#include <QStringList>

/// How a drawing writes its lengths, and with it which scales are usual.
enum class UnitStyle
{
    None,
    Scientific,
    Decimal,
    Engineering,
    Architectural,
    Metric,
};

/// The scales of a unit style in the order in which they are offered, each its name and its factor ("1:50", "50").
/// Empty for none.
QList<QStringList> scaleRows(UnitStyle style);
