// The cases of shapes.txt, where their form is told, and of the files beside it that have the same form.
// With ORTAKIT_RENDERINGS naming a folder the pictures are left there to be looked at.

#include "tests/view/Rendering.h"

#include <QFile>

#include <gtest/gtest.h>
#include <map>

namespace host::view::test {
namespace {

struct ShapeCase
{
    std::string name;
    DxfText text;
    QByteArray ink;
    QByteArray blank;
    QByteArray sides; ///< left, right, bottom and top of the ink; empty: not looked at
    int runs = -1;    ///< -1: not looked at
};

void PrintTo(const ShapeCase &shape, std::ostream *out)
{
    *out << shape.name;
}

/// Takes one line of a case; false for its name.
bool takeShapeLine(ShapeCase &shape, const QByteArray &line)
{
    const std::map<char, std::string *> parts = {{'=', &shape.text.entities}, {'b', &shape.text.blocks},
                                                 {'h', &shape.text.header},   {'l', &shape.text.layers},
                                                 {'t', &shape.text.tables},   {'o', &shape.text.objects}};
    const std::map<char, QByteArray *> looks = {{'+', &shape.ink}, {'-', &shape.blank}, {'[', &shape.sides}};
    if (line.size() < 2 || line[1] != ' ')
        return false;
    const QByteArray rest = line.mid(2);
    if (const auto part = parts.find(line[0]); part != parts.end())
        *part->second += (part->second->empty() || rest.startsWith('|') ? "" : "|") + rest.toStdString();
    else if (const auto look = looks.find(line[0]); look != looks.end())
        *look->second = rest;
    else if (line[0] == 'r')
        shape.runs = rest.toInt();
    return true;
}

void readShapeCases(const QString &fileName, std::vector<ShapeCase> &cases)
{
    QFile file(qEnvironmentVariable("ORTAKIT_SOURCE") + QStringLiteral("/tests/view/") + fileName);
    std::vector<std::pair<QByteArray, QByteArray>> names;
    ShapeCase common;
    bool isWithin = false; // a case, not the lines below a heading
    for (QByteArray line : file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QList<QByteArray>()) {
        const qsizetype blank = line.indexOf(' ');
        const QByteArray name = line.first(std::max<qsizetype>(blank, 0));
        for (const auto &[known, text] : names)
            line.replace(known, text);
        if (line.isEmpty() || line.startsWith('#')) {
            isWithin = false;
        } else if (line.startsWith("== ")) {
            common = {.name = line.mid(3).toStdString() + "_", .text = {}, .ink = {}, .blank = {}, .sides = {}};
        } else if (name.startsWith('$')) {
            names.emplace_back(name, line.mid(blank + 1));
        } else if (!takeShapeLine(isWithin ? cases.back() : common, line)) {
            isWithin = true;
            cases.push_back(common);
            cases.back().name += line.toStdString();
        }
    }
}

std::vector<ShapeCase> shapeCases()
{
    std::vector<ShapeCase> cases;
    for (const auto *name : {"shapes.txt", "annotations.txt"})
        readShapeCases(QString::fromLatin1(name), cases);
    return cases;
}

class Shapes : public testing::TestWithParam<ShapeCase>
{
};

TEST_P(Shapes, AreDrawn)
{
    const ShapeCase &shape = GetParam();
    const Rendering shown(shape.text);
    EXPECT_EQ(shown.report().skippedCount(), 0);
    if (const QString folder = qEnvironmentVariable("ORTAKIT_RENDERINGS"); !folder.isEmpty()) {
        const QString name = QString::fromStdString(shape.name).replace(QLatin1Char('/'), QLatin1Char(' '));
        EXPECT_TRUE(shown.image().save(QStringLiteral("%1/%2.png").arg(folder, name)));
    }
    expectInk(shown, shape.ink, shape.blank);
    EXPECT_TRUE(shape.runs < 0 || shown.runs({10, 50}, {90, 50}) == shape.runs) << shown.runs({10, 50}, {90, 50});
    const QRectF ink = shown.inkBox();
    ASSERT_FALSE(ink.isNull()) << "nothing drawn";
    const double found[] = {ink.left(), ink.right(), ink.top(), ink.bottom()};
    const QList<QByteArray> wanted = shape.sides.split(' ');
    for (qsizetype i = 0; i < 4 && wanted.size() == 4; ++i)
        EXPECT_TRUE(wanted[i] == "-" || std::abs(found[i] - wanted[i].toDouble()) < 2.0) << i << ": " << found[i];
}

INSTANTIATE_TEST_SUITE_P(All, Shapes, testing::ValuesIn(shapeCases()), [](const auto &shape) {
    std::string name = shape.param.name;
    std::ranges::replace_if(
        name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
});

} // namespace
} // namespace host::view::test
