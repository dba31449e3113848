// Any bytes: each line of the system information has a line feed before it, and a report ends with it.

#include "formats/TextReading.h"
#include "formats/UserReport.h"
#include "fuzz/Require.h"

using namespace ortakit;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text = withoutByteOrderMark(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    const QString information = systemInformation(text);
    qsizetype lines = 0;
    for (LineReader reader(text); reader.next();)
        ++lines;
    require(information.count(u'\n') == lines);
    require(information.isEmpty() || information.startsWith(u'\n'));
    require(userReportText({.system = information}).endsWith(information));
    return 0;
}
