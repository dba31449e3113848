#include "host/app/batch/inspecting/NamedFileFacts.h"

#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/PageSetup.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/references/PlotStyleFile.h"
#include "host/view/build/TextLook.h"

#include <QJsonObject>
#include <QMap>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using drawing::Drawing;
using drawing::RecordId;

/// What objects are that name a file in group 1.
constexpr std::pair<const char *, const char *> definitionTypes[] = {
    {"IMAGEDEF", "picture"},
    {"PDFDEFINITION", "underlay"},
    {"DWFDEFINITION", "underlay"},
    {"DGNDEFINITION", "underlay"},
};

class References
{
public:
    explicit References(drawing::FileFinder find) : m_find(std::move(find)) {}

    void add(const QString &kind, const QString &name, const QStringList &names)
    {
        if (name.isEmpty() || m_known.contains({kind, name}))
            return;
        QString path;
        for (const QString &candidate : names)
            if (path.isEmpty())
                path = m_find(candidate);
        QJsonObject object{{u"kind"_s, kind}, {u"name"_s, name}, {u"found"_s, !path.isEmpty()}};
        if (!path.isEmpty())
            object.insert(u"path"_s, path);
        m_known.insert({kind, name}, object);
    }
    QJsonArray all() const
    {
        QJsonArray array;
        for (const QJsonObject &object : m_known)
            array.append(object);
        return array;
    }

private:
    drawing::FileFinder m_find;
    QMap<std::pair<QString, QString>, QJsonObject> m_known;
};

/// As the drawing's style has it, with the styles that ask for it.
struct AskedFont
{
    view::FontRequest request;
    QStringList styles;
};

} // namespace

QJsonArray referenceFacts(const Drawing &drawing, const drawing::ReadableFiles &readable)
{
    References references(drawing::namedFiles(drawing, readable));
    for (const RecordId id : drawing.blocks().all())
        if (const drawing::Block block = drawing.blocks().read(id); block.isExternal())
            references.add(u"drawing"_s, block.externalPath, drawing::externalNames(block.externalPath));
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
        if (drawing.kind(id) == drawing::RecordKind::Object)
            for (const auto &[type, kind] : definitionTypes)
                if (drawing.isType(id, type)) {
                    const QString name = drawing.tags(id).text(1);
                    references.add(QString::fromLatin1(kind), name, {name});
                }
    for (const drawing::LayoutTab &tab : drawing::layoutTabs(drawing)) {
        const QString sheet = drawing::readPageSetup(drawing, tab).styleSheet;
        if (!sheet.isEmpty() && !drawing::builtInPlotStyles(sheet))
            references.add(u"plot styles"_s, sheet, {sheet});
    }
    return references.all();
}

QJsonArray fontFacts(const Drawing &drawing, const drawing::ReadableFiles &readable)
{
    QMap<QString, AskedFont> asked;
    for (const RecordId id : drawing.tables().entries(drawing::TableKind::Style)) {
        const drawing::TextStyle style = drawing::readTextStyle(drawing, id);
        const view::FontRequest request = view::fontRequest(drawing, style);
        const QString name = request.bigFont.isEmpty() ? request.name : request.name + u", "_s + request.bigFont;
        AskedFont &font = asked[name];
        font.request = request;
        font.styles.append(style.isShapeFile ? QString() : style.name);
    }
    drawing::ShapeFiles files(drawing::namedFiles(drawing, readable));
    view::Fonts fonts;
    fonts.readFilesBy(files, drawing.header().text(u"$DWGCODEPAGE").toLatin1());
    QJsonArray array;
    for (const auto &[name, font] : asked.asKeyValueRange()) {
        const QString standIn = fonts.standIn(fonts.find(font.request));
        QJsonObject object{
            {u"name"_s, name}, {u"styles"_s, QJsonArray::fromStringList(font.styles)}, {u"found"_s, standIn.isEmpty()}};
        if (!standIn.isEmpty())
            object.insert(u"replacedBy"_s, standIn);
        array.append(object);
    }
    return array;
}

} // namespace host::app
