#pragma once

#include "host/commands/annotate/BoundarySearch.h"
#include "host/drawing/hatching/HatchPatterns.h"

namespace host::kernel {

class CommandContext;

/// How a hatch looks, as the HP variables say it and as the dialogues of hatching change it.
struct HatchLook
{
    QString pattern = QStringLiteral("ANSI31"); ///< SOLID for a filled one; U for parallel lines of one's own
    double scale = 1.0;
    double angle = 0.0; ///< user's, radians
    double spacing = 1.0;
    bool isDouble = false;
    IslandStyle style = IslandStyle::Normal;
    drawing::Vec2 origin{}; ///< user's

    bool isSolid() const { return pattern.compare(u"SOLID", Qt::CaseInsensitive) == 0; }
    /// Lines with an angle and a spacing in place of a pattern.
    bool isOwnLines() const { return pattern.compare(u"U", Qt::CaseInsensitive) == 0; }
};

/// What hatches are made with: their look, and how boundaries are found and hatches put down.
struct HatchSettings
{
    HatchLook look{};
    BoundaryOptions boundary{};
    bool isAssociative = true;
    bool keepsBoundary = false;
    bool isSeparate = false;
    bool makesRegions = false;   ///< BOUNDARY makes no polylines
    QString order{};             ///< "Back", "Front", "Under", "Above" the boundary; empty: where it is made
    drawing::FieldList entity{}; ///< layer, colour and transparency where they are others than the current ones
};
HatchSettings currentHatchSettings(Document &document);
/// What the next hatch finds as its defaults.
void keepHatchLook(Document &document, const HatchLook &look);

/// The groups of a HATCH from 75 on that its look says; nothing when the pattern is not known, or its lines would lie
/// too close in a box of that size, which was told.
std::optional<drawing::FieldList> hatchLookFields(CommandContext &context, const HatchLook &look, double size);
/// The pattern's name and whether it is solid: groups 2 and 70.
drawing::FieldList hatchNameFields(const HatchLook &look);

/// A boundary with the point that it was found at, in world coordinates.
struct HatchArea
{
    Boundary boundary;
    std::optional<drawing::Vec3> seed{};
};
/// Makes one HATCH of the areas, or one for each, in the user's plane, and gives them.
std::vector<drawing::RecordId> createHatches(CommandContext &context, const HatchSettings &settings,
                                             const std::vector<HatchArea> &areas);
/// Makes polylines along the loops; those that no polyline can follow are told. Gives how many were made.
int createBoundaryPolylines(CommandContext &context, const Boundary &boundary);
/// Makes a region of the outer loop with the islands next to it as holes. Gives how many were made.
int createBoundaryRegion(CommandContext &context, const Boundary &boundary);

} // namespace host::kernel
