#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

/// Makes drawings with an independent writer and compares dimension styles with an independent reader.
const char *const script = R"(
import sys, ezdxf
from ezdxf.entities.dimstyle import acdb_dimstyle

# A style with an own value for everything that the version has.
def rich(path, version):
    doc = ezdxf.new(version, setup=['linetypes'])
    doc.styles.new('Roman', dxfattribs={'font': 'romans.shx', 'height': 2.25, 'width': 0.85, 'oblique': 14.5})
    for name in ('MyArrow', '_Oblique'):
        doc.blocks.new(name).add_line((-.5, -.5), (.5, .5))
    style = doc.dimstyles.new('Rich')
    for number, (name, attribute) in enumerate(acdb_dimstyle.attribs.items()):
        code = attribute.code
        if code < 40 or code == 70 or code >= 340 and code < 371 or code == 90 and version == 'R2000':
            continue
        if attribute.dxfversion and attribute.dxfversion > doc.dxfversion:
            continue
        isReal = code < 60 or 140 <= code < 149
        style.dxf.set(name, 14.5 if code == 50 else number / 3.0 if isReal else 44 if code == 278 else 1)
    style.dxf.dimpost = '<> mm'
    style.dxf.dimblk1 = 'MyArrow'
    style.dxf.dimblk2 = '_Oblique'
    if version != 'R12':
        style.dxf.dimtxsty = 'Roman'
    if version == 'R2018':
        style.set_linetypes('DASHDOT', 'CENTER', 'GAS LINE')
        doc.linetypes.add('GAS LINE', 'A,0.5,-0.2,["GA,S",Roman,S=0.1,R=14.5,X=-0.1,Y=-.05],-0.25',
                          description='Gas, ----GAS----', length=0.95)
    doc.saveas(path)

# A drawing without the rich style; 'arrows' has the arrow blocks, 'bare' no styles at all.
def target(path, version, kind):
    doc = ezdxf.new(version)
    if kind == 'arrows':
        for name in ('MyArrow', '_Oblique'):
            doc.blocks.new(name).add_line((-.5, -.5), (.5, .5))
    if kind == 'bare':
        doc.dimstyles.remove('Standard')
        doc.styles.remove('Standard')
    if kind == 'clash':
        doc.styles.new('Roman', dxfattribs={'font': 'other.shx', 'height': 1.0})
        doc.dimstyles.new('Rich', dxfattribs={'dimscale': 50.0, 'dimtih': 0, 'dimalt': 1})
    doc.saveas(path)

def values(doc, name):
    style = doc.dimstyles.get(name)
    found = {key: value for key, value in style.dxfattribs().items() if key not in ('handle', 'owner', 'name')}
    for key in [key for key in found if key.endswith('_handle')]:
        entity = doc.entitydb.get(found.pop(key))
        found[key[:-7]] = entity.dxf.name if entity else ''
    for key, value in list(found.items()):
        if value in ('', None):
            del found[key]
    if found.get('dimtxsty'):
        text = doc.styles.get(found['dimtxsty'])
        found.update({'text ' + k: v for k, v in text.dxfattribs().items() if k not in ('handle', 'owner')})
        found['text family'] = text.get_extended_font_data()
    for key in ('dimltype', 'dimltex1', 'dimltex2'):
        if found.get(key):
            tags = doc.linetypes.get(found[key]).pattern_tags.tags
            found['pattern of ' + key] = [(t.code, t.value) if t.code != 340 else
                (340, doc.entitydb.get(t.value).dxf.name) for t in tags]
    return found

# What the style of one drawing is and the other's is not.
def compare(before, after, name):
    old, new = values(ezdxf.readfile(before), name), values(ezdxf.readfile(after), name)
    for key in sorted(set(old) | set(new)):
        if old.get(key) != new.get(key):
            print(key, old.get(key), new.get(key))

# The same of all styles; the last line counts them.
def compareAll(before, after):
    names = [style.dxf.name for style in ezdxf.readfile(before).dimstyles]
    for name in names:
        compare(before, after, name)
    print(len(names))

globals()[sys.argv[1]](*sys.argv[2:])
)";

