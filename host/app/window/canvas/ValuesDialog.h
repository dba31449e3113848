#pragma once

#include <QDialog>

#include <vector>

class QTableWidget;

namespace host::app {

/// A table of values by name, of which some can be changed: attributes of a block reference, parts of a definition.
class ValuesDialog final : public QDialog
{
    Q_OBJECT

public:
    struct Row
    {
        QString name{};
        QString hint{}; ///< what is asked for
        QString value{};
        bool isFixed = false;
        QString tip{}; ///< of the value
    };

    /// `current` is the row that has the keyboard first.
    ValuesDialog(const QString &title, std::vector<Row> rows, std::size_t current, QWidget *parent);

    /// What stands in the row now.
    QString value(std::size_t row) const;
    bool isChanged(std::size_t row) const { return value(row) != m_rows[row].value; }

private:
    const std::vector<Row> m_rows;
    QTableWidget *m_table;
};

} // namespace host::app
