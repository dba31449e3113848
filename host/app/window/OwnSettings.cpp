// The settings that are no system variables.

#include "host/app/window/MainWindow.h"
#include "host/app/window/frame/WindowServices.h"
#include "host/app/window/settings/SettingsWindow.h"
#include "host/app/workbench/ProgramLanguage.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

const QString programsGroup = u"Programs"_s;
const QString programsName = u"load"_s;

/// Why these cannot be loaded with each drawing; empty when they can.
QString problemWith(const QStringList &programs)
{
    for (const QString &program : programs)
        if (!QDir::isAbsolutePath(program) || !QFileInfo(program).isFile())
            return MainWindow::tr("%1 is no full path of a program.").arg(program);
    return {};
}

QString cannotBeKept(const kernel::SettingsStore &store)
{
    return MainWindow::tr("This cannot be kept in %1.").arg(QDir::toNativeSeparators(store.path()));
}

} // namespace

void MainWindow::showSettings()
{
    if (!m_settings) {
        kernel::SettingsStore &store = m_workbench->session().settings();
        const auto keepPrograms = [&store](const QString &value) {
            const QString problem = problemWith(value.split(u';', Qt::SkipEmptyParts));
            if (!problem.isEmpty() || store.setText(programsGroup, programsName, value))
                return problem;
            return cannotBeKept(store);
        };
        const auto keepLanguage = [&store](const QString &value) {
            return chooseLanguage(store, value.toInt()) ? QString() : cannotBeKept(store);
        };
        m_settings = new SettingsWindow(
            *m_services,
            {{u"@style"_s,
              {[] { return currentStyle() == Style::Dark ? u"1"_s : u"0"_s; },
               [this](const QString &value) {
                   setStyleOfWindows(value == u"1" ? Style::Dark : Style::Light);
                   return QString();
               }}},
             {u"@ground"_s,
              {[] { return view::shownGround() == view::Ground::White ? u"1"_s : u"0"_s; },
               [this](const QString &value) {
                   setGround(value == u"1" ? view::Ground::White : view::Ground::Black);
                   return QString();
               }}},
             {u"@language"_s, {[&store] { return QString::number(chosenLanguage(store)); }, keepLanguage}},
             {u"@programs"_s, {[&store] { return store.text(programsGroup, programsName); }, keepPrograms}}},
            this);
    }
    m_settings->show();
    m_settings->raise();
    m_settings->activateWindow();
}

} // namespace host::app
