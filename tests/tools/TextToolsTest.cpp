// The tools for texts, edge by edge: a table for each tool, and all of them over drawings made elsewhere.

#include "formats/TextCase.h"
#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>

#include <array>
#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

/// A string as Lisp reads it.
QString quoted(QString text)
{
    text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s).replace(u'\n', u"\\n"_s).replace(u'\t', u"\\t"_s);
    return u'"' + text + u'"';
}

class TextTools : public ToolTest
{
protected:
    /// Texts in the empty north of the plan: (text x y "content" . groups) and (note x y "content" . groups); (says e
    /// ...) is what entities say, (chosen e ...) chooses them before a command; (box "TYPE") are the corners around the
    /// last one of that type; layer SHUT is locked.
    static QString helpers()
    {
        return u"lisp (defun made (head x y words groups) (entmakex (append head groups "
               "(list (list 10 (float x) (float y) 0.0) (cons 1 words) '(40 . 1.0)))))\n"
               "lisp (defun text (x y words groups) (made '((0 . \"TEXT\")) x (+ y 20) words groups))\n"
               "lisp (defun note (x y words groups) (made '((0 . \"MTEXT\")) x (+ y 20) words groups))\n"
               "lisp (defun says (es) (mapcar '(lambda (e) (kora_text_content (entget e))) es))\n"
               "lisp (defun chosen (es) (sssetfirst nil (kora_selection es)))\n"
               "lisp (defun all (type) (kora_selection_to_list (ssget \"_X\" (list (cons 0 type)))))\n"
               "lisp (defun box (type / e) (setq e (car (all type))) (if (= type \"3DFACE\") (mapcar '(lambda (f) "
               "(mapcar "
               "f (kora_field (entget e) 10) (kora_field (entget e) 12))) '(min max)) (kora_bounding_box (list e))))\n"
               "lisp (defun middle (box) (mapcar '(lambda (a b n) (/ (+ a b) 2)) (car box) (cadr box) '(1 2)))\n"
               "lisp (entmake '((0 . \"LAYER\") (2 . \"SHUT\") (70 . 4) (62 . 1) (6 . \"Continuous\")))\n"_s;
    }
    struct Row
    {
        const char *what;
        QString setUp;  ///< an expression that leaves entities in es
        QString dialog; ///< lines from the dialog on
        QString check;  ///< an expression
    };
    /// Plays a command over what each row sets up, chosen beforehand.
    template <std::size_t size>
    void playsRows(const QString &command, const QString &dialog, const Row (&rows)[size], const QString &drawing = {})
    {
        for (const Row &row : rows) {
            SCOPED_TRACE(row.what);
            plays(helpers() +
                      u"lisp (setq es (list %1))\nlisp (chosen es)\ncommand %2\ndialog %3\n%4\nexpect-lisp %5\n"_s.arg(
                          row.setUp, command, dialog, row.dialog, row.check),
                  drawing);
        }
    }
};

/// All characters that might have a case, each once behind a blank and once behind another character.
QString everyCase()
{
    QString text;
    for (uint code = 0x80; code < 0x1F000; ++code) {
        const QString character = QString::fromUcs4(std::array{char32_t(code)}.data(), 1);
        const QChar::Category category = QChar::category(code);
        const bool hasCase = character.toUpper() != character || character.toLower() != character;
        if (hasCase || (category >= QChar::Letter_Uppercase && category < QChar::Letter_Other))
            text += u' ' + character + character;
    }
    return text;
}

TEST_F(TextTools, CaseInLispIsTheCaseOfThePreview)
{
    const QStringList texts = {u"hello World. bye"_s,   u" hello"_s,
                               u"2ND FLOOR"_s,          u"élan ÉTÉ"_s,
                               u"ßA straße ı i"_s,      u""_s,
                               u"ABC 12 ÄÖ İ"_s,        u"\U00010400 \U00010428a"_s,
                               u"the (big) dog"_s,      u"2ND\tFLOOR\u00A0o'NEIL\nx-RAY"_s,
                               u"ǆa aB1c ÿ ǅ ΟΔΟΣ ς"_s, everyCase()};
    QString session;
    for (const QString &text : texts) {
        for (int style = 1; style <= 5; ++style) {
            const QString expected = ortakit::inTextCase(text, static_cast<ortakit::TextCase>(style - 1));
            for (const QString &paragraph : {u"nil"_s, u"T"_s})
                session += u"expect-lisp (= (edittextcase:converted %1 %2 %3) %4)\n"_s.arg(
                    quoted(text), QString::number(style), paragraph, quoted(expected));
        }
    }
    plays(session);
}

