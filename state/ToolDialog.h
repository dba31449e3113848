#pragma once

#include "platform/kernel/CKvDialog.h"
#include "state/exchange/DialogState.h"
#include "state/widgets/TypedFields.h"

#include <memory>

class QAbstractButton;

/// Base of every tool's dialog: owns its DialogState, applies it when the dialog is shown, has it follow what is typed,
/// opens its help page and asks and tells through the host's message boxes.
///
/// A dialog lives as long as its document and is shown many times. Each time, in this order: beforeShow(); then, as
/// long as the state was never applied, beforeFirstShow() and the state is applied, and later what reentry() says; then
/// afterShow(). Coming back from being minimized is not a showing.
class ToolDialog : public CKvDialog
{
    Q_OBJECT

public:
    /// `helpTopic` is the tool's name in HelpTopicMap.
    ToolDialog(QWidget *parent, const QString &helpTopic);
    ~ToolDialog() override;

    DialogState &state() { return m_state; }
    const DialogState &state() const { return m_state; }

public slots:
    /// Opens the tool's help page, as F1 does wherever the focus is.
    void showHelp();

protected:
    /// To be called once behind setupUi(): connects the buttons "buttonHelp" and Help of button boxes to showHelp() and
    /// "ButtonCancel" to reject(); "acceptButton" and Close of button boxes are the tool's own. Their icons come with
    /// each showing and follow the host's style. The case of the names does not matter. `helpButton` is the help button
    /// of a form that names it otherwise.
    void setUpButtons(QAbstractButton *helpButton = nullptr);

    /// Fills what depends on the drawing or the disk, each time.
    virtual void beforeShow() {}
    /// Fills what the state is then applied to, once.
    virtual void beforeFirstShow() {}
    /// What a showing after the first sets widgets from.
    enum class Reentry
    {
        LastFile,   ///< what this call's program has written; the rest is as the user left it
        WholeState, ///< what the programs of all calls have written
        Nothing
    };
    /// Commonly by the action that Lisp left under "!action!".
    virtual Reentry reentry() const { return Reentry::LastFile; }
    /// Brings everything that follows from the widgets up to date, each time.
    virtual void afterShow() {}

    /// From now on showHelp() opens the page of this name in HelpTopicMap.
    void setHelpTopic(const QString &helpTopic) { m_helpTopic = helpTopic; }

    /// Closes with acceptance, leaving `action` for the Lisp program.
    void acceptWith(const QString &action);

    /// Message boxes over this dialog, with one OK button.
    void inform(const QString &text, const QString &title = {});
    /// `explanation` stands below the text.
    void warn(const QString &text, const QString &title = {}, const QString &explanation = {});
    void reportError(const QString &text, const QString &title = {});
    /// A question; true only when it was answered with Yes.
    bool ask(const QString &text, const QString &title = {});

    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void applyState();
    void decorate();

    DialogState m_state;
    QString m_helpTopic;
    QAbstractButton *m_helpButton = nullptr;
    std::unique_ptr<TypedFields> m_fields;
};
