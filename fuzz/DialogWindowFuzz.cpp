// Any bytes as a dialog file whose dialogs are made, set and asked: nothing falls, and no window is larger than the
// screen.

#include "fuzz/GuiApplication.h"
#include "fuzz/Require.h"
#include "host/dcl/DialogFile.h"
#include "host/dcl/widgets/DialogWindow.h"
#include "host/dcl/widgets/ImageTile.h"

#include <QApplication>
#include <QScreen>

using namespace host::dcl;
using namespace Qt::StringLiterals;

namespace {

void tryTiles(const Tile &dialog, DialogWindow &window)
{
    forEachTile(dialog, [&window](const Tile &tile) {
        TileControl *control = window.tile(tile.key());
        if (!control)
            return;
        for (const QString &value : {tile.text(u"label"_s), u"1 0 -1 99999999999"_s, u"1"_s}) {
            control->setValue(value);
            (void)control->value();
        }
        control->setItems({u"a\tb\tc"_s, {}});
        if (ImageTile *image = control->image())
            image->drawLine({-99999, 0}, {99999, 3}, 300);
        control->selectText();
        control->flipHighlight();
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    makeApplication<QApplication>();
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto read = [&text](const QString &) { return SourceText{text, {}}; };
    const DialogFile file =
        DialogFile::read(u"a"_s, {[](const QString &, const QString &) { return QString(); }, read});
    for (const QString &name : file.dialogs().mid(0, 2)) {
        const std::optional<Tile> dialog = file.dialog(name);
        DialogWindow window(name, *dialog, nullptr);
        const QSize screen = window.screen()->availableSize();
        require(window.width() <= screen.width() && window.height() <= screen.height());
        tryTiles(*dialog, window);
        (void)window.grab();
        window.pressDefault();
        window.reject();
    }
    return 0;
}
