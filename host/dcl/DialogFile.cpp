#include "host/dcl/DialogFile.h"

#include <QFile>

#include <algorithm>
#include <utility>

/// The linker leaves out what nobody names, and the file of definitions is in here.
static void takeInBaseDefinitions()
{
    Q_INIT_RESOURCE(dcl);
}

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

/// Prototypes and children within each other, all files together.
constexpr int deepestTile = 2 * mostNestedTiles;

/// What a definition comes to.
struct TileSize
{
    int tiles = 1; ///< at most a little above DialogFile::mostTiles
    int depth = 1;
};

} // namespace

/// Walks all definitions once: what they use must be there, none may contain itself, and none may be too large.
class DefinitionCheck
{
public:
    DefinitionCheck(const DialogFile &file, QList<Problem> &problems) : m_file(file), m_problems(problems) {}

    void checkAll()
    {
        m_sizes.resize(m_file.m_definitions.size());
        m_states.resize(m_file.m_definitions.size());
        for (std::size_t i = 0; i < m_states.size(); ++i)
            sizeOf(i, 0);
    }

private:
    enum class State : char
    {
        New,
        UnderWay,
        Known
    };

    void fail(const TileSource &source, const QString &text)
    {
        m_problems.append({Problem::Weight::Error, source.file, source.line, text});
    }
    TileSize sizeOf(std::size_t index, int depth)
    {
        if (m_states[index] == State::Known)
            return m_sizes[index];
        const TileSource &source = m_file.m_definitions[index];
        m_states[index] = State::UnderWay;
        const TileSize size = sizeOf(source, qsizetype(index), depth);
        m_states[index] = State::Known;
        // What was told of one is not told of all that use it.
        m_sizes[index] = m_hasFailed ? TileSize() : size;
        if (!m_hasFailed && size.tiles > DialogFile::mostTiles)
            fail(source, u"\"%1\" consists of more than %2 tiles"_s.arg(source.name).arg(DialogFile::mostTiles));
        if (size.tiles > DialogFile::mostTiles)
            m_sizes[index] = {};
        if (depth == 0)
            m_hasFailed = false;
        return m_sizes[index];
    }
    TileSize sizeOf(const TileSource &source, qsizetype user, int depth)
    {
        if (depth > deepestTile)
            return tooDeep(source);
        TileSize size = prototypeSize(source, user, depth + 1);
        ++size.depth;
        for (const TileSource &child : source.children) {
            const TileSize inner = sizeOf(child, user, depth + 1);
            size.tiles = std::min(size.tiles + inner.tiles, DialogFile::mostTiles + 1);
            size.depth = std::max(size.depth, inner.depth + 1);
        }
        return size.depth > deepestTile ? tooDeep(source) : size;
    }
    TileSize tooDeep(const TileSource &source)
    {
        if (!std::exchange(m_hasFailed, true))
            fail(source, u"tiles are nested or derived from each other deeper than %1"_s.arg(deepestTile));
        return {};
    }
    TileSize prototypeSize(const TileSource &source, qsizetype user, int depth)
    {
        const TileSource *found = m_file.meant(source.prototype, user);
        if (!found) {
            // Of those that every file may use it is known that they are small.
            if (!m_file.isKnownOutside(source.prototype))
                fail(source, u"there is no tile \"%1\" to derive from"_s.arg(source.prototype));
            return {};
        }
        const auto index = std::size_t(found - m_file.m_definitions.data());
        if (m_states[index] != State::UnderWay)
            return sizeOf(index, depth);
        fail(source, u"\"%1\" is derived from itself, or contains itself"_s.arg(source.prototype));
        m_hasFailed = true;
        return {};
    }

    const DialogFile &m_file;
    QList<Problem> &m_problems;
    std::vector<TileSize> m_sizes;
    std::vector<State> m_states;
    bool m_hasFailed = false; ///< while the definitions of one walk are on their way back
};

const DialogFile &DialogFile::base()
{
    static const DialogFile file = [] {
        takeInBaseDefinitions();
        DialogFile result;
        QFile source(u":/dcl/base.dcl"_s);
        if (source.open(QIODevice::ReadOnly))
            for (Syntax::Item &item : readSyntax(QString::fromUtf8(source.readAll()), u"base.dcl"_s).items)
                result.add(std::move(item.definition));
        return result;
    }();
    return file;
}

DialogFile DialogFile::read(const QString &path, const SourceAccess &access)
{
    DialogFile file;
    file.readInto(path, access, 0);
    if (file.isUsable())
        file.check();
    return file;
}

