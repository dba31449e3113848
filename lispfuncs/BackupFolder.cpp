#include "lispfuncs/BackupFolder.h"

#include "lispfuncs/Translated.h"
#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvLispEngine.h"
#include "platform/kernel/CKvSystemServices.h"
#include "platform/kernel/CKvUserInput.h"
#include "state/pickers/FolderPicker.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace ortakit {

using namespace Qt::StringLiterals;

namespace {

const auto globalName = u"SETBACKUPFOLDER"_s;
const auto localName = u"setbackupfolder"_s;

/// What is shown and, behind the comma, what is typed and answers.
QString noneOption()
{
    return QCoreApplication::translate("LispExtension", ". for none,.",
                                       "Command Option: Upper- and Lowercase letters are relevant.");
}

/// Empty when the user cancelled.
QString chooseFolder(CKvSystemServices &services, const QString &start)
{
    return QDir::toNativeSeparators(pickFolder(services.mainWindow(), start, translated("Specify folder")));
}

} // namespace

int setBackupFolder()
{
    CKvDocument *document = ACTIVE_DOCUMENT();
    CKvSystemServices *services = GetKvSystemServices();
    CKvLispEngine *lisp = document ? document->lispEngine() : nullptr;
    CKvUserInput *input = document ? document->userInput() : nullptr;
    if (!lisp || !input || !services)
        return kRtError;
    const OdString current = services->stringSetting(globalName, localName);
    input->initget(0, {noneOption()});
    OdString folder = current;
    const OdString prompt = input->formatPrompt(translated("Specify new path for Backup folder"), current);
    const int code = input->getString(prompt, true, folder);
    if (code != kRtNormal && code != kRtKeyword)
        return kRtNormal;
    const bool isCleared = code == kRtKeyword && input->input() == u"."_s;
    if (folder == u"~"_s)
        folder = chooseFolder(*services, current);
    if (isCleared || (!folder.isEmpty() && QFileInfo(folder).isDir()))
        services->setStringSetting(globalName, localName, folder);
    else
        lisp->print(u'\n' + translated("\"%1\" is a invalid directory.").arg(folder));
    return kRtNormal;
}

} // namespace ortakit
