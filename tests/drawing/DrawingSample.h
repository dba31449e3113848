#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/drawing/records/Entities.h"
#include "tests/support/QtTestPrinters.h"

#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace host::drawing {

/// Lines of a DXF file from "code value" pairs, one a line: "0 SECTION\n2 HEADER". A code alone has an empty value.
QByteArray tagLines(const QByteArray &pairs, const QByteArray &lineEnd = "\n");

/// A whole small drawing of a version, "AC1009" to "AC1032", with the tables and spaces it needs: data/sample.tags, of
/// which a line begins with a blank, with - or + for drawings before and from R13, or with p for those with a code
/// page. `entities` and `blocks` as tagLines() takes them.
QByteArray sampleText(const QByteArray &version, const QByteArray &entities = {}, const QByteArray &blocks = {});

/// Fields of "0 LINE|10 1,2,0|40 2.5", typed as their codes are.
FieldList fieldsOf(const QByteArray &text);

/// Reads bytes that must be good; a failure is told and an empty new drawing comes back.
std::unique_ptr<Drawing> readGood(const QByteArray &bytes);

inline std::unique_ptr<Drawing> sample(const QByteArray &version, const QByteArray &entities = {},
                                       const QByteArray &blocks = {})
{
    return readGood(sampleText(version, entities, blocks));
}

/// What is in the file that the drawing is, in its form.
QByteArray fileBytes(const Drawing &drawing);

QByteArray contents(const QString &path);
void write(const QString &path, const QByteArray &bytes);

/// Path of a file in this folder's data.
QString dataFile(const QString &name);

/// Calls `check` with each drawing of other programs that can be read, from the folder that ORTAKIT_CORPUS names; false
/// when it names none.
bool forEachCorpusDrawing(const std::function<void(const Drawing &)> &check);
#define SKIP_WITHOUT_CORPUS(isThere)                                                                                   \
    if (!(isThere))                                                                                                    \
    GTEST_SKIP() << "ORTAKIT_CORPUS names no folder of drawings"

/// What an independent reader says about a drawing: empty when it has no objection. Sets `isThere` to false, and says
/// why, when that reader is not installed.
QString auditOf(const Drawing &drawing, bool &isThere);

/// Fails unless the independent reader accepts the drawing; prints the reason when it is not installed.
#define EXPECT_AUDIT_CLEAN(drawing)                                                                                    \
    do {                                                                                                               \
        bool isThere = true;                                                                                           \
        const QString complaint = auditOf(drawing, isThere);                                                           \
        if (!isThere)                                                                                                  \
            std::cout << "audit skipped: " << complaint.toStdString() << '\n';                                         \
        else                                                                                                           \
            EXPECT_EQ(complaint, QString());                                                                           \
    } while (false)

inline void PrintTo(const Vec3 &point, std::ostream *out)
{
    *out << '(' << point.x << ' ' << point.y << ' ' << point.z << ')';
}

} // namespace host::drawing
