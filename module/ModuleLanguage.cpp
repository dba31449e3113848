#include "module/ModuleLanguage.h"

#include "platform/kernel/CKvDocument.h"

#include <QCoreApplication>
#include <QLocale>

namespace ortakit {

namespace {

/// Of what LOCALE says: three letters of the language and its country, or a locale's own name.
QString languageCode(const QString &locale)
{
    static const QHash<QString, QString> codes = {{QStringLiteral("deu"), QStringLiteral("de")},
                                                  {QStringLiteral("fra"), QStringLiteral("fr")},
                                                  {QStringLiteral("esp"), QStringLiteral("es")},
                                                  {QStringLiteral("ita"), QStringLiteral("it")}};
    const QString name = locale.toLower();
    return codes.value(name, name.size() == 3 ? QStringLiteral("en") : name.left(2));
}

} // namespace

void ModuleLanguage::follow(const CKvDocument *document)
{
    const QString told = document ? document->systemVariable(QStringLiteral("LOCALE")) : QString();
    const QString code = languageCode(told.isEmpty() ? QLocale().name() : told);
    if (code == m_code)
        return;
    leave();
    m_code = code;
    if (m_translator.load(QStringLiteral(":/translations/module_%1.qm").arg(code)))
        QCoreApplication::installTranslator(&m_translator);
}

void ModuleLanguage::leave()
{
    // The application may be gone before the module is.
    if (QCoreApplication::instance())
        QCoreApplication::removeTranslator(&m_translator);
    m_code.clear();
}

} // namespace ortakit
