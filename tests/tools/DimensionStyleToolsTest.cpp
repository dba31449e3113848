#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>
#include <QSet>

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
    part = doc.blocks.new('Part of it')
    part.add_text('a | b ; END_OF_STYLE', height=0.25).set_placement((0.1, 0.2))
    arrow = doc.blocks.new('MyArrow', base_point=(0.5, 0.25))
    arrow.add_blockref('Part of it', (1, 2), dxfattribs={'xscale': 2.0})
    arrow.add_line((-.5, -1/3), (.5, .5))
    if version != 'R12':
        arrow.add_lwpolyline([(0, 0, 0.1, 0.2, 0.5), (1, 1)], close=True)
        arrow.add_mtext('not carried')
    doc.blocks.new('_Oblique').add_line((-.5, -.5), (.5, .5))
    style = doc.dimstyles.new('Rich')
    if version != 'R12':
        doc.appids.add('AcadAnnotative')
        style.set_xdata('AcadAnnotative', [(1000, 'AnnotativeData'), (1002, '{'), (1070, 1), (1070, 1), (1002, '}')])
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
    doc = ezdxf.new('R2000' if version == 'R14' else version)
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
    if version == 'R14':
        text = open(path).read().replace('AC1015', 'AC1014')
        open(path, 'w').write(text)

# Base point and entities of blocks, without the values that need not be said.
def blocks(path, *names):
    usual = [str(value) for value in (0, 0.0, 1.0, 'Standard', ezdxf.math.Z_AXIS)]
    doc = ezdxf.readfile(path)
    for block in [doc.blocks.get(name) for name in names]:
        print(block.name, block.base_point if block else '')
        for entity in block:
            shown = {k: v for k, v in entity.dxfattribs().items() if k not in ('handle', 'owner') and str(v) not in usual}
            print(entity.dxftype(), sorted(shown.items()), list(entity) if entity.dxftype() == 'LWPOLYLINE' else '')

def values(doc, name):
    style = doc.dimstyles.get(name)
    found = {key: value for key, value in style.dxfattribs().items() if key not in ('handle', 'owner', 'name')}
    for key in [key for key in found if key.endswith('_handle')]:
        entity = doc.entitydb.get(found.pop(key))
        found[key[:-7]] = entity.dxf.name if entity else ''
    for key, value in list(found.items()):
        if value in ('', None):
            del found[key]
    if style.has_xdata('AcadAnnotative'):
        found['annotative'] = [(tag.code, tag.value) for tag in style.get_xdata('AcadAnnotative')]
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

class DimensionStyleTools : public ToolTest
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
        plays(u"command DIMSTYLEEXPORT\ndialog Dlg_QT_ExchangedDimensionStyle\n%1\nclick selectfile\n"
              "file ${HOME_DIR}/styles.dim\nexpect-modified no\n"_s.arg(choose),
              drawing);
    }
    static QString importing(const QString &choose)
    {
        return u"command DIMSTYLEIMPORT\ndialog Dlg_QT_ImportDimensionStyle\nclick selectfile\n"
               "file ${HOME_DIR}/styles.dim\n%1\nclick acceptButton\n"_s.arg(choose);
    }

    /// The values in which the style Rich of one drawing and of another's result differ; each line ends as told.
    QSet<QString> different(const QString &source, const QString &drawing, const QString &end = {}) const
    {
        QSet<QString> keys;
        for (const QString &line : python({u"compare"_s, source, run.result(drawing), u"Rich"_s})) {
            EXPECT_TRUE(line.endsWith(end)) << line.toStdString();
            keys.insert(line.section(u' ', 0, 0));
        }
        return keys;
    }

    const QString chooseRich = u"row lstStyles Rich"_s;
    const QString chooseRichFully = u"row lstStyles Rich\nclick rbFullText"_s;
};

