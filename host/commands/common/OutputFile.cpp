#include "host/commands/common/OutputFile.h"

#include "host/commands/common/InputFile.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::kernel {

QString drawingPath(const QString &typed)
{
    const QString path = QFileInfo(QDir::current(), fileName(typed)).absoluteFilePath();
    return QFileInfo(path).suffix().isEmpty() ? path + u".dxf"_s : path;
}

Dialogue<bool> mayReplaceFile(CommandContext &context, QString path)
{
    Document &document = context.document();
    if (const auto obstacle = obstacleToWriting(path, &document.session())) {
        document.session().tellNotWritten(obstacle->text);
        context.fail(obstacle->text);
        co_return false;
    }
    if (!QFileInfo::exists(path) || document.variables().integer(u"EXPERT") >= 2)
        co_return true;
    const QString question = Commands::tr("%1 already exists. Replace it? [Yes/No] <No>: ").arg(path);
    const PromptReply replace = co_await context.keyword(question, u"Yes No"_s, u"No"_s);
    co_return replace.text == u"Yes"_s;
}

} // namespace host::kernel
