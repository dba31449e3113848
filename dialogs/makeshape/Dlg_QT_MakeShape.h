#pragma once

#include "state/DefinitionDialog.h"

#include <memory>

namespace Ui {
class Dlg_QT_MakeShape;
}

/// The shape maker's dialog: the ".shp" file, what it defines already, the name of the new shape and a resolution,
/// which is handed on as it was typed. Closes with no action word; Lisp picks the geometry and encodes it.
///
/// The file may be one that is not there yet, and may have any ending. What it defines is read when it is chosen, when
/// its field is left, with each showing and before OK checks the name; one that cannot be read defines nothing. Shapes
/// are told apart by their names: which number a new one gets is Lisp's to find.
class Dlg_QT_MakeShape final : public DefinitionDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_MakeShape(QWidget *parent = nullptr);
    ~Dlg_QT_MakeShape() override;

protected:
    void afterShow() override;

private:
    void SelectLinetypeFile();
    /// OK: closes when file and name are acceptable (see acceptsDefinition()).
    void CheckName();
    /// Shows what the file defines now.
    void refreshShapes();

    std::unique_ptr<Ui::Dlg_QT_MakeShape> m_ui;
    QString m_listedFile; ///< whose shapes the table shows
};