TEST_F(DimensionStyleTools, AStyleIsTheSameInTheOtherDrawing)
{
    const std::pair<QString, QString> rows[] = {{u"R2018"_s, u"R2007"_s},
                                                {u"R2000"_s, u"R2018"_s},
                                                {u"R2000"_s, u"R2000"_s},
                                                {u"R12"_s, u"R12"_s},
                                                {u"R12"_s, u"R2018"_s}};
    for (const auto &[from, to] : rows) {
        SCOPED_TRACE((from + u" to "_s + to).toStdString());
        const QString source = rich(from);
        const QString drawing = target(to, u"arrows"_s);
        exportStyles(chooseRichFully, source);
        plays(importing(chooseRich) + u"expect-printed 1 dimension style imported.\n"_s, drawing);
        EXPECT_EQ(python({u"compare"_s, source, run.result(drawing), u"Rich"_s}), QStringList());
        EXPECT_TRUE(isSound(run.result(drawing)));
    }
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
        plays(importing(chooseRich), drawing);
        const QSet<QString> missing = different(source, drawing, u" None"_s);
        EXPECT_FALSE(missing.intersects({row.kept.begin(), row.kept.end()})) << row.version.toStdString();
        EXPECT_TRUE(missing.contains({row.left.begin(), row.left.end()})) << row.version.toStdString();
        EXPECT_TRUE(isSound(run.result(drawing)));
    }
}

TEST_F(DimensionStyleTools, WhatTheDrawingHasStaysUnlessItMayBeOverwritten)
{
    const QString source = rich(u"R2018"_s);
    exportStyles(chooseRichFully, source);
    const QString drawing = target(u"R2018"_s, u"clash"_s);
    const struct
    {
        QString boxes;
        bool takesStyle;
        bool takesText;
    } rows[] = {
        {{}, false, false},
        {u"check cbDimensionStyle yes"_s, true, false},
        {u"check cbTextStyle yes"_s, false, true},
        {u"check cbDimensionStyle yes\ncheck cbTextStyle yes"_s, true, true},
    };
    for (const auto &row : rows) {
        QDir(run.path(u"out"_s)).removeRecursively();
        plays(importing(chooseRich + u'\n' + row.boxes) +
                  u"expect-printed %1 dimension style\nexpect-modified %2\n"_s.arg(row.takesStyle)
                      .arg(row.takesStyle || row.takesText ? u"yes"_s : u"no"_s),
              drawing);
        if (!row.takesStyle && !row.takesText)
            continue;
        // A text style is compared as far as the dimension style names it.
        const QSet<QString> expected = row.takesText ? QSet<QString>() : QSet<QString>{u"text"_s};
        const QSet<QString> found = different(source, drawing);
        EXPECT_TRUE(row.takesStyle ? found == expected : found.contains(u"dimscale"_s)) << row.boxes.toStdString();
        EXPECT_TRUE(isSound(run.result(drawing)));
    }
}

// A standard arrow is made, another one is carried with what is in it. What the drawing has stays.
TEST_F(DimensionStyleTools, ArrowBlocksComeAlong)
{
    const QString source = rich(u"R2018"_s);
    exportStyles(chooseRichFully, source);
    const auto entities = [&](const QString &drawing) {
        QStringList lines = python({u"blocks"_s, drawing, u"MyArrow"_s, u"Part of it"_s, u"_Oblique"_s});
        lines.removeIf([](const QString &line) { return line.startsWith(u"MTEXT"_s); });
        return lines.replaceInStrings(u"('color', 0), "_s, QString());
    };
    const QString drawing = target(u"R2000"_s, u"empty"_s);
    plays(importing(chooseRich) +
              u"expect-printed The block MyArrow lacks 1 entity\n"
              "expect-printed \"no place for: DIMLTYPE, DIMLTEX1, DIMLTEX2, DIMFXL, DIMJOGANG\"\n"_s,
          drawing);
    EXPECT_EQ(entities(run.result(drawing)), entities(source));
    EXPECT_TRUE(isSound(run.result(drawing)));
    const QString early = target(u"R12"_s, u"empty"_s);
    plays(importing(chooseRich) + u"expect-printed The block MyArrow lacks 2 entities\n"_s, early);
    EXPECT_EQ(different(source, early, u" None"_s).intersects({u"dimblk1"_s, u"dimblk2"_s, u"annotative"_s}), false);
    EXPECT_TRUE(isSound(run.result(early)));
    const QString present = target(u"R2018"_s, u"arrows"_s);
    plays(importing(chooseRich), present);
    EXPECT_EQ(python({u"blocks"_s, run.result(present), u"MyArrow"_s}).size(), 2) << "its own line alone";
}

