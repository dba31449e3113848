#include "host/drawing/dwg/DwgText.h"

#include "files/qt/Files.h"
#include "host/drawing/tags/DrawingTexts.h"
#include "host/drawing/tags/Tag.h"
#include "host/dwg/drawing/DrawingText.h"

#include <QFile>

#include <algorithm>
#include <limits>

namespace host::drawing {

namespace {

/// What tells such a file: "AC" and the number of its release, with a point in the oldest ones.
constexpr qsizetype dwgMarkSize = 6;

ReadingNote::Kind kindOf(dwg::Problem::Kind kind)
{
    switch (kind) {
    case dwg::Problem::Kind::Kept:
        return ReadingNote::Kind::Kept;
    case dwg::Problem::Kind::Mended:
        return ReadingNote::Kind::Mended;
    case dwg::Problem::Kind::Warning:
        return ReadingNote::Kind::Doubtful;
    case dwg::Problem::Kind::Lost:
        break;
    }
    return ReadingNote::Kind::Lost;
}

ReadingNotes notesOf(const dwg::Problems &problems)
{
    ReadingNotes notes{.lostObjects = qsizetype(problems.lostObjectCount()),
                       .lostParts = qsizetype(problems.lostCount() - problems.lostObjectCount()),
                       .doubtfulCount = qsizetype(problems.count(dwg::Problem::Kind::Warning)),
                       .mendedCount = qsizetype(problems.count(dwg::Problem::Kind::Mended)),
                       .list = {}};
    for (const dwg::Problem &problem : problems.list())
        notes.list.push_back({.kind = kindOf(problem.kind),
                              .type = QString::fromStdString(problem.type),
                              .handle = problem.handle == 0 ? QString() : Handle{problem.handle}.toString(),
                              .text = QString::fromStdString(problem.text)});
    return notes;
}

} // namespace

bool isDwg(QByteArrayView bytes)
{
    const auto isVersionDigit = [](char c) { return (c >= '0' && c <= '9') || c == '.'; };
    return bytes.size() >= dwgMarkSize && bytes.startsWith("AC") &&
           std::all_of(bytes.begin() + 2, bytes.begin() + dwgMarkSize, isVersionDigit);
}

bool isDwgFile(const QString &path)
{
    QFile file;
    const QString problem = files::openRegular(file, path, std::numeric_limits<qint64>::max());
    return problem.isEmpty() && isDwg(file.peek(dwgMarkSize));
}

DwgText textOfDwg(QByteArrayView bytes)
{
    const dwg::DrawingText read =
        dwg::readDrawing({reinterpret_cast<const std::uint8_t *>(bytes.data()), std::size_t(bytes.size())});
    DwgText result{.text = QByteArray(read.text.data(), qsizetype(read.text.size())),
                   .notes = notesOf(read.problems),
                   .error = {}};
    if (!result)
        result.error = DrawingTexts::tr("this DWG file cannot be read: %1").arg(result.notes.faults(1).value(0));
    return result;
}

} // namespace host::drawing
