#include "host/drawing/annotation/DimensionText.h"

#include "host/units/Units.h"

#include <QRegularExpression>

namespace host::drawing {

namespace {

using namespace Qt::StringLiterals;

/// Which units a value is written in: those of the style, or its alternate ones.
struct LengthForm
{
    int mode = 2;
    int precision = 4;
    int zeros = 0;
    double factor = 1.0;
    double rounding = 0.0;
};

double rounded(double value, double step)
{
    return step > 0.0 ? std::round(value / step) * step : value;
}

/// Fractions one above the other, or aslant.
QString withStacks(const DimensionStyle &style, QString text)
{
    if (style.fractions == 2)
        return text;
    static const QRegularExpression fraction(u" ?(\\d+)/(\\d+)"_s);
    const QString bar = style.fractions == 1 ? u"#"_s : u"/"_s;
    const QString height = QString::number(style.toleranceHeight > 0.0 ? style.toleranceHeight : 1.0);
    return text.replace(fraction, u"{\\H"_s + height + u"x;\\S\\1"_s + bar + u"\\2;}"_s);
}

QString lengthText(const DimensionStyle &style, const LengthForm &form, double length)
{
    const double value = rounded(length * form.factor, form.rounding);
    if (!std::isfinite(value) || std::abs(value) > 1e20)
        return {};
    QString text = QString::fromStdString(units::formatDistance(
        value, {.mode = form.mode, .precision = std::clamp(form.precision, 0, 8), .zeros = form.zeros}));
    if (form.mode == units::DistanceFormat::Decimal && style.decimalSign > u' ' && style.decimalSign < 0xd800)
        text.replace(u'.', QChar(static_cast<char16_t>(style.decimalSign)));
    return form.mode >= units::DistanceFormat::Architectural ? withStacks(style, text) : text;
}

/// "before<>behind", or what stands behind alone. `[]` in it begins what belongs to alternate units.
QString withAffix(const QString &affix, const QString &value)
{
    const QString own = affix.section(u"[]"_s, 0, 0);
    if (own.contains(u"<>"_s))
        return QString(own).replace(u"<>"_s, value);
    return value + own;
}

QString toleranceText(const DimensionStyle &style, const LengthForm &form, double value, const QString &text)
{
    LengthForm own = form;
    own.precision = style.tolerancePrecision;
    own.zeros = style.toleranceZeros & 15;
    own.rounding = 0.0;
    const QString height = u"\\A"_s + QString::number(std::clamp(style.toleranceAlignment, 0, 2)) + u";{\\H"_s +
                           QString::number(style.toleranceHeight > 0.0 ? style.toleranceHeight : 1.0) + u"x;"_s;
    const auto stacked = [&](const QString &upper, const QString &lower) {
        return height + u"\\S"_s + upper + u"^ "_s + lower + u";}"_s;
    };
    if (style.hasLimits)
        return stacked(lengthText(style, own, value + style.upperTolerance / form.factor),
                       lengthText(style, own, value - style.lowerTolerance / form.factor));
    const LengthForm plain{own.mode, own.precision, own.zeros};
    const QString upper = lengthText(style, plain, style.upperTolerance);
    if (style.upperTolerance == style.lowerTolerance)
        return text + u"%%p"_s + upper;
    return text + stacked(u"+"_s + upper, u"-"_s + lengthText(style, plain, style.lowerTolerance));
}

QString oneText(const DimensionStyle &style, const LengthForm &form, const QString &affix, double length)
{
    QString text = lengthText(style, form, length);
    if (style.hasTolerance || style.hasLimits)
        text = toleranceText(style, form, length, text);
    return withAffix(affix, text);
}

/// The sign in front of radii and diameters, where the style does not put something there.
QString signOf(DimensionKind kind, const DimensionStyle &style)
{
    if (style.affix.indexOf(u"<>"_s) > 0)
        return {};
    if (kind == DimensionKind::Diameter)
        return u"%%c"_s;
    return kind == DimensionKind::Radius || kind == DimensionKind::LargeRadius ? u"R"_s : QString();
}

bool isAngle(DimensionKind kind)
{
    return kind == DimensionKind::AngularOfLines || kind == DimensionKind::AngularOfPoints;
}

} // namespace

QString measuredText(const DimensionStyle &style, double length)
{
    const LengthForm form{style.lengthMode, style.precision, style.zeros,
                          style.lengthFactor != 0.0 ? std::abs(style.lengthFactor) : 1.0, style.rounding};
    QString text = oneText(style, form, style.affix, length);
    if (style.hasAlternate && style.alternateFactor > 0.0) {
        const int mode = std::clamp(style.alternateMode, 1, 5);
        const LengthForm other{mode, style.alternatePrecision, style.alternateZeros,
                               form.factor * style.alternateFactor, style.alternateRounding};
        text += u" ["_s + oneText(style, other, style.alternateAffix, length) + u"]"_s;
    }
    return text;
}

QString measuredAngleText(const DimensionStyle &style, double angle)
{
    if (!std::isfinite(angle))
        return {};
    const int zeros = style.angleZeros << 2 & 12; // 1 leading, 2 trailing ones, where lengths have 4 and 8
    const units::AngleFormat format{
        .mode = std::clamp(style.angleMode, 0, 3), .precision = std::clamp(style.anglePrecision, 0, 8), .zeros = zeros};
    // The text of a whole turn would be that of none.
    QString text = QString::fromStdString(units::formatAngle(angle, format));
    if (format.mode == units::AngleFormat::Degrees)
        text += u"%%d"_s;
    else if (format.mode == units::AngleFormat::DegreesMinutesSeconds)
        text.replace(u'd', u"%%d"_s);
    if (style.decimalSign > u' ' && style.decimalSign < 0xd800)
        text.replace(u'.', QChar(static_cast<char16_t>(style.decimalSign)));
    return withAffix(style.affix, text);
}

QString dimensionText(const DimensionData &data, const DimensionStyle &style)
{
    if (!data.text.isEmpty() && data.text.trimmed().isEmpty())
        return {};
    // Without a "<>" nothing needs to be measured.
    if (!data.text.isEmpty() && !data.text.contains(u"<>"_s))
        return data.text;
    const double value = data.measured();
    const QString measured =
        isAngle(data.kind) ? measuredAngleText(style, value) : signOf(data.kind, style) + measuredText(style, value);
    return data.text.isEmpty() ? measured : QString(data.text).replace(u"<>"_s, measured);
}

} // namespace host::drawing
