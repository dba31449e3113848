#include "host/app/ProgramOutput.h"

#include <cstdio>

namespace host::app {

void writeResult(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

void writeMessage(const QString &text)
{
    const QByteArray bytes = "ortakit: " + text.trimmed().toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

} // namespace host::app
