#include "host/drawing/math/Matrix.h"

namespace host::drawing {

Matrix Matrix::inverted() const
{
    const double d = determinant();
    if (d == 0.0 || !std::isfinite(1.0 / d))
        return {};
    const Vec3 rowX = cross(yAxis, zAxis) * (1.0 / d);
    const Vec3 rowY = cross(zAxis, xAxis) * (1.0 / d);
    const Vec3 rowZ = cross(xAxis, yAxis) * (1.0 / d);
    Matrix inverse;
    inverse.xAxis = {rowX.x, rowY.x, rowZ.x};
    inverse.yAxis = {rowX.y, rowY.y, rowZ.y};
    inverse.zAxis = {rowX.z, rowY.z, rowZ.z};
    inverse.origin = inverse.direction(origin) * -1.0;
    return inverse;
}

Matrix Matrix::translation(const Vec3 &by)
{
    Matrix matrix;
    matrix.origin = by;
    return matrix;
}

Matrix Matrix::rotation(double angle, const Vec3 &center)
{
    Matrix matrix;
    matrix.xAxis = {std::cos(angle), std::sin(angle), 0.0};
    matrix.yAxis = {-std::sin(angle), std::cos(angle), 0.0};
    matrix.origin = center - matrix.direction(center);
    return matrix;
}

Matrix Matrix::scaling(const Vec3 &factors, const Vec3 &center)
{
    Matrix matrix;
    matrix.xAxis.x = factors.x;
    matrix.yAxis.y = factors.y;
    matrix.zAxis.z = factors.z;
    matrix.origin = center - matrix.direction(center);
    return matrix;
}

Matrix Matrix::mirror(const Vec3 &first, const Vec3 &second)
{
    const double angle = 2.0 * std::atan2(second.y - first.y, second.x - first.x);
    Matrix matrix;
    matrix.xAxis = {std::cos(angle), std::sin(angle), 0.0};
    matrix.yAxis = {std::sin(angle), -std::cos(angle), 0.0};
    const Vec3 onLine{first.x, first.y, 0.0};
    matrix.origin = onLine - matrix.direction(onLine);
    return matrix;
}

Matrix Matrix::fromExtrusion(const Vec3 &extrusion)
{
    if (extrusion.length() == 0.0 || (extrusion.x == 0.0 && extrusion.y == 0.0 && extrusion.z > 0.0))
        return {};
    // The format's own limit: near the world z axis the x axis is derived from world y, elsewhere from world z.
    constexpr double nearZ = 1.0 / 64.0;
    Matrix matrix;
    matrix.zAxis = normalized(extrusion);
    const bool isNearZ = std::abs(matrix.zAxis.x) < nearZ && std::abs(matrix.zAxis.y) < nearZ;
    matrix.xAxis = normalized(cross(isNearZ ? Vec3{0.0, 1.0, 0.0} : Vec3{0.0, 0.0, 1.0}, matrix.zAxis));
    matrix.yAxis = normalized(cross(matrix.zAxis, matrix.xAxis));
    return matrix;
}

Matrix operator*(const Matrix &left, const Matrix &right)
{
    Matrix product;
    product.xAxis = left.direction(right.xAxis);
    product.yAxis = left.direction(right.yAxis);
    product.zAxis = left.direction(right.zAxis);
    product.origin = left.point(right.origin);
    return product;
}

} // namespace host::drawing
