#include "dialogs/exportsettings/Dlg_QT_ExportSettings.h"

#include "formats/FileWriting.h"
#include "platform/kernel/CKvUtils.h"
#include "state/host/CommandLineText.h"
#include "state/pickers/FilePicker.h"
#include "ui_Dlg_QT_ExportSettings.h"

#include <QDialogButtonBox>

using ortakit::SettingClass;

namespace {

/// The classes that an item of the combo box shows, in their order.
QList<SettingClass> classesAt(int index)
{
    switch (index) {
    case 0:
        return {SettingClass::ReadOnly, SettingClass::Dangerous, SettingClass::Standard};
    case 1:
        return {SettingClass::ReadOnly};
    case 2:
        return {SettingClass::Dangerous};
    default:
        return {SettingClass::Standard};
    }
}

} // namespace

Dlg_QT_ExportSettings::Dlg_QT_ExportSettings(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("exportvariables")), m_ui(std::make_unique<Ui::Dlg_QT_ExportSettings>())
{
    m_ui->setupUi(this);
    setUpButtons();
    m_ui->Type->addItems(tr("All,Read only,Dangerous,Standard").split(u','));

    connect(m_ui->Type, &QComboBox::currentIndexChanged, this, &Dlg_QT_ExportSettings::showVariables);
    connect(m_ui->saveButton, &QPushButton::clicked, this, &Dlg_QT_ExportSettings::ClickInFileButton);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &Dlg_QT_ExportSettings::accept);
}

Dlg_QT_ExportSettings::~Dlg_QT_ExportSettings() = default;

Dlg_QT_ExportSettings::Markup Dlg_QT_ExportSettings::chosenMarkup()
{
    if (CKvUtils::isDarkStyle()) {
        return {.readOnly = QStringLiteral("<span style='color: #cfcfcf; '>"),
                .dangerous = QStringLiteral("<span style='color: #ffffff; '>"),
                .standard = QStringLiteral("<span style='color: #ffffff; '>"),
                .closing = QStringLiteral("</span>")};
    }
    return {.readOnly = QStringLiteral("<span style='color: #343434; '>"),
            .dangerous = QStringLiteral("<span style='color: #FF0000; '>"),
            .standard = QStringLiteral("<span style='color: #0066FF; '>"),
            .closing = QStringLiteral("</span>")};
}

void Dlg_QT_ExportSettings::beforeShow()
{
    showMode();
    m_listing = ortakit::readSettingsListing(m_listingPath);
    showVariables(m_ui->Type->currentIndex());
}

void Dlg_QT_ExportSettings::afterShow()
{
    m_ui->Type->setFocus();
}

void Dlg_QT_ExportSettings::showMode()
{
    const bool isAdding = m_mode == QLatin1StringView("add");
    setWindowTitle(isAdding ? tr("VariableToScript") : tr("ExportVariables"));
    m_ui->saveButton->setText(isAdding ? tr("Append to script...") : tr("Export to script..."));
    m_ui->saveButton->setToolTip(isAdding ? tr("Append settings to an existing file") : tr("Save modified settings"));
    setHelpTopic(isAdding ? QStringLiteral("variabletoscript") : QStringLiteral("exportvariables"));
}

void Dlg_QT_ExportSettings::showVariables(int index)
{
    // Blanks count in a setting: without this, several would be shown as one. It also makes a paragraph of every line,
    // so that a long listing need not be laid out as a whole before it is shown.
    QString html = QStringLiteral("<p style='white-space: pre-wrap; '>");
    m_shownLines.clear();
    for (const SettingClass settingClass : classesAt(index)) {
        html += entries(settingClass);
        m_shownLines += m_listing.lines(settingClass);
    }
    m_ui->plainTextEdit->setHtml(html);
}

/// The lines of a class as rich text. A line is data, and whatever looks like markup in it is shown as it is.
QString Dlg_QT_ExportSettings::entries(SettingClass settingClass) const
{
    const QString &opening = settingClass == SettingClass::ReadOnly    ? m_markup.readOnly
                             : settingClass == SettingClass::Dangerous ? m_markup.dangerous
                                                                       : m_markup.standard;
    QString html;
    for (const QByteArray &line : m_listing.lines(settingClass))
        html += opening + QString::fromUtf8(line).toHtmlEscaped() + m_markup.closing + u'\n';
    return html;
}

void Dlg_QT_ExportSettings::ClickInFileButton()
{
    const bool isNew = m_mode == QLatin1StringView("new");
    const ortakit::FilePickerOptions options = {.title = isNew ? tr("Save script file") : tr("Append to script file"),
                                                .filter = tr("Script files (*.scr)"),
                                                .start = QStringLiteral(".")};
    const QString chosen = isNew ? ortakit::pickFileToSave(this, options) : ortakit::pickFileToOpen(this, options);
    if (chosen.isEmpty())
        return;
    const QByteArray script = ortakit::withPlatformLineEnds(ortakit::settingsScript(m_shownLines));
    if (isNew)
        ortakit::replaceFileOrTell(chosen, script);
    else
        ortakit::appendToFileOrTell(chosen, script);
}
