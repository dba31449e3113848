#pragma once

#include <QString>

/// Help pages of the tools in the host's help file. Names are compared exactly; that "exportInfo" has a capital and
/// some tools have no page of their own is how the callers know them.
class HelpTopicMap
{
public:
    /// Number of the tool's topic; 0, the start page, for a name that is not known.
    static int topic(const QString &toolName);

    /// Has the host show the tool's page. Nothing happens without a host that shows help.
    static void showHelp(const QString &toolName);
};
