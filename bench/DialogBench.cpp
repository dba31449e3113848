// The state of a dialog with 150 widgets beside plain file reading and writing; showing the break line dialog beside an
// empty one, and 10,000 settings beside the same text without colours.

#include "bench/Ratios.h"
#include "dialogs/breakline/Dlg_QT_Breakline.h"
#include "dialogs/exportsettings/Dlg_QT_ExportSettings.h"
#include "state/exchange/DialogState.h"
#include "tests/support/FakeHost.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QTextEdit>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;
using ortakit::test::FakeHost;

namespace {

constexpr int widgetCount = 150;

void addWidget(QDialog &dialog, int number)
{
    QWidget *widget = nullptr;
    switch (number % 4) {
    case 0: {
        auto *edit = new QLineEdit(&dialog);
        edit->setText(u"value %1"_s.arg(number));
        widget = edit;
        break;
    }
    case 1:
        widget = new QCheckBox(&dialog);
        break;
    case 2: {
        auto *box = new QComboBox(&dialog);
        box->addItems({u"one"_s, u"two"_s, u"three"_s});
        widget = box;
        break;
    }
    default:
        widget = new QDoubleSpinBox(&dialog);
    }
    widget->setObjectName(u"widget_%1"_s.arg(number));
}

struct LargeDialog
{
    FakeHost host;
    QDialog dialog;
    DialogState state{&dialog};
    QString path = host.writeFile(u"state.txt"_s, {});

    LargeDialog()
    {
        for (int number = 0; number < widgetCount; ++number)
            addWidget(dialog, number);
        state.load(path);
        state.save();
    }
};

void saveState(benchmark::State &state)
{
    LargeDialog large;
    for (auto _ : state)
        large.state.save();
}
BENCHMARK(saveState)->Unit(benchmark::kMicrosecond);

void loadState(benchmark::State &state)
{
    LargeDialog large;
    for (auto _ : state) {
        large.state.load(large.path);
        large.state.apply();
    }
}
BENCHMARK(loadState)->Unit(benchmark::kMicrosecond);

void writeSameBytes(benchmark::State &state)
{
    LargeDialog large;
    const QByteArray bytes = FakeHost::readFile(large.path);
    for (auto _ : state) {
        QFile file(large.path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return state.SkipWithError("cannot write");
    }
}
BENCHMARK(writeSameBytes)->Unit(benchmark::kMicrosecond);

void readSameLines(benchmark::State &state)
{
    LargeDialog large;
    for (auto _ : state)
        benchmark::DoNotOptimize(FakeHost::readFile(large.path).split('\n'));
}
BENCHMARK(readSameLines)->Unit(benchmark::kMicrosecond);

void showAndPaint(QDialog &dialog)
{
    dialog.show();
    QCoreApplication::processEvents();
    dialog.hide();
}

void showBreakLineFirst(benchmark::State &state)
{
    FakeHost host;
    for (auto _ : state) {
        Dlg_QT_Breakline dialog;
        showAndPaint(dialog);
    }
}
BENCHMARK(showBreakLineFirst)->Unit(benchmark::kMillisecond);

void showBreakLineAgain(benchmark::State &state)
{
    FakeHost host;
    Dlg_QT_Breakline dialog;
    showAndPaint(dialog);
    for (auto _ : state)
        showAndPaint(dialog);
}
BENCHMARK(showBreakLineAgain)->Unit(benchmark::kMillisecond);

void showEmptyDialog(benchmark::State &state)
{
    for (auto _ : state) {
        QDialog dialog;
        showAndPaint(dialog);
    }
}
BENCHMARK(showEmptyDialog)->Unit(benchmark::kMillisecond);

QByteArray settings()
{
    QByteArray listing;
    for (int number = 0; number < 10'000; ++number)
        listing += "(setvar \"VARIABLE" + QByteArray::number(number) + (number % 3 ? "\" 1) ;dangerous\n" : "\" 1)\n");
    return listing;
}

void showSettings(benchmark::State &state)
{
    FakeHost host;
    Dlg_QT_ExportSettings dialog;
    dialog.setListing(host.writeFile(u"listing.txt"_s, settings()));
    for (auto _ : state)
        showAndPaint(dialog);
}
BENCHMARK(showSettings)->Unit(benchmark::kMillisecond);

void showSameText(benchmark::State &state)
{
    QDialog dialog;
    QTextEdit view(&dialog);
    const QString text = QString::fromUtf8(settings());
    for (auto _ : state) {
        view.setPlainText(text);
        showAndPaint(dialog);
    }
}
BENCHMARK(showSameText)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return bench::runWithRatios(argc, argv,
                                {{"saveState", "writeSameBytes"},
                                 {"loadState", "readSameLines"},
                                 {"showBreakLineFirst", "showEmptyDialog"},
                                 {"showBreakLineAgain", "showEmptyDialog"},
                                 {"showSettings", "showSameText"}});
}
