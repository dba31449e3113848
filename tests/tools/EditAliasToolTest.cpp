#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class EditAliasTool : public ToolTest
{
};

TEST_F(EditAliasTool, AnAliasMayRunATool)
{
    plays(u"command EDITALIAS\ndialog Dlg_QT_EditAlias\nclick btnAdd\ncell lstAlias 0 0 editalias\n"
          "cell lstAlias 0 1 ea\nclick acceptButton\n"
          "command ea\ndialog Dlg_QT_EditAlias\nexpect-title \"Edit Alias\"\nclick ButtonCancel\n"
          "expect-modified no\n"_s);
}

} // namespace
