// What the program and its document are: names, folders, times, counts and what the last command measured.

#include "files/TemporaryFolder.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/text/DateText.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Languages.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/variables/VariableRows.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QSysInfo>

namespace host::kernel {

using namespace rows;
using drawing::Vec3;

namespace {

QString withSeparator(const QString &folder)
{
    return folder.endsWith(u'/') ? folder : folder + u'/';
}

VariableValue folderValue(const QString &folder)
{
    return withSeparator(folder);
}

VariableValue drawingFolder(const Document &document)
{
    return folderValue(document.path().isEmpty() ? QDir::currentPath() : QFileInfo(document.path()).absolutePath());
}

VariableValue logFilePath(const Document &document)
{
    return folderValue(document.session().home());
}

std::optional<VariableValue> existingFolder(const Document &, const VariableValue &value)
{
    const QString folder = std::get<QString>(value);
    return QFileInfo(folder).isDir() ? std::optional(folderValue(folder)) : std::nullopt;
}

/// What the current space shows. The header's own values are those of the last save.
drawing::Box extents(const Document &document)
{
    const drawing::Drawing &drawing = document.drawing();
    return drawing::spaceBox(drawing, currentEntities(drawing));
}

VariableValue undoControl(const Document &document)
{
    return 1 + 4 + (document.undoSteps().isGroupOpen() ? 8 : 0);
}

/// Where nothing is drawn, the corners are far off and the wrong way round.
VariableValue lowestCorner(const Document &document)
{
    const drawing::Box box = extents(document);
    return box.isEmpty() ? Vec3{1e20, 1e20, 1e20} : box.low;
}

VariableValue highestCorner(const Document &document)
{
    const drawing::Box box = extents(document);
    return box.isEmpty() ? Vec3{-1e20, -1e20, -1e20} : box.high;
}

VariableValue fileVersion(const Document &document)
{
    return document.drawing().header().text(u"$ACADVER", QStringLiteral("AC1009"));
}

VariableValue language(const Document &)
{
    return text(currentLanguage().locale);
}

VariableValue supportPath(const Document &document)
{
    QString all;
    for (const QString &folder : document.session().supportFolders())
        all += withSeparator(folder) + u';';
    return all;
}

/// Turns over after some three weeks, as the type that programs get it in has no more bits.
VariableValue milliseconds(const Document &)
{
    return static_cast<qint32>(QDateTime::currentMSecsSinceEpoch() & 0x7fffffff);
}

template <TrustedFolders::List list>
VariableValue namedFolders(const Document &document)
{
    return document.session().trustedFolders().named(list);
}

template <TrustedFolders::List list>
void nameFolders(Document &document, const VariableValue &value)
{
    if (!document.session().trustedFolders().setNamed(std::get<QString>(value), list))
        document.print(
            Kernel::tr("\n%1 cannot be kept.\n")
                .arg(list == TrustedFolders::List::Run ? QLatin1String("TRUSTEDPATHS") : QLatin1String("READPATHS")));
}

VariableRows programRows()
{
    return {fixed("ACADVER", text("24.0s")),
            fixed("_PKSER", text("000-00000000")),
            fixed("_VERNUM", text("24.0")),
            computed("ACADPREFIX", supportPath),
            fixed("CPROFILE", text("<<Unnamed Profile>>")),
            fixed("DIASTAT", 1),
            computed("LOCALE", language),
            fixed("MENUNAME", text("ortakit")),
            fixed("PFACEVMAX", 4),
            fixed("PLATFORM",
                  QStringLiteral("%1 (%2)").arg(QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture())),
            fixed("POPUPS", 1),
            fixed("PRODUCT", text("Ortakit")),
            fixed("PROGRAM", text("ortakit")),
            fixed("SYSCODEPAGE", text("ANSI_1252")),
            fixed("TRAYS", 0),
            settable([](Document &document,
                        const VariableValue &value) { document.session().setLispHeapLimit(std::get<qint32>(value)); },
                     0,
                     within(Session::leastLispHeap, Session::largestLispHeap,
                            computed("LISPHEAPMAX",
                                     [](const Document &document) -> VariableValue {
                                         return document.session().lispHeapLimit();
                                     }))),
            settable(nameFolders<TrustedFolders::List::Read>, text(""),
                     computed("READPATHS", namedFolders<TrustedFolders::List::Read>)),
            settable(nameFolders<TrustedFolders::List::Run>, text(""),
                     computed("TRUSTEDPATHS", namedFolders<TrustedFolders::List::Run>))};
}

VariableRows timesAndFolders()
{
    return {
        computed("CDATE",
                 [](const Document &) -> VariableValue { return drawing::calendarDate(QDateTime::currentDateTime()); }),
        computed("DATE",
                 [](const Document &) -> VariableValue { return drawing::julianDate(QDateTime::currentDateTime()); }),
        computed("CPUTICKS",
                 [](const Document &) -> VariableValue { return double(QDateTime::currentMSecsSinceEpoch()); }),
        computed("MILLISECS", milliseconds),
        readOnly(inHeader("TDCREATE", 40, 0.0)),
        readOnly(inHeader("TDINDWG", 40, 0.0)),
        readOnly(since(drawing::Version::R2000, inHeader("TDUCREATE", 40, 0.0))),
        readOnly(inHeader("TDUPDATE", 40, 0.0)),
        readOnly(inHeader("TDUSRTIMER", 40, 0.0)),
        readOnly(since(drawing::Version::R2000, inHeader("TDUUPDATE", 40, 0.0))),
        computed("LOCALROOTPREFIX", logFilePath),
        kept("LOGFILENAME", text("")),
        checked(existingFolder, settable(nullptr, text(""), computed("LOGFILEPATH", logFilePath))),
        computed("LOGINNAME", [](const Document &) -> VariableValue { return qEnvironmentVariable("USER"); }),
        computed("MYDOCUMENTSPREFIX",
                 [](const Document &) -> VariableValue {
                     return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
                 }),
        computed("ROAMABLEROOTPREFIX", logFilePath),
        computed("SAVEFILE", [](const Document &document) -> VariableValue { return document.copyFile(); }),
        ofUser("SAVEFILEPATH", text("")),
        computed("TEMPPREFIX", [](const Document &) {
            return folderValue(QString::fromStdString(files::temporaryFolder().string()));
        })};
}

VariableRows documentRows()
{
    return {
        readOnly(kept("AREA", 0.0)),
        readOnly(kept("DISTANCE", 0.0)),
        readOnly(kept("PERIMETER", 0.0)),
        readOnly(kept("LASTPROMPT", text(""))),
        kept("LASTPOINT", Vec3{}),
        computed("CMDACTIVE",
                 [](const Document &document) -> VariableValue { return document.commandNames().isEmpty() ? 0 : 1; }),
        computed("CMDNAMES", [](const Document &document) -> VariableValue { return document.commandNames(); }),
        computed("DBMOD", [](const Document &document) -> VariableValue { return document.isModified() ? 1 : 0; }),
        computed("DWGNAME", [](const Document &document) -> VariableValue { return document.title(); }),
        computed("DWGPREFIX", drawingFolder),
        computed("DWGTITLED",
                 [](const Document &document) -> VariableValue { return document.path().isEmpty() ? 0 : 1; }),
        computed("SAVENAME", [](const Document &document) -> VariableValue { return document.path(); }),
        computed("DXFVERSION", fileVersion),
        readOnly(inHeader("DWGCODEPAGE", 3, text("ANSI_1252"))),
        readOnly(inHeader("HANDSEED", 5, text("0"))),
        fixed("HANDLES", 1),
        fixed("FULLOPEN", 1),
        fixed("WRITESTAT", 1),
        fixed("DWGWRITE", 1),
        fixed("ENTEXTS", 1),
        fixed("SSFOUND", text("")),
        ofUser("SSLOCATE", 1, 0, 1),
        ofUser("SSMAUTOOPEN", 1, 0, 1),
        ofUser("SSMPOLLTIME", 60, 20, 600),
        ofUser("SSMSHEETSTATUS", 2, 0, 2),
        kept("ADASD", 0),
        ofUser("ACISOUTVER", 70, 15, 70),
        computed("EXTMAX", highestCorner),
        computed("EXTMIN", lowestCorner),
        computed("UNDOCTL", undoControl)};
}

} // namespace

VariableRows stateVariables()
{
    VariableRows all = programRows();
    for (const VariableRows &group : {timesAndFolders(), documentRows()})
        all.insert(all.end(), group.begin(), group.end());
    return all;
}

} // namespace host::kernel
