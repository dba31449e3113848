#pragma once

#include "host/dcl/DialogFile.h"
#include "host/dcl/widgets/DialogWindow.h"

#include <QHash>
#include <QObject>
#include <QPoint>
#include <QStringList>

#include <exception>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace host::lisp {
class Interpreter;
}

namespace host::kernel {

class Document;

/// A dialog that a program has made and not ended yet.
struct OpenDialog
{
    /// The items that (start_list) to (end_list) collect.
    struct ListEdit
    {
        QString key;
        QStringList items;  ///< all of the list as they will be
        qsizetype next = 0; ///< which of them (add_list) writes; the number of items to append
    };

    std::unique_ptr<dcl::DialogWindow> window;
    QHash<QString, QString> actions; ///< expressions by the keys of tiles
    QHash<QString, QString> data;    ///< what $data holds, likewise
    QString defaultAction;           ///< for tiles without one; empty for none
    QString folder;                  ///< of the program that loaded the file; empty when it was typed
    bool mayRunFileActions = false;  ///< the file's own expressions count
    bool isStarted = false;
    int status = 0;               ///< what (start_dialog) gives
    QString eventKey;             ///< of the tile whose action runs; empty outside
    std::optional<ListEdit> list; ///< between (start_list) and (end_list)
    QString drawnKey;             ///< between (start_image) and (end_image); empty otherwise
    std::exception_ptr error;     ///< that ended an action, for (start_dialog) to pass on
};

/// The dialog files that the programs of a document have loaded, and the dialogs that they have open, one over the
/// other. Goes with the document.
///
/// Actions run while the window's event loop does: an error in one ends its dialog, and goes on from (start_dialog).
/// Before the program's `*error*` hears of it, all dialogs are taken from the screen, so that it may ask and draw.
class OpenDialogs final : public QObject
{
public:
    /// Those of the document; made when they are first asked for.
    static OpenDialogs &of(Document &document);

    /// A file that was loaded, and whether expressions in it may run.
    struct Loaded
    {
        dcl::DialogFile file;
        bool mayRunActions = false;
        QString folder; ///< of the program that loaded it; empty when that was typed
    };
    /// The number by which programs know it, from 1. Of more than 256 that are loaded the oldest goes.
    int load(Loaded loaded);
    void unload(int number) { m_files.erase(number); }
    /// Null when there is none of the number.
    const Loaded *loaded(int number) const;

    /// The dialog that the functions of tiles work on: the one made last. Null when there is none.
    OpenDialog *current() { return m_open.empty() ? nullptr : m_open.back().get(); }
    /// A dialog more, which becomes the current one.
    OpenDialog &add(const QString &name, const dcl::Tile &tile);
    /// Shows the current dialog until it is finished, and forgets it with what was made over it. Its status; rethrows
    /// what ended an action. With nobody there to answer it is cancelled, which is told.
    int run(lisp::Interpreter &interpreter);
    /// Ends the dialog once the action that runs has returned; it is not to be seen from now on.
    void finish(OpenDialog &dialog, int status);
    /// The same for all that are open; those that were never started are forgotten.
    void finishAll(int status);

private:
    explicit OpenDialogs(Document &document);
    void forgetUnstarted();
    void handle(lisp::Interpreter &interpreter, OpenDialog &dialog, const dcl::TileControl &tile,
                const dcl::TileEvent &event);
    QString actionFor(const OpenDialog &dialog, const dcl::TileControl &tile, QString &key) const;
    void runAction(lisp::Interpreter &interpreter, OpenDialog &dialog, const QString &action, const QString &key,
                   const dcl::TileEvent &event);
    /// Whether programs may ask and draw now.
    void tellWhetherOpen();

    Document &m_document;
    std::map<int, Loaded> m_files;
    int m_lastNumber = 0;
    std::vector<std::unique_ptr<OpenDialog>> m_open; ///< the current one last
};

} // namespace host::kernel
