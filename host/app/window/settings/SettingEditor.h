#pragma once

#include "host/app/window/settings/SettingsTable.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;

namespace host::app {

/// What a setting is changed with: a box, a list or a field, by the form of its row. It shows a value when it is told
/// to, and tells when a person has changed it; values are texts, as the variable's kind has them.
class SettingEditor final : public QWidget
{
    Q_OBJECT

public:
    /// Numbers may be from `low` to `high`.
    SettingEditor(const SettingRow &row, int low, int high, QWidget *parent = nullptr);

    /// Shows it, without a signal; of a Switch with a bit the whole number.
    void show(const QString &value);

signals:
    /// Of a Switch with a bit the whole number with that bit changed.
    void changed(const QString &value);

private:
    void build(int low, int high);
    void buildChoice();
    void buildText();
    /// A button behind the field that adds a folder or a program.
    void addPath();
    QString value() const;

    const SettingRow &m_row;
    QString m_shown;
    // One of them.
    QCheckBox *m_switch = nullptr;
    QSpinBox *m_number = nullptr;
    QComboBox *m_choice = nullptr;
    QLineEdit *m_text = nullptr;
};

} // namespace host::app
