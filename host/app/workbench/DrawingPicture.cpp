#include "host/app/workbench/DrawingPicture.h"

#include "files/qt/Files.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/ExpressionSurroundings.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPixmap>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace host::app {

view::ExportResult writeDrawingPicture(kernel::Document &document, const QString &path, IncompleteTold told)
{
    if (const auto obstacle = kernel::obstacleToWriting(path, &document.session()))
        return {.error = obstacle->text, .report = {}};
    drawing::MacroSurroundings surroundings = kernel::expressionSurroundings(document);
    if (told)
        surroundings.incomplete = std::move(told);
    return writeDrawingPicture(document.drawing(), path, surroundings);
}

view::ExportResult writeDrawingPicture(const drawing::Drawing &drawing, const QString &path,
                                       const drawing::MacroSurroundings &surroundings)
{
    view::Exporter exporter(drawing, {.surroundings = surroundings});
    return writePages(exporter, path, {});
}

view::ExportResult writePages(view::Exporter &exporter, const QString &path, const QStringList &layouts)
{
    const QString extension = QFileInfo(path).suffix().toLower();
    if (extension == "svg"_L1)
        return exporter.svg(path, layouts);
    if (extension == "pdf"_L1)
        return exporter.pdf(path, layouts);
    if (extension == "png"_L1)
        return exporter.png(path, layouts);
    return {.error = u"%1: the extension must be %2"_s.arg(QDir::toNativeSeparators(path),
                                                           pictureExtensions().join(", "_L1))};
}

QString writeWidgetPicture(QWidget &widget, const QString &path)
{
    // What was changed just now has not been laid out yet.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QBuffer picture;
    picture.open(QIODevice::WriteOnly);
    widget.grab().save(&picture, "PNG");
    const QString reason = files::replaceFile(path, picture.data());
    return reason.isEmpty() ? QString()
                            : u"%1: the picture cannot be written: %2"_s.arg(QDir::toNativeSeparators(path), reason);
}

QStringList pictureExtensions()
{
    return {u"png"_s, u"svg"_s, u"pdf"_s};
}

} // namespace host::app
