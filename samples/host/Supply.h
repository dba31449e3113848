#pragma once

#include <QString>

namespace sample {

/// Says on standard error, once for each of them, that the module called `call`, for which this host does nothing. A
/// host that is being written begins with nothing but this in its functions, and what appears is what comes next.
void notSupplied(const char *call);

/// Says so, and answers with an empty value: 0, a null pointer, a null image.
template <class Value>
Value notSupplied(const char *call)
{
    notSupplied(call);
    return Value();
}

/// Acts from now on as if this host had no `call`, one of those that ask isSupplied(). It shows what the module does
/// without it.
void takeOut(const QString &call);

/// Whether nobody took `call` out; says so as notSupplied() does when somebody did.
bool isSupplied(const char *call);

} // namespace sample
