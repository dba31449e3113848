#include "host/app/window/frame/StatusSwitches.h"

#include "host/app/window/canvas/SnapMenu.h"
#include "host/app/window/frame/WindowServices.h"
#include "host/drawing/geometry/SnapPoints.h"
#include "host/drawing/math/Angles.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>

#include <array>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// A variable is on when the bit is set, or when it is not, or, without a bit, while its value is above 0.
enum class OnWhen
{
    BitSet,
    BitClear,
    Positive
};

struct SwitchRow
{
    const char *name; ///< of the button
    const char *text;
    const char *tip;
    const char *key; ///< empty for none
    const char *variable;
    int bit;
    OnWhen when;
};

constexpr int polarBit = 8; // of AUTOSNAP
constexpr std::array switchRows = {
    SwitchRow{"gridSwitch", QT_TRANSLATE_NOOP("host::app::StatusSwitches", "GRID"),
              QT_TRANSLATE_NOOP("host::app::StatusSwitches", "Shows the grid"), "F7", "GRIDMODE", 1, OnWhen::BitSet},
    SwitchRow{"gridSnapSwitch", QT_TRANSLATE_NOOP("host::app::StatusSwitches", "SNAP"),
              QT_TRANSLATE_NOOP("host::app::StatusSwitches", "Points snap to the grid"), "F9", "SNAPMODE", 1,
              OnWhen::BitSet},
    SwitchRow{"orthoSwitch", QT_TRANSLATE_NOOP("host::app::StatusSwitches", "ORTHO"),
              QT_TRANSLATE_NOOP("host::app::StatusSwitches", "Points lie along the axes from the last one"), "F8",
              "ORTHOMODE", 1, OnWhen::BitSet},
    SwitchRow{"polarSwitch", QT_TRANSLATE_NOOP("host::app::StatusSwitches", "POLAR"),
              QT_TRANSLATE_NOOP("host::app::StatusSwitches", "Points lock to angles from the last one"), "F10",
              "AUTOSNAP", polarBit, OnWhen::BitSet},
    SwitchRow{"snapSwitch", QT_TRANSLATE_NOOP("host::app::StatusSwitches", "OSNAP"),
              QT_TRANSLATE_NOOP("host::app::StatusSwitches", "Points snap to entities"), "F3", "OSMODE",
              drawing::SnapsSwitchedOff, OnWhen::BitClear},
    SwitchRow{"typingSwitch", QT_TRANSLATE_NOOP("host::app::StatusSwitches", "DYN"),
              QT_TRANSLATE_NOOP("host::app::StatusSwitches",
                                "Length and angle stand at the pointer; Tab locks what was typed"),
              "", "DYNMODE", 0, OnWhen::Positive},
};

/// The kinds that are looked for when someone switches snaps on and none is chosen.
constexpr int usualSnaps = drawing::SnapEndPoint | drawing::SnapCentre | drawing::SnapIntersection;
constexpr int usualTyping = 3;

int valueOf(const kernel::Document &document, const SwitchRow &row)
{
    return document.variables().integer(QString::fromLatin1(row.variable));
}

bool isOn(const kernel::Document &document, const SwitchRow &row)
{
    const int value = valueOf(document, row);
    switch (row.when) {
    case OnWhen::BitSet:
        return (value & row.bit) != 0;
    case OnWhen::BitClear:
        return (value & row.bit) == 0 && value != 0;
    case OnWhen::Positive:
        break;
    }
    return value > 0;
}

int switched(const SwitchRow &row, int value, bool on)
{
    switch (row.when) {
    case OnWhen::BitSet:
        return on ? value | row.bit : value & ~row.bit;
    case OnWhen::BitClear: {
        const int kinds = value & ~row.bit;
        return on ? (kinds == 0 ? usualSnaps : kinds) : value | row.bit;
    }
    case OnWhen::Positive:
        break;
    }
    // What it was before is kept as its opposite.
    const int size = value == 0 ? usualTyping : std::abs(value);
    return on ? size : -size;
}

const SwitchRow &rowOf(QLatin1StringView name)
{
    return *std::ranges::find(switchRows, name, [](const SwitchRow &row) { return QLatin1StringView(row.name); });
}

} // namespace

StatusSwitches::StatusSwitches(QMainWindow &window, WindowServices &services) : m_services(services)
{
    for (int row = 0; row < int(switchRows.size()); ++row)
        addSwitch(window, row);
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    connect(&m_soon, &QTimer::timeout, this, &StatusSwitches::showState);
    connect(&services, &WindowServices::stateChanged, this, &StatusSwitches::showState);
    connect(&services, &WindowServices::documentChanged, this, &StatusSwitches::follow);
    follow(services.document());
}

