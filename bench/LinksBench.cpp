// The link viewer and the path redefinition with 1,000, 10,000 and 100,000 rows.

#include "bench/TableDialog.h"
#include "dialogs/redefinepaths/Dlg_QT_RedefinePaths.h"
#include "dialogs/showlinks/Dlg_QT_ShowLinks.h"

using namespace Qt::StringLiterals;

namespace {

template <class Dialog>
struct ReplacingDialog : bench::TableDialog<Dialog>
{
    void replace(const QString &found, const QString &replacement, const QString &button)
    {
        this->set(u"txsearch"_s, found);
        this->set(u"txreplace"_s, replacement);
        this->click(button);
    }
};

struct Links : ReplacingDialog<Dlg_QT_ShowLinks>
{
    explicit Links(const benchmark::State &state)
    {
        const auto count = state.range(0);
        QByteArray lines;
        for (qint64 number = 0; number < count; ++number) {
            const QByteArray text = QByteArray::number(number * 7919 % count);
            lines += text + "^http://example.org/plans/" + text + ".pdf^LINE^Model\n";
        }
        loadState(u"linkfile=%1\n!action!=RETURN\n"_s.arg(host.writeFile(u"links.txt"_s, lines)));
        show();
    }
};

struct Paths : ReplacingDialog<Dlg_QT_RedefinePaths>
{
    explicit Paths(const benchmark::State &state)
    {
        const auto count = state.range(0);
        QStringList entries;
        for (qint64 number = 0; number < count; ++number)
            entries.append(u"Xref^plan %1^D:/drawings/plans/plan %1.dwg"_s.arg(number * 7919 % count));
        dialog.setEntries(entries);
        loadState(u"modes=Xrefs\n"_s);
        show();
    }
};

void loadLinks(benchmark::State &state)
{
    Links links(state);
    for (auto _ : state)
        links.show();
}

void selectAndReplaceLinks(benchmark::State &state)
{
    Links links(state);
    for (auto _ : state) {
        links.table->clearSelection();
        links.table->selectAll();
        links.replace(u"p"_s, u"b"_s, u"btnReplace"_s);
        links.replace(u"b"_s, u"p"_s, u"btnReplace"_s);
        QCoreApplication::processEvents();
    }
}

void sortLinksWithEveryOtherSelected(benchmark::State &state)
{
    Links links(state);
    links.selectEveryOther();
    int column = 1;
    for (auto _ : state) {
        links.sort(column);
        column = 3 - column;
    }
}

void closeLinks(benchmark::State &state)
{
    Links links(state);
    for (auto _ : state)
        links.accept(u"btnClose"_s);
}

void showEveryOtherEntity(benchmark::State &state)
{
    Links links(state);
    links.selectEveryOther();
    for (auto _ : state)
        links.accept(u"btnShowEntity"_s);
}

void loadPaths(benchmark::State &state)
{
    Paths paths(state);
    for (auto _ : state)
        paths.show();
}

/// A letter more in the filter, and one less: half of the rows go and come again.
void typeIntoFilter(benchmark::State &state)
{
    Paths paths(state);
    for (auto _ : state) {
        paths.set(u"filter"_s, u"[02468]$"_s);
        paths.set(u"filter"_s, u"[0-9]$"_s);
        QCoreApplication::processEvents();
    }
}

void selectAndReplacePaths(benchmark::State &state)
{
    Paths paths(state);
    for (auto _ : state) {
        paths.click(u"selectAll"_s);
        paths.replace(u"D:"_s, u"E:"_s, u"btReplace"_s);
        paths.replace(u"E:"_s, u"D:"_s, u"btReplace"_s);
        paths.click(u"selectAll"_s);
        QCoreApplication::processEvents();
    }
}

void acceptPaths(benchmark::State &state)
{
    Paths paths(state);
    for (auto _ : state)
        paths.accept(u"acceptButton"_s);
}

} // namespace

int main(int argc, char **argv)
{
    return bench::runTableBench(argc, argv,
                                {{"loadLinks", loadLinks},
                                 {"selectAndReplaceLinks", selectAndReplaceLinks},
                                 {"sortLinksWithEveryOtherSelected", sortLinksWithEveryOtherSelected},
                                 {"closeLinks", closeLinks},
                                 {"showEveryOtherEntity", showEveryOtherEntity},
                                 {"loadPaths", loadPaths},
                                 {"typeIntoFilter", typeIntoFilter},
                                 {"selectAndReplacePaths", selectAndReplacePaths},
                                 {"acceptPaths", acceptPaths}},
                                {1'000, 10'000, 100'000}, 20);
}
