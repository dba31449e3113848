#pragma once

#include <QObject>
#include <QStringList>

class QTableWidget;

/// The two tables that the dialogs for dimension style files share: the styles of a file, of which any number is
/// selected, and the variables of one of them. Both are sorted by their first column. A table that gets the focus
/// and has no selection selects its first row.
class StyleTables : public QObject
{
    Q_OBJECT

public:
    /// Gives the tables their columns. Does not own them; `parent` is the dialog.
    StyleTables(QTableWidget *styles, QTableWidget *variables, QObject *parent);

    void showStyles(const QStringList &names);
    /// Shows the variables that a dimension style file's `entries` are.
    void showVariables(const QStringList &entries);
    /// In the order of the selection.
    QStringList selectedStyles() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void selectionChanged();

private:
    QTableWidget *m_styles;
    QTableWidget *m_variables;
};
