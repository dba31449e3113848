#pragma once

#include <QByteArray>
#include <QPolygonF>

#include <random>
#include <vector>

namespace bench {

/// A drawing of lines, rectangles, circles, arcs and texts, ten units apart, on seven layers L0 to L6: the same one for
/// the same count.
class ManyEntities
{
public:
    explicit ManyEntities(int count);

    /// The file.
    const QByteArray &bytes() const { return m_bytes; }
    /// What the lines, rectangles and curves among them are, in drawing units.
    const std::vector<QPolygonF> &lines() const { return m_lines; }
    /// Of the square that they lie in.
    double side() const { return m_side; }

private:
    static constexpr int layers = 7;

    double below(double limit) { return std::uniform_real_distribution(0.0, limit)(m_engine); }
    void put(int code, double value);
    void head(const char *type, int number);
    void round(double x, double y, double radius, double from, double to);
    void add(int number);

    std::mt19937 m_engine{7};
    double m_side;
    QByteArray m_bytes;
    std::vector<QPolygonF> m_lines;
};

/// Made when it is first asked for, and kept.
const ManyEntities &entities(int count);

} // namespace bench
