#include "state/ToolDialog.h"

#include "platform/kernel/CKvMessageBox.h"
#include "state/host/HelpTopicMap.h"
#include "state/widgets/ButtonIcons.h"
#include "state/widgets/PlainTexts.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QKeySequence>
#include <QMessageBox>
#include <QShortcut>
#include <QShowEvent>

ToolDialog::ToolDialog(QWidget *parent, const QString &helpTopic)
    : CKvDialog(parent), m_state(this), m_helpTopic(helpTopic)
{
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, &ToolDialog::showHelp);
}

ToolDialog::~ToolDialog() = default;

void ToolDialog::showHelp()
{
    HelpTopicMap::showHelp(m_helpTopic);
}

void ToolDialog::setUpButtons(QAbstractButton *helpButton)
{
    m_helpButton = helpButton ? helpButton : ortakit::findButton(*this, QLatin1String("buttonHelp"));
    if (m_helpButton)
        connect(m_helpButton, &QAbstractButton::clicked, this, &ToolDialog::showHelp, Qt::UniqueConnection);
    if (const auto *cancel = ortakit::findButton(*this, QLatin1String("ButtonCancel")))
        connect(cancel, &QAbstractButton::clicked, this, &ToolDialog::reject, Qt::UniqueConnection);
    for (const auto *box : findChildren<QDialogButtonBox *>())
        connect(box, &QDialogButtonBox::helpRequested, this, &ToolDialog::showHelp, Qt::UniqueConnection);
}

void ToolDialog::acceptWith(const QString &action)
{
    m_state.setAction(action);
    accept();
}

void ToolDialog::inform(const QString &text, const QString &title)
{
    CKvMessageBox::information(this, title, text);
}

void ToolDialog::warn(const QString &text, const QString &title, const QString &explanation)
{
    CKvMessageBox::warning(this, title, text, QMessageBox::Ok, explanation);
}

void ToolDialog::reportError(const QString &text, const QString &title)
{
    CKvMessageBox::critical(this, title, text);
}

bool ToolDialog::ask(const QString &text, const QString &title)
{
    return CKvMessageBox::question(this, title, text) == QMessageBox::Yes;
}

void ToolDialog::applyState()
{
    if (!m_state.isLoaded()) {
        beforeFirstShow();
        m_state.apply();
        return;
    }
    switch (reentry()) {
    case Reentry::LastFile:
        return m_state.applyLastFile();
    case Reentry::WholeState:
        return m_state.apply();
    case Reentry::Nothing:
        return;
    }
}

void ToolDialog::decorate()
{
    ortakit::decorateButtons(*this);
    ortakit::decorateButton(m_helpButton, QStringLiteral("help"));
}

void ToolDialog::showEvent(QShowEvent *event)
{
    CKvDialog::showEvent(event);
    if (event->spontaneous())
        return;
    if (!m_fields)
        m_fields = std::make_unique<TypedFields>(*this);
    decorate();
    ortakit::showPlainTexts(*this);
    beforeShow();
    applyState();
    afterShow();
}

void ToolDialog::changeEvent(QEvent *event)
{
    CKvDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        decorate();
}
