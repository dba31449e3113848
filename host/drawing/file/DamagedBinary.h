#pragma once

#include "host/drawing/file/RecoveryReport.h"

#include <QByteArray>

namespace host::drawing {

/// The text of a damaged binary file as far as its tags can be read. Of a record with a tag that is none nothing is
/// taken, up to the next place where a record surely begins: a code 0 or 9 with a type or variable that is known. That
/// the records make a drawing is another's concern. `bytes` begin with binaryMark(). One pass; the bytes of damaged
/// records are gone through twice.
QByteArray textOfDamagedBinary(QByteArrayView bytes, RecoveryReport &report);

} // namespace host::drawing
