#pragma once

#include "dialogs/patternhatch/PatternSizes.h"
#include "dialogs/patternhatch/PatternSource.h"
#include "state/ToolDialog.h"
#include "state/favourites/FavouritesBox.h"
#include "state/widgets/ElidedPathField.h"
#include "state/widgets/ElidedPathLabel.h"

#include <array>
#include <memory>
#include <optional>

class QRadioButton;

namespace Ui {
class DLG_QT_PatternHatch;
}

/// The pattern hatch dialog: what a closed area is filled with, how the copies are sized, spaced, placed and turned,
/// and what becomes of those that reach over the boundary.
///
/// Whatever needs the drawing closes the dialog with an action, which the Lisp program carries out before it calls
/// again: "GET_BLOCK=", "GET_XREF=" and "GET_IMAGE=" with a path, "GET_ENTITY", "GET_ENTITIES", "GET_POINTS", "DELETE",
/// "SHOW", "GET_FROMHATCH", "GET_ORIGIN", "GET_ROTATION", "PREVIEW"; "OK" ends. Each such close saves the state first.
///
/// The Lisp program answers in the state's lines: the widgets' keys, and "qtentities", the number of entities that the
/// boundary has now. 0 turns off what needs a boundary; without that key OK and the preview stay, for a program that
/// keeps no count. The name of the chosen file comes under "lbtitleblock", "lbtitleimage" or "lbtitlexref", which are
/// read, and written when a favourite gave them. That may be a block of the drawing as well. "rotation" is in degrees.
class DLG_QT_PatternHatch final : public ToolDialog
{
    Q_OBJECT

public:
    explicit DLG_QT_PatternHatch(QWidget *parent = nullptr);
    ~DLG_QT_PatternHatch() override;

    /// How the dialog is entered next: "NEW", "EDIT" and "EXTRACTENTITY" set the widgets from the state again,
    /// "BOUNDARIES" and everything else leave them as the user left them.
    void setMode(const QString &mode) { m_mode = mode; }

protected:
    void beforeShow() override;
    Reentry reentry() const override;
    void afterShow() override;
    void changeEvent(QEvent *event) override;

private:
    /// Where m_types has each.
    enum TypeIndex
    {
        Block,
        Image,
        Xref,
        Mask
    };
    /// A type of pattern and what belongs to it.
    struct Type
    {
        QRadioButton *radio;
        QWidget *page;
        ortakit::PatternSource::Kind kind;
        ElidedPathLabel *file; ///< null for a mask
        QWidget *start;        ///< where the user goes on when nothing is chosen yet
    };

    void connectSource();
    void connectSizes();
    void connectBoundaries();
    void setIcons();

    void changeTab();
    void checkAspectWidth();
    void checkAspectHeight();
    void UpdateFav();
    void ReviewDialog();

    // In PatternHatchActions.cpp.
    void selectBlock();
    void selectImage();
    void selectXref();
    void selectPattern();
    void getEntityFromDwg();
    void selectEntities();
    void selectPoints();
    void deleteEntities();
    void showEntities();
    void ExtractFromHatch();
    void selectOrigin();
    void selectRotation();
    void ClosePreview();
    void CloseAccept();

    void closeWith(const QString &action);
    void takeFile(const Type &type, const QString &path);
    bool acceptsValues();

    const Type &currentType() const;
    bool hasSource() const;
    void takeSources();
    void showSource();
    void refreshSizes();

    void takeBoundaryCount();
    void enableButtons();
    /// What cutting at the boundary cannot do with a pattern of this type in this drawing; empty when it can do all.
    QString limitsOfCutting() const;
    void focusFirst();
    void refreshFavourites();

    std::unique_ptr<Ui::DLG_QT_PatternHatch> m_ui;
    std::array<Type, Mask + 1> m_types{};
    std::unique_ptr<ElidedPathField> m_patternName;
    std::unique_ptr<ortakit::PatternSizes> m_sizes;
    FavouritesBox *m_favourites;
    QString m_mode;
    ortakit::PatternSource m_source; ///< what the preview shows
    std::optional<int> m_boundaryEntities;
    bool m_isApplying = false; ///< values come in one by one: none follows another
};