TEST_F(DimensionStyleTools, UnitsAndFitGoOverTheVersionsBorder)
{
    const struct
    {
        QByteArray content;
        QString version;
        QString groups; ///< of the style afterwards
    } rows[] = {
        {"DIMUNIT 6\nDIMFIT 5\n", u"R2000"_s, u"((277 . 4) (276 . 2) (289 . 3) (279 . 2))"_s},
        {"DIMUNIT 8\nDIMFIT 0\n", u"R2018"_s, u"((277 . 6) (276 . 0) (289 . 0) (279 . 0))"_s},
        {"DIMUNIT 6\nDIMLUNIT 2\n", u"R2018"_s, u"((277 . 2) (270 . 6))"_s},
        {"DIMLUNIT 5\nDIMFRAC 2\nDIMATFIT 1\n", u"R14"_s, u"((270 . 7) (287 . 1))"_s},
        {"DIMTMOVE 1\n", u"R14"_s, u"((287 . 4))"_s},
        {"DIMLUNIT 4\nDIMFRAC 1\nDIMATFIT 2\nDIMTMOVE 2\n", u"R14"_s, u"((270 . 4) (287 . 2))"_s},
        {"DIMUNIT 4\nDIMBLK _Dot\nDIMBLK1 _none\n", u"R14"_s, u"((270 . 4) (5 . \"_Dot\") (6 . \"_none\"))"_s},
    };
    QDir().mkpath(run.path(u"home"_s));
    for (const auto &row : rows) {
        SCOPED_TRACE(row.content.toStdString());
        const QString drawing = target(row.version, u"empty"_s);
        run.writeFile(u"home/styles.dim"_s, "DIMENSION_STYLE_NAME A\nDIMFILE 1\n" + row.content + "END_OF_STYLE\n");
        plays(importing(u"row lstStyles A"_s) +
                  u"lisp (setq made (entget (tblobjname \"DIMSTYLE\" \"A\")))\n"
                  "expect-lisp (null (vl-remove-if '(lambda (field) (member field made)) '%1))\n"_s.arg(row.groups),
              drawing);
        EXPECT_TRUE(isSound(run.result(drawing)));
    }
}

// Each is made, and each is drawn within two units around its point.
TEST_F(DimensionStyleTools, StandardArrowsAreMadeByName)
{
    plays(u"lisp (foreach row kora:arrows (kora_make_arrow (strcase (car row))))\n"
          "expect-lisp (= 19 (length (vl-remove nil (mapcar '(lambda (row) (tblobjname \"BLOCK\" (car row))) "
          "kora:arrows))))\n"
          "expect-lisp (null (kora_make_arrow \"_Unknown\"))\n"
          "expect-lisp (null (vl-remove-if '(lambda (row / box) (setq box (kora_block_frame (car row))) "
          "(if box (<= -1.0 (caar box) 0.0 (caadr box) 0.5601) (= (car row) \"_None\"))) kora:arrows))\n"_s);
    EXPECT_TRUE(isSound(run.result(plan)));
}

TEST_F(DimensionStyleTools, ImportIsOneUndoStep)
{
    const QString source = rich(u"R2018"_s);
    exportStyles(chooseRichFully, source);
    plays(importing(chooseRich) + u"expect-modified yes\nundo\nexpect-modified no\n"
                                  "expect-lisp (not (tblsearch \"DIMSTYLE\" \"Rich\"))\n"
                                  "expect-lisp (not (tblsearch \"STYLE\" \"Roman\"))\n"_s,
          target(u"R2018"_s, u"arrows"_s));
}

