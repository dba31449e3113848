#include "host/drawing/geometry/MultiLeaderFields.h"

#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/geometry/TransformFields.h"

#include <algorithm>
#include <array>
#include <limits>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

enum class NotePart
{
    Own,
    Context,
    Branch,
    Line
};

/// Which part of the record the fields belong to, told one after the other.
class NotePartWalk
{
public:
    /// What opens and closes a part belongs to it.
    NotePart take(const Field &field)
    {
        const NotePart before = m_part;
        const bool isText = std::holds_alternative<QString>(field.value);
        const bool opens = isText && field.text().trimmed().endsWith(u'{');
        if (field.code == 300 && opens && m_part == NotePart::Own)
            m_part = NotePart::Context;
        else if (field.code == 302 && opens && m_part == NotePart::Context)
            m_part = NotePart::Branch;
        else if (field.code == 304 && opens && m_part == NotePart::Branch)
            m_part = NotePart::Line;
        else if (field.code == 305 && m_part == NotePart::Line)
            return leave(NotePart::Branch);
        else if (field.code == 303 && m_part == NotePart::Branch)
            return leave(NotePart::Context);
        else if (field.code == 301 && m_part == NotePart::Context)
            return leave(NotePart::Own);
        m_isOpening = m_part != before;
        return m_part;
    }
    bool isOpening() const { return m_isOpening; } ///< the field just taken began its part

private:
    NotePart leave(NotePart to)
    {
        m_isOpening = false;
        return std::exchange(m_part, to);
    }

    NotePart m_part = NotePart::Own;
    bool m_isOpening = false;
};

void readBranchField(MultiLeaderBranch &branch, const Field &field)
{
    if (field.code == 10)
        branch.landing = field.point();
    else if (field.code == 11)
        branch.direction = field.point();
}

void readLineField(MultiLeaderLine &line, const Field &field)
{
    if (field.code == 10)
        line.points.push_back(field.point());
    else if (field.code == 91)
        line.index = field.integer();
}

double distanceTo(const MultiLeaderBranch &branch, const MultiLeaderLine &line, const Vec3 &point)
{
    Path path = line.points;
    path.push_back(branch.landing);
    return flatDistance({.pieces = {{.points = path}}}, point.xy());
}

/// How a map changes the fields of each part.
class NoteTransform
{
public:
    NoteTransform(const FieldList &fields, const Matrix &matrix)
        : m_matrix(matrix), m_plane(normalOf(fields), matrix), m_factor(matrix.xAxis.length())
    {
    }

    void apply(NotePart part, Field &field)
    {
        if (part == NotePart::Context)
            applyContext(field);
        else if (part == NotePart::Branch)
            applyBranch(field);
        else if (part == NotePart::Line && isOneOf(field.code, {10, 11, 12}))
            map(field);
        else if (part == NotePart::Own && field.code == 45)
            field.value = field.real() * m_factor;
    }

private:
    static Vec3 normalOf(const FieldList &fields)
    {
        NotePartWalk walk;
        for (const Field &field : fields)
            if (walk.take(field) == NotePart::Context && field.code == 11 && isPoint(field))
                return field.point();
        return {0.0, 0.0, 1.0};
    }

    static bool isOneOf(int code, std::initializer_list<int> codes)
    {
        return std::find(codes.begin(), codes.end(), code) != codes.end();
    }

    void map(Field &field) const
    {
        if (isPoint(field))
            field.value = m_matrix.point(field.point());
    }
    Vec3 turned(const Field &field) const { return normalized(m_matrix.direction(field.point())); }

    void applyContext(Field &field)
    {
        constexpr qint64 left = 1;
        constexpr qint64 right = 3;
        if (isOneOf(field.code, {10, 12, 15, 110}))
            map(field);
        else if (isOneOf(field.code, {40, 41, 140, 145, 43, 44}))
            field.value = field.real() * m_factor;
        else if (field.code == 11 || field.code == 14)
            field.value = m_plane.extrusion();
        else if (field.code == 42 || field.code == 46)
            field.value = m_plane.angle(field.real());
        else if (field.code == 111 || field.code == 112)
            field.value = turned(field);
        else if (field.code == 13) // A mirrored text goes on being read from the left.
            field.value = turned(field) * (m_plane.isMirrored() && turnsAround(field) ? -1.0 : 1.0);
        else if (field.code == 171 && m_plane.isMirrored() && m_isTurnedAround && field.integer() != 2)
            field.value = field.integer() == left ? right : left;
        else if (field.code == 16)
            field.value = field.point() * m_factor;
    }

    /// Whether the text would run the other way.
    bool turnsAround(const Field &direction)
    {
        m_isTurnedAround = dot(turned(direction), direction.point()) < 0.0;
        return m_isTurnedAround;
    }

    void applyBranch(Field &field)
    {
        if (isOneOf(field.code, {10, 12, 13}))
            map(field);
        else if (field.code == 11)
            field.value = turned(field);
        else if (field.code == 40)
            field.value = field.real() * m_factor;
    }

