#pragma once

#include "state/DefinitionDialog.h"

#include <memory>

namespace Ui {
class Dlg_QT_MakeShape;
}

/// The shape maker's dialog: the ".shp" file, what it defines already, the name of the new shape and a resolution,
/// which is handed on as it was typed. Closes with no action word; Lisp picks the geometry and encodes it.
///
/// | key | value |
/// |---|---|
/// | shapefile | whole path of the file, which need not exist yet |
/// | name | of the new shape |
/// | resolution | as typed; an empty or wrong one is the program's to refuse |
///
/// OK says what keeps it from closing, all under the title "Make Shape":
///
/// | when | message |
/// |---|---|
/// | no file | "You must select a file. " |
/// | no name | "You must provide a name for the shape. " |
/// | a blank in the name | "Shape names cannot include blank spaces." |
/// | the file has the name, in any mix of cases | asks "Shape already exists, you want to replace it?" |
///
/// The file may have any ending, and its path is shown whole, however long it is. Shapes are told apart by their names:
/// which number a new one gets is Lisp's to find. The dialog reads the file with each showing and writes none.
class Dlg_QT_MakeShape final : public DefinitionDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_MakeShape(QWidget *parent = nullptr);
    ~Dlg_QT_MakeShape() override;

protected:
    /// Lists the file anew: the run before may have added to it.
    void afterShow() override;

private:
    /// Has the user choose the shape file, an existing or a new one.
    void SelectLinetypeFile();
    /// The slot of OK; lists the file first when its path was set without leaving the field.
    void CheckName();
    /// A file that is not there lists nothing, and is no error.
    void refreshShapes();

    std::unique_ptr<Ui::Dlg_QT_MakeShape> m_ui;
    QString m_listedFile; ///< whose shapes the table shows
};
