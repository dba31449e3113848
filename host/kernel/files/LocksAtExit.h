#pragma once

class QByteArray;

namespace host::kernel {

// Lock files that go when the process ends by exit() or by a signal whose default is to end it. Nothing is removed that
// holds something else by then. For one thread.

/// Returns the place to give to forgetLock().
int removeLockAtExit(const QByteArray &path, const QByteArray &content);
void forgetLock(int place);

} // namespace host::kernel
