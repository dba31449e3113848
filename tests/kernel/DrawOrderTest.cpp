#include "host/view/display/DrawOrder.h"

#include "host/drawing/records/Entities.h"
#include "tests/kernel/Bench.h"

namespace {

using host::drawing::RecordId;

class DrawOrder : public Bench
{
protected:
    /// The points of the drawing by their x, in the order in which they are drawn.
    QString order()
    {
        QString places;
        for (const RecordId id : host::view::drawOrder(drawing(), host::view::readSortHandles(drawing()),
                                                       drawing().entities().inSpace(host::drawing::Space::Model)))
            places += QString::number(drawing().tags(id).point(10).x);
        return places;
    }
};

TEST_F(DrawOrder, chosenOnesGoWhereTheOptionSays)
{
    lisp("(foreach x '(1 2 3 4 5) (set (read (strcat \"e\" (itoa x))) "
         "(entmakex (list '(0 . \"POINT\") (list 10 x 0 0)))))");
    const struct
    {
        const char *answers;
        const char *expected;
    } rows[] = {
        {"e2 \"\" \"_Front\"", "13452"},
        {"e5 e2 \"\" \"_Front\"", "13452"},
        {"e4 \"\" \"_Back\"", "41352"},
        {"e3 \"\" \"\"", "34152"},
        {"e3 \"\" \"_Above\" e1 e2 \"\"", "41523"},
        {"e5 \"\" \"_Under\" e1 e2 \"\"", "45123"},
    };
    for (const auto &row : rows) {
        lisp(std::string("(command \"_.DRAWORDER\" ") + row.answers + ")");
        EXPECT_EQ(order(), QLatin1String(row.expected)) << row.answers << takePrinted();
    }
    lisp("(entmake '((0 . \"POINT\") (10 6 0 0)))(entdel e1)");
    EXPECT_EQ(order(), QStringLiteral("45236")) << "what is new comes last";
    document().undoSteps().undo();
    document().undoSteps().undo();
    EXPECT_EQ(order(), QStringLiteral("41523"));
}

TEST_F(DrawOrder, isToldWhereADrawingKeepsNone)
{
    session.documents().open(
        write("old.dxf", "0\nSECTION\n2\nENTITIES\n0\nPOINT\n5\n1\n8\n0\n10\n1\n20\n0\n0\nENDSEC\n0\nEOF\n"));
    lisp("(command \"_.DRAWORDER\" (entlast) \"\" \"_Front\")");
    EXPECT_NE(takePrinted().find("A drawing of this version keeps no draw order."), std::string::npos);
    EXPECT_FALSE(document().isModified());
}

} // namespace
