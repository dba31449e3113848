// The import of block attributes with 1,000, 10,000 and 100,000 rows of five fields.

#include "bench/TableDialog.h"
#include "dialogs/importblockattributes/Dlg_QT_ImportBlockAttributes.h"

using namespace Qt::StringLiterals;

namespace {

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

struct AttributeDialog : bench::TableDialog<Dlg_QT_ImportBlockAttributes>
{
    /// Shown with the table, of which nothing is selected.
    explicit AttributeDialog(const benchmark::State &state)
    {
        const QString file = host.writeFile(u"table.txt"_s, attributeTable(int(state.range(0))));
        loadState(u"attributefile=%1\ntxsearch=oak\ntxreplace=oAK\n"_s.arg(file));
        show();
    }

    void load()
    {
        auto *field = dialog.findChild<QLineEdit *>(u"AttributeFile"_s);
        field->setFocus();
        emit field->returnPressed();
        QCoreApplication::processEvents();
    }
};

void load(benchmark::State &state)
{
    AttributeDialog attributes(state);
    for (auto _ : state)
        attributes.load();
}

void selectAll(benchmark::State &state)
{
    AttributeDialog attributes(state);
    for (auto _ : state)
        attributes.click(u"selectAll"_s); // every second time none
}

/// The cells lie in memory as the rows come.
void replaceAllInFileOrder(benchmark::State &state)
{
    AttributeDialog attributes(state);
    attributes.click(u"selectAll"_s);
    for (auto _ : state)
        attributes.click(u"btReplace"_s);
}

/// The cells lie anywhere.
void replaceAll(benchmark::State &state)
{
    AttributeDialog attributes(state);
    attributes.sort(0);
    attributes.click(u"selectAll"_s);
    for (auto _ : state)
        attributes.click(u"btReplace"_s);
}

void acceptAll(benchmark::State &state)
{
    AttributeDialog attributes(state);
    attributes.click(u"selectAll"_s);
    for (auto _ : state)
        attributes.accept(u"acceptButton"_s);
}

/// Sorted by two columns in turn, with every other row selected.
void sortScattered(benchmark::State &state)
{
    AttributeDialog attributes(state);
    attributes.selectEveryOther();
    int column = 0;
    for (auto _ : state)
        attributes.sort(column = 2 - column);
}

/// Every other row, and then all of them.
void selectAllAfterScattered(benchmark::State &state)
{
    AttributeDialog attributes(state);
    for (auto _ : state) {
        attributes.selectEveryOther();
        attributes.table->selectAll();
        QCoreApplication::processEvents();
    }
}

} // namespace

int main(int argc, char **argv)
{
    return bench::runTableBench(argc, argv,
                                {{"load", load},
                                 {"selectAll", selectAll},
                                 {"replaceAllInFileOrder", replaceAllInFileOrder},
                                 {"replaceAll", replaceAll},
                                 {"acceptAll", acceptAll},
                                 {"sortScattered", sortScattered},
                                 {"selectAllAfterScattered", selectAllAfterScattered}},
                                {1'000, 10'000, 100'000}, 30);
}
