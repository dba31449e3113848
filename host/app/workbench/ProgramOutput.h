#pragma once

#include <QString>
#include <QStringList>

namespace host::app {

/// To standard output as it is, in UTF-8.
void writeResult(const QString &text);
/// Whether something of it was not taken, as on a full disk.
bool hasLostResults();
/// Lines on standard error as they are, in UTF-8.
void writeMessageLines(const QString &text);
/// A line on standard error, behind the program's name.
void writeMessage(const QString &text);

/// Keeps what writeMessage() says on this thread while it lives; it is written all the same. The innermost one gets it.
class MessageKeeper
{
public:
    MessageKeeper();
    ~MessageKeeper();
    MessageKeeper(const MessageKeeper &) = delete;
    MessageKeeper &operator=(const MessageKeeper &) = delete;

    const QStringList &messages() const { return m_messages; }

private:
    friend void writeMessage(const QString &text);

    QStringList m_messages;
    MessageKeeper *m_outer;
};

} // namespace host::app
