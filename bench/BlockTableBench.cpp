// The dialog that replaces blocks, with 2,000 blocks and with ten times as many.

#include "bench/TableDialog.h"
#include "dialogs/replaceblock/Dlg_QT_ReplaceBlock.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

/// Every third name is a number.
QString blockName(int number)
{
    return number % 3 ? u"BLOCK %1"_s.arg(number) : QString::number(number);
}

struct BlockDialog : bench::TableDialog<Dlg_QT_ReplaceBlock>
{
    QString everyOther;

    explicit BlockDialog(const benchmark::State &state)
    {
        table = dialog.findChild<QTableWidget *>(u"blocksTable"_s);
        QStringList blocks;
        for (int number = 0; number < state.range(0); ++number) {
            blocks.append(blockName(number) + u"^^^1"_s);
            if (number % 2)
                everyOther += blockName(number) + u'^';
        }
        dialog.setBlocks(blocks);
    }

    void showWithEveryOther()
    {
        loadState(u"blockstable="_s + everyOther);
        show();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(table, &event);
        QCoreApplication::processEvents();
    }
};

void fillBothTables(benchmark::State &state)
{
    BlockDialog blocks(state);
    for (auto _ : state)
        blocks.show();
}

void sortWithEveryOtherSelected(benchmark::State &state)
{
    BlockDialog blocks(state);
    blocks.showWithEveryOther();
    for (auto _ : state)
        blocks.sort(0);
}

void selectEveryOtherFromState(benchmark::State &state)
{
    BlockDialog blocks(state);
    blocks.show();
    for (auto _ : state) {
        ortakit::selectByTexts(*blocks.table, blocks.everyOther);
        QCoreApplication::processEvents();
    }
}

void writeEveryOther(benchmark::State &state)
{
    BlockDialog blocks(state);
    blocks.showWithEveryOther();
    for (auto _ : state)
        blocks.dialog.state().save();
}

void selectAllAndOne(benchmark::State &state)
{
    BlockDialog blocks(state);
    blocks.show();
    for (auto _ : state) {
        blocks.press(Qt::Key_A, Qt::ControlModifier);
        blocks.press(Qt::Key_Down);
    }
}

/// One row more, and not, while every other one is selected.
void toggleOneOfMany(benchmark::State &state)
{
    BlockDialog blocks(state);
    blocks.showWithEveryOther();
    for (auto _ : state)
        blocks.press(Qt::Key_Space, Qt::ControlModifier);
}

} // namespace

int main(int argc, char **argv)
{
    return bench::runTableBench(argc, argv,
                                {{"fillBothTables", fillBothTables},
                                 {"sortWithEveryOtherSelected", sortWithEveryOtherSelected},
                                 {"selectEveryOtherFromState", selectEveryOtherFromState},
                                 {"writeEveryOther", writeEveryOther},
                                 {"selectAllAndOne", selectAllAndOne},
                                 {"toggleOneOfMany", toggleOneOfMany}},
                                {2'000, 20'000}, 30);
}
