#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/references/NamedFiles.h"
#include "host/drawing/text/MacroExpression.h"

#include <QHash>

#include <memory>

namespace host::view {

class Scene;

/// The drawings that are seen in another one through external references, however deep: each file is read once.
///
/// Files of up to 512 MB are read, up to 2 GB together, and up to 500 references are followed; what is beyond counts as
/// not to be had.
class ExternalFiles
{
public:
    /// Null for a file that is no drawing, or not to be had; that is kept in mind as well. Where it is read, `told`
    /// hears why it could not be, or what of it could not.
    std::shared_ptr<const drawing::Drawing> open(const QString &path, const drawing::MacroSurroundings &told);
    /// Takes one of the references that may be followed; false when there are no more.
    bool takeReference() { return --m_referencesLeft >= 0; }
    /// Files are read anew the next time. What was handed out stays.
    void forget();

private:
    static constexpr qint64 mostBytes = 2'000'000'000;
    static constexpr int mostReferences = 500;

    QHash<QString, std::shared_ptr<const drawing::Drawing>> m_known;
    qint64 m_bytesLeft = mostBytes;
    int m_referencesLeft = mostReferences;
};

/// What a block shows that stands for another drawing.
struct ExternalView
{
    enum class State
    {
        Shown,
        Missing, ///< there is no such file, none that may be read, or none that is a drawing
        LeftOut  ///< it is unloaded, would show a drawing within itself, or is an overlay within a reference
    };

    QString path{};          ///< as the block has it
    bool isUnloaded = false; ///< likewise
    State state = State::Missing;
    std::shared_ptr<const drawing::Drawing> drawing{};
    std::shared_ptr<Scene> scene{}; ///< of the drawing; null where it is not shown
    drawing::Matrix placement{};    ///< from its model space to the block
};

/// Whether that is what the block still says.
inline bool standsFor(const ExternalView &view, const drawing::Block &block)
{
    return view.path == block.externalPath && view.isUnloaded == block.isUnloaded;
}

/// Opens what a block of `host` stands for. The names of its layers and linetypes are numbered in the host's appearance
/// as NAME|LAYER, where NAME is the block's.
ExternalView openExternal(Scene &host, const drawing::Block &block);

} // namespace host::view
