#include "host/app/window/settings/SettingEditor.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace host::app {

SettingEditor::SettingEditor(const SettingRow &row, int low, int high, QWidget *parent) : QWidget(parent), m_row(row)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    build(low, high);
}

void SettingEditor::build(int low, int high)
{
    const QString caption = QCoreApplication::translate("Settings", m_row.caption);
    QWidget *field = nullptr;
    if (m_row.form == SettingForm::Switch) {
        field = m_switch = new QCheckBox(caption, this);
        connect(m_switch, &QCheckBox::clicked, this, [this] { emit changed(value()); });
    } else if (m_row.form == SettingForm::Number) {
        field = m_number = new QSpinBox(this);
        m_number->setRange(low, high);
        m_number->setKeyboardTracking(false);
        connect(m_number, &QSpinBox::valueChanged, this, [this] { emit changed(value()); });
    } else if (m_row.form == SettingForm::Choice) {
        buildChoice();
        field = m_choice;
    } else {
        buildText();
        field = m_text;
    }
    field->setAccessibleName(caption);
    setFocusProxy(field);
    layout()->addWidget(field);
    if (m_row.form == SettingForm::Folders || m_row.form == SettingForm::Programs) {
        auto *more = new QToolButton(this);
        more->setText(u"+"_s);
        more->setAccessibleName(tr("Add to: %1").arg(caption));
        connect(more, &QToolButton::clicked, this, &SettingEditor::addPath);
        layout()->addWidget(more);
    }
}

void SettingEditor::buildChoice()
{
    m_choice = new QComboBox(this);
    const QString choices = QCoreApplication::translate("Settings", m_row.choices);
    for (const QString &choice : choices.split(u'|'))
        m_choice->addItem(choice.section(u'=', 1), choice.section(u'=', 0, 0));
    connect(m_choice, &QComboBox::activated, this, [this] { emit changed(value()); });
}

void SettingEditor::buildText()
{
    m_text = new QLineEdit(this);
    connect(m_text, &QLineEdit::editingFinished, this, [this] {
        if (m_text->text() != m_shown)
            emit changed(value());
    });
}

void SettingEditor::addPath()
{
    const QString added = m_row.form == SettingForm::Folders
                              ? QFileDialog::getExistingDirectory(this, accessibleName())
                              : QFileDialog::getOpenFileName(this, accessibleName(), {}, tr("Lisp programs (*.lsp)"));
    if (added.isEmpty())
        return;
    m_text->setText(m_shown.isEmpty() ? added : m_shown + u';' + added);
    emit changed(value());
}

void SettingEditor::show(const QString &value)
{
    m_shown = value;
    const QSignalBlocker quiet(this);
    if (m_switch)
        m_switch->setChecked(m_row.bit != 0 ? (value.toInt() & m_row.bit) != 0 : value.toInt() != 0);
    if (m_number) {
        const QSignalBlocker numberQuiet(m_number);
        m_number->setValue(value.toInt());
    }
    if (m_choice)
        m_choice->setCurrentIndex(m_choice->findData(value));
    if (m_text && !m_text->hasFocus())
        m_text->setText(value);
}

QString SettingEditor::value() const
{
    if (m_switch && m_row.bit != 0)
        return QString::number(m_switch->isChecked() ? m_shown.toInt() | m_row.bit : m_shown.toInt() & ~m_row.bit);
    if (m_switch)
        return m_switch->isChecked() ? u"1"_s : u"0"_s;
    if (m_number)
        return QString::number(m_number->value());
    return m_choice ? m_choice->currentData().toString() : m_text->text().trimmed();
}

} // namespace host::app
