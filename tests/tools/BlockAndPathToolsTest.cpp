// Edge cases of the tools that count and replace blocks, carry attributes, links, paths and variables.

#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class BlockAndPathTools : public ToolTest
{
protected:
    /// What a row's session can use: blocks and references, links, locked layers; counting and reading back.
    const QString helpers =
        u"lisp (defun block (name things) (entmake (list '(0 . \"BLOCK\") (cons 2 name) '(70 . 0) '(10 0.0 0.0 0.0))) "
        "(foreach one things (entmake one)) (entmake '((0 . \"ENDBLK\"))))\n"
        "lisp (defun ref (name layer) (list '(0 . \"INSERT\") (cons 8 layer) (cons 2 name) '(10 3.0 4.0 0.0) "
        "'(41 . 2.0) '(42 . -2.0) '(50 . 0.5)))\n"
        "lisp (defun def (tag text y) (list '(0 . \"ATTDEF\") '(8 . \"0\") (cons 2 tag) (cons 1 text) '(3 . \"?\") "
        "'(70 . 0) (list 10 1.0 y 0.0) '(40 . 0.5)))\n"
        "lisp (defun dot () '((0 . \"POINT\") (8 . \"0\") (10 0.0 0.0 0.0)))\n"
        "lisp (defun full (name layer texts) (entmake (cons '(66 . 1) (ref name layer))) (foreach text texts (entmake "
        "(list '(0 . \"ATTRIB\") '(8 . \"0\") (cons 2 (car text)) (cons 1 (cdr text)) '(10 0.0 0.0 0.0) '(40 . 1.0) "
        "'(70 . 0)))) (entmake '((0 . \"SEQEND\"))))\n"
        "lisp (defun lock (name) (entmake (list '(0 . \"LAYER\") (cons 2 name) '(70 . 4) '(62 . 7) '(6 . "
        "\"Continuous\"))))\n"
        "lisp (defun texts () (mapcar '(lambda (i) (mapcar '(lambda (a) (cons (kora_field (entget a) 2) (kora_field "
        "(entget a) 1))) (kora_attributes i))) (kora_space_inserts)))\n"
        "lisp (defun names () (mapcar '(lambda (i) (kora_field (entget i) 2)) (kora_space_inserts)))\n"
        "lisp (defun link (handle url) (regapp \"PE_URL\") (entmod (append (entget (handent handle)) (list (list -3 "
        "(list \"PE_URL\" (cons 1000 url)))))))\n"
        "lisp (defun url (handle) (cdr (cadr (cadr (assoc -3 (entget (handent handle) '(\"PE_URL\")))))))\n"
        "lisp (defun place (n) (cons 1005 (kora_field (entget (kora_block_record n)) 5)))\n"
        "lisp (defun tell (n app said) (regapp app) (entmod (append (entget (kora_block_record n)) (list (list -3 "
        "(list "
        "app '(1070 . 1) said))))))\n"
        "lisp (defun extend (e name / d) (setq d (entmakex '((0 . \"DICTIONARY\")))) (entmod (append (entget e) (list "
        "'(102 . \"{ACAD_XDICTIONARY\") (cons 360 d) '(102 . \"}\")))) (dictadd d name (entmakex '((0 . "
        "\"XRECORD\")))))\n"
        "lisp (lock \"SHUT\")\n"_s;

    static QString replacing(const QString &old, const QString &replacement, const QString &checks = {})
    {
        return u"command REPLACEBLOCK\ndialog Dlg_QT_ReplaceBlock\nrow blocksTable %1\nrow blocksTableRep %2\n"
               "%3click acceptButton\n"_s.arg(old, replacement, checks);
    }
    const QString sync = u"check attsync yes\n"_s;
    const QString table = u"command GETBLOCKINFO\ndialog Dlg_QT_GetBlockInfo\ncheck nestedCheckBox no\n"_s;
    const QString paths = u"command REDEFINEPATHS\ndialog Dlg_QT_RedefinePaths\ncheck selectAll yes\n"_s;
    const QString links = u"command SHOWLINKS\ndialog Dlg_QT_ShowLinks\n"_s;
    QString imported(const QByteArray &file) const
    {
        return u"command IMPORTBLOCKATTRIBUTES\ndialog Dlg_QT_ImportBlockAttributes\nclick selectfile\nfile %1\n"
               "click selectAll\nclick acceptButton\n"_s.arg(run.writeFile(u"in%1.txt"_s.arg(file.size()), file));
    }
};

