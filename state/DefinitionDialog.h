#pragma once

#include "state/ToolDialog.h"

#include <QList>
#include <QSet>

class QLineEdit;
class QTableWidget;

/// Base of the dialogs that add a named definition to a text file: shows what the file defines and checks the new name.
/// Enter in the field of the file takes the path and does not press the default button.
class DefinitionDialog : public ToolDialog
{
    Q_OBJECT

public:
    using ToolDialog::ToolDialog;

protected:
    /// What the checks tell the user, all under one title.
    struct Messages
    {
        QString title;
        QString noFile;      ///< when the path is empty; whether there is such a file is not looked at
        QString noName;      ///< when the name is empty
        QString blankInName; ///< for blanks alone: other white space is fine
        QString exists;      ///< asks whether to replace
    };

    /// To be called once behind setupUi(). `headers` are the table's, ";" between; its first column stays
    /// `firstWidth` wide, the second takes the rest.
    void setUpDefinitions(QLineEdit *file, QTableWidget *table, const QString &headers, int firstWidth);

    /// Fills the table, in place of what it showed, and remembers the names, which are in column `nameColumn` of the
    /// rows. Cells show the first 500 characters of a text. Nothing is read or checked here: the rows are what the
    /// derived class made of its file.
    void showDefinitions(const QList<QStringList> &rows, int nameColumn);

    /// Whether `name` can be defined in the file at `path`, whose definitions are shown: both are there, the name has
    /// no blank, and is new in any mix of cases or the user agrees that it is replaced. Says otherwise why not.
    bool acceptsDefinition(const QString &path, const QString &name, const Messages &messages);

    /// Keeps Enter in the field of the file from the default button.
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// What to tell instead of defining; empty when nothing is wrong with file and name.
    QString problem(const QString &path, const QString &name, const Messages &messages) const;

    QLineEdit *m_file = nullptr;
    QTableWidget *m_table = nullptr;
    QSet<QString> m_names; ///< in upper case
};
