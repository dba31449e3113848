#pragma once

#include "host/drawing/math/Vec.h"
#include "host/drawing/records/Record.h"

#include <QString>

#include <optional>
#include <vector>

namespace host::kernel {

class CommandContext;

/// How a multileader is made: what its style says, and what the user has said in its place.
struct MultiLeaderForm
{
    /// As the record has them.
    enum LineType : qint64
    {
        NoLine,
        Straight,
        Spline
    };
    enum Content : qint64
    {
        NoContent,
        Block,
        Text
    };

    qint64 lineType = Straight;
    qint64 content = Text;
    bool hasLanding = true;
    double landing = 8.0;     ///< its length on paper
    qint64 mostPoints = 2;    ///< the arrow and the landing among them; 0: any number
    double firstAngle = 0.0;  ///< the first piece goes in a multiple of it, radians; 0: anywhere
    double secondAngle = 0.0; ///< the same of the second piece
    QString block{};          ///< name, of a block as content
    qint64 overrides = 0;     ///< bits of group 90 for what the user has said
};

/// The form that the style CMLEADERSTYLE has, or Standard where the drawing lacks it; Standard is made where the
/// drawing lacks that too.
MultiLeaderForm multiLeaderForm(CommandContext &context);

/// Makes a MULTILEADER of one line, whose points come from the arrow to the landing, with a text or block. Points are
/// in world coordinates. noRecord when it could not be made, which was told.
drawing::RecordId createMultiLeader(CommandContext &context, const MultiLeaderForm &form,
                                    const std::vector<drawing::Vec3> &points, const QString &text);

} // namespace host::kernel
