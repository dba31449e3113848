// Pictures in the image tiles of a dialog. Coordinates count from the upper left corner of the tile.

#include "files/qt/Files.h"
#include "host/dcl/Slide.h"
#include "host/dcl/widgets/ImageTile.h"
#include "host/functions/FunctionGroups.h"
#include "host/functions/OpenDialogs.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace host::kernel {

using namespace Qt::StringLiterals;

namespace {

using lisp::Arguments;
using lisp::Value;

constexpr qint64 largestSlideFile = 16 * 1024 * 1024;

/// The image of this key in the current dialog.
dcl::ImageTile *imageOf(Arguments &args, const QString &key)
{
    const OpenDialog *dialog = OpenDialogs::of(documentOf(args)).current();
    const dcl::TileControl *tile = dialog ? dialog->window->tile(key) : nullptr;
    return tile ? tile->image() : nullptr;
}

/// The one that start_image began.
dcl::ImageTile *drawnImage(Arguments &args)
{
    const OpenDialog *dialog = OpenDialogs::of(documentOf(args)).current();
    return dialog && !dialog->drawnKey.isEmpty() ? imageOf(args, dialog->drawnKey) : nullptr;
}

/// A number of either kind, as a point of the screen.
int pixelAt(Arguments &args, std::size_t index)
{
    const double number = args.number(index).asReal();
    return std::isnan(number) ? 0 : int(std::clamp(number, -32000.0, 32000.0));
}

/// Two arguments as a point.
QPoint pixelsAt(Arguments &args, std::size_t index)
{
    return {pixelAt(args, index), pixelAt(args, index + 1)};
}

/// Four arguments: a corner, width and height. Programs give as width what dimx_tile says, which is the last point.
QRect areaAt(Arguments &args, std::size_t index)
{
    return {pixelsAt(args, index), QSize(pixelAt(args, index + 2) + 1, pixelAt(args, index + 3) + 1)};
}

QSize sizeOfTile(Arguments &args)
{
    const OpenDialog *dialog = OpenDialogs::of(documentOf(args)).current();
    const dcl::TileControl *tile = dialog ? dialog->window->tile(stringAt(args, 0)) : nullptr;
    return tile ? tile->field()->size() : QSize();
}

// (dimx_tile key) -> the largest x that is in the tile; nil when there is no such tile.
Value dimxTile(Arguments &args)
{
    const QSize size = sizeOfTile(args);
    return size.isValid() ? Value::integer(size.width() - 1) : Value();
}

// (dimy_tile key) -> the largest y that is in the tile, counted downwards; nil when there is no such tile.
Value dimyTile(Arguments &args)
{
    const QSize size = sizeOfTile(args);
    return size.isValid() ? Value::integer(size.height() - 1) : Value();
}

// (start_image key) -> the key; nil when it is that of no image. What is drawn from now on goes there.
Value startImage(Arguments &args)
{
    const QString key = stringAt(args, 0);
    if (!imageOf(args, key))
        return {};
    OpenDialogs::of(documentOf(args)).current()->drawnKey = key;
    return args[0];
}

// (end_image) -> nil. Nothing is drawn from now on.
Value endImage(Arguments &args)
{
    if (OpenDialog *dialog = OpenDialogs::of(documentOf(args)).current())
        dialog->drawnKey.clear();
    return {};
}

// (vector_image x1 y1 x2 y2 color) -> the colour; nil outside of start_image. Colours are 0 to 255, -2 for the ground
// of the drawing, -15 and -16 for ground and letters of the dialog, -18 for its lines.
Value vectorImage(Arguments &args)
{
    const QPoint from = pixelsAt(args, 0);
    const QPoint to = pixelsAt(args, 2);
    const int color = args.integer(4);
    dcl::ImageTile *image = drawnImage(args);
    if (image)
        image->drawLine(from, to, color);
    return image ? args[4] : Value();
}

// (fill_image x y width height color) -> the colour, as vector_image has them; nil outside of start_image.
Value fillImage(Arguments &args)
{
    const QRect area = areaAt(args, 0);
    const int color = args.integer(4);
    dcl::ImageTile *image = drawnImage(args);
    if (image)
        image->fill(area, color);
    return image ? args[4] : Value();
}

struct SlideName
{
    QString file;
    QString inLibrary; ///< empty for a file of one slide
};

/// "name" or "library(name)", with their extensions.
SlideName slideName(const QString &text)
{
    const qsizetype open = text.endsWith(u')') ? text.lastIndexOf(u'(') : -1;
    const auto withExtension = [](const QString &name, const QString &extension) {
        return QFileInfo(name).suffix().isEmpty() ? name + extension : name;
    };
    if (open > 0)
        return {withExtension(text.left(open), u".slb"_s), text.mid(open + 1).chopped(1)};
    return {withExtension(text, u".sld"_s), {}};
}

dcl::Slide findSlide(Document &document, const QString &text)
{
    const SlideName name = slideName(text);
    const QString path = document.findFile(name.file);
    dcl::Slide none;
    if (path.isEmpty()) {
        none.problem = Functions::tr("the file was not found");
        return none;
    }
    const files::WholeBytes read = files::readWhole(path, largestSlideFile);
    none.problem = read.reason;
    if (!read)
        return none;
    return dcl::readSlide(name.inLibrary.isEmpty() ? read.bytes : dcl::slideInLibrary(read.bytes, name.inLibrary));
}

// (slide_image x y width height slide) -> the slide's name; nil outside of start_image, and when the slide cannot be
// read, which the command line tells. The slide is a file, or "library(name)".
Value slideImage(Arguments &args)
{
    const QRect area = areaAt(args, 0);
    const QString name = stringAt(args, 4);
    dcl::ImageTile *image = drawnImage(args);
    if (!image)
        return {};
    const dcl::Slide slide = findSlide(documentOf(args), name);
    if (!slide.problem.isEmpty())
        documentOf(args).print(Functions::tr("\nThe slide \"%1\": %2.\n").arg(name, slide.problem));
    image->drawSlide(area, slide);
    return slide.shapes.empty() && !slide.problem.isEmpty() ? Value() : args[4];
}

} // namespace

void addTileImageFunctions(lisp::Interpreter &interpreter)
{
    using lisp::Arity;
    static constexpr lisp::NativeRow rows[] = {
        {"dimx_tile", dimxTile, Arity::exactly(1), "key", "the largest x in a tile"},
        {"dimy_tile", dimyTile, Arity::exactly(1), "key", "the largest y in a tile"},
        {"start_image", startImage, Arity::exactly(1), "key", "begins to draw in an image tile; the key"},
        {"end_image", endImage, Arity::exactly(0), "", "ends drawing in an image tile"},
        {"vector_image", vectorImage, Arity::exactly(5), "x1 y1 x2 y2 color", "draws a line in the image; the colour"},
        {"fill_image", fillImage, Arity::exactly(5), "x y width height color",
         "fills a rectangle of the image; the colour"},
        {"slide_image", slideImage, Arity::exactly(5), "x y width height slide",
         "shows a slide in the image; its name"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
