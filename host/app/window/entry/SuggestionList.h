#pragma once

#include "host/app/workbench/Suggestions.h"

#include <QTreeWidget>

namespace host::app {

/// The names that fit what is being written, with their lines of help, above or below its field. It takes no keys and
/// no focus: whoever has the field moves the choice. A click chooses as well.
class SuggestionList : public QTreeWidget
{
    Q_OBJECT

public:
    /// `field` must be its parent.
    explicit SuggestionList(QWidget *field);

    /// Shows these with none chosen; hides the list when there are none.
    void offer(const QList<Suggestion> &suggestions);
    /// 1 for the next one, -1 for the one before, going round. The name that is chosen then; null when none is offered.
    QString choose(int direction);
    /// Whether one was chosen since they were offered.
    bool hasChoice() const { return currentItem() != nullptr; }

signals:
    /// One was clicked.
    void clickedName(const QString &name);

private:
    void place();

    QWidget *m_field;
};

} // namespace host::app
