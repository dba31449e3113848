#include "host/app/playback/DrawingAudit.h"

#include "host/app/playback/PlaybackText.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// In milliseconds; large drawings take such a program a while.
constexpr int auditPatience = 120'000;

} // namespace

DrawingAudit::DrawingAudit(const QString &program) : m_program(program)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

DrawingAudit::~DrawingAudit()
{
    // Its input ends, and so does the program.
    m_process.closeWriteChannel();
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(auditPatience))
        m_process.kill();
}

bool DrawingAudit::isRunning()
{
    if (m_process.state() == QProcess::NotRunning)
        m_process.start(m_program, {u"--serve"_s});
    return m_process.waitForStarted(auditPatience);
}

QString DrawingAudit::complaints(const QString &path)
{
    if (path.contains(u'\n'))
        return tr("the reader takes no names with line feeds");
    QElapsedTimer elapsed;
    elapsed.start();
    if (isRunning()) {
        m_process.write(path.toUtf8() + '\n');
        while (!m_process.canReadLine() && !elapsed.hasExpired(auditPatience) &&
               m_process.waitForReadyRead(auditPatience)) {
        }
        if (m_process.canReadLine()) {
            const QString said = QString::fromUtf8(m_process.readLine()).trimmed();
            return said == "ok"_L1 ? QString() : said;
        }
    }
    m_process.kill();
    m_process.waitForFinished(auditPatience);
    return tr("the reader %1 does not answer").arg(m_program);
}

} // namespace host::app
