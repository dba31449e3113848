#include "bench/ManyEntities.h"

#include <cmath>
#include <map>
#include <memory>

namespace bench {

ManyEntities::ManyEntities(int count) : m_side(std::sqrt(count) * 10.0)
{
    m_bytes = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n0\nENDSEC\n0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n"
              "70\n7\n";
    for (int i = 0; i < layers; ++i)
        m_bytes += "0\nLAYER\n2\nL" + QByteArray::number(i) + "\n70\n0\n62\n" + QByteArray::number(1 + i) +
                   "\n6\nContinuous\n";
    m_bytes += "0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < count; ++i)
        add(i);
    m_bytes += "0\nENDSEC\n0\nEOF\n";
}

void ManyEntities::put(int code, double value)
{
    m_bytes += QByteArray::number(code) + '\n' + QByteArray::number(value, 'f', 6) + '\n';
}

void ManyEntities::head(const char *type, int number)
{
    m_bytes += QByteArray("0\n") + type + "\n5\n" + QByteArray::number(number + 256, 16).toUpper() +
               "\n100\nAcDbEntity\n8\nL" + QByteArray::number(number % layers) + "\n100\nAcDb\n";
}

void ManyEntities::round(double x, double y, double radius, double from, double to)
{
    QPolygonF line;
    for (int i = 0; i <= 16; ++i) {
        const double angle = from + (to - from) * i / 16.0;
        line << QPointF(x + radius * std::cos(angle), y + radius * std::sin(angle));
    }
    m_lines.push_back(line);
}

void ManyEntities::add(int number)
{
    const double x = below(m_side);
    const double y = below(m_side);
    switch (number % 10) {
    case 5:
    case 6:
        head("LWPOLYLINE", number);
        m_bytes += "90\n4\n70\n1\n";
        m_lines.emplace_back(QRectF(x, y, 5.0, 3.0));
        for (int i = 0; i < 4; ++i) {
            put(10, m_lines.back()[i].x());
            put(20, m_lines.back()[i].y());
        }
        break;
    case 7:
    case 8: {
        const bool isArc = number % 10 == 8;
        const double radius = 1.0 + below(4.0);
        head(isArc ? "ARC" : "CIRCLE", number);
        put(10, x);
        put(20, y);
        put(40, radius);
        if (isArc) {
            put(50, 0.0);
            put(51, 180.0);
        }
        round(x, y, radius, 0.0, isArc ? M_PI : 2.0 * M_PI);
        break;
    }
    case 9:
        head("TEXT", number);
        put(10, x);
        put(20, y);
        put(40, 2.5);
        m_bytes += "1\nText " + QByteArray::number(number) + '\n';
        break;
    default:
        head("LINE", number);
        m_lines.push_back(QPolygonF() << QPointF(x, y) << QPointF(x + below(18.0) - 9.0, y + below(18.0) - 9.0));
        for (int i = 0; i < 2; ++i) {
            put(10 + i, m_lines.back()[i].x());
            put(20 + i, m_lines.back()[i].y());
        }
    }
}

const ManyEntities &entities(int count)
{
    static std::map<int, std::unique_ptr<ManyEntities>> made;
    auto &known = made[count];
    if (!known)
        known = std::make_unique<ManyEntities>(count);
    return *known;
}

} // namespace bench
