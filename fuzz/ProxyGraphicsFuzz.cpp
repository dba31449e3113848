// Any bytes as the picture that an entity of another program keeps: what is drawn of it has usable numbers, and is no
// more than the bytes can say.

#include "fuzz/FuzzedDrawing.h"
#include "fuzz/GuiApplication.h"
#include "fuzz/Require.h"
#include "host/view/build/ProxyGraphics.h"
#include "host/view/build/Scene.h"

#include <QGuiApplication>

using namespace host::view;
namespace drawing = host::drawing;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    makeApplication<QGuiApplication>();
    static const drawing::ReadResult read = drawing::Drawing::fromBytes(FuzzedDrawing(QByteArray()).text("AC1015"));
    static Scene scene(static_cast<const drawing::Drawing &>(*read.drawing));
    drawing::WorkBudget work(drawing::displayWork);
    RecordDisplay display;
    BuildContext context{*read.drawing, scene, work, display};
    drawProxyGraphics(context, QByteArrayView(data, qsizetype(size)));
    require(display.items.size() <= size / 4);
    for (const DisplayItem &item : display.items) {
        if (const auto *stroke = std::get_if<Stroke>(&item.shape))
            require(areUsable(stroke->curve.points));
    }
    return 0;
}
