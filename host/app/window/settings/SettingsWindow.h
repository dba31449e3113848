#pragma once

#include "host/app/window/settings/SettingsTable.h"

#include <QDialog>
#include <QHash>

#include <functional>

class QLabel;
class QLineEdit;
class QListWidget;
class QScrollArea;

namespace host::app {

class SettingEditor;
class WindowServices;

/// A setting that is no system variable; both functions work with the texts of its SettingForm.
struct OwnSetting
{
    std::function<QString()> read;
    /// Why it is refused, empty when it was taken.
    std::function<QString(const QString &value)> write;
};

/// All settings in one window with a search, from the table of settings. A change counts at once; of a system variable
/// it is the line (setvar ...) of the command line, so that it is recorded and can be undone where it is the drawing's.
/// It follows what others change, and waits while something runs.
class SettingsWindow final : public QDialog
{
    Q_OBJECT

public:
    /// `own` has the settings with an "@" in front of their names; a row without one is not shown.
    SettingsWindow(WindowServices &services, QHash<QString, OwnSetting> own, QWidget *parent = nullptr);

    /// Shows only the settings that all of these words are found in: of their captions, sections, names and tips.
    void search(const QString &words);

private:
    struct Entry
    {
        const SettingRow *row;
        QWidget *section;
        QWidget *line;
        SettingEditor *editor;
        QString words; ///< what the search looks in
    };

    void build();
    QWidget *addSection(const SettingRow &row);
    void addRow(const SettingRow &row, QWidget *section);
    void refresh();
    QString valueOf(const SettingRow &row) const;
    void apply(const SettingRow &row, const QString &value);

    WindowServices &m_services;
    const QHash<QString, OwnSetting> m_own;
    QLineEdit *m_search;
    QListWidget *m_sections;
    QScrollArea *m_area;
    QLabel *m_message; ///< why the last change was refused, or nothing can be changed
    QList<Entry> m_entries;
};

} // namespace host::app
