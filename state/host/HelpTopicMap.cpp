#include "state/host/HelpTopicMap.h"

#include "platform/kernel/CKvHelp.h"
#include "platform/kernel/CKvSystemServices.h"

#include <QLatin1String>

namespace {

constexpr int helpWindowStyle = 16;

constexpr struct
{
    QLatin1String toolName;
    int topic;
} topics[] = {
    {QLatin1String("breakline"), 9101},
    {QLatin1String("convertsimplenotes"), 9104},
    {QLatin1String("drawordercolor"), 9127},
    {QLatin1String("editalias"), 0},
    {QLatin1String("edittextcase"), 9117},
    {QLatin1String("exchangeddimensionstyle"), 9121},
    {QLatin1String("exportInfo"), 9133},
    {QLatin1String("exportvariables"), 9134},
    {QLatin1String("variabletoscript"), 9135},
    {QLatin1String("getblockinfo"), 9109},
    {QLatin1String("importblockattributes"), 9108},
    {QLatin1String("importdimensionstyle"), 9122},
    {QLatin1String("lispexplorer"), 9111},
    {QLatin1String("makelinestyle"), 9110},
    {QLatin1String("makeshape"), 9132},
    {QLatin1String("mergesheets"), 9136},
    {QLatin1String("multiviewsetup"), 9145},
    {QLatin1String("numbertext"), 9112},
    {QLatin1String("patternhatch"), 9102},
    {QLatin1String("redefinepaths"), 9107},
    {QLatin1String("removefavorits"), 0},
    {QLatin1String("replaceblock"), 9105},
    {QLatin1String("replaceblockbyreference"), 9106},
    {QLatin1String("showlinks"), 0},
    {QLatin1String("textframe"), 9113},
    {QLatin1String("textmask"), 9115},
    {QLatin1String("selectblock"), 9102},
    {QLatin1String("tracktime"), 0},
};

} // namespace

int HelpTopicMap::topic(const QString &toolName)
{
    for (const auto &entry : topics) {
        if (toolName == entry.toolName)
            return entry.topic;
    }
    return 0;
}

void HelpTopicMap::showHelp(const QString &toolName)
{
    CKvHelp *help = GetKvHelp();
    const CKvSystemServices *services = GetKvSystemServices();
    if (help && services)
        help->Help(services->helpFile(), topic(toolName), false, nullptr, helpWindowStyle);
}
