// Colouring Lisp source beside the expressions that say what its colours mean; a keystroke in the search field while a
// long function is shown, in both text widgets.

#include "bench/Ratios.h"
#include "dialogs/lispexplorer/Highlighter.h"
#include "dialogs/lispexplorer/LispKeywords.h"
#include "dialogs/lispexplorer/SourceView.h"
#include "tests/support/RuleByRule.h"

#include <QApplication>
#include <QPlainTextDocumentLayout>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextEdit>

#include <benchmark/benchmark.h>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace ortakit;
using ortakit::test::RuleByRule;

namespace {

constexpr int lineCount = 10000;

/// A function of that many lines, written as people write Lisp; no two lines are the same.
QStringList sourceLines()
{
    const QString samples[] = {
        u"  ;; Row %1: what was picked is kept for the next call."_s,
        u"  (setq row%1 (cons (list 10 (* 2.5 %1) 0.0) row%1))"_s,
        u"  (if (and (= (type value%1) 'STR) (wcmatch value%1 \"A*,B*\"))"_s,
        u"    (princ (strcat \"\\nEntity \" (itoa %1) \" is on layer \" (cdr (assoc 8 data)) \".\"))"_s,
        u"    (foreach item%1 (vl-remove-if 'null (mapcar 'cdr items)) (entmod item%1)) ; %1 again"_s,
        u"  )"_s,
        u""_s,
        u"  (while (setq entity%1 (ssname selection %1)) (acet-ui-progress %1) (ssdel entity%1 selection))"_s,
    };
    QStringList lines{u"(defun c:sample (/ row data items)"_s};
    while (lines.size() < lineCount - 1)
        lines += QString(samples[lines.size() % std::size(samples)]).replace(u"%1"_s, QString::number(lines.size()));
    lines += u")"_s;
    return lines;
}

const QString searchText = u"set"_s;

void paint(benchmark::State &state, const QString &search)
{
    const QStringList lines = sourceLines();
    LispPainter painter(lispKeywords());
    painter.setSearch(search);
    for (auto _ : state) {
        for (const QString &line : lines)
            benchmark::DoNotOptimize(painter.paint(line).data());
    }
}

void paintLines(benchmark::State &state)
{
    paint(state, {});
}
BENCHMARK(paintLines)->Unit(benchmark::kMillisecond);

void paintLinesSearching(benchmark::State &state)
{
    paint(state, searchText);
}
BENCHMARK(paintLinesSearching)->Unit(benchmark::kMillisecond);

void paintRuleByRule(benchmark::State &state)
{
    const QStringList lines = sourceLines();
    const RuleByRule rules(lispKeywords());
    for (auto _ : state) {
        for (const QString &line : lines)
            benchmark::DoNotOptimize(rules.paint(line, {}).data());
    }
}
BENCHMARK(paintRuleByRule)->Unit(benchmark::kMillisecond)->Iterations(1);

template <class AnyHighlighter, class... Arguments>
void colourDocument(benchmark::State &state, Arguments... arguments)
{
    QTextDocument document;
    document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
    document.setPlainText(sourceLines().join(u'\n'));
    AnyHighlighter highlighter(arguments..., &document);
    for (auto _ : state)
        highlighter.rehighlight();
}

void colourLispDocument(benchmark::State &state)
{
    colourDocument<Highlighter>(state, nullptr);
}
BENCHMARK(colourLispDocument)->Unit(benchmark::kMillisecond);

/// What the frame around a highlighter costs.
class IdleHighlighter final : public QSyntaxHighlighter
{
public:
    using QSyntaxHighlighter::QSyntaxHighlighter;

protected:
    void highlightBlock(const QString &) override {}
};

void colourNothing(benchmark::State &state)
{
    colourDocument<IdleHighlighter>(state);
}
BENCHMARK(colourNothing)->Unit(benchmark::kMillisecond);

/// Shows the source in `view` by `show(text)` after each character typed into the search field, until it is painted.
template <class View, class Show>
void type(benchmark::State &state, View &view, QLineEdit &searchField, Show show)
{
    const QString source = sourceLines().join(u'\n');
    view.setReadOnly(true);
    view.setLineWrapMode(View::NoWrap);
    view.resize(600, 400);
    view.show();
    view.setPlainText(source);
    QCoreApplication::processEvents();
    qsizetype typed = 0;
    for (auto _ : state) {
        typed = typed % searchText.size() + 1;
        searchField.setText(searchText.left(typed));
        show(source);
        QCoreApplication::processEvents();
    }
}

void keystroke(benchmark::State &state)
{
    QLineEdit searchField;
    QPlainTextEdit view;
    Highlighter highlighter(&searchField, view.document());
    type(state, view, searchField, [&](const QString &source) { showSource(view, highlighter, source); });
}
BENCHMARK(keystroke)->Unit(benchmark::kMillisecond);

void keystrokeSettingTheText(benchmark::State &state)
{
    QLineEdit searchField;
    QPlainTextEdit view;
    Highlighter highlighter(&searchField, view.document());
    type(state, view, searchField, [&](const QString &source) { view.setPlainText(source); });
}
BENCHMARK(keystrokeSettingTheText)->Unit(benchmark::kMillisecond);

// A text edit lays out all of its text at once. To colour again what it shows would cost it half a minute.
void keystrokeInTextEdit(benchmark::State &state)
{
    QLineEdit searchField;
    QTextEdit view;
    Highlighter highlighter(&searchField, view.document());
    type(state, view, searchField, [&](const QString &source) { view.setPlainText(source); });
}
BENCHMARK(keystrokeInTextEdit)->Unit(benchmark::kMillisecond);

/// Colours the source in a document and compares the formats of each line with those of the expressions.
int differingLines()
{
    QTextDocument document;
    document.setPlainText(sourceLines().join(u'\n'));
    QLineEdit searchField(searchText);
    Highlighter highlighter(&searchField, &document);
    highlighter.rehighlight();
    const RuleByRule rules(lispKeywords());
    int differing = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        differing += block.layout()->formats() != rules.ranges(block.text(), searchText);
    std::printf("%d lines compared with the expressions, %d differ\n", document.blockCount(), differing);
    return differing;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const int status =
        bench::runWithRatios(argc, argv,
                             {{.measurement = "paintRuleByRule", .baseline = "paintLines", .atLeast = 200},
                              {"paintRuleByRule", "paintLinesSearching"},
                              {"paintRuleByRule", "colourLispDocument"},
                              {"colourLispDocument", "colourNothing"},
                              {"keystrokeSettingTheText", "keystroke"},
                              {"keystrokeInTextEdit", "keystroke"}});
    return differingLines() == 0 ? status : 1;
}
