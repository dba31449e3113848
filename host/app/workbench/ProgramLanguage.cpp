#include "host/app/workbench/ProgramLanguage.h"

#include "host/kernel/files/UserFolders.h"
#include "host/kernel/variables/SettingsStore.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

const QString languageGroup = u"Window"_s;
const QString languageName = u"language"_s;

QString languageOfWindow(const QString &home)
{
    const kernel::SettingsStore settings(kernel::settingsFile(kernel::userFolders(home), u"settings.ini"_s));
    const QString kept = settings.text(languageGroup, languageName);
    return kept.isEmpty() ? QLocale().name() : kept;
}

} // namespace

const kernel::Language &programLanguage(const ProgramOptions &options)
{
    // What programs read is the same everywhere.
    if (options.withJson)
        return kernel::languages().front();
    QString name = options.language.isEmpty() ? qEnvironmentVariable("ORTAKIT_LANGUAGE") : options.language;
    if (name.isEmpty() && !options.isUnattended() && options.session.isEmpty())
        name = languageOfWindow(options.home);
    const kernel::Language *language = kernel::findLanguage(name);
    return language ? *language : kernel::languages().front();
}

int chosenLanguage(const kernel::SettingsStore &settings)
{
    const kernel::Language *kept = kernel::findLanguage(settings.text(languageGroup, languageName));
    return kept ? int(kept - kernel::languages().data()) + 1 : 0;
}

bool chooseLanguage(kernel::SettingsStore &settings, int choice)
{
    const QString code = choice > 0 ? QString::fromLatin1(kernel::languages()[choice - 1].code) : QString();
    return settings.setText(languageGroup, languageName, code);
}

} // namespace host::app
