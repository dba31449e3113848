#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

namespace ortakit {

/// A block of a drawing and how many references it has.
struct BlockCount
{
    QString name;
    int references = 0;

    bool operator==(const BlockCount &) const = default;
};

/// The blocks of `entries`, each a name, ";" and a decimal number, that have references, in their order. An entry
/// without a number counts none.
QList<BlockCount> blockCounts(const QStringList &entries);

/// The report as bytes (UTF-8, lines end with "\r\n"): a heading and a line for each block.
///
/// With W the length of the longest name, "Name" takes W + 3 characters and one blank behind them, a block's name
/// W + 5 and two: a number stands three columns to the right of where "Instances" begins. Programs that read reports
/// count on these columns.
QByteArray blockReport(const QList<BlockCount> &blocks);

} // namespace ortakit
