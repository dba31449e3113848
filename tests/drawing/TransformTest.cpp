#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "tests/drawing/DrawingSample.h"

#include <numbers>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

using std::numbers::pi;

/// One of each type, with everything that a map has to take along: the blocks of a file, a blank line, the entities.
std::unique_ptr<Drawing> everything()
{
    const QByteArray text = contents(dataFile(u"everything.tags"_s)).replace("\n|", "|").replace('|', '\n');
    const qsizetype blank = text.indexOf("\n\n");
    return sample("AC1018", text.mid(blank), text.first(blank + 1));
}

/// The largest distance of a point of one outline from the other.
double deviation(const Outline &a, const Outline &b)
{
    double largest = 0.0;
    for (const Outline::Piece &piece : a.pieces) {
        for (const Vec3 &point : piece.points) {
            double nearest = 1e300;
            for (const Outline::Piece &other : b.pieces) {
                for (size_t i = 0; i < other.points.size(); ++i) {
                    const Vec3 &from = other.points[i];
                    const Vec3 along = i + 1 < other.points.size() ? other.points[i + 1] - from : Vec3{};
                    const double square = dot(along, along);
                    const double t = square > 0 ? std::clamp(dot(point - from, along) / square, 0.0, 1.0) : 0.0;
                    nearest = std::min(nearest, (point - (from + along * t)).length());
                }
            }
            largest = std::max(largest, nearest);
        }
    }
    return largest;
}

/// Mapping the entity gives what mapping its picture gives.
TEST(Transform, EntitiesLookAsTheirMappedPicture)
{
    const std::tuple<const char *, Matrix, int> rows[] = {
        {"move", Matrix::translation({10, 20, 5}), 0},
        {"turn", Matrix::rotation(0.7, {3, 3, 0}), 0},
        {"scale", Matrix::scaling({2.5, 2.5, 2.5}, {1, 1, 0}), 0},
        {"mirror", Matrix::mirror({0, 0, 0}, {3, 1, 0}), 0},
        {"mirror, turn, scale and move",
         Matrix::translation({1, 2, 3}) * Matrix::scaling({-3, 3, 3}) * Matrix::rotation(2), 0},
        {"turn out of the plane", Matrix{{0, 0, 1}, {1, 0, 0}, {0, 1, 0}, {5, 5, 5}}, 0},
        {"uneven", Matrix::scaling({2, 1, 1}), 11},
    };
    Flatness fine;
    fine.maximumAngle = 0.02;
    for (const auto &[name, matrix, refusals] : rows) {
        SCOPED_TRACE(name);
        const auto drawing = everything();
        int refused = 0;
        for (const RecordId id : drawing->entities().all()) {
            SCOPED_TRACE(drawing->bytes(id).toByteArray().toStdString());
            const QByteArray before = drawing->toBytes();
            const Outline wanted = entityOutline(*drawing, id, fine, matrix);
            if (!transformEntity(*drawing, id, matrix)) {
                ++refused;
                EXPECT_EQ(drawing->toBytes(), before);
                continue;
            }
            const Outline found = entityOutline(*drawing, id, fine);
            EXPECT_FALSE(found.pieces.empty());
            EXPECT_LT(deviation(found, wanted), 0.01);
            EXPECT_LT(deviation(wanted, found), 0.01);
            EXPECT_TRUE(drawing->journal().undo());
            EXPECT_EQ(drawing->toBytes(), before);
        }
        EXPECT_EQ(refused, refusals) << "of everything()";
    }
}

