// The link viewer and the path redefinition with 1,000, 10,000 and 100,000 rows. Each ratio stands beside ten times
// fewer rows: 10 is in proportion, 13 in proportion times the logarithm, 100 the square.

#include "bench/Ratios.h"
#include "dialogs/redefinepaths/Dlg_QT_RedefinePaths.h"
#include "dialogs/showlinks/Dlg_QT_ShowLinks.h"
#include "state/TableSelection.h"
#include "tests/support/FakeHost.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableWidget>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;
using ortakit::test::FakeHost;

namespace {

template <class Dialog>
struct Bench
{
    FakeHost host;
    Dialog dialog;
    QTableWidget *table = dialog.template findChild<QTableWidget *>();

    void set(const QString &field, const QString &text)
    {
        dialog.template findChild<QLineEdit *>(field)->setText(text);
    }
    void replace(const QString &found, const QString &replacement, const QString &button)
    {
        set(u"txsearch"_s, found);
        set(u"txreplace"_s, replacement);
        click(button);
    }
    void accept(const QString &button)
    {
        click(button);
        dialog.state().save();
    }
    void click(const QString &button) { dialog.template findChild<QAbstractButton *>(button)->click(); }
    void loadState(const QString &state) { dialog.state().load(host.writeFile(u"state.txt"_s, state.toUtf8())); }
    void show()
    {
        dialog.hide();
        dialog.show();
        QCoreApplication::processEvents();
    }
    /// Every other row, so that no two of them are one range.
    void selectEveryOther()
    {
        QList<int> rows;
        for (int row = 0; row < table->rowCount(); row += 2)
            rows.append(row);
        ortakit::selectRows(*table, rows);
    }
    void sort(int column)
    {
        emit table->horizontalHeader()->sectionClicked(column);
        QCoreApplication::processEvents();
    }
};

struct Links : Bench<Dlg_QT_ShowLinks>
{
    explicit Links(int count)
    {
        QByteArray lines;
        for (int number = 0; number < count; ++number) {
            const QByteArray text = QByteArray::number(number * 7919LL % count);
            lines += text + "^http://example.org/plans/" + text + ".pdf^LINE^Model\n";
        }
        loadState(u"linkfile=%1\n!action!=RETURN\n"_s.arg(host.writeFile(u"links.txt"_s, lines)));
        show();
    }
};

struct Paths : Bench<Dlg_QT_RedefinePaths>
{
    explicit Paths(int count)
    {
        QStringList entries;
        for (int number = 0; number < count; ++number)
            entries.append(u"Xref^plan %1^D:/drawings/plans/plan %1.dwg"_s.arg(number * 7919LL % count));
        dialog.setEntries(entries);
        loadState(u"modes=Xrefs\n"_s);
        show();
    }
};

template <int count>
void loadLinks(benchmark::State &state)
{
    Links links(count);
    for (auto _ : state)
        links.show();
}

template <int count>
void selectAndReplaceLinks(benchmark::State &state)
{
    Links links(count);
    for (auto _ : state) {
        links.table->clearSelection();
        links.table->selectAll();
        links.replace(u"p"_s, u"b"_s, u"btnReplace"_s);
        links.replace(u"b"_s, u"p"_s, u"btnReplace"_s);
        QCoreApplication::processEvents();
    }
}

template <int count>
void sortLinksWithEveryOtherSelected(benchmark::State &state)
{
    Links links(count);
    links.selectEveryOther();
    int column = 1;
    for (auto _ : state) {
        links.sort(column);
        column = 3 - column;
    }
}

template <int count>
void closeLinks(benchmark::State &state)
{
    Links links(count);
    for (auto _ : state)
        links.accept(u"btnClose"_s);
}

template <int count>
void showEveryOtherEntity(benchmark::State &state)
{
    Links links(count);
    links.selectEveryOther();
    for (auto _ : state)
        links.accept(u"btnShowEntity"_s);
}

template <int count>
void loadPaths(benchmark::State &state)
{
    Paths paths(count);
    for (auto _ : state)
        paths.show();
}

/// A letter more in the filter, and one less: half of the rows go and come again.
template <int count>
void typeIntoFilter(benchmark::State &state)
{
    Paths paths(count);
    for (auto _ : state) {
        paths.set(u"filter"_s, u"[02468]$"_s);
        paths.set(u"filter"_s, u"[0-9]$"_s);
        QCoreApplication::processEvents();
    }
}

template <int count>
void selectAndReplacePaths(benchmark::State &state)
{
    Paths paths(count);
    for (auto _ : state) {
        paths.click(u"selectAll"_s);
        paths.replace(u"D:"_s, u"E:"_s, u"btReplace"_s);
        paths.replace(u"E:"_s, u"D:"_s, u"btReplace"_s);
        paths.click(u"selectAll"_s);
        QCoreApplication::processEvents();
    }
}

template <int count>
void acceptPaths(benchmark::State &state)
{
    Paths paths(count);
    for (auto _ : state)
        paths.accept(u"acceptButton"_s);
}

#define ORTAKIT_ALL_SIZES(function)                                                                                    \
    BENCHMARK(function<1'000>)->Unit(benchmark::kMillisecond);                                                         \
    BENCHMARK(function<10'000>)->Unit(benchmark::kMillisecond);                                                        \
    BENCHMARK(function<100'000>)->Unit(benchmark::kMillisecond)

ORTAKIT_ALL_SIZES(loadLinks);
ORTAKIT_ALL_SIZES(selectAndReplaceLinks);
ORTAKIT_ALL_SIZES(sortLinksWithEveryOtherSelected);
ORTAKIT_ALL_SIZES(closeLinks);
ORTAKIT_ALL_SIZES(showEveryOtherEntity);
ORTAKIT_ALL_SIZES(loadPaths);
ORTAKIT_ALL_SIZES(typeIntoFilter);
ORTAKIT_ALL_SIZES(selectAndReplacePaths);
ORTAKIT_ALL_SIZES(acceptPaths);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    std::vector<bench::Ratio> ratios;
    for (const std::string name :
         {"loadLinks", "selectAndReplaceLinks", "sortLinksWithEveryOtherSelected", "closeLinks", "showEveryOtherEntity",
          "loadPaths", "typeIntoFilter", "selectAndReplacePaths", "acceptPaths"}) {
        ratios.push_back({name + "<10'000>", name + "<1'000>", 20});
        ratios.push_back({name + "<100'000>", name + "<10'000>", 20});
    }
    return bench::runWithRatios(argc, argv, ratios);
}
