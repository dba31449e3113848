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
        // The arrow blocks are not in that drawing. A text style is compared as far as the dimension style names it.
        QSet<QString> expected = {u"dimblk1"_s, u"dimblk2"_s};
        if (!row.takesText)
            expected.insert(u"text"_s);
        const QSet<QString> found = different(source, drawing);
        EXPECT_TRUE(row.takesStyle ? found == expected : found.contains(u"dimscale"_s)) << row.boxes.toStdString();
        EXPECT_TRUE(isSound(run.result(drawing)));
    }
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
