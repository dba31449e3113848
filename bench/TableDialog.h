#pragma once

#include "state/tables/TableSelection.h"
#include "tests/support/FakeHost.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableWidget>

#include <benchmark/benchmark.h>
#include <string>
#include <vector>

namespace bench {

/// A tool dialog with a table, worked in as a user does. Everything that an action sets off is done when it returns.
template <class Dialog>
struct TableDialog
{
    ortakit::test::FakeHost host;
    Dialog dialog;
    QTableWidget *table = dialog.template findChild<QTableWidget *>();

    void loadState(const QString &state)
    {
        dialog.state().load(host.writeFile(QStringLiteral("state.txt"), state.toUtf8()));
    }
    void show()
    {
        dialog.hide();
        dialog.show();
        QCoreApplication::processEvents();
    }
    void set(const QString &field, const QString &text)
    {
        dialog.template findChild<QLineEdit *>(field)->setText(text);
    }
    void click(const QString &button)
    {
        dialog.template findChild<QAbstractButton *>(button)->click();
        QCoreApplication::processEvents();
    }
    void accept(const QString &button)
    {
        click(button);
        dialog.state().save();
    }
    void sort(int column)
    {
        emit table->horizontalHeader()->sectionClicked(column);
        QCoreApplication::processEvents();
    }
    /// Every other row, so that no two of them are one range.
    void selectEveryOther()
    {
        QList<int> rows;
        for (int row = 0; row < table->rowCount(); row += 2)
            rows.append(row);
        ortakit::selectRows(*table, rows);
        QCoreApplication::processEvents();
    }
};

/// A measurement that takes the number of rows from `state.range(0)`.
struct TableMeasurement
{
    std::string name;
    void (*measure)(benchmark::State &state);
};

/// Runs each measurement with each number of rows and puts the time of each number beside that of the one before: of
/// ten times as many rows, 10 is in proportion, 13 in proportion times the logarithm, 100 the square. Returns the exit
/// status of the program.
int runTableBench(int argc, char **argv, const std::vector<TableMeasurement> &measurements,
                  const std::vector<long> &rowCounts, double goal);

} // namespace bench