class DimensionStyleTools : public testing::Test
{
protected:
    QStringList python(const QStringList &arguments) const
    {
        const QString program = run.writeFile(u"styles.py"_s, script);
        return runPython(QStringList{program} + arguments).split(u'\n', Qt::SkipEmptyParts);
    }
    QString rich(const QString &version) const
    {
        const QString path = run.path(u"rich.dxf"_s);
        EXPECT_EQ(python({u"rich"_s, path, version}), QStringList());
        return path;
    }
    QString target(const QString &version, const QString &kind) const
    {
        const QString path = run.path(u"target.dxf"_s);
        EXPECT_EQ(python({u"target"_s, path, version, kind}), QStringList());
        return path;
    }

    /// Writes the styles that `choose` selects to the file that importing() takes.
    void exportStyles(const QString &choose, const QString &drawing) const
    {
        QFile::remove(run.path(u"home/styles.dim"_s));
        expectPlayed(u"command DIMSTYLEEXPORT\ndialog Dlg_QT_ExchangedDimensionStyle\n%1\nclick selectfile\n"
                     "file ${HOME_DIR}/styles.dim\nexpect-modified no\n"_s.arg(choose),
                     drawing, "export");
    }
    static QString importing(const QString &choose)
    {
        return u"command DIMSTYLEIMPORT\ndialog Dlg_QT_ImportDimensionStyle\nclick selectfile\n"
               "file ${HOME_DIR}/styles.dim\n%1\nclick acceptButton\n"_s.arg(choose);
    }
    void expectPlayed(const QString &session, const QString &drawing, const char *what) const
    {
        const RunOutcome outcome = run.play(session, drawing);
        ASSERT_EQ(outcome.status, 0) << what << ": " << outcome.output.toStdString();
    }

    ToolRun run;
    const QString chooseRich = u"row lstStyles Rich"_s;
    const QString chooseRichFully = u"row lstStyles Rich\nclick rbFullText"_s;
};

TEST_F(DimensionStyleTools, AStyleIsTheSameInTheOtherDrawing)
{
    const struct
    {
        QString from;
        QString to;
        QStringList missing; ///< of what a drawing of that version has
    } rows[] = {
        {u"R2018"_s, u"R2018"_s, {}}, {u"R2018"_s, u"R2007"_s, {}}, {u"R2000"_s, u"R2018"_s, {}},
        {u"R2000"_s, u"R2000"_s, {}}, {u"R12"_s, u"R12"_s, {}},     {u"R12"_s, u"R2018"_s, {}},
    };
    for (const auto &row : rows) {
        const std::string what = (row.from + u" to "_s + row.to).toStdString();
        const QString source = rich(row.from);
        const QString drawing = target(row.to, u"arrows"_s);
        exportStyles(chooseRichFully, source);
        expectPlayed(importing(chooseRich) + u"expect-printed 1 dimension style imported.\n"_s, drawing, what.c_str());
        EXPECT_EQ(python({u"compare"_s, source, run.result(drawing), u"Rich"_s}), row.missing) << what;
        EXPECT_TRUE(isSound(run.result(drawing))) << what;
    }
}

TEST_F(DimensionStyleTools, SampleSessionsRun)
{
    const QString plan = ToolRun::sample(u"plan.dxf"_s);
    for (const QString &session : {u"sessions/dimstyleexport.session"_s, u"sessions/dimstyleimport.session"_s}) {
        const RunOutcome outcome = run.playFile(ToolRun::sample(session), plan);
        EXPECT_EQ(outcome.status, 0) << outcome.output.toStdString();
    }
    EXPECT_TRUE(isSound(run.result(plan)));
    EXPECT_EQ(ToolRun::readFile(run.path(u"home/standard.dim"_s)).count("END_OF_STYLE\r\n"), 1);
}

