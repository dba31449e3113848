// The dialog that replaces blocks, with few and with ten times as many blocks: the ratio of the two says how its time
// grows: 10 in proportion, 100 with the square.

#include "bench/Ratios.h"
#include "dialogs/replaceblock/Dlg_QT_ReplaceBlock.h"
#include "state/TableSelection.h"
#include "tests/support/FakeHost.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTableWidget>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;
using ortakit::test::FakeHost;

namespace {

constexpr int few = 2'000;
constexpr int many = 20'000;

/// Every third name is a number.
QString blockName(int number)
{
    return number % 3 ? u"BLOCK %1"_s.arg(number) : QString::number(number);
}

struct BlockDialog
{
    FakeHost host;
    Dlg_QT_ReplaceBlock dialog;
    QTableWidget *table = dialog.findChild<QTableWidget *>(u"blocksTable"_s);
    QString everyOther;

    explicit BlockDialog(int count)
    {
        QStringList blocks;
        for (int number = 0; number < count; ++number) {
            blocks.append(blockName(number) + u"^^^1"_s);
            if (number % 2)
                everyOther += blockName(number) + u'^';
        }
        dialog.setBlocks(blocks);
    }

    void showWith(const QString &state)
    {
        dialog.state().load(host.writeFile(u"state.txt"_s, state.toUtf8()));
        show();
    }
    void show()
    {
        dialog.hide();
        dialog.show();
        QCoreApplication::processEvents();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(table, &event);
        QCoreApplication::processEvents();
    }
};

template <int count>
void fillBothTables(benchmark::State &state)
{
    BlockDialog blocks(count);
    for (auto _ : state)
        blocks.show();
}

template <int count>
void sortWithEveryOtherSelected(benchmark::State &state)
{
    BlockDialog blocks(count);
    blocks.showWith(u"blockstable="_s + blocks.everyOther);
    for (auto _ : state) {
        emit blocks.table->horizontalHeader()->sectionClicked(0);
        QCoreApplication::processEvents();
    }
}

template <int count>
void selectEveryOtherFromState(benchmark::State &state)
{
    BlockDialog blocks(count);
    blocks.show();
    for (auto _ : state) {
        ortakit::selectByTexts(*blocks.table, blocks.everyOther);
        QCoreApplication::processEvents();
    }
}

template <int count>
void writeEveryOther(benchmark::State &state)
{
    BlockDialog blocks(count);
    blocks.showWith(u"blockstable="_s + blocks.everyOther);
    for (auto _ : state)
        blocks.dialog.state().save();
}

template <int count>
void selectAllAndOne(benchmark::State &state)
{
    BlockDialog blocks(count);
    blocks.show();
    for (auto _ : state) {
        blocks.press(Qt::Key_A, Qt::ControlModifier);
        blocks.press(Qt::Key_Down);
    }
}

/// One row more, and not, while every other one is selected.
template <int count>
void toggleOneOfMany(benchmark::State &state)
{
    BlockDialog blocks(count);
    blocks.showWith(u"blockstable="_s + blocks.everyOther);
    for (auto _ : state)
        blocks.press(Qt::Key_Space, Qt::ControlModifier);
}

#define ORTAKIT_BOTH_SIZES(function)                                                                                   \
    BENCHMARK(function<few>)->Unit(benchmark::kMillisecond);                                                           \
    BENCHMARK(function<many>)->Unit(benchmark::kMillisecond)

ORTAKIT_BOTH_SIZES(fillBothTables);
ORTAKIT_BOTH_SIZES(sortWithEveryOtherSelected);
ORTAKIT_BOTH_SIZES(selectEveryOtherFromState);
ORTAKIT_BOTH_SIZES(writeEveryOther);
ORTAKIT_BOTH_SIZES(selectAllAndOne);
ORTAKIT_BOTH_SIZES(toggleOneOfMany);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    std::vector<bench::Ratio> ratios;
    for (const char *name : {"fillBothTables", "sortWithEveryOtherSelected", "selectEveryOtherFromState",
                             "writeEveryOther", "selectAllAndOne", "toggleOneOfMany"})
        ratios.push_back({std::string(name) + "<many>", std::string(name) + "<few>", 30});
    return bench::runWithRatios(argc, argv, ratios);
}
