#pragma once

#include "lispfuncs/PromptRequest.h"

class CKvUserInput;

namespace ortakit {

/// What the user answered.
struct PromptAnswer
{
    /// A KvResult or another code of the host. The members below count on kRtNormal only, each for its kinds.
    int code = 0;
    /// Integer.
    qint32 integer = 0;
    /// Real, distance, angle (radians).
    double real = 0;
    /// Point, corner; world coordinates.
    OdGePoint3d point;
    /// String, keyword.
    OdString string;
};

/// Asks the user for what `request` says: hands over option bits and keywords, formats the prompt and waits for the
/// answer. A default that cannot be the value itself becomes one more keyword, "Enter to ...".
PromptAnswer askUser(CKvUserInput &input, const PromptRequest &request);

} // namespace ortakit
