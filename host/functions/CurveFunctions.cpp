// Measuring curves: (vlax-curve-...). All points and directions are in world coordinates.

#include "host/drawing/curves/EntityCurve.h"
#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

namespace {

using drawing::EntityCurve;
using drawing::Vec3;
using lisp::Arguments;
using lisp::Value;

/// The first argument; the dialect's error for what is no curve in the drawing.
EntityCurve curveAt(Arguments &args)
{
    const drawing::RecordId record = recordAt(args, 0);
    const drawing::Drawing &drawing = documentOf(args).drawing();
    std::optional<EntityCurve> curve =
        drawing.isAlive(record) ? EntityCurve::ofEntity(drawing, record) : std::optional<EntityCurve>();
    if (!curve)
        args.badValue(0, "curve");
    return std::move(*curve);
}

Value finite(double number)
{
    return std::isfinite(number) ? Value::real(number) : Value();
}

/// A parameter within the curve's range, up to rounding.
std::optional<double> parameterAt(Arguments &args, const EntityCurve &curve)
{
    const double parameter = args.real(1);
    const double start = curve.startParameter();
    const double end = curve.endParameter();
    const double slack = curve.isEndless() ? 0.0 : 1e-9 * (std::abs(start) + std::abs(end));
    if (!(parameter >= start - slack && parameter <= end + slack))
        return {};
    return std::clamp(parameter, start, end);
}

std::optional<double> parameterOfPoint(Arguments &args, const EntityCurve &curve)
{
    return curve.parameterAt(pointAt(args, 1));
}

std::optional<double> parameterOfDistance(Arguments &args, const EntityCurve &curve)
{
    return curve.parameterAtDistance(args.real(1));
}

Value atFinite(const EntityCurve &curve, double parameter)
{
    return std::isfinite(parameter) ? toLisp(curve.point(parameter)) : Value();
}

// (vlax-curve-getstartparam curve) -> where parameters begin; nil for an XLINE.
Value startParameter(Arguments &args)
{
    return finite(curveAt(args).startParameter());
}

// (vlax-curve-getendparam curve) -> where parameters end; nil for a RAY and an XLINE.
Value endParameter(Arguments &args)
{
    return finite(curveAt(args).endParameter());
}

// (vlax-curve-getstartpoint curve) -> the first point; nil for an XLINE.
Value startPoint(Arguments &args)
{
    const EntityCurve curve = curveAt(args);
    return atFinite(curve, curve.startParameter());
}

// (vlax-curve-getendpoint curve) -> the last point; nil for a RAY and an XLINE.
Value endPoint(Arguments &args)
{
    const EntityCurve curve = curveAt(args);
    return atFinite(curve, curve.endParameter());
}

/// What most functions are: a parameter looked up in some way, and what the curve has there. Nil without one.
template <std::optional<double> (*Lookup)(Arguments &, const EntityCurve &),
          Value (*Answer)(const EntityCurve &, double)>
Value answered(Arguments &args)
{
    const EntityCurve curve = curveAt(args);
    const std::optional<double> parameter = Lookup(args, curve);
    return parameter ? Answer(curve, *parameter) : Value();
}

Value pointAnswer(const EntityCurve &curve, double parameter)
{
    return toLisp(curve.point(parameter));
}

Value parameterAnswer(const EntityCurve &, double parameter)
{
    return Value::real(parameter);
}

Value distanceAnswer(const EntityCurve &curve, double parameter)
{
    return finite(curve.distanceAt(parameter));
}

Value firstDerivativeAnswer(const EntityCurve &curve, double parameter)
{
    return toLisp(curve.firstDerivative(parameter));
}

Value secondDerivativeAnswer(const EntityCurve &curve, double parameter)
{
    return toLisp(curve.secondDerivative(parameter));
}

drawing::Extension extensionAt(Arguments &args, std::size_t index)
{
    return args.has(index) ? drawing::Extension::Both : drawing::Extension::None;
}

// (vlax-curve-getclosestpointto curve point [extend]) -> the nearest point, of the curve going on at its ends when
// extend is given and not nil.
Value closestPoint(Arguments &args)
{
    const EntityCurve curve = curveAt(args).extended(extensionAt(args, 2));
    return toLisp(curve.point(curve.closest(pointAt(args, 1))));
}

// (vlax-curve-getclosestpointtoprojection curve point normal [extend]) -> the point of the curve whose image, seen
// along the normal, is nearest to that of the point.
Value closestPointInView(Arguments &args)
{
    const Vec3 normal = pointAt(args, 2);
    if (normal == Vec3{})
        args.badValue(2, "direction");
    const EntityCurve curve = curveAt(args).extended(extensionAt(args, 3));
    return toLisp(curve.point(curve.closestProjected(pointAt(args, 1), normal)));
}

// (vlax-curve-getarea curve) -> the area within it, closed by a straight line where it is open; 0.0 for curves in no
// plane.
Value area(Arguments &args)
{
    return Value::real(curveAt(args).area());
}

// (vlax-curve-isclosed curve) -> T when it ends where it begins.
Value isClosed(Arguments &args)
{
    return args.boolean(curveAt(args).isClosed());
}

// (vlax-curve-isperiodic curve) -> T when it goes round and round.
Value isPeriodic(Arguments &args)
{
    return args.boolean(curveAt(args).isPeriodic());
}

// (vlax-curve-isplanar curve) -> T when it lies in a plane.
Value isPlanar(Arguments &args)
{
    return args.boolean(curveAt(args).isPlanar());
}

} // namespace

