#pragma once

#include "state/host/EditingTimeRecord.h"

#include <QList>

/// The drawings that are open in this program: their editing time goes on in memory, and their files hold an older one.
///
/// The dialog asks for them each time it lists a folder, so that what is opened or closed meanwhile shows at the next.
class OpenDrawings
{
public:
    struct Drawing
    {
        QString path;              ///< of its file
        ortakit::EditingTime time; ///< now, with what went on since the last save
    };

    virtual ~OpenDrawings() = default;

    /// Those that have a file.
    virtual QList<Drawing> drawings() const = 0;
    /// Changes the time of the one at `path`, now and in what it will be saved with. Empty, or the reason why it cannot
    /// be, and nothing has changed then.
    virtual QString change(const QString &path, const ortakit::EditingTimeChange &change) = 0;
};
