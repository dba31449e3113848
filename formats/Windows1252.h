#pragma once

#include <QByteArray>

namespace ortakit {

/// `text` itself when it is UTF-8; otherwise what its bytes say in Windows-1252, as programs that know nothing of UTF-8
/// write it in the west, as UTF-8. The five bytes that have no character there stand for the control characters of
/// their numbers.
QByteArray utf8Of(const QByteArray &text);

} // namespace ortakit
