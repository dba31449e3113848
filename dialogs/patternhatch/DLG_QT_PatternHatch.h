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
///
/// | key | value |
/// |---|---|
/// | pattern_block, pattern_image, pattern_xref, pattern_mask | TRUE for the type |
/// | patternname | of the hatch pattern that a mask has |
/// | width, height | of a copy: lengths in drawing units, or factors with scalefactor |
/// | scalefactor, aspectratio | sizes are factors; height follows width and the other way round |
/// | offsetx, offsety, positionx, positiony | lengths: space between copies, and the origin of the pattern |
/// | typeobjectblock, typeobjectgroup, trimtolimits, notexceedlimits, tolerance | what is made, and the edge |
///
/// Preview and OK refuse, and stay open, when the chosen type has no file ("Specify Pattern "), when width or height is
/// not above zero ("Scale must be higher than zero. "), and when the tolerance is below 0.01 ("The tolerance value is
/// less than minimum. The value is reset to minimum (0.01). "). No other button checks anything. Cancel leaves the
/// state file as the last such close wrote it.
///
/// A drawing or picture that cannot be read has no proportions and is no error here; its preview is empty or says so.
class DLG_QT_PatternHatch final : public ToolDialog
{
    Q_OBJECT

public:
    /// Fills the favourites and puts the keys of numbers before all others, so that no name is taken for one of them.
    explicit DLG_QT_PatternHatch(QWidget *parent = nullptr);
    ~DLG_QT_PatternHatch() override;

    /// How the dialog is entered next: "NEW", "EDIT" and "EXTRACTENTITY" set the widgets from the state again,
    /// "BOUNDARIES" and everything else leave them as the user left them.
    void setMode(const QString &mode) { m_mode = mode; }

protected:
    /// Before the state comes in: lengths in the active drawing's units, and no file of the last call goes out again.
    void beforeShow() override;
    /// By the mode: the whole state, or nothing.
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

    /// What the preview is about, and the favourites.
    void connectSource();
    void connectSizes();
    /// The buttons that close with an action, and the options of the edge.
    void connectBoundaries();
    void setIcons();

    /// The page of the chosen type, and what follows from it; nothing while values come in.
    void changeTab();
    /// The height follows the width, where proportions are kept.
    void checkAspectWidth();
    void checkAspectHeight();
    /// After a change by hand: the name of the favourite goes, as the dialog is another one now.
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

    /// Sets the action, saves the state file and accepts.
    void closeWith(const QString &action);
    /// A file that the user has chosen: preview, sizes, and what favourites keep.
    void takeFile(const Type &type, const QString &path);
    /// The checks of Preview and OK, with their messages.
    bool acceptsValues();

    /// That of blocks while no option is checked.
    const Type &currentType() const;
    /// Whether any type has a file; a mask needs none.
    bool hasSource() const;
    /// The labels of files take what an applied state or favourite put into them.
    void takeSources();
    /// Reads the file for preview and size unless it is the one that is shown and has not changed; blocks of the
    /// drawing are read each time.
    void showSource();
    /// Proportions are those of the fields where the source has none.
    void refreshSizes();

    /// From "qtentities"; a missing line leaves the count that was known.
    void takeBoundaryCount();
    void enableButtons();
    /// What cutting at the boundary cannot do with a pattern of this type in this drawing; empty when it can do all.
    QString limitsOfCutting() const;
    /// Where something is missing still: the file, else the boundary, else OK.
    void focusFirst();
    void refreshFavourites();

    std::unique_ptr<Ui::DLG_QT_PatternHatch> m_ui;
    std::array<Type, Mask + 1> m_types{};
    std::unique_ptr<ElidedPathField> m_patternName; ///< not a path: a name, shown whole or shortened
    std::unique_ptr<ortakit::PatternSizes> m_sizes;
    FavouritesBox *m_favourites;           ///< owned by the dialog, as its child
    QString m_mode;                        ///< of this call
    ortakit::PatternSource m_source;       ///< what the preview shows
    std::optional<int> m_boundaryEntities; ///< nothing until a program has told
    bool m_isApplying = false;             ///< values come in one by one: none follows another
};