TEST_F(DimensionStyleTools, DamagedFilesAreSaidAndTheRestIsImported)
{
    const QString imported = u"1 dimension style imported."_s;
    const struct
    {
        QByteArray content; ///< behind "DIMENSION_STYLE_NAME "
        QString said;
        QString holds = u"T"_s; ///< of the drawing afterwards
        QString row = u"A"_s;
    } rows[] = {
        {"A\r\nDIMFILE 1\r\nDIMSCALE 2\r\n", u"is cut off"_s, u"(not (tblsearch \"DIMSTYLE\" \"A\"))"_s},
        {"A\nDIMFILE 1\nDIMSCALE x\nDIMTAD 1e9\nDIMASZ 1e999\nEND_OF_STYLE\n", imported,
         u"(equal 0.18 (cdr (assoc 41 (tblsearch \"DIMSTYLE\" \"A\"))))"_s},
        {"a|b\nDIMFILE 1\nEND_OF_STYLE\n", u"cannot be the name of a dimension style"_s, u"T"_s, u"a|b"_s},
        {"A\nDIMTXSTY New\nDIMLT NONE 0\n\nDIMBLK Gone\nEND_OF_STYLE\n", u"The linetype NONE has no definition"_s,
         u"(tblsearch \"STYLE\" \"New\")"_s},
        {"A\nx\nDIMLT D -5\n*D,d\nDIMEX1LT E 99999\n*E,e\nA,1,-1\nEND_OF_STYLE\n", u"is cut off"_s},
        // Names of several words; line ends that changed since; words of the format in a value.
        {"A one\nx\nDIMSCALE 3\nEND_OF_STYLE\nDIMENSION_STYLE_NAME a two\nx\nEND_OF_STYLE\n",
         u"2 dimension styles imported."_s,
         u"(and (tblsearch \"DIMSTYLE\" \"A one\") (tblsearch \"DIMSTYLE\" \"a two\"))"_s},
        {"A\nx\nDIMLT D 15\n*D,d\nA,0.5,-1\nDIMTAD 1\nEND_OF_STYLE\n", imported,
         u"(= 1.5 (cdr (assoc 40 (tblsearch \"LTYPE\" \"D\"))))"_s},
        {"A\nx\nDIMBLK B\nDIMBLOCK=B;0,x;many\nDIMBLOCKENTITY=0:s:LINE|x:s:y\nDIMBLOCKENTITY=\nDIMBLOCKENTITY=0:s:LINE|"
         "10:p:0,0,0|11:p:1,1,0|6:s:None\nDIMBLOCKENTITY=0:s:VIEWPORT\nEND_OF_STYLE\n",
         u"The block B lacks 3 entities"_s, u"(= 1 (length (kora_block_entities \"B\")))"_s},
        {"A\nx\nDIMPOST <>\\U+0045ND_OF_STYLE\nEND_OF_STYLE\n", imported,
         u"(= \"<>END_OF_STYLE\" (cdr (assoc 3 (tblsearch \"DIMSTYLE\" \"A\"))))"_s},
    };
    const QString drawing = target(u"R2018"_s, u"empty"_s);
    QDir().mkpath(run.path(u"home"_s));
    for (const auto &row : rows) {
        SCOPED_TRACE(row.content.toStdString());
        run.writeFile(u"home/styles.dim"_s, "DIMENSION_STYLE_NAME " + row.content);
        plays(importing(u"row lstStyles "_s + row.row) +
                  u"expect-printed %1\nexpect-lisp %2\n"_s.arg(row.said, row.holds),
              drawing);
    }
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
        plays(importing(u"key lstStyles Ctrl+A"_s), drawing);
        const QStringList said = python({u"compareAll"_s, file.filePath(), run.result(drawing)});
        EXPECT_EQ(said.size(), 1) << what << said.join(u'\n').toStdString();
        compared += said.last().toInt();
        EXPECT_TRUE(isSound(run.result(drawing))) << what;
    }
    EXPECT_GE(compared, 30);
}

} // namespace
