#include "state/widgets/LongWork.h"

#include <QCoreApplication>
#include <QProgressDialog>

namespace {

constexpr qint64 patience = 500; // milliseconds until the user is told
constexpr qint64 betweenLooks = 50;
/// A clock is asked once for so many small steps.
constexpr qsizetype smallStepsBetweenLooks = 32;
/// The bar counts in these, since steps may be more than it can count.
constexpr int barLength = 1000;

} // namespace

LongWork::LongWork(QWidget *parent, const QString &text, qsizetype steps, WorkSteps size)
    : m_parent(parent), m_text(text), m_steps(steps == manyUnknown ? 0 : std::max<qsizetype>(steps, 1)),
      m_stepsBetweenLooks(size == WorkSteps::Small ? smallStepsBetweenLooks : 1), m_nextLook(patience)
{
    m_sinceStart.start();
}

LongWork::~LongWork() = default;

bool LongWork::goesOn()
{
    const qsizetype step = m_step++;
    if (step % m_stepsBetweenLooks != 0 || m_sinceStart.elapsed() < m_nextLook)
        return !m_progress || !m_progress->wasCanceled();
    if (!m_progress)
        show();
    if (m_steps > 0)
        m_progress->setValue(int(barLength * std::min(step, m_steps) / m_steps));
    // The bar itself handles events only when it moves; the button is to work all the time.
    QCoreApplication::processEvents();
    m_nextLook = m_sinceStart.elapsed() + betweenLooks;
    return !m_progress->wasCanceled();
}

void LongWork::show()
{
    const QString cancel = QCoreApplication::translate("LispExtension", "Cancel");
    m_progress = std::make_unique<QProgressDialog>(m_text, cancel, 0, m_steps > 0 ? barLength : 0, m_parent);
    m_progress->setObjectName(QStringLiteral("progressDialog"));
    m_progress->setWindowModality(Qt::WindowModal);
    m_progress->setAutoReset(false);
    m_progress->setAutoClose(false);
    m_progress->setMinimumDuration(0);
    m_progress->show();
}
