#pragma once

#include "formats/LispCatalogue.h"
#include "formats/LispSource.h"
#include "state/ToolDialog.h"

#include <memory>

class Highlighter;
class QListWidgetItem;

namespace Ui {
class Dlg_QT_LispExplorer;
}

/// The Lisp Explorer: the functions of the Lisp files of a folder, coloured and searchable, and the symbols that the
/// Lisp engine holds, as a catalogue file lists them.
///
/// Takes no part in the exchange of states and has no result. Each time it is shown it reads the folder again; what the
/// last catalogue said stays until the next one is read.
///
/// Two pages, of which the option at the top shows one:
///
/// | page | shows | can |
/// |---|---|---|
/// | library | the ".lsp" files of a folder, the functions of one, the source of one | search, load the file |
/// | loaded | commands, functions and variables of the catalogue | sort, write all of it to a dump file |
///
/// Enter belongs to the field that has the focus: there is no default button. A file is read when it becomes the
/// current one; one that cannot be read is told and lists no functions. Of a source, lines beyond 10,000 characters are
/// shown cut and those behind the 100,000th are not shown. Loading runs the file in the active document, which may
/// close that document and this dialog with it; "The file has been loaded." says only that it was tried. A dump that
/// cannot be written is told on the command line and leaves the old file.
class Dlg_QT_LispExplorer final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_LispExplorer(QWidget *parent = nullptr);
    ~Dlg_QT_LispExplorer() override;

    /// Takes the symbols from the catalogue file at `path`. One that cannot be read is told, and the symbols stay.
    void readCatalogue(const QString &path);
    /// The next showing begins on the page of loaded symbols.
    void beginWithLoaded();

protected:
    /// Reads the folder again, without a file open and with an empty search.
    void afterShow() override;
    /// Enter presses the button that has the focus, if one has; otherwise it does nothing here.
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// Sorts the loaded symbols.
    void ClickHeaderTable(int column);
    void Selectdirectory();
    /// Lists the functions of the file; one that cannot be read is told.
    void Openfile(QListWidgetItem *item);
    /// The file list's current row; -1 when it has none.
    void OpenfileFromInt(int row);
    /// The function list's current row; -1 empties the list, which has lost its file then.
    void OnFunctionSelected(int row);
    /// Shows the current function in the part that Cb_Format says: header, function or both.
    void updateFunctionView();
    /// Goes to the next place from the cursor on, then from the beginning; tells when there is none.
    void OnSearchClicked();
    /// Marks follow the typing.
    void OnSearchTyped();
    /// The table of loaded symbols, of the kind that is chosen.
    void fillKoraTabs();
    /// The dialog may be gone when the program has run.
    void LoadInKora();
    /// The option of the page.
    void changeType();
    /// The option of the kind of symbols.
    void changeKora();
    void Loaddirectory();
    /// Writes the whole catalogue, whatever kind is shown.
    void lispDump();

    void setUpLibraryPage();
    void setUpLoadedPage();
    void scanFolder();
    void listFunctions();
    void clearFunctions();
    void showEntry(int row);
    void updateSearchControls();
    /// Not on the list of files, which would open the first one.
    void focusBeginning();
    /// The catalogue's lines of the kind that is wanted.
    const QStringList &chosenSymbols() const;

    std::unique_ptr<Ui::Dlg_QT_LispExplorer> m_ui;
    std::unique_ptr<Highlighter> m_highlighter; ///< of the source view's document
    /// What was scanned last; files are opened from here even when the field says something else by now.
    QString m_folder;
    QList<ortakit::LispFunctionEntry> m_entries; ///< of the open file, by the row of the function list
    ortakit::LispCatalogue m_catalogue;          ///< as last read; empty before
};
