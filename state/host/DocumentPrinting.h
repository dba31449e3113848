#pragma once

class QTextDocument;
class QWidget;

namespace ortakit {

/// Shows the print dialog over `parent` and, when it is confirmed, prints `document` with pages of the chosen paper's
/// size. The document is laid out for the printer meanwhile and is afterwards as it was, but for its page size. When
/// the printer or the file takes nothing, the user is told.
///
/// The dialog has the object name "printDialog". It is the system's own where the system has one.
void printDocument(QTextDocument &document, QWidget *parent);

} // namespace ortakit