// A drawing of an early version gets what that version has, and nothing that would make it unreadable there.
TEST_F(DimensionStyleTools, EarlyVersionsGetWhatTheyHave)
{
    const struct
    {
        QString version;
        QStringList kept;
        QStringList left;
    } rows[] = {
        {u"R12"_s, {u"dimscale"_s, u"dimtxt"_s, u"dimblk1"_s, u"dimpost"_s}, {u"dimtxsty"_s, u"dimdec"_s}},
        {u"R2000"_s, {u"dimtxsty"_s, u"dimdec"_s, u"dimblk2"_s}, {u"dimfxl"_s, u"dimltype"_s, u"dimtfill"_s}},
    };
    const QString source = rich(u"R2018"_s);
    exportStyles(chooseRichFully, source);
    for (const auto &row : rows) {
        const QString drawing = target(row.version, u"arrows"_s);
        expectPlayed(importing(chooseRich), drawing, "import");
        const QStringList different = python({u"compare"_s, source, run.result(drawing), u"Rich"_s});
        for (const QString &line : different)
            EXPECT_TRUE(line.endsWith(u" None"_s)) << line.toStdString();
        for (const QString &key : row.kept)
            EXPECT_TRUE(different.filter(QRegularExpression(u"^"_s + key + u' ')).isEmpty()) << key.toStdString();
        for (const QString &key : row.left)
            EXPECT_FALSE(different.filter(QRegularExpression(u"^"_s + key + u' ')).isEmpty()) << key.toStdString();
        EXPECT_TRUE(isSound(run.result(drawing)));
    }
}

TEST_F(DimensionStyleTools, WhatTheDrawingHasStaysUnlessItMayBeOverwritten)
{
    const QString source = rich(u"R2018"_s);
    exportStyles(chooseRichFully, source);
    const QString drawing = target(u"R2018"_s, u"clash"_s);
    const QString both = u"check cbDimensionStyle yes\ncheck cbTextStyle yes"_s;
    const struct
    {
        const char *what;
        QString boxes;
        bool takesStyle;
        bool takesText;
    } rows[] = {
        {"nothing checked", {}, false, false},
        {"dimension style", u"check cbDimensionStyle yes"_s, true, false},
        {"text style", u"check cbTextStyle yes"_s, false, true},
        {"both", both, true, true},
    };
    for (const auto &row : rows) {
        QDir(run.path(u"out"_s)).removeRecursively();
        expectPlayed(importing(chooseRich + u'\n' + row.boxes) +
                         u"expect-printed %1 dimension style\nexpect-modified %2\n"_s.arg(row.takesStyle)
                             .arg(row.takesStyle || row.takesText ? u"yes"_s : u"no"_s),
                     drawing, row.what);
        if (!row.takesStyle && !row.takesText)
            continue;
        const QStringList different = python({u"compare"_s, source, run.result(drawing), u"Rich"_s});
        // The arrow blocks are not in that drawing. A text style is compared as far as the dimension style names it.
        QStringList keys;
        for (const QString &line : different)
            keys.append(line.section(u' ', 0, 0));
        keys.removeDuplicates();
        if (row.takesStyle)
            EXPECT_EQ(keys, (row.takesText ? QStringList{u"dimblk1"_s, u"dimblk2"_s}
                                           : QStringList{u"dimblk1"_s, u"dimblk2"_s, u"text"_s}))
                << row.what << different.join(u'\n').toStdString();
        else
            EXPECT_FALSE(keys.filter(u"dimscale"_s).isEmpty()) << row.what;
        EXPECT_TRUE(isSound(run.result(drawing))) << row.what;
    }
}

TEST_F(DimensionStyleTools, ImportIsOneUndoStep)
{
    const QString source = rich(u"R2018"_s);
    exportStyles(chooseRichFully, source);
    expectPlayed(importing(chooseRich) + u"expect-modified yes\nundo\nexpect-modified no\n"
                                         "expect-lisp (not (tblsearch \"DIMSTYLE\" \"Rich\"))\n"
                                         "expect-lisp (not (tblsearch \"STYLE\" \"Roman\"))\n"_s,
                 target(u"R2018"_s, u"arrows"_s), "import");
}

