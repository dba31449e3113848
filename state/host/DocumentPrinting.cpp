#include "state/host/DocumentPrinting.h"

#include "platform/kernel/CKvMessageBox.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QFile>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace ortakit {

namespace {

/// A disk that is full goes unnoticed by the printer: what it writes to a file must be there up to the end mark.
bool isWritten(const QPrinter &printer)
{
    if (printer.printerState() == QPrinter::Error)
        return false;
    QFile file(printer.outputFileName());
    if (file.fileName().isEmpty() || printer.outputFormat() != QPrinter::PdfFormat)
        return true;
    constexpr qint64 endLength = 32;
    return file.open(QIODevice::ReadOnly) && file.seek(std::max<qint64>(file.size() - endLength, 0)) &&
           file.read(endLength).contains("%%EOF");
}

void print(QTextDocument &document, QPrinter &printer)
{
    // Measured for the screen, small letters would stand beside their places on paper.
    document.documentLayout()->setPaintDevice(&printer);
    document.setPageSize(printer.pageLayout().fullRectPixels(printer.resolution()).size());
    document.print(&printer);
    document.documentLayout()->setPaintDevice(nullptr);
}

} // namespace

void printDocument(QTextDocument &document, QWidget *parent)
{
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, parent);
    dialog.setObjectName(QStringLiteral("printDialog"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    print(document, printer);
    if (!isWritten(printer))
        CKvMessageBox::critical(parent, {},
                                QCoreApplication::translate("LispExtension", "The document could not be printed."));
}

} // namespace ortakit
