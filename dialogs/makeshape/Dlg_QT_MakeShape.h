#pragma once

#include "state/DefinitionDialog.h"

#include <memory>

namespace Ui {
class Dlg_QT_MakeShape;
}

/// The shape maker's dialog: the ".shp" file, what it defines already, the name of the new shape and a resolution,
/// which is handed on as it was typed. Closes with no action word; Lisp picks the geometry and encodes it.
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
    void CheckName();
    void refreshShapes();

    std::unique_ptr<Ui::Dlg_QT_MakeShape> m_ui;
    QString m_listedFile; ///< whose shapes the table shows
};
