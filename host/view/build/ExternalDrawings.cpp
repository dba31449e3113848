#include "host/view/build/ExternalDrawings.h"

#include "host/drawing/records/HeaderVariables.h"
#include "host/view/build/DisplayBuilder.h"
#include "host/view/build/Scene.h"

#include <QFileInfo>

namespace host::view {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestExternal = 512LL * 1024 * 1024;

drawing::FileFinder finderOf(const Scene &scene)
{
    return scene.surroundings().file ? scene.surroundings().file : drawing::namedFiles(scene.drawing());
}

/// Whether the scene, or one that it is seen in, is of the file.
bool isSeenIn(const Scene *scene, const QString &path)
{
    for (; scene; scene = scene->host()) {
        if (QFileInfo(scene->drawing().path()).canonicalFilePath() == path)
            return true;
    }
    return false;
}

int depthOf(const Scene *scene)
{
    int depth = 0;
    for (; scene->host(); scene = scene->host())
        ++depth;
    return depth;
}

} // namespace

std::shared_ptr<const drawing::Drawing> ExternalFiles::open(const QString &path, const drawing::MacroSurroundings &told)
{
    if (const auto known = m_known.constFind(path); known != m_known.constEnd())
        return *known;
    const qint64 size = QFileInfo(path).size();
    std::shared_ptr<const drawing::Drawing> drawing;
    if (size <= std::min(largestExternal, m_bytesLeft)) {
        m_bytesLeft -= size;
        drawing::ReadResult read = drawing::Drawing::open(path);
        if (!read && told.unread)
            told.unread(path, read.error.message());
        if (read && read.drawing->readingNotes().hasFaults() && told.incomplete)
            told.incomplete(path, read.drawing->readingNotes());
        drawing = std::move(read.drawing);
    }
    return *m_known.insert(path, drawing);
}

void ExternalFiles::forget()
{
    *this = {};
}

ExternalView openExternal(Scene &host, const drawing::Block &block)
{
    constexpr int isOverlay = 8;
    ExternalView view{.path = block.externalPath, .isUnloaded = block.isUnloaded};
    const drawing::FileFinder find = finderOf(host);
    const bool isWithin = host.host() != nullptr;
    if (block.isUnloaded || (isWithin && (block.flags & isOverlay) != 0) || depthOf(&host) >= drawing::deepestNesting) {
        view.state = ExternalView::State::LeftOut;
        return view;
    }
    for (const QString &name : drawing::externalNames(block.externalPath)) {
        const QString path = find(name);
        if (path.isEmpty())
            continue;
        if (isSeenIn(&host, path)) {
            view.state = ExternalView::State::LeftOut;
            return view;
        }
        view.drawing = host.externalFiles().open(path, host.surroundings());
        if (view.drawing)
            break;
    }
    if (!view.drawing || !host.externalFiles().takeReference())
        return view;
    const Vec3 base = view.drawing->header().point(u"$INSBASE"_s);
    drawing::MacroSurroundings surroundings{.length = host.surroundings().length,
                                            .angle = host.surroundings().angle,
                                            .file = drawing::namedFilesWithin(*view.drawing, find),
                                            .unread = host.surroundings().unread,
                                            .incomplete = host.surroundings().incomplete};
    view.scene = std::make_shared<Scene>(*view.drawing, std::move(surroundings), host, block.name);
    view.placement = Matrix::translation(block.basePoint - (isUsable(base) ? base : Vec3{}));
    view.state = ExternalView::State::Shown;
    return view;
}

} // namespace host::view
