// Tools that know entities by their handles, in early drawings without any, and names with the sign that divides
// fields.

#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class HandlelessDrawings : public ToolTest
{
protected:
    /// The groups of a drawing's text: code and value by turns.
    static QByteArray groups(const QByteArray &text)
    {
        QByteArray lines;
        for (const QByteArray &line : text.split('|'))
            lines += line + '\n';
        return lines;
    }
    static QByteArray linked(const QByteArray &text)
    {
        return "0|TEXT|8|0|10|1.0|20|1.0|40|1.0|1|" + text + "|1001|PE_URL|1000|http://" + text + "|";
    }

    const QString drawing = run.writeFile(
        u"early.dxf"_s,
        groups(
            "0|SECTION|2|TABLES|0|TABLE|2|APPID|70|1|0|APPID|2|PE_URL|70|0|0|ENDTAB|0|ENDSEC|"
            "0|SECTION|2|BLOCKS|0|BLOCK|8|0|2|A|70|2|10|0.0|20|0.0|3|A|0|ATTDEF|8|0|10|0.0|20|0.0|40|1.0|1||3|X|2|X|70|"
            "0|0|ENDBLK|8|0|0|BLOCK|8|0|2|M^ N|70|4|10|0.0|20|0.0|3|M^ N|1|old/m.dwg|0|ENDBLK|8|0|0|ENDSEC|"
            "0|SECTION|2|ENTITIES|" +
            linked("a") + linked("b") + linked("c") +
            "0|INSERT|8|0|66|1|2|A|10|0.0|20|0.0|0|ATTRIB|8|0|10|0.0|20|0.0|40|1.0|1|text|2|X|70|0|0|SEQEND|8|0|"
            "0|ENDSEC|0|EOF"));
};

TEST_F(HandlelessDrawings, LinksAreThoseOfTheirEntities)
{
    plays(u"lisp (defun urls () (mapcar '(lambda (e) (cdr (cadr (cadr (assoc -3 (entget e '(\"PE_URL\"))))))) (reverse "
          "(kora_selection_to_list (ssget \"_X\" '((0 . \"TEXT\")))))))\ncommand SHOWLINKS\ndialog Dlg_QT_ShowLinks\n"
          "expect-items tableUrl #1;http://a;TEXT;Model^#2;http://b;TEXT;Model^#3;http://c;TEXT;Model\n"
          "row tableUrl #1\nset txsearch b\nset txreplace new\nclick btnReplace\nclick btnShowEntity\nenter\n"
          "dialog Dlg_QT_ShowLinks\nrow tableUrl #2\nclick btnRemoveUrl\nmessage \"Remove urls\" Ok\nclick btnClose\n"
          "expect-printed \"1 link changed, 1 removed.\"\n"
          "expect-lisp (equal (urls) '(\"http://a\" \"http://new\" nil))\n"_s,
          drawing);
}

TEST_F(HandlelessDrawings, ReferencesAreLeftOutOfTables)
{
    plays(u"command EXPORTBLOCKATTRIBUTES\nselect all\nenter\n"
          "expect-printed \"No block reference with attributes was selected, 1 without a handle left out.\"\n"_s,
          drawing);
}

TEST_F(HandlelessDrawings, PathsOfNamesWithTheDividingSignAreChanged)
{
    plays(
        u"command REDEFINEPATHS\ndialog Dlg_QT_RedefinePaths\nexpect-items lstFiles Xref;M^N;old\\m.dwg\n"
        "check selectAll yes\nset txsearch old\nset txreplace new\nclick btReplace\nclick acceptButton\n"
        "expect-printed \"1 path changed.\"\nexpect-lisp (= \"new/m.dwg\" (kora_field (tblsearch \"BLOCK\" \"M^N\") 1))\n"_s,
        drawing);
}

} // namespace
