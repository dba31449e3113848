// Any names and values as favourites: each comes back as it was kept, beside all others, until it is taken away.

#include "fuzz/HostSession.h"
#include "fuzz/Require.h"
#include "state/exchange/FavouriteStore.h"

#include <algorithm>

using ortakit::FavouriteStore;

namespace {

/// The name of a widget, made of any text.
QString keyFrom(const QString &text)
{
    QString key;
    for (const QChar letter : text.toLower())
        key += letter.isLetterOrNumber() ? letter : u'_';
    return key.isEmpty() ? QStringLiteral("_") : key;
}

QList<FavouriteStore::Entry> entriesOf(const QStringList &lines)
{
    QMap<QString, QString> entries;
    for (const QString &line : lines)
        entries.insert(keyFrom(line.section(u'=', 0, 0)), line.section(u'=', 1));
    QList<FavouriteStore::Entry> list;
    for (const auto &[key, value] : entries.asKeyValueRange())
        list.append({key, value});
    return list;
}

QList<FavouriteStore::Entry> loaded(const QString &name)
{
    QList<FavouriteStore::Entry> entries = FavouriteStore(QStringLiteral("Tool")).load(name);
    std::ranges::sort(entries);
    return entries;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    hostSession();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const QStringList lines = text.split(u'\n');
    const QString name = lines.value(0);
    const QString other = name + u'~';
    const QList<FavouriteStore::Entry> entries = entriesOf(lines.mid(1));
    if (name.isEmpty() || entries.isEmpty())
        return 0;
    FavouriteStore store(QStringLiteral("Tool"));
    store.save(other, {{QStringLiteral("tx_edit"), QStringLiteral("kept")}});
    store.save(name, entries);
    require(loaded(name) == entries);
    require(store.names().size() == 2);
    store.save(name, entries.mid(0, 1));
    require(loaded(name) == entries.mid(0, 1));
    store.remove(name);
    require(loaded(name).isEmpty() && store.names().size() == 1);
    require(loaded(other) == QList<FavouriteStore::Entry>{{QStringLiteral("tx_edit"), QStringLiteral("kept")}});
    store.remove(other);
    require(store.names().isEmpty());
    return 0;
}