TEST_F(TextTools, CaseLeavesCodesAsTheyAre)
{
    const struct
    {
        int style;
        bool isParagraph;
        QString text;
        QString converted;
    } rows[] = {
        {3, true, u"{\\fArial|b0|i0|c0|p34;ab\\H2x;c}\\Pd\\~e"_s, u"{\\fArial|b0|i0|c0|p34;AB\\H2x;C}\\PD\\~E"_s},
        {3, true, u"\\A1;\\pxqc;a\\S h7^ g6;b\\\\p\\{x\\}"_s, u"\\A1;\\pxqc;A\\S h7^ g6;B\\\\P\\{X\\}"_s},
        {3, true, u"\\S1\\;2;a"_s, u"\\S1\\;2;A"_s},
        {4, true, u"\\LnEW\\l rOOM\\PtWO\\NtHREE\\~x"_s, u"\\LNew\\l Room\\PTwo\\NThree\\~X"_s},
        {1, true, u"{\\C1;hELLO}\\PWORLD"_s, u"{\\C1;Hello}\\Pworld"_s},
        {1, false, u"%%uhELLO%%u 30%%d %%c20 %%065X"_s, u"%%uHello%%u 30%%d %%c20 %%065x"_s},
        {3, false, u"a\\Pb \\U+00b0c \\U+zz {d"_s, u"A\\PB \\U+00b0C \\U+ZZ {D"_s},
        {3, true, u"a\\"_s, u"A\\"_s},
        {3, true, u"a\\H2"_s, u"A\\H2"_s},
        {3, false, u"a%%"_s, u"A%%"_s},
        {2, true, u"A^JB"_s, u"a^jb"_s},
    };
    QString session;
    for (const auto &row : rows)
        session += u"expect-lisp (= (edittextcase:converted %1 %2 %3) %4)\n"_s.arg(
            quoted(row.text), QString::number(row.style), row.isParagraph ? u"T"_s : u"nil"_s, quoted(row.converted));
    plays(session);
}

TEST_F(TextTools, CaseOfAttributesLongParagraphsAndLockedLayers)
{
    const QString upper = u"check radioButton3 yes\nclick okButton\nexpect-printed %1"_s;
    const QString insert =
        u"(progn (entmake '((0 . \"BLOCK\") (2 . \"TAG\") (70 . 2) (10 0.0 0.0 0.0))) "
        "(entmake '((0 . \"ATTDEF\") (10 0.0 0.0 0.0) (40 . 1.0) (1 . \"\") (3 . \"No?\") (2 . \"NO\") "
        "(70 . 0))) (entmake '((0 . \"ENDBLK\"))) "
        "(entmake '((0 . \"INSERT\") (2 . \"TAG\") (66 . 1) (8 . \"%1\") (10 0.0 30.0 0.0))) "
        "(entmake '((0 . \"ATTRIB\") (10 0.0 30.0 0.0) (40 . 1.0) (1 . \"t30\") (2 . \"NO\") (70 . 0))) "
        "(entmakex '((0 . \"SEQEND\"))) (entlast))"_s;
    const Row rows[] = {
        {"attribute", insert.arg(u"0"_s), upper.arg(u"1 text changed."_s),
         u"(equal (says (kora_attributes (car es))) '(\"T30\"))"_s},
        {"attribute of a locked block", insert.arg(u"SHUT"_s),
         upper.arg(u"0 texts changed. 1 on a locked layer was left alone."_s),
         u"(equal (says (kora_attributes (car es))) '(\"t30\"))"_s},
        {"locked text", u"(text 0 0 \"a\" '((8 . \"SHUT\"))) (text 0 2 \"b\" nil) (text 0 4 \"C\" nil)"_s,
         upper.arg(u"1 text changed. 1 on a locked layer was left alone."_s),
         u"(equal (says es) '(\"a\" \"B\" \"C\"))"_s},
        {"definition",
         u"(entmakex '((0 . \"ATTDEF\") (10 0.0 30.0 0.0) (40 . 1.0) (1 . \"door\") (3 . \"No?\") (2 . "
         "\"no\") (70 . 0)))"_s,
         upper.arg(u"1 text changed."_s), u"(= \"no\" (kora_field (entget (car es)) 2))"_s},
        {"long", u"(note 0 0 \"c\" (list (cons 3 (apply 'strcat (repeat 50 (setq l (cons \"word \" l)))))))"_s,
         upper.arg(u"1 text changed."_s),
         u"(and (= 251 (strlen (car (says es)))) (= \"C\" (kora_field (entget (car es)) 1)) (wcmatch (car (says es)) "
         "\"WORD*WORD C\"))"_s},
        {"growing", u"(note 0 0 (apply 'strcat (repeat 249 (setq l (cons \"ß\" l)))) nil)"_s,
         upper.arg(u"1 text changed."_s), u"(= 498 (strlen (car (says es))))"_s},
    };
    playsRows(u"EDITTEXTCASE"_s, u"Dlg_QT_EditTextCase"_s, rows);
}

