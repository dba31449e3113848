#include "host/drawing/records/DimensionVariables.h"

#include "host/drawing/records/HeaderVariables.h"

#include <algorithm>

namespace host::drawing {

namespace {

using enum Version;

constexpr double anySize = 1e99;
constexpr int largestShort = 32767;
/// 45 degrees.
constexpr double usualJog = 0.78539816339744831;

constexpr DimensionVariable dimensionRows[] = {
    {"DIMADEC", 70, 179, R2000, 0, 0, -1, 8},
    {"DIMALT", 70, 170, R12, 0, 0, 0, 1},
    {"DIMALTD", 70, 171, R12, 2, 3, 0, 8},
    {"DIMALTF", 40, 143, R12, 25.4, 0.03937007874015748, 1e-99, anySize},
    {"DIMALTRND", 40, 148, R2000, 0.0, 0.0, 0, anySize},
    {"DIMALTTD", 70, 274, R13, 2, 3, 0, 8},
    {"DIMALTTZ", 70, 286, R13, 0, 0, 0, 15},
    {"DIMALTU", 70, 273, R13, 2, 2, 1, 8},
    {"DIMALTZ", 70, 285, R13, 0, 0, 0, 15},
    {"DIMAPOST", 1, 4, R12, "", ""},
    {"DIMARCSYM", 70, 90, R2007, 0, 0, 0, 2},
    {"DIMASO", 70, 0, R12, 1, 1, 0, 1},
    {"DIMASSOC", 280, 0, R2004, 2, 2, 0, 2},
    {"DIMASZ", 40, 41, R12, 0.18, 2.5, 0, anySize},
    {"DIMATFIT", 70, 289, R2000, 3, 3, 0, 3},
    {"DIMAUNIT", 70, 275, R13, 0, 0, 0, 4},
    {"DIMAZIN", 70, 79, R2000, 0, 0, 0, 3},
    {"DIMBLK", 1, 342, R12, "", ""},
    {"DIMBLK1", 1, 343, R12, "", ""},
    {"DIMBLK2", 1, 344, R12, "", ""},
    {"DIMCEN", 40, 141, R12, 0.09, 2.5},
    {"DIMCLRD", 70, 176, R12, 0, 0, 0, 256},
    {"DIMCLRE", 70, 177, R12, 0, 0, 0, 256},
    {"DIMCLRT", 70, 178, R12, 0, 0, 0, 256},
    {"DIMDEC", 70, 271, R13, 4, 2, 0, 8},
    {"DIMDLE", 40, 46, R12, 0.0, 0.0, 0, anySize},
    {"DIMDLI", 40, 43, R12, 0.38, 3.75, 0, anySize},
    {"DIMDSEP", 70, 278, R2000, '.', ',', 0, largestShort},
    {"DIMEXE", 40, 44, R12, 0.18, 1.25, 0, anySize},
    {"DIMEXO", 40, 42, R12, 0.0625, 0.625, 0, anySize},
    {"DIMFIT", 70, 0, R13, 3, 3, 0, 5, R14},
    {"DIMFRAC", 70, 276, R2000, 0, 0, 0, 2},
    {"DIMFXL", 40, 49, R2007, 1.0, 1.0, 0, anySize},
    {"DIMFXLON", 70, 290, R2007, 0, 0, 0, 1},
    {"DIMGAP", 40, 147, R12, 0.09, 0.625},
    {"DIMJOGANG", 40, 50, R2007, usualJog, usualJog, 0.08726646259971647, 1.5707963267948966},
    {"DIMJUST", 70, 280, R13, 0, 0, 0, 4},
    {"DIMLDRBLK", 1, 341, R2000, "", ""},
    {"DIMLFAC", 40, 144, R12, 1.0, 1.0},
    {"DIMLIM", 70, 72, R12, 0, 0, 0, 1},
    {"DIMLTEX1", 6, 346, R2007, "", ""},
    {"DIMLTEX2", 6, 347, R2007, "", ""},
    {"DIMLTYPE", 6, 345, R2007, "", ""},
    {"DIMLUNIT", 70, 277, R2000, 2, 2, 1, 6},
    {"DIMLWD", 70, 371, R2000, -2, -2, -3, 211},
    {"DIMLWE", 70, 372, R2000, -2, -2, -3, 211},
    {"DIMPOST", 1, 3, R12, "", ""},
    {"DIMRND", 40, 45, R12, 0.0, 0.0, 0, anySize},
    {"DIMSAH", 70, 173, R12, 0, 0, 0, 1},
    {"DIMSCALE", 40, 40, R12, 1.0, 1.0, 0, anySize},
    {"DIMSD1", 70, 281, R13, 0, 0, 0, 1},
    {"DIMSD2", 70, 282, R13, 0, 0, 0, 1},
    {"DIMSE1", 70, 75, R12, 0, 0, 0, 1},
    {"DIMSE2", 70, 76, R12, 0, 0, 0, 1},
    {"DIMSHO", 70, 0, R12, 1, 1, 0, 1},
    {"DIMSOXD", 70, 175, R12, 0, 0, 0, 1},
    {"DIMTAD", 70, 77, R12, 0, 1, 0, 4},
    {"DIMTDEC", 70, 272, R13, 4, 2, 0, 8},
    {"DIMTFAC", 40, 146, R12, 1.0, 1.0, 1e-99, anySize},
    {"DIMTFILL", 70, 69, R2007, 0, 0, 0, 2},
    {"DIMTFILLCLR", 70, 70, R2007, 0, 0, 0, 256},
    {"DIMTIH", 70, 73, R12, 1, 0, 0, 1},
    {"DIMTIX", 70, 174, R12, 0, 0, 0, 1},
    {"DIMTM", 40, 48, R12, 0.0, 0.0},
    {"DIMTMOVE", 70, 279, R2000, 0, 0, 0, 2},
    {"DIMTOFL", 70, 172, R12, 0, 1, 0, 1},
    {"DIMTOH", 70, 74, R12, 1, 0, 0, 1},
    {"DIMTOL", 70, 71, R12, 0, 0, 0, 1},
    {"DIMTOLJ", 70, 283, R13, 1, 0, 0, 2},
    {"DIMTP", 40, 47, R12, 0.0, 0.0},
    {"DIMTSZ", 40, 142, R12, 0.0, 0.0, 0, anySize},
    {"DIMTVP", 40, 145, R12, 0.0, 0.0},
    {"DIMTXSTY", 7, 340, R13, "Standard", "Standard"},
    {"DIMTXT", 40, 140, R12, 0.18, 2.5, 1e-99, anySize},
    {"DIMTXTDIRECTION", 70, 295, R2010, 0, 0, 0, 1},
    {"DIMTZIN", 70, 284, R13, 0, 0, 0, 15},
    {"DIMUNIT", 70, 270, R13, 2, 2, 1, 8, R14},
    {"DIMUPT", 70, 288, R13, 0, 0, 0, 1},
    {"DIMZIN", 70, 78, R12, 0, 0, 0, 15},
};

} // namespace

std::span<const DimensionVariable> dimensionVariables()
{
    return dimensionRows;
}

const DimensionVariable *dimensionVariable(QStringView name)
{
    const QByteArray wanted = (name.startsWith(u'$') ? name.mid(1) : name).toLatin1().toUpper();
    const auto *found = std::ranges::lower_bound(dimensionRows, QByteArrayView(wanted), {},
                                                 [](const DimensionVariable &row) { return QByteArrayView(row.name); });
    return found != std::end(dimensionRows) && wanted == found->name ? found : nullptr;
}

Field usualValue(const Drawing &drawing, const DimensionVariable &variable)
{
    const bool isMetric = drawing.header().integer(u"$MEASUREMENT") != 0;
    const DimensionVariable::Value &value = isMetric ? variable.metric : variable.imperial;
    Field field{variable.headerCode, {}};
    if (const auto *number = std::get_if<int>(&value))
        field.value = qint64(*number);
    else if (const auto *real = std::get_if<double>(&value))
        field.value = *real;
    else
        field.value = QString::fromLatin1(std::get<const char *>(value));
    return field;
}

} // namespace host::drawing