void DialogFile::readInto(const QString &path, const SourceAccess &access, int depth)
{
    m_files.append(path);
    const SourceText source = access.read(path);
    if (!source) {
        m_problems.append({Problem::Weight::Error, path, 0, source.reason});
        return;
    }
    Syntax syntax = readSyntax(source.text, path);
    m_problems += syntax.problems;
    if (depth == 0)
        m_auditLevel = syntax.auditLevel;
    for (Syntax::Item &item : syntax.items) {
        if (item.included.isEmpty())
            add(std::move(item.definition));
        else
            include(item, path, access, depth + 1);
    }
}

void DialogFile::include(const Syntax::Item &item, const QString &from, const SourceAccess &access, int depth)
{
    const auto fail = [&](const QString &text) { m_problems.append({Problem::Weight::Error, from, item.line, text}); };
    const QString path = access.find(item.included, from);
    // What the base definitions are called is known already.
    if (path.isEmpty() && item.included.compare("base.dcl"_L1, Qt::CaseInsensitive) == 0)
        return;
    if (path.isEmpty())
        return fail(u"the file \"%1\" to include was not found"_s.arg(item.included));
    if (path == from)
        return fail(u"the file includes itself"_s);
    if (m_files.contains(path)) {
        m_problems.append(
            {Problem::Weight::Warning, from, item.line, u"\"%1\" was included before"_s.arg(item.included)});
        return;
    }
    if (depth > mostIncludes || m_files.size() > mostIncludes)
        return fail(u"more than %1 files are included"_s.arg(mostIncludes));
    readInto(path, access, depth);
}

void DialogFile::add(TileSource definition)
{
    m_byName[definition.name].append(qsizetype(m_definitions.size()));
    m_definitions.push_back(std::move(definition));
}

void DialogFile::check()
{
    DefinitionCheck(*this, m_problems).checkAll();
}

bool DialogFile::isKnownOutside(const QString &name) const
{
    return kindNamed(name) || (this != &base() && base().m_byName.contains(name));
}

const TileSource *DialogFile::meant(const QString &name, qsizetype user) const
{
    const auto found = m_byName.constFind(name);
    if (found == m_byName.constEnd())
        return nullptr;
    const QList<qsizetype> &places = *found;
    const auto behind = std::lower_bound(places.begin(), places.end(), user);
    if (behind != places.begin())
        return &m_definitions[std::size_t(*std::prev(behind))];
    if (isKnownOutside(name))
        return nullptr;
    // One that means itself and no other is told as what it is.
    const bool hasOther = *behind == user && std::next(behind) != places.end();
    return &m_definitions[std::size_t(hasOther ? *std::next(behind) : *behind)];
}

Tile DialogFile::prototype(const QString &name, qsizetype user) const
{
    if (const TileSource *found = meant(name, user))
        return expanded(*found, found - m_definitions.data());
    if (this != &base() && base().m_byName.contains(name))
        return base().prototype(name, qsizetype(base().m_definitions.size()));
    Tile tile;
    if (const TileKind *kind = kindNamed(name))
        tile.kind = *kind;
    return tile;
}

Tile DialogFile::expanded(const TileSource &source, qsizetype user) const
{
    Tile tile = prototype(source.prototype, user);
    for (const TileSource::Attribute &attribute : source.attributes)
        tile.attributes.insert(attribute.name, attribute.value);
    for (const TileSource &child : source.children)
        tile.children.push_back(expanded(child, user));
    return tile;
}

TileKind DialogFile::kindOf(const TileSource &source) const
{
    const TileSource *tile = &source;
    while (const TileSource *next = meant(tile->prototype, tile - m_definitions.data()))
        tile = next;
    return prototype(tile->prototype, 0).kind;
}

QStringList DialogFile::dialogs() const
{
    QStringList names;
    QSet<QString> known;
    for (const TileSource &definition : m_definitions) {
        if (!isUsable() || known.contains(definition.name) || kindOf(definition) != TileKind::Dialog)
            continue;
        known.insert(definition.name);
        names.append(definition.name);
    }
    return names;
}

std::optional<Tile> DialogFile::dialog(const QString &name) const
{
    const auto found = isUsable() ? m_byName.constFind(name) : m_byName.constEnd();
    if (found == m_byName.constEnd())
        return std::nullopt;
    const qsizetype last = found->constLast();
    const TileSource &source = m_definitions[std::size_t(last)];
    if (kindOf(source) != TileKind::Dialog)
        return std::nullopt;
    return expanded(source, last);
}

} // namespace host::dcl
