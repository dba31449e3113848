#pragma once

#include "tests/dialogs/DialogTest.h"

#include <vector>

namespace ortakit::test {

/// A dialog that adds a named definition to a file, whose path is in `fileField`.
template <class Dialog>
class DefinitionDialogTest : public DialogTest<Dialog>
{
protected:
    DefinitionDialogTest(const char *field, const QString &messageTitle) : fileField(field), title(messageTitle) {}

    /// File and name confirmed, and what is said then.
    struct NameRow
    {
        const char *what;
        QString file;
        QString name;
        /// What is said, in the messages' own words; a question when `answer` is Yes or No. Nothing: it is accepted.
        QString text = {};
        QMessageBox::StandardButton answer = QMessageBox::Ok;
    };

    void checkNames(const std::vector<NameRow> &rows)
    {
        for (const NameRow &row : rows) {
            this->show();
            this->setText(fileField, row.file);
            this->setText("name", row.name);
            const bool isQuestion = row.answer != QMessageBox::Ok;
            const QString message = (isQuestion ? QStringLiteral("question \"%1\" \"%2\" Yes/No")
                                                : QStringLiteral("information \"%1\" \"%2\" OK"))
                                        .arg(title, row.text);
            const QStringList shown = row.text.isEmpty() ? QStringList() : QStringList{message};
            EXPECT_EQ(
                this->shownBy("acceptButton", isQuestion ? QList{row.answer} : QList<QMessageBox::StandardButton>()),
                shown)
                << row.what;
            EXPECT_EQ(this->isAccepted(), shown.isEmpty() || row.answer == QMessageBox::Yes) << row.what;
            EXPECT_EQ(this->text("name"), row.name) << row.what;
        }
    }

    /// The path typed into its field: Enter lists the file and does not confirm.
    void checkEnterInFileField(const QString &path, const char *table)
    {
        this->showWith({});
        EXPECT_EQ(this->focusName(), QStringLiteral("selectfile"));
        this->enterText(fileField, path);
        EXPECT_TRUE(this->dialog->isVisible());
        EXPECT_EQ(this->tableRows(table).size(), 2);
        this->enterText("name", QStringLiteral("FREE"));
        EXPECT_TRUE(this->isAccepted());
    }

    const char *fileField;
    QString title;
};

} // namespace ortakit::test
