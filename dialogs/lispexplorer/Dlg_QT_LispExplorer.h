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
/// last catalogue said stays until the next one is read. Files are read and never written; a file can be loaded into
/// the engine of the active document, where its programs may do anything, even close the document and with it the
/// dialog.
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
    void afterShow() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void ClickHeaderTable(int column);
    void Selectdirectory();
    /// Lists the functions of the file; one that cannot be read is told.
    void Openfile(QListWidgetItem *item);
    void OpenfileFromInt(int row);
    /// -1 for none.
    void OnFunctionSelected(int row);
    /// Shows the parts of the function that are wanted: its header, its body or both.
    void updateFunctionView();
    /// Goes to the next match, from the beginning again behind the last one.
    void OnSearchClicked();
    void OnSearchTyped();
    /// Lists the symbols of the kind that is wanted.
    void fillKoraTabs();
    /// Loads the selected file into the engine.
    void LoadInKora();
    /// Changes between the page of files and that of loaded symbols.
    void changeType();
    void changeKora();
    void Loaddirectory();
    /// Writes the catalogue to a file.
    void lispDump();

    void setUpLibraryPage();
    void setUpLoadedPage();
    void scanFolder();
    void listFunctions();
    void clearFunctions();
    void showEntry(int row);
    void updateSearchControls();
    void focusBeginning();
    /// The catalogue's lines of the kind that is wanted.
    const QStringList &chosenSymbols() const;

    std::unique_ptr<Ui::Dlg_QT_LispExplorer> m_ui;
    std::unique_ptr<Highlighter> m_highlighter;
    /// What was scanned last; files are opened from here even when the field says something else by now.
    QString m_folder;
    QList<ortakit::LispFunctionEntry> m_entries;
    ortakit::LispCatalogue m_catalogue;
};
