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
/// The one button that writes asks for a file and stays open, so that several classes can be saved one after the other;
/// Close accepts, which makes the function's result T whether or not anything was saved. What a script cannot take, as
/// on a full disk, is told on the command line, and the file stays as it was.
///
/// Mode and listing decide title, texts and help page; they are to be set before each showing and stay otherwise. Texts
/// of the listing are shown as they are, whatever markup they look like.
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
    /// Reads the listing; its size is bounded by ortakit::readSettingsListing().
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
    /// For the style that the host has when the dialog is made; a later change of style is not followed.
    static Markup chosenMarkup();

    /// Title, button and help page of m_mode.
    void showMode();
    /// `index`: 0 for all classes, 1 read-only, 2 dangerous, everything else standard.
    void showVariables(int index);
    /// The lines of a class as rich text.
    QString entries(ortakit::SettingClass settingClass) const;
    /// Saves m_shownLines: of the classes that are shown, nothing else.
    void ClickInFileButton();

    std::unique_ptr<Ui::Dlg_QT_ExportSettings> m_ui;
    const Markup m_markup = chosenMarkup(); ///< of the style that there was when the dialog was made
    QString m_listingPath;
    QString m_mode; ///< as setMode() had it, known or not
    ortakit::SettingsListing m_listing;
    QList<QByteArray> m_shownLines; ///< in their order, in the bytes of the listing
};
