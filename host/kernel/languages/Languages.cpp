#include "host/kernel/languages/Languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QPointer>
#include <QTranslator>

#include <algorithm>

namespace host::kernel {

namespace {

constexpr Language knownLanguages[] = {{"en", "ENU", "English"},
                                       {"de", "DEU", "Deutsch"},
                                       {"fr", "FRA", "Français"},
                                       {"es", "ESP", "Español"},
                                       {"it", "ITA", "Italiano"}};

const Language *languageInUse = &knownLanguages[0];

/// What was installed for the language in use; the application owns them.
QList<QPointer<QTranslator>> &languageTranslators()
{
    static QList<QPointer<QTranslator>> translators;
    return translators;
}

/// A file that is not there, the toolkit's or that of English, is no translator.
void addTranslator(const QString &name, const QString &folder)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(name, folder) && QCoreApplication::installTranslator(translator))
        languageTranslators().append(translator);
    else
        delete translator;
}

} // namespace

std::span<const Language> languages()
{
    return knownLanguages;
}

const Language *findLanguage(const QString &name)
{
    const QString wanted = name.toLower();
    // "de" is German in any country, whatever is written behind.
    const auto isCode = [&](const QString &code) {
        return wanted == code || wanted.startsWith(code + u'_') || wanted.startsWith(code + u'-');
    };
    const auto found = std::ranges::find_if(knownLanguages, [&](const Language &language) {
        return isCode(QString::fromLatin1(language.code)) || wanted == QString::fromLatin1(language.locale).toLower();
    });
    return found == std::end(knownLanguages) ? nullptr : found;
}

void useLanguage(const Language &language)
{
    for (const QPointer<QTranslator> &translator : std::exchange(languageTranslators(), {}))
        delete translator; // which uninstalls it
    languageInUse = &language;
    const QString code = QString::fromLatin1(language.code);
    addTranslator(QStringLiteral("qtbase_") + code, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    addTranslator(QStringLiteral("host_") + code, QStringLiteral(":/translations"));
}

const Language &currentLanguage()
{
    return *languageInUse;
}

} // namespace host::kernel
