#include "state/DocumentPrinting.h"

#include "platform/kernel/CKvMessageBox.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace ortakit {

namespace {

/// QTextDocument::print() says nothing when it cannot begin.
bool canPrint(QPrinter &printer)
{
    const QString file = printer.outputFileName();
    return printer.isValid() && (file.isEmpty() || QFile(file).open(QIODevice::ReadWrite));
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
    if (canPrint(printer))
        print(document, printer);
    if (!canPrint(printer) || printer.printerState() == QPrinter::Error)
        CKvMessageBox::critical(parent, {},
                                QCoreApplication::translate("LispExtension", "The document could not be printed."));
}

} // namespace ortakit
