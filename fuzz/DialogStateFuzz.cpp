// Any bytes as a state file, given to a dialog with a widget of every class: what is looked up is what a search through
// the lines finds, and what the dialog writes it takes back as the same.

#include "fuzz/HostSession.h"
#include "fuzz/Require.h"
#include "state/exchange/DialogState.h"
#include "state/exchange/StateFile.h"
#include "tests/state/Gallery.h"

#include <QFile>

namespace {

QString pathOf(const char *name)
{
    static const QTemporaryDir folder;
    return folder.filePath(QLatin1String(name));
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

QByteArray read(const QString &path)
{
    QFile file(path);
    require(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

QString searched(const QStringList &lines, const QString &key)
{
    for (const QString &line : lines) {
        if (line.contains(key + u'=', Qt::CaseInsensitive))
            return line.section(u'=', 1, 1);
    }
    return {};
}

void checkLookups(const DialogState &state)
{
    QStringList keys{QStringLiteral("sp_length"), QStringLiteral("e")};
    for (const QString &line : state.lines().mid(0, 20))
        keys.append(line.section(u'=', 0, 0));
    for (const QString &key : keys)
        require(state.lookup(key) == (key.isEmpty() ? QString() : searched(state.lines(), key)));
}

/// What a dialog writes after it took the file.
QByteArray taken(QDialog &dialog, const QString &from)
{
    const QByteArray given = read(from);
    DialogState state(&dialog);
    state.load(from);
    checkLookups(state);
    state.apply();
    state.save();
    const QByteArray written = read(from);
    write(from, given);
    return written;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    hostSession();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static Gallery dialog;
    write(pathOf("any"), QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    write(pathOf("first"), taken(dialog, pathOf("any")));
    // A value with "=" in it comes back cut, so what was written settles with the second time.
    const QByteArray second = taken(dialog, pathOf("first"));
    write(pathOf("second"), second);
    require(taken(dialog, pathOf("second")) == second);
    return 0;
}
