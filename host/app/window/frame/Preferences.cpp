#include "host/app/window/frame/Preferences.h"

#include "files/qt/SettingsFile.h"
#include "host/kernel/documents/Session.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

const QString fileName = u"workbench.ini"_s;

QString fileIn(const QString &folder)
{
    return QDir(folder).filePath(fileName);
}

} // namespace

QString Preferences::folder(const kernel::Session &session)
{
    return QFileInfo(session.settingsFile(fileName)).path();
}

Preferences Preferences::load(const QString &folder)
{
    Preferences preferences;
    if (!files::isSettingsFile(fileIn(folder)))
        return preferences;
    const QSettings settings(fileIn(folder), QSettings::IniFormat);
    if (settings.value("style").toString() == "dark"_L1)
        preferences.style = Style::Dark;
    if (settings.value("ground").toString() == "white"_L1)
        preferences.ground = view::Ground::White;
    preferences.geometry = settings.value("geometry").toByteArray();
    preferences.places = settings.value("places").toByteArray();
    preferences.entries = settings.value("entries").toStringList();
    preferences.forms = settings.value("forms").toStringList();
    preferences.drawings = settings.value("drawings").toStringList();
    preferences.reopensDrawings = settings.value("reopensDrawings").toBool();
    preferences.recent = settings.value("palette").toStringList();
    return preferences;
}

void Preferences::save(const QString &folder) const
{
    // Windows close when nobody is there to be told; the next start has what the last one had.
    files::changeSettings(fileIn(folder), [this](QSettings &settings) {
        settings.setValue("style", style == Style::Dark ? u"dark"_s : u"light"_s);
        settings.setValue("ground", ground == view::Ground::White ? u"white"_s : u"black"_s);
        settings.setValue("geometry", geometry);
        settings.setValue("places", places);
        settings.setValue("entries", entries);
        settings.setValue("forms", forms);
        settings.setValue("drawings", drawings);
        settings.setValue("reopensDrawings", reopensDrawings);
        settings.setValue("palette", recent);
    });
}

} // namespace host::app
