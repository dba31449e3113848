#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>
#include <QMap>

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class SampleSessions : public ToolTest
{
protected:
    /// What differs in the result, each kind of change once with its number; empty when nothing was saved.
    QString changes() const
    {
        if (!QFile::exists(run.result(plan)))
            return {};
        EXPECT_TRUE(isSound(run.result(plan)));
        QMap<QString, int> counts;
        for (const QString &change : differences(plan, run.result(plan)))
            ++counts[change];
        QStringList texts;
        for (auto count = counts.cbegin(); count != counts.cend(); ++count)
            texts.append(u"%1%2"_s.arg(count.value()).arg(count.key()));
        return texts.join(u' ');
    }
};

// What the manual shows a new user: every session runs and leaves what it says in the drawing and beside it.
TEST_F(SampleSessions, ChangeWhatTheySayAndNothingElse)
{
    const struct
    {
        QString name;
        QString changes; ///< of the drawing
        QString file;    ///< in the user's home
        QByteArray holds;
    } rows[] = {
        // The door's line and arc and the piece behind the break; the symbol's five lines, and likewise.
        {u"breakline-create"_s, u"1+APPID 1+ARC 1+BLOCK 1+BLOCK_RECORD 1+ENDBLK 1+INSERT 2+LINE 1~$HANDSEED 1~LINE"_s,
         u"Ortakit/BreakLine/door.dwg"_s, "SECTION"},
        {u"breakline"_s, u"1+APPID 1+BLOCK 1+BLOCK_RECORD 1+ENDBLK 1+INSERT 6+LINE 1~$HANDSEED 1~LINE"_s,
         u"Ortakit/breakline.state"_s, "_dist_size="},
        // Three notes, of which one new paragraph is left.
        {u"convertsimplenotes"_s, u"1+MTEXT 1~$HANDSEED"_s, u"Ortakit/convertsimplenotes.state"_s, "word_wrap=FALSE"},
        {u"dimstyleexport"_s, {}, u"standard.dim"_s, "END_OF_STYLE\r\n"},
        // With the block of a style's arrows.
        {u"dimstyleimport"_s, u"1+BLOCK 1+BLOCK_RECORD 2+DIMSTYLE 1+ENDBLK 1+LINE 1+LTYPE 1+STYLE 1~$HANDSEED"_s,
         u"standard.dim"_s, "END_OF_STYLE\r\n"},
        {u"drawordercolor"_s, u"1+DICTIONARY 1+SORTENTSTABLE 1~$HANDSEED 1~BLOCK_RECORD"_s,
         u"Ortakit/drawordercolor.state"_s, "lstcolors=2^3^7^8^5^"},
        {u"editalias"_s, u"1+LINE 1~$HANDSEED"_s, u"alias.xml"_s, "<record command=\"LINE\" alias=\"QQ\"/>"},
        {u"edittextcase"_s, u"1+MTEXT 1~$HANDSEED 3~TEXT"_s, u"Ortakit/edittextcase.state"_s, "radiobutton3=TRUE"},
        {u"exportinfo"_s,
         {},
         u"../out/report.txt"_s,
         "NAME:   Ann\nE-MAIL: \nPHONE:  \n\nISSUE DESCRIPTION:\nThe door is missing.\n"},
        // The script sets what the drawing leaves out as well.
        {u"exportvariables"_s,
         u"1+$DIMDEC 1+$DIMLFAC 1+$DIMLUNIT 1+$DIMZIN 1+$PROJECTNAME 1+$UNITMODE 1+$XCLIPFRAME 1~$USERR1"_s,
         u"../out/settings.scr"_s, "\n(setvar \"USERS1\" \"a \\\"b\\\" \\\\c\")\n"},
        // The table's eleven lines and two texts a row.
        {u"getblockinfo"_s,
         u"6+BLOCK 6+BLOCK_RECORD 5+CIRCLE 6+ENDBLK 9+INSERT 29+LINE 7+LWPOLYLINE 14+TEXT 1~$HANDSEED"_s,
         u"../out/blocks.txt"_s,
         "Name     Instances\r\n007         1\r\n12          1\r\nBUSH        1\r\nCHAIR       2\r\n"},
        {u"importblockattributes"_s,
         u"2+ATTDEF 4+ATTRIB 1+BLOCK 1+BLOCK_RECORD 1+ENDBLK 2+INSERT 1+LINE 2+SEQEND 1~$HANDSEED"_s,
         u"../out/doors.txt"_s,
         "HANDLE\tBLOCKNAME\tNUMBER\tMATERIAL\tROW KEY\n'3C\tDOOR\t'D-01\tOak\tKLCA\n'40\tDOOR\t'D-02\tSteel\tWLCA\n"},
        {u"lispdump"_s, {}, u"alias.xml"_s, "QQ"},
        {u"lispexplorer"_s, {}, u"alias.xml"_s, "QQ"},
        {u"makelinestyle"_s, u"2+LINE 1+LTYPE 1+POINT 1+TEXT 1~$HANDSEED"_s, u"pipes.lin"_s,
         "*GAS,Gas pipe ---- GAS . ---- GAS .\nA,1,-1.2,[\"GAS\",Standard,S=0.2,R=0,X=-1,Y=-0.1],0,-0.3\n"},
        {u"makeshape"_s, {}, u"plan.shp"_s, ",DOOR\n"},
        // Two texts on the sheets, of which one is the session's, the wall with its block and layer, the new tab.
        {u"mergesheets"_s,
         u"2+BLOCK 2+BLOCK_RECORD 2+ENDBLK 12+INSERT 1+LAYER 1+LAYOUT 1+LINE 1+LWPOLYLINE 2+TEXT 2+VIEWPORT "
         u"1~$HANDSEED 1~DICTIONARY 1~LAYOUT"_s,
         u"Ortakit/mergesheets.state"_s, "newnames=A-details^A-Layout1^"},
        // The sheet, two viewports, the title block and its layer; limits of the sheet and where it was left.
        {u"multiviewsetup"_s,
         u"1+$PLIMMAX 1+$PLIMMIN 2+ATTDEF 2+ATTRIB 1+BLOCK 1+BLOCK_RECORD 1+ENDBLK 1+INSERT 1+LAYER 1+LINE "
         u"3+LWPOLYLINE 1+SEQEND 3+VIEWPORT "
         "1~$HANDSEED 1~$TILEMODE"_s,
         u"Ortakit/multiviewsetup.state"_s, "titleblock=a3.dxf\n"},
        {u"numbertext"_s, u"3~TEXT"_s, u"Ortakit/numbertext.state"_s, "tx_step=5"},
        // The zigzag's block, whole copies and the pieces of others, and their group.
        {u"patternhatch"_s, u"1+BLOCK 1+BLOCK_RECORD 1+ENDBLK 1+GROUP 15+INSERT 59+LINE 1~$HANDSEED 1~DICTIONARY"_s,
         u"Ortakit/patternhatch.state"_s, "typeobjectgroup=TRUE"},
        {u"redefinepaths"_s, u"1+BLOCK 1+BLOCK_RECORD 1+ENDBLK 1+INSERT 1+STYLE 1~$HANDSEED"_s,
         u"Ortakit/redefinepaths.state"_s, "txreplace=d:\\2026\n"},
        {u"replaceblock"_s, u"4+BLOCK 4+BLOCK_RECORD 3+CIRCLE 4+ENDBLK 9+INSERT 2+LINE 7+LWPOLYLINE 1~$HANDSEED"_s,
         u"Ortakit/replaceblock.state"_s,
         "\xEF\xBB\xBF"
         "blockstable=7^TREE^\n!action!=OK\nblockstablerep=BUSH^\npurgeitems=TRUE\nattsync=FALSE\n"},
        {u"replaceblockbyreference"_s,
         u"7+BLOCK 7+BLOCK_RECORD 5+CIRCLE 7+ENDBLK 9+INSERT 18+LINE 7+LWPOLYLINE 1~$HANDSEED"_s,
         u"Ortakit/replaceblocktoxref.state"_s,
         "\xEF\xBB\xBF"
         "blockstable=12^\n!action!=OK\ndirectory="},
        // Three insertions, two with an attribute, and the blocks with what they need; two insertions are in a block.
        {u"selectblock"_s,
         u"1+ATTDEF 2+ATTRIB 3+BLOCK 3+BLOCK_RECORD 3+CIRCLE 3+ENDBLK 5+INSERT 2+LAYER 1+LTYPE 2+LWPOLYLINE 2+SEQEND "
         "1+STYLE 1~$HANDSEED"_s,
         u"Ortakit/selectblock.state"_s, "name=LAMP\nsource=active\n"},
        {u"showlinks"_s, u"1+APPID 1~$HANDSEED 2~TEXT"_s, u"Ortakit/showlinks.state"_s, "txreplace=new.example\n"},
        // A slot and its filling for each of two names, and the order in which they are drawn.
        {u"textframe"_s, u"1+APPID 1+DICTIONARY 2+HATCH 2+LWPOLYLINE 1+SORTENTSTABLE 1~$HANDSEED 1~BLOCK_RECORD"_s,
         u"Ortakit/textframe.state"_s, "constant_both=TRUE"},
        // The lines that the session draws, the mask with its class, its setting and the application that marks it.
        {u"textmask"_s,
         u"1+APPID 2+CLASS 1+DICTIONARY 12+LINE 1+SORTENTSTABLE 1+WIPEOUT 1+WIPEOUTVARIABLES 1~$HANDSEED "
         u"1~BLOCK_RECORD "
         "1~DICTIONARY"_s,
         u"Ortakit/textmask.state"_s, "type_mask=TRUE"},
        {u"tracktime"_s, {}, u"Ortakit/Project/zigzag.dxf"_s, "KORA_TRACKTIME"},
    };
    QStringList names;
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name.toStdString());
        QDir(run.path(u"out"_s)).removeRecursively();
        const RunOutcome outcome = run.playFile(ToolRun::sample(u"sessions/%1.session"_s.arg(row.name)), plan);
        EXPECT_EQ(outcome.status, 0) << outcome.output.toStdString();
        EXPECT_EQ(changes(), row.changes);
        const QByteArray written = ToolRun::readFile(run.path(u"home/"_s + row.file));
        EXPECT_TRUE(written.contains(row.holds)) << written.toStdString();
        names.append(row.name + u".session"_s);
    }
    EXPECT_EQ(QDir(ToolRun::sample(u"sessions"_s)).entryList({u"*.session"_s}, QDir::Files, QDir::Name), names);
    EXPECT_TRUE(isSound(run.path(u"home/Ortakit/BreakLine/door.dwg"_s)))
        << "a new symbol, as this host writes drawings";
    EXPECT_TRUE(QDir(run.path(u"home/Ortakit"_s)).entryList({u"*.catalogue"_s}).isEmpty()) << "the catalogue goes";
}

