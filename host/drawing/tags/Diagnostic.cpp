#include "host/drawing/tags/Diagnostic.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

QString Diagnostic::message() const
{
    return line > 0 ? u"line %1: %2"_s.arg(line).arg(text) : text;
}

} // namespace host::drawing
