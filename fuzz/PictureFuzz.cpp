// Any blocks and entities as a picture: looking changes no byte, a second look shows the same, and so does a scene that
// followed an erasing and its undo.

#include "fuzz/FuzzedDrawing.h"
#include "fuzz/GuiApplication.h"
#include "fuzz/Require.h"
#include "host/drawing/records/Journal.h"
#include "host/view/paint/ScenePainter.h"

#include <QGuiApplication>
#include <QImage>

#include <cmath>

using namespace host::view;
namespace drawing = host::drawing;

namespace {

QImage look(Scene &scene, const Box &box)
{
    QImage image(96, 64, QImage::Format_RGB32);
    ViewTransform view(image.size());
    const Vec3 size = box.isEmpty() ? Vec3{1.0, 1.0, 0.0} : box.high - box.low;
    const Vec3 middle = box.isEmpty() ? Vec3{} : box.low + size * 0.5;
    view.setHeight({middle.x, middle.y}, std::clamp(std::max(size.x, size.y), 1e-6, 1e12));
    QPainter painter(&image);
    paintScene(painter, scene, Scene::modelSpace, view, {});
    return image;
}

void checkReport(const RenderReport &report)
{
    require(report.drawn >= 0 && report.hidden >= 0);
    for (const QMap<QString, qint64> &counts : {report.simplified, report.skipped})
        for (const qint64 count : counts)
            require(count > 0);
    require(report.missing().isEmpty() == (report.isWhole() || report.isCutShort));
}

void eraseAndUndo(drawing::Drawing &drawing)
{
    {
        const drawing::JournalGroup group(drawing.journal(), {});
        for (const RecordId entity : drawing.entities().all())
            drawing.setErased(entity, true);
    }
    drawing.journal().undo();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    makeApplication<QGuiApplication>();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const FuzzedDrawing fuzzed(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    const QByteArray bytes = fuzzed.text(size % 2 == 0 ? "AC1009" : "AC1032");
    const drawing::ReadResult read = drawing::Drawing::fromBytes(bytes);
    if (!read)
        return 0;
    Scene scene(*read.drawing);
    const Box box = scene.extents(Scene::modelSpace);
    const QImage first = look(scene, box);
    const RenderReport report = scene.report(Scene::modelSpace);
    checkReport(report);
    require(look(scene, box) == first);
    eraseAndUndo(*read.drawing);
    require(look(scene, box) == first);
    require(scene.report(Scene::modelSpace).summary() == report.summary());
    require(read.drawing->toBytes() == bytes);
    return 0;
}