TEST_F(TextTools, NumbersFollowOrderAndFormat)
{
    // A at 0,0, B at 10,0, C at 0,10, D at 10,10, chosen as D B C A.
    const QString four = u"(text 10 10 \"D\" nil) (text 10 0 \"B\" nil) (text 0 10 \"C\" nil) "
                         "(text -9 0 \"A\" '((72 . 2) (11 0.0 20.0 0.0)))"_s;
    const QString plain =
        u"click sent_asc_2\nset tx_init 1\nset tx_step 1\nset cb_digits \"1 [1]\"\nclick placement_over\n"_s;
    const auto order = [&](const char *what, const QString &clicks, const QString &points, const QString &dbca) {
        return Row{what, four,
                   plain + clicks + u"\nclick acceptButton\n"_s + points + u"expect-printed 4 texts numbered."_s,
                   u"(= (apply 'strcat (says es)) \"%1\")"_s.arg(dbca)};
    };
    const auto one = [](const char *what, const QString &made, const QString &lines, const QString &expected) {
        return Row{what, made,
                   u"click sort_select\nclick sent_asc_2\nset tx_init 7\nset tx_step 1\nset cb_digits \"1 [1]\"\n"
                   "set format_prefix \"\"\nset format_sufix \"\"\n%1\nclick acceptButton"_s.arg(lines),
                   u"(equal (says es) '(%1))"_s.arg(expected)};
    };
    const QString text = u"(text 0 0 \"Room\" nil)"_s;
    const Row rows[] = {
        order("x", u"click sort_x"_s, {}, u"3412"_s),
        order("x descending", u"click sort_x\nclick sent_des"_s, {}, u"1234"_s),
        order("y", u"click sort_y"_s, {}, u"4231"_s),
        order("y descending", u"click sort_y\nclick sent_des"_s, {}, u"2413"_s),
        order("choice", u"click sort_select"_s, {}, u"1234"_s),
        order("choice descending", u"click sort_select\nclick sent_des"_s, {}, u"4321"_s),
        order("point", u"click sort_point"_s, u"point 11,21\n"_s, u"2143"_s),
        order("two points", u"click sort_2points"_s, u"point 0,20\npoint -1,30\n"_s, u"3142"_s),
        one("prefix and suffix", text, u"set format_prefix \"<\"\nset format_sufix >\nclick placement_prefix"_s,
            u"\"<7>Room\""_s),
        one("width, not the sign", text, u"set tx_init -7\nset cb_digits \"3 [001]\"\nclick placement_sufix"_s,
            u"\"Room-007\""_s),
        one("decimals of the step", text + u"(text 0 2 \"x\" nil)"_s,
            u"set tx_step 0.25\nset cb_digits \"2 [01]\"\nclick placement_over"_s, u"\"07.00\" \"07.25\""_s),
        one("never minus nothing", text + text, u"set tx_init -0.5\nset tx_step 0.5\nclick placement_over"_s,
            u"\"-0.5\" \"0.0\""_s),
        one("first occurrence", u"(text 0 0 \"n/n\" nil) (text 0 2 \"N\" nil) (text 0 4 \"xn\" nil)"_s,
            u"click placement_replace\nset search n"_s, u"\"7/n\" \"N\" \"x8\""_s),
        one("not within codes", u"(note 0 0 \"{\\\\fArial;Pf}\" nil)"_s, u"click placement_replace\nset search f"_s,
            u"\"{\\\\fArial;P7}\""_s),
        one("inside of the format", u"(note 0 0 \"{\\\\C1;Red}\" nil)"_s,
            u"set format_sufix {\nclick placement_prefix"_s, u"\"{\\\\C1;7\\\\{Red}\""_s),
        one("under the line", u"(text 0 0 \"%%uRoom%%u\" nil)"_s, u"click placement_sufix"_s, u"\"%%uRoom7%%u\""_s),
        one("locked", u"(text 0 0 \"a\" '((8 . \"SHUT\"))) (text 0 2 \"b\" nil)"_s, u"click placement_over"_s,
            u"\"a\" \"7\""_s),
        one("empty and blank", u"(text 0 4 \"\" nil) (text 0 2 \" \" nil) (text 0 0 \"b\" nil)"_s,
            u"click placement_over"_s, u"\"\" \" \" \"7\""_s),
    };
    playsRows(u"NUMBERTEXT"_s, u"Dlg_QT_numbertext"_s, rows);
}

