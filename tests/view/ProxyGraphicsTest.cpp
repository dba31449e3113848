// Pictures that entities of other programs keep of themselves.

#include "host/view/build/ProxyGraphics.h"

#include "tests/view/Rendering.h"

#include <gtest/gtest.h>

namespace host::view::test {
using namespace Qt::StringLiterals;

namespace {

template <class Number>
QByteArray bytesOf(Number number)
{
    return {reinterpret_cast<const char *>(&number), sizeof number}; // tests run where the smaller byte comes first
}

QByteArray reals(std::initializer_list<double> numbers)
{
    QByteArray bytes;
    for (const double number : numbers)
        bytes += bytesOf(number);
    return bytes;
}

QByteArray integers(std::initializer_list<int> numbers)
{
    QByteArray bytes;
    for (const int number : numbers)
        bytes += bytesOf(number);
    return bytes;
}

QByteArray wide(const QString &text)
{
    QByteArray bytes(reinterpret_cast<const char *>(text.utf16()), 2 * (text.size() + 1));
    return bytes + QByteArray((4 - bytes.size() % 4) % 4, '\0');
}

QByteArray piece(int kind, const QByteArray &content)
{
    return integers({static_cast<int>(content.size()) + 8, kind}) + content;
}

QByteArray graphicsOf(const QByteArray &pieces)
{
    return integers({static_cast<int>(pieces.size()) + 8, 1}) + pieces;
}

std::string entityOf(const QByteArray &graphics,
                     const std::string &head = "0 ACAD_PROXY_ENTITY|100 AcDbEntity|8 0|160 ")
{
    std::string entity = head + std::to_string(graphics.size());
    for (qsizetype at = 0; at < graphics.size(); at += 127)
        entity += "|310 " + graphics.mid(at, 127).toHex().toUpper().toStdString();
    return entity + "|100 AcDbProxyEntity|90 498|91 500";
}

const QByteArray up = reals({0, 0, 1});
const QByteArray square = integers({4}) + reals({10, 10, 0, 90, 10, 0, 90, 90, 0, 10, 90, 0});
const QByteArray filled = piece(20, integers({1}));
/// Of text 2: its numbers behind the text.
const QByteArray textNumbers = integers({-1, 0}) + reals({20, 1, 0, 1}) + integers({0, 0, 0, 0, 0});
/// A light polyline as it is packed: closed, with bulges; two points 20,50 and 80,50, each with the bulge 1.
const QByteArray light = QByteArray::fromHex("0400902408000000000000d1000000000000012503000000000000544014"
                                             "");

struct ProxyRow
{
    const char *name;
    QByteArray pieces;
    const char *ink;
    const char *blank;
};

std::vector<ProxyRow> proxyRows()
{
    return {
        {"circle", piece(2, reals({50, 50, 0, 30}) + up), "80,50 50,20", "50,50"},
        {"filled circle", filled + piece(2, reals({50, 50, 0, 30}) + up), "50,50 75,50", "80,80"},
        {"circle of three points", piece(3, reals({20, 50, 0, 80, 50, 0, 50, 80, 0})), "50,20 71.2,71.2", "50,50"},
        {"arc", piece(4, reals({50, 50, 0, 30, 0, 0, 1, 1, 0, 0, 1.5707963}) + integers({0})), "80,50 50,80 71.2,71.2",
         "20,50 50,20 65,50"},
        {"sector", piece(4, reals({50, 50, 0, 30, 0, 0, 1, 1, 0, 0, 1.5707963}) + integers({1})), "65,50 50,65",
         "20,50"},
        {"filled chord", filled + piece(4, reals({50, 50, 0, 30, 0, 0, 1, 1, 0, 0, 1.5707963}) + integers({2})),
         "68,68", "55,55"},
        {"arc from below", piece(4, reals({50, 50, 0, 30, 0, 0, -1, 1, 0, 0, 1.5707963}) + integers({0})), "50,20",
         "50,80"},
        {"arc of three points", piece(5, reals({80, 50, 0, 71.213203, 71.213203, 0, 50, 80, 0}) + integers({0})),
         "80,50 50,80", "20,50 50,20"},
        {"polyline", piece(6, square), "50,10 90,50 50,90", "10,50 50,50"},
        {"polygon", piece(7, square), "10,50 90,50", "50,50"},
        {"filled polygon", filled + piece(7, square), "50,50 15,85", "5,5"},
        {"polyline with its normal", piece(32, square + up), "50,10 90,50", "10,50"},
        {"mesh", piece(8, integers({2, 3}) + reals({10, 10, 0, 50, 10, 0, 90, 10, 0, 10, 50, 0, 50, 50, 0, 90, 50, 0})),
         "30,10 50,30 70,50 90,30", "30,30"},
        {"shell", piece(9, square + integers({4, 3, 0, 1, 2})), "50,10 90,50 50,50", "50,90 10,50"},
        {"filled shell", filled + piece(9, square + integers({4, 3, 0, 1, 2})), "80,20", "20,80"},
        {"text", piece(10, reals({20, 30, 0}) + up + reals({1, 0, 0, 20, 1, 0}) + QByteArray("%%uHHH\0\0", 8)),
         "22.5,40", "10,40 22.5,55"},
        {"text 2",
         piece(11, reals({20, 30, 0}) + up + reals({0, 1, 0}) + QByteArray("HHH\0", 4) + textNumbers +
                       QByteArray("arial\0..\0...", 12)),
         "10,32.5", "25,32.5"},
        {"wide text", piece(36, reals({20, 30, 0}) + up + reals({1, 0, 0, 20, 1, 0}) + wide(u"HHH"_s)), "22.5,40",
         "10,40"},
        {"wide text 2",
         piece(38, reals({20, 30, 0}) + up + reals({1, 0, 0}) + wide(u"HHH"_s) + textNumbers + integers({0, 0, 0, 0}) +
                       wide(u"Arial"_s) + wide(u"arial.ttf"_s) + wide({})),
         "22.5,40", "10,40"},
        {"construction line", piece(12, reals({50, 50, 0, 1, 1, 0})), "5,5 95,95", "5,95"},
        {"ray", piece(13, reals({50, 50, 0, 1, 0, 0})), "95,50", "5,50"},
        {"light polyline", piece(33, integers({static_cast<int>(light.size())}) + light), "50,80 50,20", "50,50 20,80"},
        {"moved and back",
         piece(29, reals({0.5, 0, 0, 20, 0, 0.5, 0, 20, 0, 0, 1, 0, 0, 0, 0, 1})) + piece(6, square) + piece(31, {}) +
             piece(6, integers({2}) + reals({0, 95, 0, 100, 95, 0})),
         "45,25 65,45 50,95", "50,10 90,50"},
        {"a setting of tomorrow", piece(51, integers({7})) + piece(6, square), "50,10", "50,50"},
    };
}

TEST(ProxyGraphics, AreDrawn)
{
    for (const ProxyRow &row : proxyRows()) {
        SCOPED_TRACE(row.name);
        const Rendering shown({.entities = entityOf(graphicsOf(row.pieces))});
        expectInk(shown, row.ink, row.blank);
        EXPECT_EQ(shown.report().drawn, 1) << shown.report().summary().toStdString();
    }
}

TEST(ProxyGraphics, HaveTheirOwnStyles)
{
    const auto line = [](double y) { return piece(6, integers({2}) + reals({0, y, 0, 100, y, 0})); };
    const QByteArray pieces = line(10) + piece(14, integers({1})) + line(20) +
                              piece(22, integers({static_cast<int>(0xc2112233)})) + line(30) +
                              piece(22, integers({static_cast<int>(0xc3000003)})) + line(40) +
                              piece(22, integers({static_cast<int>(0xc0000000)})) + line(50);
    const Rendering shown({.entities = entityOf(graphicsOf(pieces), "0 THING|100 AcDbEntity|8 L|62 5|92 "),
                           .layers = "0 LAYER|2 L|70 0|62 2|6 CONTINUOUS"});
    const std::pair<double, QColor> rows[] = {
        {10, Qt::blue}, {20, Qt::red}, {30, QColor(0x11, 0x22, 0x33)}, {40, Qt::green}, {50, Qt::yellow}};
    for (const auto &[y, colour] : rows)
        EXPECT_EQ(shown.color(50, y), colour) << y;
}

TEST(ProxyGraphics, WhatIsNotUnderstoodIsLeftOut)
{
    const QByteArray line = piece(6, integers({2}) + reals({0, 50, 0, 100, 50, 0}));
    const QByteArray unknown = piece(77, QByteArray(40, 'x'));
    const QByteArray nan = piece(2, reals({qQNaN(), 0, 0, 1}) + up);
    const QByteArray many = piece(6, integers({0x7fffffff}));
    for (const QByteArray &odd :
         {unknown, nan, many, piece(27, QByteArray(100, 'x')), piece(9, square + integers({5, 4, 0, 9, 1, 2}))}) {
        const Rendering shown({.entities = entityOf(graphicsOf(odd + line))});
        EXPECT_TRUE(shown.isInk(50, 50));
        EXPECT_EQ(shown.report().simplified.value(u"ACAD_PROXY_ENTITY"_s), 1);
    }
    EXPECT_EQ(
        Rendering({.entities = entityOf(graphicsOf({})) + "|0 LINE|8 0|10 0|20 0|11 9|21 9"}).report().skippedCount(),
        1);
    const Rendering own({.entities = "0 LINE|8 0|92 40|310 00|10 0|20 20|11 100|21 20"});
    EXPECT_TRUE(own.isInk(50, 20)) << "what is known is drawn from its groups";
}

TEST(ProxyGraphics, MayBeCutOffOrChangedAnywhere)
{
    QByteArray all;
    for (const ProxyRow &row : proxyRows())
        all += row.pieces;
    all = graphicsOf(all);
    const auto drawing = readDrawing({.entities = "0 LINE|8 0|10 0|20 0|11 9|21 9"});
    Scene scene(*drawing);
    drawing::WorkBudget work(drawing::displayWork);
    const auto draw = [&](const QByteArray &graphics) {
        RecordDisplay display;
        BuildContext context{*drawing, scene, work, display};
        drawProxyGraphics(context, graphics);
        return display.items.size();
    };
    const std::size_t whole = draw(all);
    for (qsizetype length = 0; length < all.size(); ++length)
        EXPECT_LE(draw(all.first(length)), whole);
    for (qsizetype at = 0; at < all.size(); ++at) {
        for (const char byte : {'\0', '\x7f', '\xff'}) {
            QByteArray changed = all;
            changed[at] = byte;
            draw(changed);
        }
    }
}

} // namespace
} // namespace host::view::test
