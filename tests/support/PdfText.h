#pragma once

#include <QStringList>

#include <functional>

class QWidget;

namespace ortakit::test {

/// A step for ModalAnswers::drive(): prints to the PDF file `path` from a print dialog.
std::function<void(QWidget *)> printingTo(const QString &path);

/// The lines of the PDF file at `path` as an independent reader lays them out, without blanks at their ends and without
/// empty lines. Empty when the file cannot be read.
QStringList pdfLines(const QString &path);

} // namespace ortakit::test
