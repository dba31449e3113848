#include "formats/Fields.h"

namespace ortakit {

QStringView fieldOf(QStringView line, QChar separator, int number)
{
    qsizetype begin = 0;
    for (int skipped = 0; skipped < number; ++skipped) {
        const qsizetype end = line.indexOf(separator, begin);
        if (end < 0)
            return {};
        begin = end + 1;
    }
    const qsizetype end = line.indexOf(separator, begin);
    return line.sliced(begin, (end < 0 ? line.size() : end) - begin);
}

} // namespace ortakit
