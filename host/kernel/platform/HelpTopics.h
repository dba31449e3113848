#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace host::kernel {

/// What F1 may ask for and where that stands in a folder of help pages, as the folder's file topics.tsv has it: a line
/// "KEY TAB ADDRESS" each, the address being a page with or without an anchor ("lisp.commands.html#command-line").
///
/// Keys are compared without regard to case. They are the numbers that modules ask for, and of the program's own:
///     dialog NAME      a dialog by its object name, where its number does not say which it is
///     window NAME      a part of the window by its object name
///     command NAME, function NAME, variable NAME
class HelpTopics
{
public:
    /// A folder without the file has no topics.
    explicit HelpTopics(const QString &folder);

    /// Of the first of these keys that is known; empty when none is.
    QString address(const QStringList &keys) const;

private:
    QHash<QString, QString> m_addresses;
};

} // namespace host::kernel
