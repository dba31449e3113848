#pragma once

#include "dialogs/tracktime/OpenDrawings.h"

/// The editing time of the documents in the DialogRegistry.
class RegisteredDrawings final : public OpenDrawings
{
public:
    QList<Drawing> drawings() const override;
    /// Changes every record of the document, and the drawing, which counts as modified from then on.
    QString change(const QString &path, const ortakit::EditingTimeChange &change) override;
};
