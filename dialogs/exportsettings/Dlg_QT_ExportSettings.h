#pragma once

#include "formats/SettingsListing.h"
#include "state/ToolDialog.h"

#include <memory>

namespace Ui {
class Dlg_QT_ExportSettings;
}

/// Shows the system variables that a Lisp program has listed, by class, and saves what it shows as a script or adds it
/// to one. Exchanges no state.
///
/// Saving leaves the dialog open, for the variables of another class perhaps, and Close accepts it. A script that
/// cannot be written is told on the command line. Texts of the listing are shown as they are, whatever markup they look
/// like.
class Dlg_QT_ExportSettings final : public ToolDialog
{
    Q_OBJECT

public:
    explicit Dlg_QT_ExportSettings(QWidget *parent = nullptr);
    ~Dlg_QT_ExportSettings() override;

    /// The listing's file is read with each showing; one that cannot be read shows nothing.
    void setListing(const QString &path) { m_listingPath = path; }
    /// "new" saves to a new script, "add" adds to one. Anything else looks like "new" and adds.
    void setMode(const QString &mode) { m_mode = mode; }

protected:
    void beforeShow() override;
    void afterShow() override;

private:
    /// How the entries of a class look.
    struct Markup
    {
        QString readOnly;
        QString dangerous;
        QString standard;
        QString closing;
    };
    static Markup chosenMarkup();

    /// Title, button and help page of the mode.
    void showMode();
    /// Of the classes that the item `index` of the combo box stands for: all, or one of them.
    void showVariables(int index);
    /// The lines of a class as rich text.
    QString entries(ortakit::SettingClass settingClass) const;
    /// Asks for the script and writes what is shown to it.
    void ClickInFileButton();

    std::unique_ptr<Ui::Dlg_QT_ExportSettings> m_ui;
    const Markup m_markup = chosenMarkup(); ///< of the style that there was when the dialog was made
    QString m_listingPath;
    QString m_mode;
    ortakit::SettingsListing m_listing;
    QList<QByteArray> m_shownLines; ///< as bytes of the listing, which go into the script
};
