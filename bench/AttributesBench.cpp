// The import of block attributes with 1,000, 10,000 and 100,000 rows of five fields: the ratio of two sizes says how
// the time grows: 10 in proportion, 100 with the square.

#include "bench/Ratios.h"
#include "dialogs/importblockattributes/Dlg_QT_ImportBlockAttributes.h"
#include "state/TableSelection.h"
#include "tests/support/FakeHost.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableWidget>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;
using ortakit::test::FakeHost;

namespace {

constexpr int few = 1'000;
constexpr int more = 10'000;
constexpr int many = 100'000;

/// Every other line lacks its last field.
QByteArray attributeTable(int rowCount)
{
    QByteArray text = "HANDLE\tBLOCKNAME\tNUMBER\tMATERIAL\tPRICE\n";
    for (int row = 0; row < rowCount; ++row) {
        text += '\'' + QByteArray::number(row * 7919LL % rowCount, 16) + "\tDOOR\tD-" + QByteArray::number(row);
        text += row % 2 ? "\tOak\n" : "\tOak\t12.50\n";
    }
    return text;
}

struct AttributeDialog
{
    FakeHost host;
    Dlg_QT_ImportBlockAttributes dialog;
    QTableWidget *table = dialog.findChild<QTableWidget *>(u"Attributes"_s);

    /// Shown with the table, of which nothing is selected.
    explicit AttributeDialog(int rowCount)
    {
        const QString file = host.writeFile(u"table.txt"_s, attributeTable(rowCount));
        const QString state = u"attributefile=%1\ntxsearch=oak\ntxreplace=oAK\n"_s.arg(file);
        dialog.state().load(host.writeFile(u"state.txt"_s, state.toUtf8()));
        show();
    }

    void show()
    {
        dialog.hide();
        dialog.show();
        QCoreApplication::processEvents();
    }
    void click(const char *button)
    {
        dialog.findChild<QAbstractButton *>(QString::fromLatin1(button))->click();
        QCoreApplication::processEvents();
    }
    void load()
    {
        auto *field = dialog.findChild<QLineEdit *>(u"AttributeFile"_s);
        field->setFocus();
        emit field->returnPressed();
        QCoreApplication::processEvents();
    }
    void sort(int column)
    {
        emit table->horizontalHeader()->sectionClicked(column);
        QCoreApplication::processEvents();
    }
    void selectEveryOther()
    {
        QList<int> rows;
        for (int row = 0; row < table->rowCount(); row += 2)
            rows.append(row);
        ortakit::selectRows(*table, rows);
        QCoreApplication::processEvents();
    }
};

template <int count>
void load(benchmark::State &state)
{
    AttributeDialog attributes(count);
    for (auto _ : state)
        attributes.load();
}

template <int count>
void selectAll(benchmark::State &state)
{
    AttributeDialog attributes(count);
    for (auto _ : state)
        attributes.click("selectAll"); // every second time none
}

template <int count>
void replaceAll(benchmark::State &state)
{
    AttributeDialog attributes(count);
    attributes.sort(0);
    attributes.click("selectAll");
    for (auto _ : state)
        attributes.click("btReplace");
}

template <int count>
void acceptAll(benchmark::State &state)
{
    AttributeDialog attributes(count);
    attributes.click("selectAll");
    for (auto _ : state) {
        attributes.click("acceptButton");
        attributes.dialog.state().save();
    }
}

/// Sorted by two columns in turn, with every other row selected.
template <int count>
void sortScattered(benchmark::State &state)
{
    AttributeDialog attributes(count);
    attributes.selectEveryOther();
    int column = 0;
    for (auto _ : state)
        attributes.sort(column = 2 - column);
}

/// Every other row, and then all of them.
template <int count>
void selectAllAfterScattered(benchmark::State &state)
{
    AttributeDialog attributes(count);
    for (auto _ : state) {
        attributes.selectEveryOther();
        attributes.table->selectAll();
        QCoreApplication::processEvents();
    }
}

#define ORTAKIT_ALL_SIZES(function)                                                                                    \
    BENCHMARK(function<few>)->Unit(benchmark::kMillisecond);                                                           \
    BENCHMARK(function<more>)->Unit(benchmark::kMillisecond);                                                          \
    BENCHMARK(function<many>)->Unit(benchmark::kMillisecond)

ORTAKIT_ALL_SIZES(load);
ORTAKIT_ALL_SIZES(selectAll);
ORTAKIT_ALL_SIZES(replaceAll);
ORTAKIT_ALL_SIZES(acceptAll);
ORTAKIT_ALL_SIZES(sortScattered);
ORTAKIT_ALL_SIZES(selectAllAfterScattered);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    std::vector<bench::Ratio> ratios;
    for (const std::string name :
         {"load", "selectAll", "replaceAll", "acceptAll", "sortScattered", "selectAllAfterScattered"}) {
        ratios.push_back({name + "<more>", name + "<few>", 30});
        ratios.push_back({name + "<many>", name + "<more>", 30});
    }
    return bench::runWithRatios(argc, argv, ratios);
}
