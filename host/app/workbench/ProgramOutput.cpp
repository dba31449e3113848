#include "host/app/workbench/ProgramOutput.h"

#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

bool isResultLost = false;
thread_local MessageKeeper *keeperOfMessages = nullptr;

} // namespace

void writeResult(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const auto size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
        isResultLost = true;
}

bool hasLostResults()
{
    return isResultLost;
}

void writeMessage(const QString &text)
{
    if (keeperOfMessages)
        keeperOfMessages->m_messages.append(text.trimmed());
    writeMessageLines(u"ortakit: "_s + text.trimmed() + u'\n');
}

MessageKeeper::MessageKeeper() : m_outer(std::exchange(keeperOfMessages, this)) {}

MessageKeeper::~MessageKeeper()
{
    keeperOfMessages = m_outer;
}

void writeMessageLines(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

} // namespace host::app
