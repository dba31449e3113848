#pragma once

namespace host::dwg::test {

/// Types by their numbers in files, for tests that add objects of them.
enum TypeNumber : int
{
    TextType = 0x01,
    BeginType = 0x04, ///< BLOCK
    EndType = 0x05,   ///< ENDBLK
    InsertType = 0x07,
    CircleType = 0x12,
    LineType = 0x13,
    PointType = 0x1b,
    DictionaryType = 0x2a,
    LayerType = 0x33,
    StyleType = 0x35,
    LinetypeType = 0x39,
    ApplicationType = 0x43,
    LightPolylineType = 0x4d,
    XrecordType = 0x4f,
    PlaceholderType = 0x50
};

} // namespace host::dwg::test