    Matrix m_matrix;
    PlaneMap m_plane;
    double m_factor;
    bool m_isTurnedAround = false;
};

/// The sixteen numbers of a block's matrix, row by row.
void transformBlockMatrix(FieldList &fields, const Matrix &matrix)
{
    std::vector<Field *> numbers;
    NotePartWalk walk;
    for (Field &field : fields)
        if (walk.take(field) == NotePart::Context && field.code == 47)
            numbers.push_back(&field);
    if (numbers.size() != 16)
        return;
    const auto column = [&](std::size_t at) {
        return Vec3{numbers[at]->real(), numbers[at + 4]->real(), numbers[at + 8]->real()};
    };
    const Matrix mapped = matrix * Matrix{column(0), column(1), column(2), column(3)};
    const std::array columns = {mapped.xAxis, mapped.yAxis, mapped.zAxis, mapped.origin};
    for (std::size_t i = 0; i < columns.size(); ++i) {
        numbers[i]->value = columns[i].x;
        numbers[i + 4]->value = columns[i].y;
        numbers[i + 8]->value = columns[i].z;
    }
}

} // namespace

std::vector<MultiLeaderBranch> multiLeaderBranches(const FieldList &fields)
{
    std::vector<MultiLeaderBranch> branches;
    NotePartWalk walk;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const NotePart part = walk.take(fields[i]);
        if (part != NotePart::Branch && part != NotePart::Line)
            continue;
        if (part == NotePart::Branch && walk.isOpening())
            branches.push_back({.begin = i});
        if (part == NotePart::Line && walk.isOpening())
            branches.back().lines.push_back({.begin = i});
        branches.back().end = i + 1;
        if (part == NotePart::Branch) {
            readBranchField(branches.back(), fields[i]);
        } else {
            branches.back().lines.back().end = i + 1;
            readLineField(branches.back().lines.back(), fields[i]);
        }
    }
    return branches;
}

std::optional<Vec3> multiLeaderBase(const FieldList &fields)
{
    NotePartWalk walk;
    for (const Field &field : fields)
        if (walk.take(field) == NotePart::Context && field.code == 10)
            return field.point();
    return std::nullopt;
}

void moveMultiLeaderContent(FieldList &fields, const Vec3 &by)
{
    NotePartWalk walk;
    for (Field &field : fields) {
        const NotePart part = walk.take(field);
        const bool isOfContext =
            part == NotePart::Context && (field.code == 10 || field.code == 12 || field.code == 15);
        const bool isOfBranch = part == NotePart::Branch && (field.code == 10 || field.code == 12 || field.code == 13);
        if (isOfContext || isOfBranch)
            field.value = field.point() + by;
    }
    transformBlockMatrix(fields, Matrix::translation(by));
}

bool addMultiLeaderLine(FieldList &fields, const Vec3 &arrow)
{
    const std::vector<MultiLeaderBranch> branches = multiLeaderBranches(fields);
    if (branches.empty())
        return false;
    const auto distance = [&](const MultiLeaderBranch &branch) { return (branch.landing - arrow).length(); };
    const MultiLeaderBranch &branch = *std::ranges::min_element(branches, {}, distance);
    qint64 last = -1;
    for (const MultiLeaderBranch &each : branches)
        for (const MultiLeaderLine &line : each.lines)
            last = std::max(last, line.index);
    const FieldList line = {{304, u"LEADER_LINE{"_s}, {10, arrow}, {91, last + 1}, {305, u"}"_s}};
    // In front of what closes the branch, or of what newer records say there.
    const std::size_t at = branch.lines.empty() ? branch.end - 1 : branch.lines.back().end;
    fields.insert(fields.begin() + qsizetype(at), line.begin(), line.end());
    return true;
}

bool removeMultiLeaderLine(FieldList &fields, const Vec3 &near)
{
    std::size_t begin = 0;
    std::size_t end = 0;
    double least = std::numeric_limits<double>::infinity();
    for (const MultiLeaderBranch &branch : multiLeaderBranches(fields)) {
        for (const MultiLeaderLine &line : branch.lines) {
            const double distance = distanceTo(branch, line, near);
            if (distance >= least)
                continue;
            least = distance;
            begin = branch.lines.size() == 1 ? branch.begin : line.begin;
            end = branch.lines.size() == 1 ? branch.end : line.end;
        }
    }
    fields.erase(fields.begin() + qsizetype(begin), fields.begin() + qsizetype(end));
    return begin != end;
}

bool transformMultiLeader(FieldList &fields, const Matrix &matrix)
{
    if (!isUniform(matrix))
        return false;
    NoteTransform transform(fields, matrix);
    NotePartWalk walk;
    for (Field &field : fields)
        transform.apply(walk.take(field), field);
    transformBlockMatrix(fields, matrix);
    return true;
}

} // namespace host::drawing
