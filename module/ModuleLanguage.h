#pragma once

#include <QString>
#include <QTranslator>

class CKvDocument;

namespace ortakit {

/// Translates the module's texts into the language of its host. The host says it with the system variable LOCALE of its
/// documents ("DEU"); where none does, the application's locale counts. English, and what there is no translation for,
/// is what the sources say.
class ModuleLanguage
{
public:
    ~ModuleLanguage() { leave(); }

    /// Goes by this document, or by the application where it is null or says nothing.
    void follow(const CKvDocument *document);
    /// No text is translated any more.
    void leave();

private:
    QTranslator m_translator;
    QString m_code; ///< of the language that is in use; empty: none was chosen yet
};

} // namespace ortakit
