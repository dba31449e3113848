// Any bytes as a dialog file, that others may include, itself among them: what is usable has dialogs of bounded size,
// and the texts of problems have their place.

#include "fuzz/Require.h"
#include "host/dcl/DialogFile.h"

using namespace host::dcl;
using namespace Qt::StringLiterals;

namespace {

void checkDialog(const Tile &tile, int depth)
{
    require(depth < 400);
    require(isCluster(tile.kind) || tile.kind != TileKind::Dialog);
    for (const Tile &child : tile.children)
        checkDialog(child, depth + 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const QStringList parts = text.split(u'\x01');
    const auto find = [](const QString &name, const QString &) { return name.size() == 1 ? name : QString(); };
    const auto read = [&parts](const QString &path) {
        const qsizetype index = path.front().unicode() - u'a';
        return index >= 0 && index < parts.size() ? SourceText{parts[index], {}} : SourceText{{}, u"none"_s};
    };
    const DialogFile file = DialogFile::read(u"a"_s, {find, read});
    for (const Problem &problem : file.problems())
        require(!problem.text.isEmpty() && !problem.toText().isEmpty());
    require(file.isUsable() || file.dialogs().isEmpty());
    for (const QString &name : file.dialogs().mid(0, 8)) {
        const std::optional<Tile> dialog = file.dialog(name);
        require(dialog && dialog->kind == TileKind::Dialog);
        checkDialog(*dialog, 0);
    }
    return 0;
}
