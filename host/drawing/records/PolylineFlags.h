#pragma once

namespace host::drawing {

/// Bits of group 70 of a POLYLINE.
enum PolylineFlag
{
    FlagClosed = 1,
    Flag3d = 8,
    FlagMesh = 16,
    FlagClosedAcross = 32, ///< a mesh, in its second direction
    FlagFaces = 64
};

/// Bits of group 70 of a VERTEX.
enum VertexFlag
{
    FlagFrameControl = 16, ///< of a spline's frame: not drawn
    Flag3dVertex = 32,
    FlagMeshVertex = 64,
    FlagFaceRecord = 128
};

} // namespace host::drawing