void addCurveFunctions(lisp::Interpreter &interpreter)
{
    using lisp::Arity;
    // The getters with "at" take a parameter, a point or a distance; they give nil for one that the curve does not
    // have.
    static constexpr lisp::NativeRow rows[] = {
        {"vlax-curve-getarea", area, Arity::exactly(1), "curve", "the area that a curve encloses"},
        {"vlax-curve-getclosestpointto", closestPoint, Arity::between(2, 3), "curve point [extend]",
         "the point of a curve closest to a point"},
        {"vlax-curve-getclosestpointtoprojection", closestPointInView, Arity::between(3, 4),
         "curve point direction [extend]", "the same, seen along a direction"},
        {"vlax-curve-getdistatparam", answered<parameterAt, distanceAnswer>, Arity::exactly(2), "curve parameter",
         "the way along a curve to a parameter"},
        {"vlax-curve-getdistatpoint", answered<parameterOfPoint, distanceAnswer>, Arity::exactly(2), "curve point",
         "the way along a curve to a point"},
        {"vlax-curve-getendparam", endParameter, Arity::exactly(1), "curve", "the parameter where a curve ends"},
        {"vlax-curve-getendpoint", endPoint, Arity::exactly(1), "curve", "where a curve ends"},
        {"vlax-curve-getfirstderiv", answered<parameterAt, firstDerivativeAnswer>, Arity::exactly(2), "curve parameter",
         "the first derivative: where a curve goes"},
        {"vlax-curve-getparamatdist", answered<parameterOfDistance, parameterAnswer>, Arity::exactly(2),
         "curve distance", "the parameter at a way along a curve"},
        {"vlax-curve-getparamatpoint", answered<parameterOfPoint, parameterAnswer>, Arity::exactly(2), "curve point",
         "the parameter of a point on a curve"},
        {"vlax-curve-getpointatdist", answered<parameterOfDistance, pointAnswer>, Arity::exactly(2), "curve distance",
         "the point at a way along a curve"},
        {"vlax-curve-getpointatparam", answered<parameterAt, pointAnswer>, Arity::exactly(2), "curve parameter",
         "the point of a parameter"},
        {"vlax-curve-getsecondderiv", answered<parameterAt, secondDerivativeAnswer>, Arity::exactly(2),
         "curve parameter", "the second derivative: how a curve bends"},
        {"vlax-curve-getstartparam", startParameter, Arity::exactly(1), "curve", "the parameter where a curve begins"},
        {"vlax-curve-getstartpoint", startPoint, Arity::exactly(1), "curve", "where a curve begins"},
        {"vlax-curve-isclosed", isClosed, Arity::exactly(1), "curve", "T when a curve ends where it begins"},
        {"vlax-curve-isperiodic", isPeriodic, Arity::exactly(1), "curve", "T when a curve goes round for ever"},
        {"vlax-curve-isplanar", isPlanar, Arity::exactly(1), "curve", "T when a curve lies in a plane"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
