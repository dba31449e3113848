#pragma once

#include <QCoreApplication>

namespace host::drawing {

/// Messages about drawings that people read, translated: DrawingTexts::tr("Block \"%1\" is missing.").arg(name). What
/// stands in files stays as it is.
struct DrawingTexts
{
    Q_DECLARE_TR_FUNCTIONS(DrawingTexts)
};

} // namespace host::drawing
