// Any bytes: every function found has the shape that the scan promises, and its parts make up its text.

#include "formats/LispSource.h"
#include "fuzz/Require.h"

using namespace ortakit;

namespace {

void checkEntry(const LispFunctionEntry &entry)
{
    require(entry.defunLine.contains(QLatin1String("defun")));
    require(!entry.name.contains(u'(') && !entry.name.contains(u' ') && !entry.name.contains(u'\t'));
    for (const QString &line : entry.header)
        require((line.isEmpty() || line.trimmed().startsWith(u';')) && !line.contains(u'\t'));
    for (const QString &line : entry.body)
        require(!line.contains(u'\t') && !line.contains(u'\n'));
    const QString both = lispText(entry, LispPart::Both);
    require(both.startsWith(lispText(entry, LispPart::Header)));
    require(both.endsWith(lispText(entry, LispPart::Function)));
    require(both.count(u'\n') == entry.header.size() + entry.body.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    for (const LispFunctionEntry &entry :
         scanLispSource(QByteArrayView(reinterpret_cast<const char *>(data), qsizetype(size))))
        checkEntry(entry);
    return 0;
}
