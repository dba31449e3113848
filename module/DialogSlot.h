#pragma once

#include <cstddef>

/// Where a document keeps its dialog of each kind.
enum class DialogSlot : std::size_t
{
    BreakLine,
    PatternHatch,
    LispExplorer,
    BlockInformation,
    TextCase,
    ExportSettings,
    ReplaceBlock,
    ReplaceBlockByReference,
    ConvertNotes,
    MakeLinetype,
    ImportAttributes,
    NumberText,
    TextFrame,
    TextMask,
    ExportDimensionStyle,
    ImportDimensionStyle,
    ShowLinks,
    DrawOrderByColor,
    RedefinePaths,
    MergeSheets,
    ExportInformation,
    EditAlias,
    MakeShape,
    MultiViewSetup,
    /// Never filled.
    Spare,
};

inline constexpr std::size_t dialogSlotCount = std::size_t(DialogSlot::Spare) + 1;
