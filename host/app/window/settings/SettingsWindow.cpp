#include "host/app/window/settings/SettingsWindow.h"

#include "host/app/window/frame/WindowServices.h"
#include "host/app/window/settings/SettingEditor.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/variables/HostVariables.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/kernel/variables/VariableHelp.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString translatedSetting(const char *text)
{
    return QCoreApplication::translate("Settings", text);
}

QString tipOf(const SettingRow &row)
{
    const QString name = QString::fromLatin1(row.name);
    if (row.tip[0] != '\0' || name.startsWith(u'@'))
        return translatedSetting(row.tip);
    return u"%1 (%2)"_s.arg(kernel::HelpLines::tr(kernel::variableHelp(name)), name);
}

/// The value as Lisp writes one of the variable's kind; empty when it is none.
QString lispForm(kernel::Document &document, const QString &name, const QString &value)
{
    const auto now = document.variables().get(name);
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!now || (!isNumber && !std::holds_alternative<QString>(*now)))
        return {};
    if (std::holds_alternative<qint32>(*now))
        return QString::number(qint64(number));
    if (std::holds_alternative<double>(*now))
        return QString::number(number, 'f', 12);
    return u'"' + QString(value).replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s) + u'"';
}

} // namespace

SettingsWindow::SettingsWindow(WindowServices &services, QHash<QString, OwnSetting> own, QWidget *parent)
    : QDialog(parent), m_services(services), m_own(std::move(own)), m_search(new QLineEdit(this)),
      m_sections(new QListWidget(this)), m_area(new QScrollArea(this)), m_message(new QLabel(this))
{
    setObjectName(u"settingsWindow"_s);
    setWindowTitle(tr("Settings"));
    resize(760, 560);
    build();
    connect(m_search, &QLineEdit::textChanged, this, &SettingsWindow::search);
    connect(m_sections, &QListWidget::currentRowChanged, this, [this](int at) {
        if (QListWidgetItem *item = m_sections->item(at))
            for (const Entry &entry : std::as_const(m_entries))
                if (translatedSetting(entry.row->section) == item->text()) {
                    m_area->verticalScrollBar()->setValue(entry.section->y());
                    break;
                }
    });
    connect(&m_services, &WindowServices::stateChanged, this, [this] {
        if (isVisible())
            refresh();
    });
    refresh();
}

void SettingsWindow::build()
{
    m_search->setObjectName(u"settingsSearch"_s);
    m_search->setPlaceholderText(tr("Search"));
    m_search->setAccessibleName(tr("Search the settings"));
    m_search->setClearButtonEnabled(true);
    m_sections->setObjectName(u"settingsSections"_s);
    m_sections->setAccessibleName(tr("Sections"));
    m_sections->setMaximumWidth(170);
    m_message->setObjectName(u"settingsMessage"_s);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    auto *page = new QWidget;
    auto *pageLayout = new QVBoxLayout(page);
    const char *last = "";
    QWidget *section = nullptr;
    for (const SettingRow &row : settingRows()) {
        if (row.name[0] == '@' && !m_own.contains(QString::fromLatin1(row.name)))
            continue;
        if (!section || qstrcmp(last, row.section) != 0) {
            section = addSection(row);
            pageLayout->addWidget(section);
        }
        last = row.section;
        addRow(row, section);
    }
    pageLayout->addStretch(1);
    m_area->setWidget(page);
    m_area->setWidgetResizable(true);
    auto *middle = new QHBoxLayout;
    middle->addWidget(m_sections);
    middle->addWidget(m_area, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addLayout(middle, 1);
    layout->addWidget(m_message);
}

QWidget *SettingsWindow::addSection(const SettingRow &row)
{
    auto *box = new QGroupBox(translatedSetting(row.section));
    auto *form = new QFormLayout(box);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    m_sections->addItem(box->title());
    return box;
}

void SettingsWindow::addRow(const SettingRow &row, QWidget *section)
{
    const kernel::HostVariable *variable = kernel::findHostVariable(QString::fromLatin1(row.name));
    const bool hasLimits = variable && variable->low < variable->high;
    const int low = hasLimits ? int(variable->low) : std::numeric_limits<short>::min();
    const int high = hasLimits ? int(variable->high) : std::numeric_limits<short>::max();
    auto *line = new QWidget(section);
    auto *lineLayout = new QHBoxLayout(line);
    lineLayout->setContentsMargins(0, 0, 0, 0);
    auto *editor = new SettingEditor(row, low, high, line);
    // Bits of one variable are told apart by their numbers.
    editor->setObjectName(row.bit != 0 ? u"%1.%2"_s.arg(QString::fromLatin1(row.name)).arg(row.bit)
                                       : QString::fromLatin1(row.name));
    if (row.form != SettingForm::Switch) {
        auto *label = new QLabel(translatedSetting(row.caption), line);
        label->setBuddy(editor);
        label->setMinimumWidth(260);
        lineLayout->addWidget(label);
    }
    lineLayout->addWidget(editor, 1);
    line->setToolTip(tipOf(row));
    static_cast<QFormLayout *>(section->layout())->addRow(line);
    connect(editor, &SettingEditor::changed, this, [this, &row](const QString &value) { apply(row, value); });
    m_entries.append({&row, section, line, editor,
                      u"%1 %2 %3 %4"_s.arg(translatedSetting(row.section), translatedSetting(row.caption),
                                           QString::fromLatin1(row.name), tipOf(row))});
}

void SettingsWindow::search(const QString &words)
{
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    QHash<QWidget *, bool> isShown;
    for (const Entry &entry : std::as_const(m_entries)) {
        const bool isFound = std::ranges::all_of(
            wanted, [&](const QString &word) { return entry.words.contains(word, Qt::CaseInsensitive); });
        entry.line->setVisible(isFound);
        isShown[entry.section] = isShown.value(entry.section) || isFound;
    }
    for (auto section = isShown.begin(); section != isShown.end(); ++section)
        section.key()->setVisible(section.value());
}

QString SettingsWindow::valueOf(const SettingRow &row) const
{
    const QString name = QString::fromLatin1(row.name);
    if (name.startsWith(u'@'))
        return m_own[name].read();
    const kernel::Document *document = m_services.document();
    return document ? document->variables().display(name) : QString();
}

void SettingsWindow::refresh()
{
    const bool canChange = m_services.document() && !m_services.isBusy();
    for (const Entry &entry : std::as_const(m_entries)) {
        entry.editor->show(valueOf(*entry.row));
        entry.editor->setEnabled(canChange || entry.row->name[0] == '@');
    }
    if (!m_services.document())
        m_message->setText(tr("System variables are shown while a drawing is open."));
    else if (m_services.isBusy())
        m_message->setText(tr("A command is running; Esc stops it."));
    else
        m_message->clear();
}

void SettingsWindow::apply(const SettingRow &row, const QString &value)
{
    const QString name = QString::fromLatin1(row.name);
    QString refusal;
    if (name.startsWith(u'@')) {
        refusal = m_own[name].write(value);
    } else if (const QString before = valueOf(row); before != value && m_services.document() && !m_services.isBusy()) {
        const QString form = lispForm(*m_services.document(), name, value);
        if (!form.isEmpty())
            m_services.run(u"(setvar \"%1\" %2)"_s.arg(name, form));
        if (valueOf(row) == before)
            refusal = tr("%1 cannot be \"%2\".").arg(name, value);
    }
    refresh();
    if (!refusal.isEmpty())
        m_message->setText(refusal);
}

} // namespace host::app
