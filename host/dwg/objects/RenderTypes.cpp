#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// The fields of one kind in a row that settings of rendering are made of; all fields of a kind have one group code.
void readSettings(Fields &f, std::string_view kinds)
{
    for (const char kind : kinds) {
        switch (kind) {
        case 'b':
            f.flag(290);
            break;
        case 's':
            f.int16(70);
            break;
        case 'l':
            f.int32(90);
            break;
        case 'd':
            f.real(40);
            break;
        default:
            f.text(1);
        }
    }
}

void readRenderSettings(Fields &f)
{
    f.subclass("AcDbRenderSettings");
    readSettings(f, "ltbbbbttl");
}

void readRapidRenderSettings(Fields &f)
{
    readRenderSettings(f);
    f.subclass("AcDbRapidRTRenderSettings");
    readSettings(f, "lsllssddb");
}

void readRayRenderSettings(Fields &f)
{
    readRenderSettings(f);
    f.subclass("AcDbMentalRayRenderSettings");
    readSettings(f, "lllsddddddsbblllblbdllllblbbbdddssdssbtlslbd");
}

void readRenderGlobal(Fields &f)
{
    f.subclass("AcDbRenderGlobal");
    readSettings(f, "lllbtllbb");
}

/// Fog, with its colour in three parts, and a picture behind everything.
void readRenderEnvironment(Fields &f)
{
    f.subclass("AcDbRenderEnvironment");
    readSettings(f, "lbb");
    for (int part = 0; part < 3; ++part)
        f.small(280);
    readSettings(f, "ddddbt");
}

} // namespace

std::span<const ObjectType> renderTypes()
{
    static constexpr ObjectType rows[] = {
        {0, "RAPIDRTRENDERSETTINGS", readRapidRenderSettings},
        {0, "MENTALRAYRENDERSETTINGS", readRayRenderSettings},
        {0, "RENDERGLOBAL", readRenderGlobal},
        {0, "RENDERENVIRONMENT", readRenderEnvironment},
    };
    return rows;
}

} // namespace host::dwg
