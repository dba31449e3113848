#include "host/kernel/documents/Session.h"

#include "files/Leftovers.h"
#include "files/qt/Files.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/platform/CustomBlocks.h"
#include "host/kernel/platform/Editor.h"
#include "host/kernel/platform/HelpService.h"
#include "host/kernel/platform/SystemServices.h"
#include "host/kernel/running/CommandStack.h"

#include <QDir>

namespace host::kernel {

namespace {

QString madeHomeFolder(const QString &folder)
{
    // A folder that cannot be made shows when the first file is written to it, with that file's name.
    QDir().mkpath(folder + QStringLiteral("/Template"));
    return folder;
}

/// Takes away what programs that were killed left in the folders of the user's data.
void tidyUp(const QString &home)
{
    for (const QString &folder : {home, home + QStringLiteral("/Ortakit"), home + QStringLiteral("/Template"),
                                  home + QStringLiteral("/Ortakit/BreakLine")})
        files::removeLeftoversIn(files::nativePath(folder));
}

/// The setting's name for the user; its local name is the same in lower case.
const QString lispHeapName = QStringLiteral("LISPHEAPMAX");
/// Ample for drawings of a million entities in lists, and little enough for the rest of the desktop to go on.
constexpr int usualLispHeap = 2048;

int lispHeapSetting(const SettingsStore &settings)
{
    bool isNumber = false;
    const int kept = settings.text(lispHeapName, lispHeapName.toLower()).toInt(&isNumber);
    return isNumber ? std::clamp(kept, Session::leastLispHeap, Session::largestLispHeap) : usualLispHeap;
}

} // namespace

QString Session::homeFolder(const QString &wanted)
{
    return userFolders(wanted).data;
}

Session::Session(const SessionOptions &options)
    : m_folders(userFolders(options.home)), m_home(madeHomeFolder(m_folders.data)),
      m_supportFolders(options.supportFolders), m_helpFolder(options.helpFolder),
      m_aliases(m_home + QStringLiteral("/alias.xml")), m_settings(settingsFile(QStringLiteral("settings.ini"))),
      m_lispHeapSetting(lispHeapSetting(m_settings)), m_editor(std::make_unique<Editor>()),
      m_commandStack(std::make_unique<CommandStack>()), m_help(std::make_unique<HelpService>(*this)),
      m_customBlocks(std::make_unique<CustomBlocks>()), m_services(std::make_unique<SystemServices>(*this)),
      m_documents(std::make_unique<DocumentManager>(*this)), m_modules(std::make_unique<ModuleLoader>())
{
    tidyUp(m_home);
    m_servicesBefore =
        installServices({m_services.get(), m_help.get(), m_editor.get(), m_customBlocks.get(), m_commandStack.get()});
}

Session::~Session()
{
    // Modules first: they take their functions and dialogs out of the documents.
    m_modules.reset();
    m_documents.reset();
    installServices(m_servicesBefore);
}

QString Session::settingsFile(const QString &name) const
{
    return kernel::settingsFile(m_folders, name);
}

void Session::setLispHeapLimit(int megabytes)
{
    m_lispHeapSetting = megabytes;
    m_settings.setText(lispHeapName, lispHeapName.toLower(), QString::number(megabytes));
}

RunResult Session::runQueue()
{
    RunResult result = grantWishes();
    while (!m_input.isEmpty() && m_documents->active()) {
        if (isStopWanted()) {
            m_input.clear();
            m_documents->active()->print(Kernel::tr("\n*Cancel*\n"));
            result.ok = false;
            result.error = result.report = QStringLiteral("Function cancelled");
            break;
        }
        const RunResult next = m_documents->active()->runQueued();
        if (!next.hasRun)
            break;
        if (result.ok)
            result = next;
        if (const RunResult granted = grantWishes(); result.ok && !granted.ok)
            result = granted;
    }
    if (m_input.isEmpty())
        m_documents->wishes().closeStandIn();
    return result;
}

RunResult Session::grantWishes()
{
    using enum DocumentWishes::Typed;
    RunResult result;
    DocumentWishes &wishes = m_documents->wishes();
    const QStringList problems = wishes.grant(m_input.isEmpty() ? Nothing : More);
    if (wishes.isQuitWanted() || !problems.isEmpty())
        m_input.clear();
    if (problems.isEmpty())
        return result;
    Document *const told = m_documents->active() ? m_documents->active() : m_documents->create();
    told->print(u'\n' + problems.join(u'\n') + u'\n');
    result.ok = false;
    result.error = result.report = problems.join(u' ');
    return result;
}

} // namespace host::kernel