TEST_F(TextTools, MasksLieBehindTheirTexts)
{
    const QString accept = u"set offset 0.5\nclick acceptButton\n"_s;
    const QString again = u"lisp (chosen es)\ncommand TEXTMASK\ndialog Dlg_QT_TextMask\n"_s;
    const QString solid = u"click type_solid\nset color 3\n"_s + accept;
    const QString text = u"(text 0 0 \"HHH\" nil)"_s;
    const Row rows[] = {
        {"a second run takes the mask's place", text, solid + again + u"click type_mask\n"_s + accept,
         u"(and (null (all \"SOLID\")) (= 1 (length (all \"WIPEOUT\"))))"_s},
        {"other texts keep theirs", text + u"(text 0 9 \"HHH\" nil)"_s,
         solid + u"lisp (setq es (cdr es))\n"_s + again + solid, u"(= 2 (length (all \"SOLID\")))"_s},
        {"moved with the text", text,
         solid + u"lisp (entmod (subst '(10 50.0 20.0 0.0) (assoc 10 (entget (car es))) (entget (car es))))\n"_s +
             again + solid,
         u"(equal '(49.5 19.5) (list (caar (box \"SOLID\")) (cadar (box \"SOLID\"))) 0.51)"_s},
        {"turned", u"(text 0 0 \"HHH\" (list (cons 50 (/ pi 2))))"_s, solid,
         u"(equal '(-1.5 19.5) (list (caar (box \"SOLID\")) (cadar (box \"SOLID\"))) 1e-6)"_s},
        {"centred", u"(text 0 0 \"HHH\" '((72 . 4) (11 7.0 30.0 0.0)))"_s, solid,
         u"(equal '(7.0 30.0) (middle (box \"SOLID\")) 1e-6)"_s},
        {"between two points", u"(text 0 0 \"HHH\" '((72 . 3) (11 0.0 32.0 0.0)))"_s, solid,
         u"(equal 32.5 (cadr (cadr (box \"SOLID\"))) 1e-6)"_s},
        {"paragraph seen from behind", u"(note 0 0 \"HHH\" '((210 0.0 0.0 -1.0)))"_s, u"click type_3dface\n"_s + accept,
         u"(equal -0.5 (caar (box \"3DFACE\")) 1e-6)"_s},
        {"paragraph attached at its middle", u"(note 0 0 \"HH\\\\PHHHH\" '((71 . 5) (41 . 90.0)))"_s, solid,
         u"(equal '(0.0 20.0) (middle (box \"SOLID\")) 1e-6)"_s},
        {"seen from behind", u"(text 0 0 \"HHH\" '((210 0.0 0.0 -1.0)))"_s, u"click type_3dface\n"_s + accept,
         u"(< (caar (box \"3DFACE\")) (car (cadr (box \"3DFACE\"))) 0.6)"_s},
        {"nothing to mask", u"(text 0 0 \" \" nil) (text 0 2 \"a\" '((8 . \"SHUT\")))"_s, solid,
         u"(null (all \"SOLID\"))"_s},
    };
    playsRows(u"TEXTMASK"_s, u"Dlg_QT_TextMask"_s, rows);
}

