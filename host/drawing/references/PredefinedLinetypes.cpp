#include "host/drawing/references/PredefinedLinetypes.h"

#include "host/drawing/math/Angles.h"

namespace host::drawing {

namespace {

constexpr char predefinedSource[] = R"(*BORDER,Border __ __ . __ __ . __ __ .
A,0.5,-0.25,0.5,-0.25,0,-0.25
*BORDER2,Border (.5x) __ __ . __ __ . __ __ .
A,0.25,-0.125,0.25,-0.125,0,-0.125
*BORDERX2,Border (2x) __ __ . __ __ . __ __ .
A,1,-0.5,1,-0.5,0,-0.5
*CENTER,Center ____ _ ____ _ ____
A,1.25,-0.25,0.25,-0.25
*CENTER2,Center (.5x) ____ _ ____ _ ____
A,0.75,-0.125,0.125,-0.125
*CENTERX2,Center (2x) ____ _ ____ _ ____
A,2.5,-0.5,0.5,-0.5
*DASHDOT,Dash dot __ . __ . __ .
A,0.5,-0.25,0,-0.25
*DASHDOT2,Dash dot (.5x) __ . __ . __ .
A,0.25,-0.125,0,-0.125
*DASHDOTX2,Dash dot (2x) __ . __ . __ .
A,1,-0.5,0,-0.5
*DASHED,Dashed __ __ __ __ __
A,0.5,-0.25
*DASHED2,Dashed (.5x) __ __ __ __ __
A,0.25,-0.125
*DASHEDX2,Dashed (2x) __ __ __ __ __
A,1,-0.5
*DIVIDE,Divide ____ . . ____ . .
A,0.5,-0.25,0,-0.25,0,-0.25
*DIVIDE2,Divide (.5x) ____ . . ____ . .
A,0.25,-0.125,0,-0.125,0,-0.125
*DIVIDEX2,Divide (2x) ____ . . ____ . .
A,1,-0.5,0,-0.5,0,-0.5
*DOT,Dot . . . . . . . .
A,0,-0.25
*DOT2,Dot (.5x) . . . . . . . .
A,0,-0.125
*DOTX2,Dot (2x) . . . . . . . .
A,0,-0.5
*HIDDEN,Hidden __ __ __ __ __
A,0.25,-0.125
*HIDDEN2,Hidden (.5x) __ __ __ __ __
A,0.125,-0.0625
*HIDDENX2,Hidden (2x) __ __ __ __ __
A,0.5,-0.25
*PHANTOM,Phantom ______ __ __ ______
A,1.25,-0.25,0.25,-0.25,0.25,-0.25
*PHANTOM2,Phantom (.5x) ______ __ __ ______
A,0.625,-0.125,0.125,-0.125,0.125,-0.125
*PHANTOMX2,Phantom (2x) ______ __ __ ______
A,2.5,-0.5,0.5,-0.5,0.5,-0.5
*ACAD_ISO02W100,Dashed
A,12,-3
*ACAD_ISO03W100,Dashes with wide gaps
A,12,-18
*ACAD_ISO04W100,Long dash, dot
A,24,-3,0.5,-3
*ACAD_ISO05W100,Long dash, two dots
A,24,-3,0.5,-3,0.5,-3
*ACAD_ISO06W100,Long dash, three dots
A,24,-3,0.5,-3,0.5,-3,0.5,-3
*ACAD_ISO07W100,Dots
A,0.5,-3
*ACAD_ISO08W100,Long dash, short dash
A,24,-3,6,-3
*ACAD_ISO09W100,Long dash, two short dashes
A,24,-3,6,-3,6,-3
*ACAD_ISO10W100,Dash, dot
A,12,-3,0.5,-3
*ACAD_ISO11W100,Two dashes, dot
A,12,-3,12,-3,0.5,-3
*ACAD_ISO12W100,Dash, two dots
A,12,-3,0.5,-3,0.5,-3
*ACAD_ISO13W100,Two dashes, two dots
A,12,-3,12,-3,0.5,-3,0.5,-3
*ACAD_ISO14W100,Dash, three dots
A,12,-3,0.5,-3,0.5,-3,0.5,-3
*ACAD_ISO15W100,Two dashes, three dots
A,12,-3,12,-3,0.5,-3,0.5,-3,0.5,-3
)";

constexpr double inchInMillimetres = 25.4;

} // namespace

std::vector<LinetypeDefinition> predefinedLinetypes(LinetypeUnit unit)
{
    std::vector<LinetypeDefinition> all = readLinetypeSource(predefinedSource);
    if (unit == LinetypeUnit::Inch)
        return all;
    for (LinetypeDefinition &definition : all) {
        if (definition.name.startsWith(QLatin1StringView("ACAD_ISO")))
            continue;
        for (DefinedDash &dash : definition.dashes)
            dash.length *= inchInMillimetres;
    }
    return all;
}

} // namespace host::drawing
