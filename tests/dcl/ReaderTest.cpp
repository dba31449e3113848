// The reader of dialog files: each case of reader.cases is a file with what comes of it, the problems in front.
//
//     ### name of the case
//     the text of the file; a line "--- NAME" begins that of another one, which it may include
//     =>
//     what is expected

#include "host/dcl/DialogFile.h"

#include <QFile>
#include <QMap>

#include <gtest/gtest.h>

using namespace host::dcl;
using namespace Qt::StringLiterals;

namespace {

QString kindName(TileKind kind)
{
    static const QStringList names = {u"dialog"_s,
                                      u"row"_s,
                                      u"column"_s,
                                      u"boxed_row"_s,
                                      u"boxed_column"_s,
                                      u"radio_row"_s,
                                      u"radio_column"_s,
                                      u"boxed_radio_row"_s,
                                      u"boxed_radio_column"_s,
                                      u"concatenation"_s,
                                      u"paragraph"_s,
                                      u"button"_s,
                                      u"edit_box"_s,
                                      u"image"_s,
                                      u"image_button"_s,
                                      u"list_box"_s,
                                      u"popup_list"_s,
                                      u"radio_button"_s,
                                      u"slider"_s,
                                      u"spacer"_s,
                                      u"text"_s,
                                      u"text_part"_s,
                                      u"toggle"_s};
    return names.value(int(kind));
}

QString shown(const AttributeValue &value)
{
    if (value.kind != AttributeValue::Kind::Text)
        return value.text;
    return u'"' +
           QString(value.text)
               .replace(u'\\', u"\\\\"_s)
               .replace(u'"', u"\\\""_s)
               .replace(u'\n', u"\\n"_s)
               .replace(u'\t', u"\\t"_s) +
           u'"';
}

void list(const Tile &tile, int depth, QStringList &lines)
{
    QStringList words = {QString(2 * depth, u' ') + kindName(tile.kind)};
    QStringList names = tile.attributes.keys();
    names.sort();
    for (const QString &name : names)
        words.append(name + u'=' + shown(tile.attributes[name]));
    lines.append(words.join(u' '));
    for (const Tile &child : tile.children)
        list(child, depth + 1, lines);
}

/// Files that are there as texts only.
SourceAccess accessTo(const QMap<QString, QString> &files)
{
    return {[&files](const QString &name, const QString &) { return files.contains(name) ? name : QString(); },
            [&files](const QString &path) {
                return files.contains(path) ? SourceText{files[path], {}} : SourceText{{}, u"there is no such file"_s};
            }};
}

QStringList outcome(const QMap<QString, QString> &files)
{
    const DialogFile file = DialogFile::read(u"a.dcl"_s, accessTo(files));
    QStringList lines;
    for (const Problem &problem : file.problems())
        lines.append(problem.toText());
    if (file.auditLevel() != 1)
        lines.append(u"audit level %1"_s.arg(file.auditLevel()));
    for (const QString &name : file.dialogs()) {
        lines.append(name);
        list(*file.dialog(name), 1, lines);
    }
    return lines;
}

struct ReaderCase
{
    QString name;
    QMap<QString, QString> files;
    QStringList expected;
};

QList<ReaderCase> readerCases()
{
    QFile file(qEnvironmentVariable("ORTAKIT_SOURCE") + u"/tests/dcl/reader.cases"_s);
    QList<ReaderCase> cases;
    if (!file.open(QIODevice::ReadOnly))
        return cases;
    QString source;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (line.startsWith("### "_L1)) {
            cases.append({line.mid(4), {{u"a.dcl"_s, {}}}, {}});
            source = u"a.dcl"_s;
        } else if (line == "=>"_L1) {
            source.clear();
        } else if (line.startsWith("--- "_L1)) {
            source = line.mid(4);
        } else if (!cases.isEmpty() && !source.isEmpty()) {
            cases.last().files[source] += line + u'\n';
        } else if (!cases.isEmpty() && !line.isEmpty()) {
            cases.last().expected.append(line);
        }
    }
    return cases;
}

TEST(DialogReader, reads_every_case_as_expected)
{
    const QList<ReaderCase> cases = readerCases();
    ASSERT_FALSE(cases.isEmpty());
    for (const ReaderCase &one : cases)
        EXPECT_EQ(one.expected.join(u'\n').toStdString(), outcome(one.files).join(u'\n').toStdString())
            << one.name.toStdString();
}

QStringList outcomeOf(const QString &text)
{
    return outcome({{u"a.dcl"_s, text}});
}

/// What a hostile file says in few lines must neither take long nor more stack or memory than there is.
TEST(DialogReader, refuses_what_is_nested_or_grows_without_bound)
{
    EXPECT_EQ(outcomeOf(u"a : dialog { "_s + u": row { "_s.repeated(100'000)),
              QStringList{u"a.dcl:1: error: tiles are nested deeper than 60"_s});

    QString chain = u"t0 : column { label = \"x\"; }\n"_s;
    for (int i = 1; i < 50'000; ++i)
        chain += u"t%1 : t%2 { }\n"_s.arg(i).arg(i - 1);
    EXPECT_EQ(outcomeOf(chain).value(0),
              u"a.dcl:120: error: tiles are nested or derived from each other deeper than 120"_s);

    QString doubled = u"t0 : column { text; }\n"_s;
    for (int i = 1; i < 60; ++i)
        doubled += u"t%1 : column { t%2; t%2; }\n"_s.arg(i).arg(i - 1);
    EXPECT_EQ(outcomeOf(doubled).value(0), u"a.dcl:12: error: \"t11\" consists of more than 5000 tiles"_s);
}

TEST(DialogReader, knows_the_tiles_that_need_no_definition)
{
    for (const char *name : {"ok_only",
                             "ok_cancel",
                             "ok_help",
                             "ok_cancel_help",
                             "ok_cancel_err",
                             "ok_cancel_help_errtile",
                             "ok_cancel_help_info",
                             "errtile",
                             "spacer",
                             "spacer_0",
                             "spacer_1",
                             "default_button",
                             "retirement_button",
                             "ok_button",
                             "cancel_button",
                             "help_button",
                             "info_button",
                             "text_25",
                             "text_part",
                             "edit12_box",
                             "edit32_box",
                             "image_block",
                             "icon_image",
                             "swatch",
                             "fcf_ebox",
                             "fcf_ibut"}) {
        const DialogFile file = DialogFile::read(
            u"a.dcl"_s, accessTo({{u"a.dcl"_s, u"d : dialog { %1; }"_s.arg(QLatin1StringView(name))}}));
        EXPECT_TRUE(file.isUsable() && file.dialog(u"d"_s)) << name;
    }
}

} // namespace