TEST_F(TextTools, FramesHaveTheSizeOfTheirTextsOrOfTheLargest)
{
    const auto row = [](const char *what, const QString &clicks, const QString &type, const QString &check) {
        return Row{
            what, u"(text 0 0 \"HH\" nil) (text 0 9 \"HHHH\" '((40 . 1.0)))"_s,
            u"set offset 0.5\n%1\nclick acceptButton\nexpect-printed 2 texts framed.\n"
            "lisp (setq sizes (mapcar '(lambda (e) (mapcar '- (cadr (setq b (kora_bounding_box (list e)))) (car b))) "
            "(vl-remove-if '(lambda (e) (< (cadr (cadr (kora_bounding_box (list e)))) 15)) (all \"%2\"))) "
            "w (car (cadr (textbox '((1 . \"HH\") (40 . 1.0))))))"_s.arg(clicks, type),
            check};
    };
    const QString accept = u"click acceptButton\n"_s;
    const QString again = u"lisp (chosen es)\ncommand TEXTFRAME\ndialog Dlg_QT_TextFrame\n"_s;
    const QString poly = u"LWPOLYLINE"_s;
    const QString same = u"(equal (mapcar 'car sizes) (list %1 %2) 1e-6)"_s;
    const Row rows[] = {
        row("rectangles", u"click type_rectangle\nclick variable"_s, poly, same.arg(u"(1+ (* 2 w))"_s, u"(1+ w)"_s)),
        row("of one width", u"click type_rectangle\nclick constant\nclick constant_width"_s, poly,
            same.arg(u"(1+ (* 2 w))"_s, u"(1+ (* 2 w))"_s)),
        row("of one height", u"click type_rectangle\nclick constant\nclick constant_height"_s, poly,
            same.arg(u"(1+ (* 2 w))"_s, u"(1+ w)"_s)),
        row("slots", u"click type_slot\nclick variable"_s, poly, same.arg(u"(+ 2 (* 2 w))"_s, u"(+ 2 w)"_s)),
        row("circles", u"click type_circle"_s, u"CIRCLE"_s,
            u"(equal (mapcar 'cadr sizes) (mapcar '(lambda (w) (1+ (distance '(0 0) (list w 1)))) (list (* 2 w) w)) "
            "1e-6)"_s),
        row("no distance", u"set offset \"\"\nclick type_rectangle\nclick variable\nclick bk_hatch\nset color 1"_s,
            poly, u"(and (equal (mapcar 'cadr sizes) '(1.0 1.0) 1e-6) (= 2 (length (all \"HATCH\"))))"_s),
        {"again, in place of the old and beside them", u"(text 0 0 \"HH\" nil) (text 0 9 \"HH\" nil)"_s,
         u"set offset 0.5\nclick type_rectangle\nclick bk_hatch\nset color 1\n"_s + accept + again +
             u"click type_circle\n"_s + accept +
             u"answer Yes\nexpect-printed \"2 texts have frames already.\"\nlisp (setq es (cdr es))\n"_s + again +
             accept + u"answer No\nexpect-printed \"1 text has a frame already.\"\n"_s,
         u"(equal '(0 3 3) (mapcar '(lambda (type) (length (kora_selection_to_list (ssget \"_X\" (list (cons 0 type) "
         u"'(-3 (\"KORA_TEXTFRAME\"))))))) '(\"LWPOLYLINE\" \"CIRCLE\" \"HATCH\")))"_s},
    };
    playsRows(u"TEXTFRAME"_s, u"Dlg_QT_TextFrame"_s, rows);
}