TEST_F(DimensionStyleTools, DamagedFilesAreSaidAndTheRestIsImported)
{
    const struct
    {
        const char *what;
        QByteArray content;
        QString row;
        QString said;
        QString holds; ///< of the drawing afterwards
    } rows[] = {
        {"cut off", "DIMENSION_STYLE_NAME A\r\nDIMFILE 1\r\nDIMSCALE 2\r\n", u"A"_s, u"is cut off"_s,
         u"(not (tblsearch \"DIMSTYLE\" \"A\"))"_s},
        {"no numbers", "DIMENSION_STYLE_NAME A\nDIMFILE 1\nDIMSCALE x\nDIMTAD 1e9\nDIMASZ 1e999\nEND_OF_STYLE\n",
         u"A"_s, u"1 dimension style imported."_s, u"(equal 0.18 (cdr (assoc 41 (tblsearch \"DIMSTYLE\" \"A\"))))"_s},
        {"bad names", "DIMENSION_STYLE_NAME a|b\nDIMFILE 1\nEND_OF_STYLE\n", u"a|b"_s,
         u"cannot be the name of a dimension style"_s, u"T"_s},
        {"no definitions", "DIMENSION_STYLE_NAME A\nDIMTXSTY New\nDIMLT NONE 0\n\nDIMBLK Gone\nEND_OF_STYLE\n", u"A"_s,
         u"The linetype NONE has no definition"_s, u"(tblsearch \"STYLE\" \"New\")"_s},
        {"wrong counts", "DIMENSION_STYLE_NAME A\nx\nDIMLT D -5\n*D,d\nDIMEX1LT E 99999\n*E,e\nA,1,-1\nEND_OF_STYLE\n",
         u"A"_s, u"is cut off"_s, u"T"_s},
        {"names of several words",
         "DIMENSION_STYLE_NAME A one\nx\nDIMSCALE 3\nEND_OF_STYLE\nDIMENSION_STYLE_NAME a two\nx\nEND_OF_STYLE\n",
         u"A"_s, u"2 dimension styles imported."_s,
         u"(and (tblsearch \"DIMSTYLE\" \"A one\") (tblsearch \"DIMSTYLE\" \"a two\"))"_s},
        {"line ends changed since", "DIMENSION_STYLE_NAME A\nx\nDIMLT D 15\n*D,d\nA,0.5,-1\nDIMTAD 1\nEND_OF_STYLE\n",
         u"A"_s, u"1 dimension style imported."_s, u"(= 1.5 (cdr (assoc 40 (tblsearch \"LTYPE\" \"D\"))))"_s},
        {"words in values", "DIMENSION_STYLE_NAME A\nx\nDIMPOST <>\\U+0045ND_OF_STYLE\nEND_OF_STYLE\n", u"A"_s,
         u"1 dimension style"_s, u"(= \"<>END_OF_STYLE\" (cdr (assoc 3 (tblsearch \"DIMSTYLE\" \"A\"))))"_s},
    };
    const QString drawing = target(u"R2018"_s, u"empty"_s);
    QDir().mkpath(run.path(u"home"_s));
    for (const auto &row : rows) {
        run.writeFile(u"home/styles.dim"_s, row.content);
        expectPlayed(importing(u"row lstStyles "_s + row.row) +
                         u"expect-printed %1\nexpect-lisp %2\n"_s.arg(row.said, row.holds),
                     drawing, row.what);
    }
}

TEST_F(DimensionStyleTools, CancellingChangesNothing)
{
    const QString drawing = target(u"R2018"_s, u"empty"_s);
    expectPlayed(u"command DIMSTYLEIMPORT\ndialog Dlg_QT_ImportDimensionStyle\nclick buttonCancel\n"
                 "command DIMSTYLEEXPORT\ndialog Dlg_QT_ExchangedDimensionStyle\nkey lstStyles Escape\n"
                 "expect-modified no\n"_s,
                 drawing, "cancel");
    EXPECT_FALSE(QFile::exists(run.path(u"home/Ortakit/dimstyleexport.dim"_s)));
}

// Every style of drawings of other programs, brought into a drawing without any.
TEST_F(DimensionStyleTools, StylesOfDrawingsMadeElsewhereAreTheSame)
{
    const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS");
    if (corpus.isEmpty())
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder of drawings";
    const QString drawing = target(u"R2018"_s, u"bare"_s);
    int compared = 0;
    for (const QFileInfo &file : QDir(corpus).entryInfoList({u"*.dxf"_s})) {
        const std::string what = file.fileName().toStdString();
        if (!isSound(file.filePath()))
            continue;
        exportStyles(u"key lstStyles Ctrl+A\nclick rbFullText"_s, file.filePath());
        expectPlayed(importing(u"key lstStyles Ctrl+A"_s), drawing, what.c_str());
        const QStringList said = python({u"compareAll"_s, file.filePath(), run.result(drawing)});
        EXPECT_EQ(said.size(), 1) << what << said.join(u'\n').toStdString();
        compared += said.last().toInt();
        EXPECT_TRUE(isSound(run.result(drawing))) << what;
    }
    EXPECT_GE(compared, 30);
}

} // namespace