void StatusSwitches::addSwitch(QMainWindow &window, int row)
{
    const SwitchRow &shown = switchRows[std::size_t(row)];
    auto *action = new QAction(tr(shown.text), &window);
    const QKeySequence key(QString::fromLatin1(shown.key));
    action->setCheckable(true);
    action->setShortcut(key);
    action->setToolTip(key.isEmpty() ? tr(shown.tip) : u"%1 (%2)"_s.arg(tr(shown.tip), key.toString()));
    connect(action, &QAction::triggered, this, [this, row](bool on) { toggle(row, on); });
    window.addAction(action);
    m_actions.append(action);

    auto *button = new QToolButton(window.statusBar());
    button->setObjectName(QString::fromLatin1(shown.name));
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(tr(shown.text));
    button->setAccessibleDescription(tr(shown.tip));
    button->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(button, &QWidget::customContextMenuRequested, button, [this, row, button](const QPoint &at) {
        if (QMenu *menu = choices(row, button))
            menu->popup(button->mapToGlobal(at));
    });
    window.statusBar()->addPermanentWidget(button);
}

void StatusSwitches::follow(kernel::Document *document)
{
    disconnect(m_variables);
    if (document)
        m_variables = connect(document, &kernel::Document::variableChanged, &m_soon, qOverload<>(&QTimer::start));
    showState();
}

void StatusSwitches::showState()
{
    if (!m_whileBusy.isEmpty() && !m_services.isBusy())
        setAgain();
    const kernel::Document *document = m_services.document();
    for (int row = 0; row < int(switchRows.size()); ++row) {
        m_actions[row]->setEnabled(document != nullptr);
        m_actions[row]->setChecked(document && isOn(*document, switchRows[std::size_t(row)]));
    }
}

void StatusSwitches::toggle(int row, bool on)
{
    kernel::Document *document = m_services.document();
    if (!document)
        return;
    const SwitchRow &wanted = switchRows[std::size_t(row)];
    const SwitchRow &ortho = rowOf("orthoSwitch"_L1);
    const SwitchRow &polar = rowOf("polarSwitch"_L1);
    // Ortho and polar tracking pull at the same points.
    if (on && (&wanted == &ortho || &wanted == &polar)) {
        const SwitchRow &other = &wanted == &ortho ? polar : ortho;
        set(*document, other.variable, switched(other, valueOf(*document, other), false));
    }
    set(*document, wanted.variable, switched(wanted, valueOf(*document, wanted), on));
    document->print(u"\n<%1>\n"_s.arg((on ? tr("%1 on") : tr("%1 off")).arg(tr(wanted.text))));
    showState();
}

void StatusSwitches::set(kernel::Document &document, const char *variable, int value)
{
    const QString name = QString::fromLatin1(variable);
    const int before = document.variables().integer(name);
    if (before == value)
        return;
    if (m_services.isBusy()) {
        m_whileBusy[name] = {m_whileBusy.value(name, {before, value}).before, value};
        document.variables().set(name, value);
    } else {
        document.runAs(name, [&] { document.variables().set(name, value); });
    }
}

void StatusSwitches::setAgain()
{
    kernel::Document *document = m_services.document();
    const QHash<QString, Change> changes = std::exchange(m_whileBusy, {});
    for (auto change = changes.begin(); document && change != changes.end(); ++change)
        if (document->variables().integer(change.key()) == change->before && change->before != change->wanted)
            document->runAs(change.key(), [&] { document->variables().set(change.key(), change->wanted); });
}

QMenu *StatusSwitches::choices(int row, QToolButton *owner)
{
    const SwitchRow *chosen = &switchRows[std::size_t(row)];
    if (!m_services.document())
        return nullptr;
    if (chosen == &rowOf("snapSwitch"_L1))
        return snapKinds(owner);
    return chosen == &rowOf("polarSwitch"_L1) ? polarAngles(owner) : nullptr;
}

QMenu *StatusSwitches::snapKinds(QToolButton *owner)
{
    const int modes = m_services.document()->variables().integer(u"OSMODE");
    return runningSnapMenu(modes, owner, [this](int kind, bool on) {
        kernel::Document *document = m_services.document();
        if (!document)
            return;
        const int before = document->variables().integer(u"OSMODE");
        // Who chooses a kind wants it looked for.
        set(*document, "OSMODE", on ? (before | kind) & ~drawing::SnapsSwitchedOff : before & ~kind);
    });
}

QMenu *StatusSwitches::polarAngles(QToolButton *owner)
{
    auto *menu = new QMenu(owner);
    menu->setObjectName(u"polarAngles"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto *group = new QActionGroup(menu);
    const double now = m_services.document()->variables().real(u"POLARANG");
    for (const double degrees : {90.0, 45.0, 30.0, 22.5, 18.0, 15.0, 10.0, 5.0}) {
        QAction *action = group->addAction(menu->addAction(u"%1°"_s.arg(degrees)));
        action->setCheckable(true);
        action->setChecked(std::abs(now - degrees * drawing::radians) < 1e-9);
        connect(action, &QAction::triggered, this, [this, degrees] {
            if (kernel::Document *document = m_services.document())
                document->variables().set(u"POLARANG", degrees * drawing::radians);
        });
    }
    return menu;
}

} // namespace host::app