TEST_F(TextTools, NotesBecomeOneParagraph)
{
    const auto row = [](const char *what, const QString &made, const QString &clicks, const QString &check) {
        return Row{
            what, made,
            u"click select_entity\ncheck word_wrap yes\n%1\nclick acceptButton\nlisp (setq d (entget (entlast)) w (kora_text_content d))"_s
                .arg(clicks),
            check};
    };
    const QString three = u"(text 0 4 \"b\" nil) (text 0 0 \"C\" nil) (text 0 2 \"a\" nil)"_s;
    const QString other = u"(text 0 4 \"one\" '((62 . 1))) (text 0 0 \"two\" '((40 . 2.0) (41 . 0.5)))"_s;
    const Row rows[] = {
        row("as chosen, wrapped", three, u"click select_entity"_s,
            u"(and (= w \"b C a\") (< 0.5 (kora_field d 41) 1.0))"_s),
        row("from the top", three, u"click select_topdow"_s, u"(= w \"b a C\")"_s),
        row("by alphabet, by lines", three, u"click select_alfa\ncheck word_wrap no"_s,
            u"(and (= w \"a\\\\Pb\\\\PC\") (= 0.0 (kora_field d 41)) (equal '(0.0 25.0 0.0) (kora_field d 10) 0.1))"_s),
        row("looks kept", other, u"click select_entity"_s,
            u"(and (= 1 (kora_field d 62)) (= w \"one {\\\\W0.5;\\\\C256;\\\\H2;two}\"))"_s),
        row("looks given up", other, u"check keepfonts no\ncheck keepcolors no\ncheck keepsizes no"_s,
            u"(and (null (kora_field d 62)) (= w \"one two\") (= (kora_field d 40) (getvar \"TEXTSIZE\")))"_s),
        row("signs", u"(text 0 0 \"%%ua%%u{\\\\ 5%%d %%ob\" nil) (text 0 2 \"c\" nil)"_s, u"click select_entity"_s,
            u"(= w \"{\\\\La\\\\l\\\\{\\\\\\\\ 5%%d \\\\Ob} c\")"_s),
        row("turned", u"(text 0 0 \"HH\" (list (cons 50 (/ pi 2))))"_s, u"click select_entity"_s,
            u"(equal '(-1.0 20.0 0.0) (cdr (assoc 10 d)) 1e-6)"_s),
        row("locked and in another plane",
            u"(text 0 4 \"a\" nil) (text 0 2 \"b\" '((8 . \"SHUT\"))) (text 0 0 \"c\" '((210 0.0 0.0 -1.0)))"_s,
            u"click select_entity"_s,
            u"(and (= w \"a\") (entget (cadr es)) (entget (caddr es)) (null (entget (car es))))"_s),
    };
    playsRows(u"CONVERTSIMPLENOTES"_s, u"DLG_QT_ConvertNotes"_s, rows);
}

TEST_F(TextTools, NumbersThatAreNoneAreAskedForAgainAndGivenUp)
{
    plays(u"command NUMBERTEXT\nselect all\nenter\ndialog Dlg_QT_numbertext\nset tx_init one\nclick acceptButton\n"
          "message \"The initial value must be a number\" Ok\ndialog Dlg_QT_numbertext\nset tx_init 1\n"
          "click sort_2points\nclick acceptButton\npoint 1,1\ncancel\nexpect-modified no\n"_s);
}