TEST(Transform, TextsStayReadable)
{
    const auto drawing =
        sample("AC1015", "0 TEXT\n5 50\n8 0\n10 1\n20 2\n30 0\n40 2\n1 a\n50 10\n72 1\n11 1\n21 2\n31 0\n"
                         "0 MTEXT\n5 51\n8 0\n10 1\n20 2\n30 0\n40 2\n41 30\n1 a\n50 0\n"
                         "0 MTEXT\n5 53\n8 0\n10 1\n20 2\n30 0\n40 2\n1 a\n"
                         "101 Embedded Object\n70 1\n10 1\n20 0\n30 0\n11 1\n21 2\n31 0\n40 5\n"
                         "0 RTEXT\n5 52\n8 0\n10 1\n20 2\n30 0\n50 10\n40 2\n70 1\n1 a$(+,1,2)");
    const RecordId text = drawing->find({0x50});
    for (const quint64 handle : {0x50, 0x51, 0x52, 0x53})
        EXPECT_TRUE(
            transformEntity(*drawing, drawing->find({handle}), Matrix::rotation(pi / 2) * Matrix::scaling({3, 3, 3})));
    const std::tuple<quint64, int, double> rows[] = {{0x50, 40, 6}, {0x50, 50, 100}, {0x50, 11, -6}, {0x50, 21, 3},
                                                     {0x51, 40, 6}, {0x51, 41, 90},  {0x51, 11, 0},  {0x51, 21, 1},
                                                     {0x52, 40, 6}, {0x52, 50, 100}, {0x52, 10, -6}, {0x52, 20, 3}};
    for (const auto &[handle, code, value] : rows)
        EXPECT_NEAR(drawing->tags(drawing->find({handle})).real(code), value, 1e-9) << code;
    const FieldList paragraph = drawing->fields(drawing->find({0x53}));
    const FieldList columns(ownEnd(paragraph) + 1, paragraph.end());
    EXPECT_NEAR((findField(paragraph, 11)->point() - Vec3{0, 1, 0}).length(), 0.0, 1e-9);
    EXPECT_NEAR((findField(columns, 10)->point() - Vec3{0, 1, 0}).length(), 0.0, 1e-9) << "its direction again";
    EXPECT_NEAR((findField(columns, 11)->point() - Vec3{-6, 3, 0}).length(), 0.0, 1e-9) << "its place again";
    EXPECT_EQ(findField(columns, 40)->real(), 15.0);
    EXPECT_FALSE(transformEntity(*drawing, drawing->find({0x52}), Matrix::scaling({2, 1, 1})))
        << "it has no width factor";
    EXPECT_TRUE(transformEntity(*drawing, text, Matrix::mirror({0, 0, 0}, {1, 0, 0})));
    EXPECT_EQ(drawing->tags(text).point(210, {0, 0, 1}), (Vec3{0, 0, 1})) << "it did not turn its back";
}

TEST(Transform, WhatCannotBeMappedIsLeft)
{
    const auto drawing = sample("AC1015", "0 THING\n5 50\n8 0\n0 LINE\n5 51\n8 0\n10 0\n20 0\n30 0\n11 1\n21 1\n31 0");
    EXPECT_FALSE(transformEntity(*drawing, drawing->find({0x50}), Matrix::translation({1, 0, 0})));
    EXPECT_FALSE(transformEntity(*drawing, drawing->find({0x51}), Matrix::scaling({0, 1, 1})));
    EXPECT_FALSE(transformEntity(*drawing, noRecord, {}));
    EXPECT_FALSE(drawing->journal().isModified());
}

TEST(Transform, CopiesStandAlone)
{
    const auto drawing = everything();
    drawing->tables().add(TableKind::DimStyle, u"Standard"_s);
    const std::vector<RecordId> originals = drawing->entities().all();
    for (const RecordId id : originals) {
        const RecordId copy = copyEntity(*drawing, id);
        ASSERT_TRUE(isValid(copy));
        EXPECT_EQ(drawing->children(copy).size(), drawing->children(id).size());
        EXPECT_EQ(deviation(entityOutline(*drawing, id), entityOutline(*drawing, copy)), 0.0);
        EXPECT_FALSE(drawing->handle(copy).isNull());
        // Moving the copy leaves the original where it is, a dimension's picture as well.
        const Box before = entityBox(*drawing, id);
        transformEntity(*drawing, copy, Matrix::translation({100, 0, 0}));
        EXPECT_EQ(entityBox(*drawing, id).high, before.high);
    }
    EXPECT_EQ(drawing->entities().all().size(), 2 * originals.size());
    readGood(drawing->toBytes());
    EXPECT_FALSE(isValid(copyEntity(*drawing, noRecord)));
}

} // namespace
} // namespace host::drawing
