#pragma once

#include <QDialog>

class QPushButton;
class QTreeWidget;

namespace host::kernel {
class Document;
}

namespace host::app {

/// What is to become of several changed drawings that are about to be closed: one question for all of them. Those that
/// are checked are saved, the others are not; Esc keeps everything open.
class ClosingQuestion final : public QDialog
{
    Q_OBJECT

public:
    enum class Answer
    {
        Save,    ///< those that are checked
        Discard, ///< all changes
        Cancel
    };

    /// The documents must outlive it.
    ClosingQuestion(const QList<kernel::Document *> &changed, QWidget *parent);

    /// Shows it.
    Answer ask();
    /// In their order, once it was answered.
    QList<kernel::Document *> checked() const;

private:
    void updateButton();

    QList<kernel::Document *> m_documents;
    QTreeWidget *m_list;
    QPushButton *m_save;
    Answer m_answer = Answer::Cancel;
};

} // namespace host::app
