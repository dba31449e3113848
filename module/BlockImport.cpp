#include "module/BlockImport.h"

#include "formats/Translated.h"
#include "module/CommandDialog.h"
#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvLispEngine.h"
#include "platform/kernel/CKvUtils.h"

#include <QCoreApplication>
#include <QDir>

namespace ortakit {

namespace {

using namespace Qt::StringLiterals;

/// What the user calls the entries of a symbol table.
QString kindOf(const QString &table)
{
    static constexpr std::pair<QLatin1StringView, const char *> kinds[] = {
        {"BLOCK"_L1, QT_TRANSLATE_NOOP("LispExtension", "block %1")},
        {"LAYER"_L1, QT_TRANSLATE_NOOP("LispExtension", "layer %1")},
        {"LTYPE"_L1, QT_TRANSLATE_NOOP("LispExtension", "linetype %1")},
        {"STYLE"_L1, QT_TRANSLATE_NOOP("LispExtension", "text style %1")},
        {"DIMSTYLE"_L1, QT_TRANSLATE_NOOP("LispExtension", "dimension style %1")},
    };
    for (const auto &[name, text] : kinds) {
        if (table == name)
            return translated(text);
    }
    return u"%1"_s;
}

QString keptText(const QList<CKvBlockCopy::Kept> &kept)
{
    QStringList names;
    for (const CKvBlockCopy::Kept &definition : kept)
        names.append(kindOf(definition.table).arg(definition.name));
    return translated("The drawing has its own, which stays as it is: %1.").arg(names.join(", "_L1));
}

/// What there is to say of a copy, each sentence on its own line.
QStringList sentencesOf(const CKvBlockCopy &copy, const QString &block, const QString &path)
{
    if (!copy.isDone)
        return {translated("There is no block \"%1\" in %2.").arg(block, QDir::toNativeSeparators(path))};
    QStringList sentences;
    if (!copy.kept.isEmpty())
        sentences.append(keptText(copy.kept));
    if (copy.leftOut > 0)
        sentences.append(
            translated("Entities that this drawing cannot hold and that were left out: %1.").arg(copy.leftOut));
    return sentences;
}

} // namespace

void importBlock()
{
    const std::optional<OdString> path = askForText(QT_TRANSLATE_NOOP("LispExtension", "Specify drawing file"));
    const std::optional<OdString> block =
        path ? askForText(QT_TRANSLATE_NOOP("LispExtension", "Specify block")) : std::nullopt;
    CKvDocument *document = ACTIVE_DOCUMENT();
    if (!block || !document || !document->lispEngine())
        return;
    OdString error;
    const OdDbDatabasePtr source = CKvUtils::readDrawing(*path, error);
    const QStringList sentences =
        source ? sentencesOf(CKvUtils::copyBlock(source.get(), *block, document->database()), *block, *path)
               : QStringList{error};
    for (const QString &sentence : sentences)
        document->lispEngine()->print(u'\n' + sentence);
}

} // namespace ortakit
