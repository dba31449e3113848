#include "host/kernel/variables/HostVariables.h"

#include "files/TemporaryFolder.h"
#include "host/drawing/editing/WipeoutFrame.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/text/DateText.h"
#include "host/drawing/text/DrawingVariables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QSysInfo>

namespace host::kernel {

namespace {

using drawing::TableKind;
using drawing::Vec2;
using drawing::Vec3;
using enum VariablePlace;
using enum VariableAccess;

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

VariableValue commandActive(const Document &document)
{
    return document.commandNames().isEmpty() ? 0 : 1;
}

VariableValue screenSize(const Document &document)
{
    const QSize pixels = document.view().pixels;
    return Vec2{double(pixels.width()), double(pixels.height())};
}

VariableValue viewCentre(const Document &document)
{
    const Vec2 centre = document.view().centre;
    const OdGePoint3d user = document.worldToUser({centre.x, centre.y, 0.0});
    return Vec3{user.x, user.y, user.z};
}

VariableValue currentColour(const Document &document)
{
    return drawing::colourText(document.drawing().header().integer(u"$CECOLOR", 256));
}

VariableValue isWorldUser(const Document &document)
{
    const Vec3 x = document.drawing().header().point(u"$UCSXDIR", {1.0, 0.0, 0.0});
    const Vec3 y = document.drawing().header().point(u"$UCSYDIR", {0.0, 1.0, 0.0});
    const Vec3 origin = document.drawing().header().point(u"$UCSORG");
    return origin == Vec3{} && x == Vec3{1.0, 0.0, 0.0} && y == Vec3{0.0, 1.0, 0.0} ? 1 : 0;
}

template <TableKind kind>
bool isInTable(const Document &document, const VariableValue &value)
{
    const QString *name = std::get_if<QString>(&value);
    return name && isValid(document.drawing().tables().find(kind, *name));
}

bool isLinetype(const Document &document, const VariableValue &value)
{
    const QString name = std::get<QString>(value).toUpper();
    return name == QStringLiteral("BYLAYER") || name == QStringLiteral("BYBLOCK") ||
           isInTable<TableKind::Linetype>(document, value);
}

bool isColour(const Document &, const VariableValue &value)
{
    const QString text = std::get<QString>(value).toUpper();
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return text == QStringLiteral("BYLAYER") || text == QStringLiteral("BYBLOCK") ||
           (isNumber && number >= 0 && number <= 256);
}

bool isLayoutName(const Document &document, const VariableValue &value)
{
    return !layoutName(document.drawing(), std::get<QString>(value)).isEmpty();
}

VariableValue text(const char *value)
{
    return QString::fromLatin1(value);
}

HostVariable host(const char *name, VariableValue initial, double low = 0.0, double high = 0.0)
{
    return {name, Host, ReadWrite, std::move(initial), low, high};
}

HostVariable header(const char *name, int code, VariableValue initial, double low = 0.0, double high = 0.0)
{
    return {name, Header, ReadWrite, std::move(initial), low, high, code};
}

HostVariable named(const char *name, int code, const char *initial,
                   bool (*accepts)(const Document &, const VariableValue &))
{
    return {name, Header, ReadWrite, text(initial), 0.0, 0.0, code, nullptr, accepts};
}

HostVariable fixed(const char *name, VariableValue value)
{
    return {name, Host, ReadOnly, std::move(value)};
}

HostVariable computed(const char *name, VariableValue (*compute)(const Document &))
{
    return {name, Computed, ReadOnly, 0, 0.0, 0.0, 0, compute};
}

/// How the user likes to work. Kept in memory.
std::vector<HostVariable> preferences()
{
    return {host("APERTURE", 10, 1, 50),
            host("ATTDIA", 0, 0, 1),
            host("ATTREQ", 1, 0, 1),
            host("AUTOSNAP", 63, 0, 63),
            host("BLIPMODE", 0, 0, 1),
            host("CIRCLERAD", 0.0),
            host("COPYMODE", 0, 0, 1),
            host("CMDDIA", 1, 0, 1),
            host("CMDECHO", 1, 0, 1),
            host("DRAGMODE", 2, 0, 2),
            host("EDGEMODE", 0, 0, 1),
            host("ERRNO", 0, 0, 999),
            host("EXPERT", 0, 0, 5),
            host("FILEDIA", 1, 0, 1),
            host("GRIPS", 1, 0, 2),
            host("HIGHLIGHT", 1, 0, 1),
            host("HPANG", 0.0),
            host("HPNAME", text("ANSI31")),
            host("HPSCALE", 1.0),
            host("HPSPACE", 1.0),
            host("INSNAME", text("")),
            host("LISPINIT", 1, 0, 1),
            host("LWDEFAULT", 25, 0, 211),
            host("MENUECHO", 0, 0, 15),
            host("MODEMACRO", text("")),
            host("NOMUTT", 0, 0, 1),
            host("OFFSETDIST", -1.0),
            host("OSMODE", 4133, 0, 32767),
            host("PEDITACCEPT", 0, 0, 1),
            host("PICKADD", 1, 0, 2),
            host("PICKAUTO", 1, 0, 1),
            host("PICKBOX", 3, 0, 50),
            host("PICKDRAG", 0, 0, 2),
            host("PICKFIRST", 1, 0, 1),
            host("PICKSTYLE", 1, 0, 3),
            host("POLARANG", 1.5707963267948966),
            host("PROJMODE", 1, 0, 2),
            host("SAVETIME", 10, 0, 600),
            host("SNAPANG", 0.0),
            host("TRIMMODE", 1, 0, 1),
            host("USERS1", text("")),
            host("USERS2", text("")),
            host("USERS3", text("")),
            host("USERS4", text("")),
            host("USERS5", text(""))};
}

/// What the drawing's header has, with what counts where it has it not.
std::vector<HostVariable> headerVariables()
{
    using enum TableKind;
    return {named("CLAYER", 8, "0", isInTable<Layer>),
            named("CELTYPE", 6, "ByLayer", isLinetype),
            named("TEXTSTYLE", 7, "Standard", isInTable<Style>),
            {"DIMSTYLE", Header, ReadOnly, text("Standard"), 0.0, 0.0, 2},
            {"ACADVER", Header, ReadOnly, text("AC1009"), 0.0, 0.0, 1},
            {"DWGCODEPAGE", Header, ReadOnly, text("ANSI_1252"), 0.0, 0.0, 3},
            {"HANDSEED", Header, ReadOnly, text("0"), 0.0, 0.0, 5},
            {"UCSNAME", Header, ReadOnly, text(""), 0.0, 0.0, 2},
            {"UCSORG", Header, ReadOnly, Vec3{}, 0.0, 0.0, 10},
            {"UCSXDIR", Header, ReadOnly, Vec3{1.0, 0.0, 0.0}, 0.0, 0.0, 10},
            {"UCSYDIR", Header, ReadOnly, Vec3{0.0, 1.0, 0.0}, 0.0, 0.0, 10},
            header("ANGBASE", 50, 0.0),
            header("ANGDIR", 70, 0, 0, 1),
            header("ATTMODE", 70, 1, 0, 2),
            header("AUNITS", 70, 0, 0, 4),
            header("AUPREC", 70, 0, 0, 8),
            header("CELTSCALE", 40, 1.0, 1e-99, 1e99),
            header("CELWEIGHT", 370, -1, -3, 211),
            header("DIMASZ", 40, 0.18, 0, 1e99),
            header("DIMDEC", 70, 4, 0, 8),
            header("DIMGAP", 40, 0.09),
            header("DIMLFAC", 40, 1.0),
            header("DIMLUNIT", 70, 2, 1, 6),
            header("DIMSCALE", 40, 1.0, 0, 1e99),
            header("DIMTXT", 40, 0.18, 0, 1e99),
            header("DIMZIN", 70, 0, 0, 15),
            header("ELEVATION", 40, 0.0),
            header("FILLMODE", 70, 1, 0, 1),
            header("INSBASE", 10, Vec3{}),
            header("INSUNITS", 70, 0, 0, 24),
            header("LIMCHECK", 70, 0, 0, 1),
            header("LIMMAX", 10, Vec2{12.0, 9.0}),
            header("LIMMIN", 10, Vec2{}),
            header("LTSCALE", 40, 1.0, 1e-99, 1e99),
            header("LUNITS", 70, 2, 1, 5),
            header("LUPREC", 70, 4, 0, 8),
            header("LWDISPLAY", 290, 0, 0, 1),
            header("MEASUREMENT", 70, 0, 0, 1),
            header("MIRRTEXT", 70, 0, 0, 1),
            header("ORTHOMODE", 70, 0, 0, 1),
            header("PDMODE", 70, 0, 0, 127),
            header("PDSIZE", 40, 0.0),
            header("PLINEWID", 40, 0.0, 0, 1e99),
            header("PROJECTNAME", 1, text("")),
            header("PSLTSCALE", 70, 1, 0, 1),
            header("TEXTSIZE", 40, 0.2, 1e-99, 1e99),
            header("THICKNESS", 40, 0.0),
            header("TILEMODE", 70, 1, 0, 1),
            header("UNITMODE", 70, 0, 0, 1),
            header("USERI1", 70, 0, -32768, 32767),
            header("USERI2", 70, 0, -32768, 32767),
            header("USERI3", 70, 0, -32768, 32767),
            header("USERI4", 70, 0, -32768, 32767),
            header("USERI5", 70, 0, -32768, 32767),
            header("USERR1", 40, 0.0),
            header("USERR2", 40, 0.0),
            header("USERR3", 40, 0.0),
            header("USERR4", 40, 0.0),
            header("USERR5", 40, 0.0),
            header("XCLIPFRAME", 290, 2, 0, 2)};
}

/// The state of the program and of the document.
std::vector<HostVariable> stateVariables()
{
    return {
        fixed("LASTPROMPT", text("")),
        fixed("LOCALE", text("enu")),
        fixed("PLATFORM",
              QStringLiteral("%1 (%2)").arg(QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture())),
        fixed("PRODUCT", text("Ortakit")),
        fixed("PROGRAM", text("ortakit")),
        fixed("TARGET", Vec3{}),
        fixed("VIEWDIR", Vec3{0.0, 0.0, 1.0}),
        fixed("VIEWTWIST", 0.0),
        fixed("WRITESTAT", 1),
        host("LASTPOINT", Vec3{}),
        {"CECOLOR", Computed, ReadWrite, text(""), 0.0, 0.0, 62, currentColour, isColour},
        {"CTAB", Computed, ReadWrite, text(""), 0.0, 0.0, 0,
         [](const Document &document) -> VariableValue { return currentLayout(document.drawing()); }, isLayoutName},
        {"LOGFILEPATH", Computed, ReadWrite, text(""), 0.0, 0.0, 0, logFilePath,
         [](const Document &, const VariableValue &value) { return QFileInfo(std::get<QString>(value)).isDir(); }},
        {"LISPHEAPMAX", Computed, ReadWrite, 0, Session::leastLispHeap, Session::largestLispHeap, 0,
         [](const Document &document) -> VariableValue { return document.session().lispHeapLimit(); }},
        {"WIPEOUTFRAME", Computed, ReadWrite, 1, 0, 2, 0,
         [](const Document &document) -> VariableValue { return drawing::wipeoutFrame(document.drawing()); }},
        computed("CDATE",
                 [](const Document &) -> VariableValue { return drawing::calendarDate(QDateTime::currentDateTime()); }),
        computed("CMDACTIVE", commandActive),
        computed("CMDNAMES", [](const Document &document) -> VariableValue { return document.commandNames(); }),
        computed("DATE",
                 [](const Document &) -> VariableValue { return drawing::julianDate(QDateTime::currentDateTime()); }),
        computed("CVPORT",
                 [](const Document &document) -> VariableValue {
                     // 1 is the sheet itself; there is no way into a viewport of it.
                     return currentSpace(document.drawing()) == drawing::Space::Paper ? 1 : 2;
                 }),
        computed("DBMOD", [](const Document &document) -> VariableValue { return document.isModified() ? 1 : 0; }),
        computed("DWGNAME", [](const Document &document) -> VariableValue { return document.title(); }),
        computed("DWGPREFIX", drawingFolder),
        computed("DWGTITLED",
                 [](const Document &document) -> VariableValue { return document.path().isEmpty() ? 0 : 1; }),
        computed("EXTMAX",
                 [](const Document &document) -> VariableValue {
                     const drawing::Box box = extents(document);
                     return box.isEmpty() ? Vec3{-1e20, -1e20, -1e20} : box.high;
                 }),
        computed("EXTMIN",
                 [](const Document &document) -> VariableValue {
                     const drawing::Box box = extents(document);
                     return box.isEmpty() ? Vec3{1e20, 1e20, 1e20} : box.low;
                 }),
        computed("LOCALROOTPREFIX", logFilePath),
        computed("LOGINNAME", [](const Document &) -> VariableValue { return qEnvironmentVariable("USER"); }),
        computed("MILLISECS",
                 [](const Document &) -> VariableValue {
                     return static_cast<qint32>(QDateTime::currentMSecsSinceEpoch() & 0x7fffffff);
                 }),
        computed("MYDOCUMENTSPREFIX",
                 [](const Document &) -> VariableValue {
                     return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
                 }),
        computed("ROAMABLEROOTPREFIX", logFilePath),
        computed("SAVENAME", [](const Document &document) -> VariableValue { return document.path(); }),
        computed("SCREENSIZE", screenSize),
        computed(
            "TEMPPREFIX",
            [](const Document &) { return folderValue(QString::fromStdString(files::temporaryFolder().string())); }),
        {"READPATHS", Computed, ReadWrite, text(""), 0.0, 0.0, 0,
         [](const Document &document) -> VariableValue {
             return document.session().trustedFolders().named(TrustedFolders::List::Read);
         }},
        {"TRUSTEDPATHS", Computed, ReadWrite, text(""), 0.0, 0.0, 0,
         [](const Document &document) -> VariableValue { return document.session().trustedFolders().named(); }},
        computed("UNDOCTL", undoControl),
        computed("VIEWCTR", viewCentre),
        computed("VIEWSIZE", [](const Document &document) -> VariableValue { return document.view().height; }),
        computed("WORLDUCS", isWorldUser),
    };
}

} // namespace

const std::vector<HostVariable> &hostVariables()
{
    static const std::vector<HostVariable> rows = [] {
        std::vector<HostVariable> all = preferences();
        for (const auto &group : {headerVariables(), stateVariables()})
            all.insert(all.end(), group.begin(), group.end());
        return all;
    }();
    return rows;
}

const HostVariable *findHostVariable(QStringView upperName)
{
    static const QHash<QString, const HostVariable *> byName = [] {
        QHash<QString, const HostVariable *> map;
        for (const HostVariable &row : hostVariables())
            map.insert(QString::fromLatin1(row.name), &row);
        return map;
    }();
    return byName.value(upperName.toString());
}

} // namespace host::kernel
