// Slides, written here as the format has them: a title of thirteen letters, the header, records of words.

#include "host/dcl/Slide.h"

#include <gtest/gtest.h>

using namespace host::dcl;
using namespace Qt::StringLiterals;

namespace {

enum class Order
{
    LowFirst,
    HighFirst
};

class SlideWriter
{
public:
    explicit SlideWriter(Order order) : m_order(order)
    {
        m_bytes = QByteArray("title of this") + QByteArray("\r\n\x1a\0\x56\x02", 6);
        word(99);
        word(49);
        // 2.0 times ten million
        word(m_order == Order::LowFirst ? 20'000'000 & 0xFFFF : 20'000'000 >> 16);
        word(m_order == Order::LowFirst ? 20'000'000 >> 16 : 20'000'000 & 0xFFFF);
        word(0);
        word(0x1234);
    }
    void word(int value)
    {
        const char low = char(value & 0xFF);
        const char high = char(value >> 8 & 0xFF);
        m_bytes += m_order == Order::LowFirst ? low : high;
        m_bytes += m_order == Order::LowFirst ? high : low;
    }
    void words(const std::vector<int> &values)
    {
        for (const int value : values)
            word(value);
    }
    void offsets(const std::vector<int> &values)
    {
        for (const int value : values)
            m_bytes += char(value);
    }
    const QByteArray &bytes() const { return m_bytes; }

private:
    Order m_order;
    QByteArray m_bytes;
};

std::string shapes(const Slide &slide)
{
    std::string text;
    for (const Slide::Shape &shape : slide.shapes) {
        text += std::to_string(shape.color) + (shape.isFilled ? " area" : " line");
        for (const QPoint &point : shape.points)
            text += " " + std::to_string(point.x()) + "," + std::to_string(point.y());
        text += "\n";
    }
    return text;
}

QByteArray sampleSlide(Order order)
{
    SlideWriter slide(order);
    slide.words({0xFF01, 10, 20, 30, 40}); // red, a line
    slide.word(0xFB02);                    // a line by offsets from 10,20: from 2,-3 to 5,6
    slide.offsets({-3, 5, 6});
    slide.word(0xFE00 | (-4 & 0xFF)); // goes on from 12,17 by -4,7
    slide.offsets({7});
    slide.words({0xFF03, 0xFD00, 3, -1, 0xFD00, 1, 1, 0xFD00, 9, 1, 0xFD00, 9, 8, 0xFD00, 3, -2, 0xFC00});
    return slide.bytes();
}

TEST(Slide, reads_lines_and_areas_in_either_order_of_bytes)
{
    for (const Order order : {Order::LowFirst, Order::HighFirst}) {
        const Slide slide = readSlide(sampleSlide(order));
        EXPECT_EQ(slide.problem.toStdString(), "");
        EXPECT_EQ(slide.size, QSize(100, 50));
        EXPECT_DOUBLE_EQ(slide.pixelAspect, 2.0);
        EXPECT_EQ(shapes(slide), "1 line 10,20 30,40\n"
                                 "1 line 12,17 15,26\n"
                                 "1 line 12,17 8,24\n"
                                 "3 area 1,1 9,1 9,8\n");
    }
}

TEST(Slide, tells_what_is_none_and_keeps_what_stands_in_front_of_damage)
{
    EXPECT_EQ(readSlide({}).problem, u"the file is no slide"_s);
    EXPECT_EQ(readSlide(QByteArray(500, 'x')).problem, u"the file is no slide"_s);
    const QByteArray whole = sampleSlide(Order::LowFirst);
    const Slide cut = readSlide(whole.left(31 + 2 + 8 + 3));
    EXPECT_EQ(cut.problem, u"the slide is cut off"_s);
    EXPECT_EQ(shapes(cut), "1 line 10,20 30,40\n");
    QByteArray damaged = whole;
    damaged[31 + 2 + 8 + 1] = char(0xF0);
    EXPECT_EQ(readSlide(damaged).problem, u"the slide is damaged"_s);
}

TEST(Slide, is_found_in_a_library_by_its_name)
{
    QByteArray library = QByteArray("title of library 1.0") + QByteArray("\r\n\x1a\0\0\0\0\0\0\0\0\0", 12);
    library.resize(32);
    library += QByteArray("FIRST").leftJustified(32, '\0') + QByteArray("\x90\0\0\0", 4);
    library += QByteArray("SECOND").leftJustified(32, '\0') + QByteArray("\x94\0\0\0", 4);
    library += QByteArray(36, '\0');
    library = library.leftJustified(0x90, '\0') + "abcd" + sampleSlide(Order::LowFirst);
    EXPECT_EQ(readSlide(slideInLibrary(library, u"second"_s)).shapes.size(), 4U);
    EXPECT_TRUE(slideInLibrary(library, u"third"_s).isEmpty());
    EXPECT_TRUE(slideInLibrary(library.left(40), u"second"_s).isEmpty());
    EXPECT_TRUE(slideInLibrary("nothing of the kind", u"second"_s).isEmpty());
}

} // namespace