TEST_F(BlockAndPathTools, DoWhatTheySayAndNothingElse)
{
    const QString inside = u"lisp (block \"A\" (list (dot)))\nlisp (block \"B\" (list (dot)))\n"_s;
    const QString attributes = u"lisp (block \"A\" (list (def \"X\" \"x\" 1.0) (def \"Y\" \"y\" 2.0)))\n"
                               "lisp (block \"B\" (list (def \"y\" \"b\" 3.0) (def \"Z\" \"z\" 4.0)))\n"
                               "lisp (full \"A\" \"0\" '((\"X\" . \"1\") (\"Y\" . \"2\")))\n"_s;
    const QString handle = u"lisp (setq h (kora_field (entget (car (kora_space_inserts))) 5))\n"_s;
    const struct
    {
        const char *what;
        QString session;
        const char *expected; ///< expression
    } rows[] = {
        {"blocks within blocks count as often as they are seen, names as they are defined",
         u"lisp (block \"Leg\" (list (dot)))\nlisp (block \"Table\" (list (ref \"LEG\" \"0\") (ref \"leg\" \"0\")))\n"
         "lisp (block \"Room\" (list (ref \"table\" \"0\") (ref \"Leg\" \"0\")))\n"
         "lisp (foreach n '(\"room\" \"ROOM\" \"Table\") (entmake (ref n \"0\")))\n"_s +
             table +
             u"expect-items blocksTable Room;2^Table;1\nclick nestedCheckBox\n"
             "expect-items blocksTable Leg;8^Room;2^Table;3\nclick button:Close\n"_s,
         "T"},
        {"a reference with an appearance of its own counts under its block's name",
         inside +
             u"lisp (setq n (block \"*U\" (list (ref \"B\" \"0\"))))\nlisp (tell n \"AcDbBlockRepBTag\" (place "
             u"\"A\"))\n"
             "lisp (setq n2 (block \"*U\" (list (dot))))\nlisp (tell n2 \"AcDbDynamicBlockTrueName\" '(1000 . \"a\"))\n"
             "lisp (setq n3 (block \"*U\" (list (dot))))\nlisp (tell n3 \"AcDbBlockRepBTag\" (place n3))\n"
             "lisp (foreach n (list n n2 n3 \"A\") (entmake (ref n \"0\")))\n"_s +
             table +
             u"expect-items blocksTable A;3\nclick nestedCheckBox\nexpect-items blocksTable A;3^B;1\n"
             "click button:Close\n"_s,
         "T"},
        {"and is replaced and chosen under it, but not with what is in it",
         inside +
             u"lisp (setq n (block \"*U\" (list (dot))))\nlisp (tell n \"AcDbBlockRepBTag\" (place \"A\"))\n"
             "lisp (setq b (block \"*U\" (list (ref n \"0\"))))\nlisp (tell b \"AcDbBlockRepBTag\" (place \"B\"))\n"
             "lisp (foreach n (list n \"A\" b) (entmake (ref n \"0\")))\n"
             "lisp (extend (car (kora_space_inserts)) \"AcDbBlockRepresentation\")\n"
             "lisp (sssetfirst nil (ssadd (car (kora_space_inserts))))\n"
             "command REPLACEBLOCK\ndialog Dlg_QT_ReplaceBlock\nexpect blocksTable A\nrow blocksTableRep B\n"
             "click acceptButton\nexpect-printed \"2 references replaced, 1 within the new block left as they were.\"\n"_s,
         "(and (equal (names) (list \"B\" \"B\" b)) (equal '(nil) (mapcar '(lambda (e) (dictsearch (kora_extension "
         "(entget e)) \"AcDbBlockRepresentation\")) (list (car (kora_space_inserts))))))"},
        {"ends of dimension lines are not offered",
         inside +
             u"lisp (foreach n '(\"_Dot\" \"TIP\" \"SEEN\") (block n (list (dot))))\nlisp (entmake (ref \"SEEN\" "
             u"\"0\"))\n"
             "lisp (entmod (append (entget (tblobjname \"DIMSTYLE\" \"Standard\")) (list (cons 342 (kora_block_record "
             "\"TIP\")) (cons 343 (kora_block_record \"SEEN\")))))\n"
             "command REPLACEBLOCK\ndialog Dlg_QT_ReplaceBlock\nexpect-items blocksTable A^B^SEEN\nclose\n"_s,
         "T"},
        {"what is no drawing does not take a block's place",
         inside + u"lisp (entmake (ref \"A\" \"0\"))\n"
                  "command REPLACEBLOCKBYREFERENCE\ndialog Dlg_QT_ReplaceBlockToXref\nset directory %1\n"
                  "key directory Return\nrow blocksTable A\nrow blocksTableRep bad.dwg\nclick acceptButton\n"
                  "expect-printed \"is no drawing.\"\n"_s.arg(QFileInfo(run.writeFile(u"bad.dwg"_s, "words\n")).path()),
         "(and (equal (names) '(\"A\")) (null (tblsearch \"BLOCK\" \"bad\")))"},
        {"no table of nothing", table + u"click exportTable\nexpect-printed \"No table was drawn.\"\n"_s, "T"},
        {"no table without its height",
         inside + u"lisp (entmake (ref \"A\" \"0\"))\n"_s + table +
             u"click exportTable\npoint 1,1\ncancel\nexpect-count TEXT 3\n"_s,
         "T"},
        {"a replaced reference keeps its place and properties, one step takes it back",
         inside + u"lisp (entmake (ref \"A\" \"DOORS\"))\nlisp (setq old (entget (entlast)))\n"_s +
             replacing(u"A"_s, u"B"_s) +
             u"expect-printed \"1 reference replaced.\"\nlisp (setq new (entget (entlast)))\n"
             "undo\n"_s,
         "(and (equal new (kora_with_field old 2 \"B\")) (equal (names) '(\"A\")))"},
        {"locked layers, blocks within blocks, and what would be in itself",
         inside +
             u"lisp (block \"C\" (list (ref \"A\" \"0\") (ref \"A\" \"SHUT\")))\n"
             "lisp (block \"B\" (list (ref \"A\" \"0\")))\n"
             "lisp (foreach l '(\"0\" \"SHUT\") (entmake (ref \"a\" l)))\n"_s +
             replacing(u"A"_s, u"B"_s, u"check PurgeItems yes\n"_s) +
             u"expect-printed \"2 references replaced, 2 on locked layers left as they were, 1 within the new block "
             u"left "
             "as they were; 1 block purged.\"\n"_s,
         "(and (equal (names) '(\"B\" \"a\")) (null (tblsearch \"BLOCK\" \"C\")))"},
        {"attributes stay without the update", attributes + replacing(u"A"_s, u"B"_s),
         "(equal (texts) '(((\"X\" . \"1\") (\"Y\" . \"2\"))))"},
        {"attributes go by tag with it, the extended data stays",
         attributes +
             u"lisp (regapp \"APP\")\nlisp (entmod (append (entget (entlast)) '((-3 (\"APP\" (1000 . "
             "\"kept\"))))))\n"_s +
             replacing(u"A"_s, u"B"_s, sync) + u"lisp (setq a (entget (car (kora_attributes (entlast)))))\n"_s,
         "(and (equal (texts) '(((\"y\" . \"2\") (\"Z\" . \"z\")))) (assoc -3 (entget (entlast) '(\"APP\"))) "
         "(equal (kora_field a 10) (list (+ 3.0 (* 2 (cos 0.5)) (* 6 (sin 0.5))) (+ 4.0 (* 2 (sin 0.5)) (* -6 (cos "
         "0.5))) 0.0) 1e-9) (= 4 (kora_field a 71)) (equal 1.0 (kora_field a 40)))"},
        {"a reference made anew keeps its group, its order and its dictionary",
         attributes +
             u"lisp (setq i (entlast))\nlisp (kora_make_group (list i (handent \"2F\")))\nlisp (extend i \"OWN\")\n"
             "lisp (command \"_.DRAWORDER\" i \"\" \"_Back\")\n"_s +
             replacing(u"A"_s, u"B"_s, sync) +
             u"lisp (setq j (entlast) d (kora_extension (entget j)) order (dictsearch (kora_extension (entget "
             "(kora_owner (entget j)))) \"ACAD_SORTENTS\"))\n"_s,
         "(and (not (equal i j)) (member (cons 340 j) (dictsearch (kora_field (dictsearch (namedobjdict) "
         "\"ACAD_GROUP\") -1) "
         "\"*A1\")) (member (cons 331 j) order) (not (member (cons 331 i) order)) (dictsearch d \"OWN\") "
         "(equal j (kora_field (entget d) 330)))"},
        {"the same tags stay the same entities",
         attributes + handle + u"lisp (block \"C\" (list (def \"Y\" \"\" 8.0) (def \"x\" \"\" 9.0)))\n"_s +
             replacing(u"A"_s, u"C"_s, sync),
         "(and (equal (texts) '(((\"X\" . \"1\") (\"Y\" . \"2\")))) (= h (kora_field (entget (entlast)) 5)))"},
        {"equal tags go by their order",
         u"lisp (block \"A\" (list (dot)))\nlisp (block \"E\" (list (def \"X\" \"\" 1.0) (def \"X\" \"new\" 2.0) (def "
         u"\"X\" \"third\" 3.0)))\nlisp (full \"A\" \"0\" '((\"X\" . \"1\") (\"X\" . \"2\")))\n"_s +
             replacing(u"A"_s, u"E"_s, sync) +
             // Made now, as what nothing refers to is purged.
             u"lisp (block \"F\" (list (def \"X\" \"\" 5.0) (def \"X\" \"\" 6.0) (def \"X\" \"\" 7.0)))\n"_s +
             replacing(u"E"_s, u"F"_s, sync) +
             u"lisp (setq places (mapcar '(lambda (a) (kora_field (entget a) 10)) (kora_attributes (entlast))))\n"_s,
         "(and (equal (texts) '(((\"X\" . \"1\") (\"X\" . \"2\") (\"X\" . \"third\")))) (not (equal (car places) (cadr "
         "places))))"},
        {"a new block without attributes takes them away",
         attributes + inside.section(u'\n', 1) + u"lisp (block \"D\" (list (dot)))\n"_s +
             replacing(u"A"_s, u"D"_s, sync),
         "(equal (texts) '(nil))"},
        {"what was chosen before the command",
         inside + u"lisp (foreach n '(\"A\" \"B\") (entmake (ref n \"0\")))\nlisp (sssetfirst nil (ssget \"_L\"))\n"
                  "command REPLACEBLOCK\ndialog Dlg_QT_ReplaceBlock\nexpect blocksTable B\nclose\n"_s,
         "T"},
        {"Esc while blocks are picked",
         inside + u"lisp (entmake (ref \"A\" \"0\"))\ncommand REPLACEBLOCK\ndialog Dlg_QT_ReplaceBlock\n"
                  "click selblocks\ncancel\n"_s,
         "(equal (names) '(\"A\"))"},
        {"a reference of the name of a block",
         inside + u"lisp (vl-file-copy (findfile \"%1\") \"%2/B.dwg\")\nlisp (entmake (ref \"A\" \"0\"))\n"
                  "command REPLACEBLOCKBYREFERENCE\ndialog Dlg_QT_ReplaceBlockToXref\nrow blocksTable A\n"
                  "set directory %2\nkey directory Return\nrow blocksTableRep B.dwg\nclick acceptButton\n"
                  "expect-printed \"The drawing has another block of the name B.\"\n"_s.arg(plan, run.path({})),
         "(equal (names) '(\"A\"))"},
        {"links on locked layers stay, so do those that were only shown",
         u"lisp (entmod (subst '(8 . \"SHUT\") (assoc 8 (entget (handent \"2F\"))) (entget (handent \"2F\"))))\n"
         "lisp (link \"2F\" \"a^b\")\nlisp (link \"30\" \"c^d\")\nlisp (link \"31\" \"e\")\n"_s +
             links +
             u"expect-items tableUrl 2F;a^b;TEXT;Model^30;c^d;TEXT;Model^31;e;TEXT;Model\n"
             "row tableUrl #0 #2\nset txsearch e\nset txreplace f\nclick btnReplace\nset txsearch a\n"
             "click btnReplace\nclick btnShowEntity\nenter\ndialog Dlg_QT_ShowLinks\nclick btnClose\n"
             "expect-printed \"1 link changed, 0 removed, 1 on locked layers left as they were.\"\n"_s,
         "(equal (mapcar 'url '(\"2F\" \"30\" \"31\")) '(\"a^b\" \"c^d\" \"f\"))"},
        {"editing a part of a link leaves the others",
         u"lisp (link \"31\" \"x^e\\n^f\")\n"_s + links +
             u"row tableUrl #0\nset txsearch e\nset txreplace e2\nclick btnReplace\nclick btnClose\n"_s,
         "(= (url \"31\") \"x^e2\\n^f\")"},
        {"a run that was left at a shown entity removes nothing later",
         u"lisp (link \"30\" \"c\")\nlisp (link \"31\" \"e\")\n"_s + links +
             u"row tableUrl #0\nclick btnRemoveUrl\nmessage \"Remove urls\" Ok\nrow tableUrl #0\nclick btnShowEntity\n"
             "cancel\n"_s +
             links + u"click btnClose\nexpect-printed \"0 links changed, 0 removed.\"\n"_s,
         "(equal (mapcar 'url '(\"30\" \"31\")) '(\"c\" \"e\"))"},
        {"Esc at the shown entity changes nothing",
         u"lisp (link \"31\" \"e\")\n"_s + links +
             u"row tableUrl #0\nset txsearch e\nset txreplace f\nclick btnReplace\nclick btnShowEntity\ncancel\n"_s,
         "(= (url \"31\") \"e\")"},
        {"only the links of what was chosen",
         u"lisp (link \"30\" \"c\")\nlisp (link \"31\" \"e\")\nlisp (sssetfirst nil (ssadd (handent \"30\")))\n"_s +
             links +
             u"expect-items tableUrl 30;c;TEXT;Model\nclick btnClose\n"
             "expect-printed \"0 links changed, 0 removed.\"\n"_s,
         "T"},
        {"paths that are shown only stay as they are spelled",
         u"lisp (entmod (kora_with_field (entget (tblobjname \"STYLE\" \"Standard\")) 3 \"a/b.shx\"))\n"_s + paths +
             u"click acceptButton\nexpect-printed \"0 paths changed.\"\n"_s,
         "(= \"a/b.shx\" (kora_field (tblsearch \"STYLE\" \"Standard\") 3))"},
        {"big fonts, remote texts, no expressions, locked layers",
         u"lisp (entmod (kora_with_field (entget (tblobjname \"STYLE\" \"Standard\")) 4 \"c:\\\\f\\\\big.shx\"))\n"
         "lisp (foreach r '((0 \"0\" \"c:/f/a^b.txt\") (1 \"0\" \"$(c:/f)\") (0 \"SHUT\" \"c:\\\\f\\\\l.txt\")) "
         "(entmake "
         "(list '(0 . \"RTEXT\") (cons 8 (cadr r)) '(10 0.0 0.0 0.0) '(40 . 1.0) '(50 . 0.0) '(7 . \"Standard\") (cons "
         "70 "
         "(car r)) (cons 1 (caddr r)))))\nlisp (setq r (kora_selection_to_list (ssget \"_X\" '((0 . \"RTEXT\")))))\n"_s +
             paths +
             u"set txsearch c:\\f\nset txreplace d:\\g\\h\nclick btReplace\nclick acceptButton\n"
             "expect-printed \"2 paths changed, 1 on locked layers left as they were.\"\n"_s,
         "(equal (cons (kora_field (tblsearch \"STYLE\" \"Standard\") 4) (mapcar '(lambda (e) (kora_field (entget e) "
         "1)) "
         "(reverse r))) '(\"d:\\\\g\\\\h\\\\big.shx\" \"d:/g/h/a^b.txt\" \"$(c:/f)\" \"c:\\\\f\\\\l.txt\"))"},
        {"only texts of the named block's references, without tags that it has not",
         attributes + handle +
             imported("HANDLE\tBLOCKNAME\tY\tNO\tX\n'%1\ta\t2^3\tno\t<>\n'%1\tB\tno\tno\tno\n"
                      "'FFFF\tA\tno\tno\tno\n"_ba.replace("%1", "41")) +
             u"expect-printed \"1 attribute of 1 block reference changed, 2 without their block reference.\"\n"_s,
         "(equal (texts) '(((\"X\" . \"1\") (\"Y\" . \"2^3\"))))"},
        {"a table of something else", imported("NAME\tX\nA\t1\n") + u"expect-printed \"is no table of attributes\"\n"_s,
         "T"},
        {"nothing to write", u"command EXPORTBLOCKATTRIBUTES\nenter\nexpect-printed \"was selected.\"\n"_s, "T"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        QDir(run.path(u"out"_s)).removeRecursively();
        plays(helpers + row.session + u"expect-lisp %1\n"_s.arg(QLatin1StringView(row.expected)));
        EXPECT_TRUE(isSound(run.result(plan)));
    }
}

TEST_F(BlockAndPathTools, AllVariablesCanBeSetAgain)
{
    const QString written = u"command EXPORTVARIABLES\ndialog Dlg_QT_ExportSettings\nset Type %1\nclick saveButton\n"
                            "file %2\nclick button:Close\n"_s;
    const QString all = run.path(u"all.scr"_s);
    plays(written.arg(u"All"_s, all) + written.arg(u"Standard"_s, run.path(u"before.scr"_s)) +
          u"lisp (mapcar 'setvar '(\"LTSCALE\" \"INSBASE\" \"USERS2\") '(7.0 (1.0 2.0 3.0) \"x\"))\n"
          "lisp (load \"%1\")\n"_s.arg(all) +
          written.arg(u"Standard"_s, run.path(u"after.scr"_s)));
    const QByteArray script = ToolRun::readFile(all);
    EXPECT_TRUE(script.startsWith(";(setvar \"ACADVER\" \"AC1032\") read-only\n"));
    EXPECT_TRUE(script.contains("\n(setvar \"EXPERT\" 0 ;|dangerous|;)\n"));
    EXPECT_EQ(ToolRun::readFile(run.path(u"after.scr"_s)), ToolRun::readFile(run.path(u"before.scr"_s)));
    EXPECT_TRUE(isSound(run.result(plan)));
}

TEST_F(BlockAndPathTools, LayoutsThatAreNotInUseCountAsWell)
{
    const QString drawing = run.path(u"layouts.dxf"_s);
    runPython(
        {u"-c"_s,
         u"import sys, ezdxf\nd = ezdxf.new('R2010')\nb = d.blocks.new('A')\nb.add_point((0, 0))\n"
         "b.add_attdef('X', (0, 0), 'x')\nd.blocks.new('B').add_point((0, 0))\nd.layouts.new('Second')\n"
         "for l in d.layouts: l.add_blockref('A', (1, 2)).add_attrib('X', l.name, (1, 2))\nd.saveas(sys.argv[1])"_s,
         drawing});
    plays(
        table + u"expect-items blocksTable A;3\nclick button:Close\n"_s + replacing(u"A"_s, u"B"_s, sync) +
            u"expect-printed \"3 references replaced.\"\n"
            "lisp (setq all (mapcar '(lambda (i) (list (kora_field (entget i) 2) (kora_field (entget i) 410))) "
            "(kora_space_inserts)))\nexpect-lisp (equal all '((\"B\" \"Model\") (\"B\" \"Layout1\") (\"B\" \"Second\")))\n"_s,
        drawing);
    EXPECT_TRUE(isSound(run.result(drawing)));
}

TEST_F(BlockAndPathTools, DrawingsMadeElsewhereStaySound)
{
    const QDir corpus(qEnvironmentVariable("ORTAKIT_CORPUS"));
    if (qEnvironmentVariableIsEmpty("ORTAKIT_CORPUS") || !corpus.exists())
        GTEST_SKIP() << "no drawings";
    const struct
    {
        const char *name;
        const char *old;
        const char *replacement;
    } rows[] = {{"clipped_blocks", "BaseBlock", "#0"},     {"block_arrays_with_attributes", "FLAG", "#0"},
                {"uncommon", "DATE_BLOCK", "#0"},          {"nested_dimensions", "BLK3", "BLK2"},
                {"images", "image_line_new", "image_new"}, {"masked_door", "wipeout_door", "#0"}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const QString drawing = corpus.filePath(QLatin1StringView(row.name) + u".dxf"_s);
        plays(u"lisp (entmake '((0 . \"BLOCK\") (2 . \"0new\") (70 . 0) (10 0.0 0.0 0.0)))\n"
              "lisp (entmake '((0 . \"POINT\") (8 . \"0\") (10 0.0 0.0 0.0)))\nlisp (entmake '((0 . \"ENDBLK\")))\n"_s +
                  replacing(QLatin1StringView(row.old), QLatin1StringView(row.replacement),
                            u"check PurgeItems yes\n"_s + sync) +
                  u"expect-lisp (null (tblsearch \"BLOCK\" \"%1\"))\n"_s.arg(QLatin1StringView(row.old)) + paths +
                  u"set txreplace x:\\\nclick btReplace\nclick acceptButton\n"_s,
              drawing);
        EXPECT_TRUE(isSound(run.result(drawing)));
    }
}

} // namespace