// A run is one step. An early drawing has no wipeouts, paragraphs and hatches, and keeps no order.
TEST_F(TextTools, EarlyDrawingsGetWhatTheyCanHave)
{
    const QString early = run.writeFile(
        u"early.dxf"_s,
        "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nSTYLE\n70\n1\n0\nSTYLE\n2\nSTANDARD\n70\n0\n40\n0\n41\n1\n50\n0"
        "\n71\n0\n42\n1\n3\ntxt\n4\n\n0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nTEXT\n5\n1\n8\n0\n"
        "10\n0\n20\n0\n40\n1\n1\nHH\n0\nLINE\n5\n2\n8\n0\n10\n0\n20\n0\n11\n5\n21\n5\n0\nENDSEC\n0\nEOF\n");
    const QString all = u"select all\nenter\ndialog %1\n"_s;
    plays(u"command TEXTMASK\n"_s + all.arg(u"Dlg_QT_TextMask"_s) +
              u"click type_mask\nset offset 0\nclick acceptButton\nexpect-printed 0 texts masked. 1 could not be "
              u"masked.\n"
              "command CONVERTSIMPLENOTES\n"_s +
              all.arg(u"DLG_QT_ConvertNotes"_s) +
              u"click acceptButton\nexpect-printed The paragraph could not be made.\nexpect-count TEXT 1\n"
              "command TEXTFRAME\n"_s +
              all.arg(u"Dlg_QT_TextFrame"_s) +
              u"click type_slot\nclick bk_hatch\nclick acceptButton\nexpect-printed cannot have a filled background\n"
              "expect-count POLYLINE 1\n"
              "command TEXTMASK\n"_s +
              all.arg(u"Dlg_QT_TextMask"_s) +
              u"click type_solid\nclick acceptButton\nexpect-count SOLID 1\nexpect-count TEXT 1\n"
              "expect-lisp (= \"TEXT\" (cdr (assoc 0 (entget (entlast)))))\nundo\nundo\nexpect-count POLYLINE 0\n"_s,
          early);
}

// One after the other over all texts; taken back, the drawing is the file again.
TEST_F(TextTools, WorkInDrawingsMadeElsewhere)
{
    const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS");
    if (corpus.isEmpty())
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder of drawings";
    const std::pair<QString, QString> steps[] = {
        {u"NUMBERTEXT"_s, u"dialog Dlg_QT_numbertext\nclick sort_y\nclick placement_sufix\nset format_prefix a\n"
                          "click acceptButton\n"_s},
        {u"EDITTEXTCASE"_s, u"dialog Dlg_QT_EditTextCase\ncheck radioButton5 yes\nclick okButton\n"_s},
        {u"TEXTFRAME"_s, u"dialog Dlg_QT_TextFrame\nclick bk_hatch\nclick acceptButton\n"_s},
        {u"TEXTMASK"_s, u"dialog Dlg_QT_TextMask\nclick acceptButton\n"_s},
        {u"TEXTMASK"_s, u"dialog Dlg_QT_TextMask\nclick type_solid\nclick acceptButton\n"_s},
    };
    QString session = u"lisp (setq texts (ssget \"_A\" '((0 . \"TEXT,MTEXT\"))))\n"_s;
    for (const auto &[command, dialog] : steps)
        session += u"lisp (sssetfirst nil texts)\ncommand %1\n%2"_s.arg(command, dialog);
    int changed = 0;
    for (const QFileInfo &file : QDir(corpus).entryInfoList({u"*.dxf"_s})) {
        const QString drawing = file.filePath();
        const QByteArray content = ToolRun::readFile(drawing);
        if (!content.contains("\nTEXT") && !content.contains("\nMTEXT"))
            continue;
        if (!isSound(drawing))
            continue;
        const RunOutcome hasTexts = run.play(u"expect-lisp (ssget \"_A\" '((0 . \"TEXT,MTEXT\")))\n"_s, drawing);
        if (hasTexts.status != 0)
            continue;
        const RunOutcome outcome = run.play(session, drawing);
        EXPECT_EQ(outcome.status, 0) << file.fileName().toStdString() << outcome.output.toStdString();
        EXPECT_TRUE(isSound(run.result(drawing))) << file.fileName().toStdString();
        const RunOutcome undone = run.play(session + u"undo\n"_s.repeated(5) + u"expect-modified no\n"_s, drawing);
        EXPECT_EQ(undone.status, 0) << file.fileName().toStdString() << undone.output.toStdString();
        ++changed;
    }
    EXPECT_GE(changed, 8);
}

} // namespace