TEST_F(SampleSessions, CancelledCommandsChangeNothing)
{
    const auto isLeft = [](const QString &command, const QString &answers = {}) {
        return u"command %1\n%2dialog QDialog\nclose\nexpect-modified no\n"_s.arg(command, answers);
    };
    QString session;
    for (const QString &command :
         u"BREAKLINE DIMSTYLEEXPORT DIMSTYLEIMPORT DRAWORDERCOLOR EDITALIAS EXPORTINFO EXPORTVARIABLES "
         u"VARIABLETOSCRIPT GETBLOCKINFO "
         "IMPORTBLOCKATTRIBUTES MAKELINESTYLE MAKESHAPE MULTIVIEWSETUP SELECTBLOCK REDEFINEPATHS REPLACEBLOCK "
         "REPLACEBLOCKBYREFERENCE "
         "PATTERNHATCH SHOWLINKS TRACKTIME"_s.split(u' '))
        session += isLeft(command);
    for (const QString &command : u"EDITTEXTCASE NUMBERTEXT TEXTMASK TEXTFRAME CONVERTSIMPLENOTES"_s.split(u' '))
        session += u"command %1\ncancel\ncommand %1\nenter\nexpect-printed Nothing was chosen.\n"_s.arg(command) +
                   isLeft(command, u"select all\nenter\n"_s);
    plays(session);
    EXPECT_FALSE(QFile::exists(run.path(u"home/Ortakit/dimstyleexport.dim"_s)));
}

} // namespace
