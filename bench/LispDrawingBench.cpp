// Drawing work done by Lisp programs: each task with a tenth of the entities and with all of them, whose times must
// grow as the entities do, and selecting by a filter beside one pass over the bytes of the file.

#include "bench/ManyEntities.h"
#include "bench/Ratios.h"
#include "host/kernel/documents/Session.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstring>

using namespace host::kernel;
using namespace Qt::StringLiterals;

namespace {

constexpr int few = 10'000;
constexpr int many = 100'000;
constexpr int filtered = 1'000'000;

/// A session with one drawing, nobody to answer, and a home of its own.
class Workshop
{
public:
    Workshop() : m_session({.home = m_folder.filePath(u"home"_s), .supportFolders = {}, .helpFolder = {}})
    {
        m_session.documents().create();
        run(u"(setvar \"CMDECHO\" 0)"_s);
    }

    bool open(const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(u"many.dxf"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return false;
        file.close();
        return bool(m_session.documents().open(file.fileName()));
    }
    bool run(const QString &program) { return m_session.documents().active()->run(program).ok; }

private:
    QTemporaryDir m_folder;
    Session m_session;
};

/// What a program does to so many entities; `%1` is their number. Each round begins in a new drawing, set up
/// unmeasured.
struct Task
{
    const char *name;
    int share; ///< of the entities that there are, one in so many is what it works on
    const char *setup;
    const char *work;
};

const char *const lines =
    "(setq i 0) (repeat %1 (entmake (list '(0 . \"LINE\") '(8 . \"0\") (list 10 (float i) 0.0 0.0) "
    "(list 11 (float i) 10.0 0.0))) (setq i (1+ i)))";
const char *const block = "(entmake '((0 . \"BLOCK\") (2 . \"B\") (70 . 0) (10 0.0 0.0 0.0)))"
                          "(entmake '((0 . \"CIRCLE\") (8 . \"0\") (10 0.0 0.0 0.0) (40 . 1.0)))"
                          "(entmake '((0 . \"ENDBLK\")))";

const Task tasks[] = {
    {"entmake", 1, "", lines},
    {"walk by entnext and entget", 1, lines, "(setq e (entnext)) (while e (entget e) (setq e (entnext e)))"},
    {"entmod", 10, lines,
     "(setq e (entnext)) (repeat %1 (entmod (append (entget e) '((62 . 1)))) (setq e (entnext e)))"},
    {"insert by command", 10, block,
     "(setq i 0) (repeat %1 (command \"_.-INSERT\" \"B\" (list (float i) 5.0) 1 1 0) (setq i (1+ i)))"},
};

void work(benchmark::State &state, const Task &task)
{
    const auto entities = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        Workshop workshop;
        const bool isReady = workshop.run(QString::fromUtf8(task.setup).replace(u"%1"_s, QString::number(entities)));
        const QString program = QString::fromUtf8(task.work).replace(u"%1"_s, QString::number(entities / task.share));
        state.ResumeTiming();
        if (!isReady || !workshop.run(program))
            return state.SkipWithError("the program failed");
    }
}

void passOverBytes(benchmark::State &state)
{
    const QByteArray &bytes = bench::entities(filtered).bytes();
    for (auto _ : state) {
        const char *at = bytes.constData();
        const char *const end = at + bytes.size();
        std::size_t found = 0;
        while (const void *feed = std::memchr(at, '\n', static_cast<std::size_t>(end - at))) {
            at = static_cast<const char *>(feed) + 1;
            ++found;
        }
        benchmark::DoNotOptimize(found);
    }
}

/// The first selection also fills what the drawing keeps to select by; it is measured with all others.
void select(benchmark::State &state, const char *filter)
{
    Workshop workshop;
    if (!workshop.open(bench::entities(filtered).bytes()))
        return state.SkipWithError("the drawing did not open");
    const QString program = u"(if (not (ssget \"_X\" '%1)) (exit))"_s.arg(QString::fromUtf8(filter));
    for (auto _ : state) {
        if (!workshop.run(program))
            return state.SkipWithError("nothing was found");
    }
}

constexpr std::pair<const char *, const char *> filters[] = {
    {"select by kind", "((0 . \"CIRCLE\"))"},
    {"select by kind and layer", "((0 . \"LINE,TEXT\") (8 . \"L2\"))"},
    {"select by place", "((0 . \"LINE\") (-4 . \">,>,*\") (10 500.0 500.0 0.0))"},
    {"select by text", "((1 . \"Text 12*\"))"},
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    std::vector<bench::Ratio> ratios;
    for (const Task &task : tasks) {
        benchmark::RegisterBenchmark(task.name, [&task](benchmark::State &state) { work(state, task); })
            ->Unit(benchmark::kMillisecond)
            ->Arg(few)
            ->Arg(many)
            ->UseRealTime();
        const std::string name = task.name;
        ratios.push_back({name + '/' + std::to_string(many), name + '/' + std::to_string(few), 12.0});
    }
    benchmark::RegisterBenchmark("pass over the bytes", passOverBytes)->Unit(benchmark::kMillisecond);
    for (const auto &[name, filter] : filters) {
        benchmark::RegisterBenchmark(name, [filter = filter](benchmark::State &state) {
            select(state, filter);
        })->Unit(benchmark::kMillisecond);
        ratios.push_back({name, "pass over the bytes", 2.0});
    }
    return bench::runWithRatios(argc, argv, ratios);
}
