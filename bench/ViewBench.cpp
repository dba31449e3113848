// The view of a drawing of many small entities: its first picture beside reading the file and beside the same lines
// drawn by a painter alone, and what the hand waits for on the canvas. A frame is one event of the mouse and the
// painting that follows.
//
// The sizes are 100,000 and 1,000,000 entities; ORTAKIT_BENCH_ENTITIES sets the larger one.

#include "bench/ManyEntities.h"
#include "bench/Ratios.h"
#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/drawing/records/Entities.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/input/ObjectSnap.h"
#include "host/view/paint/Export.h"
#include "host/view/paint/Picking.h"
#include "host/view/paint/ScenePainter.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMouseEvent>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <benchmark/benchmark.h>
#include <random>

using namespace host;
using bench::entities;
using bench::ManyEntities;
using namespace Qt::StringLiterals;

namespace {

constexpr QSize pictureSize(1600, 1200);

int sizeOf(const benchmark::State &state)
{
    return static_cast<int>(state.range(0));
}

std::unique_ptr<drawing::Drawing> read(int count)
{
    return drawing::Drawing::fromBytes(entities(count).bytes()).drawing;
}

void readFile(benchmark::State &state)
{
    entities(sizeOf(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(read(sizeOf(state)));
}

void firstPicture(benchmark::State &state)
{
    const auto drawing = read(sizeOf(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(view::picture(*drawing, pictureSize));
}

/// All lines by one painter with one pen a line, as they stand; texts left out.
void barePainter(benchmark::State &state, bool antialias)
{
    const ManyEntities &made = entities(sizeOf(state));
    QImage image(pictureSize, QImage::Format_RGB32);
    for (auto _ : state) {
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, antialias);
        painter.scale(pictureSize.height() / made.side(), pictureSize.height() / made.side());
        int number = 0;
        for (const QPolygonF &line : made.lines()) {
            painter.setPen(QPen(QColor::fromHsv(number++ % 7 * 50, 255, 255), 0));
            painter.drawPolyline(line);
        }
    }
}

void wholePainted(benchmark::State &state, bool antialias)
{
    const auto drawing = read(sizeOf(state));
    view::Scene scene(static_cast<const drawing::Drawing &>(*drawing));
    QImage image(pictureSize, QImage::Format_RGB32);
    view::ViewTransform view(image.size());
    view.fit(scene.extents(view::Scene::modelSpace));
    for (auto _ : state) {
        QPainter painter(&image);
        view::paintScene(painter, scene, view::Scene::modelSpace, view, {.antialias = antialias});
    }
}

/// A canvas with such a drawing, as the window has it.
class Canvas
{
public:
    explicit Canvas(int count)
        : m_session({.home = m_folder.filePath(u"home"_s), .supportFolders = {}, .helpFolder = {}})
    {
        QFile file(m_folder.filePath(u"many.dxf"_s));
        if (file.open(QIODevice::WriteOnly))
            file.write(entities(count).bytes());
        file.close();
        m_document = m_session.documents().open(file.fileName()).document;
        m_canvas.emplace(*m_document);
        m_canvas->resize(1000, 600);
        m_canvas->show();
        rest();
    }

    app::DrawingCanvas &widget() { return *m_canvas; }
    kernel::Document &document() { return *m_document; }
    /// Until nothing is left to be put right.
    void rest()
    {
        do
            frame();
        while (m_canvas->isProvisional() && (QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents), true));
    }
    /// Paints as the window does.
    void frame() { m_canvas->render(&m_screen); }
    template <class Event, class... Arguments>
    void send(Arguments &&...arguments)
    {
        Event event(std::forward<Arguments>(arguments)...);
        QCoreApplication::sendEvent(&*m_canvas, &event);
    }
    void mouse(QEvent::Type type, QPointF at)
    {
        send<QMouseEvent>(type, at, at, Qt::MiddleButton, Qt::MiddleButton, Qt::NoModifier);
    }
    void wheel(QPointF at, int turn)
    {
        send<QWheelEvent>(at, at, QPoint(), QPoint(0, turn), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    }

private:
    QTemporaryDir m_folder;
    kernel::Session m_session;
    kernel::Document *m_document = nullptr;
    QImage m_screen{1000, 600, QImage::Format_RGB32};
    std::optional<app::DrawingCanvas> m_canvas;
};

/// The whole drawing is in view, the hand moves some pixels from frame to frame.
void panFrame(benchmark::State &state)
{
    Canvas canvas(sizeOf(state));
    QPointF at(500, 300);
    canvas.mouse(QEvent::MouseButtonPress, at);
    int step = 0;
    for (auto _ : state) {
        at += ++step % 40 < 20 ? QPointF(7, 3) : QPointF(-7, -3);
        canvas.mouse(QEvent::MouseMove, at);
        canvas.frame();
    }
}

void zoomFrame(benchmark::State &state)
{
    Canvas canvas(sizeOf(state));
    int step = 0;
    for (auto _ : state) {
        canvas.wheel({400, 200}, ++step % 8 < 4 ? 120 : -120);
        canvas.frame();
    }
}

/// Putting the picture right once the hand rests: the longest time for which the window does nothing else.
void longestSlice(benchmark::State &state)
{
    Canvas canvas(sizeOf(state));
    bool isIn = false;
    for (auto _ : state) {
        canvas.wheel({400, 200}, isIn ? -120 : 120);
        isIn = !isIn;
        canvas.frame();
        double longest = 0.0;
        while (canvas.widget().isProvisional()) {
            QElapsedTimer time;
            time.start();
            QCoreApplication::processEvents(QEventLoop::AllEvents);
            longest = std::max(longest, static_cast<double>(time.nsecsElapsed()) / 1e9);
            canvas.frame();
        }
        state.SetIterationTime(longest);
    }
}

void pick(benchmark::State &state)
{
    const auto drawing = read(sizeOf(state));
    view::Scene scene(static_cast<const drawing::Drawing &>(*drawing));
    const double side = entities(sizeOf(state)).side();
    scene.recordsIn(view::Scene::modelSpace, {});
    std::mt19937 engine(3);
    std::uniform_real_distribution place(0.0, side);
    for (auto _ : state)
        benchmark::DoNotOptimize(
            view::pickAllAt(scene, view::Scene::modelSpace, {place(engine), place(engine)}, side / 600.0 * 3.0));
}

/// Where the pointer would snap to, for all kinds at once, with a hundredth of the drawing's side in view.
void snap(benchmark::State &state)
{
    Canvas canvas(sizeOf(state));
    const double side = entities(sizeOf(state)).side();
    kernel::ViewState shown = canvas.document().view();
    shown.height = side / 100.0;
    canvas.document().setView(shown);
    const kernel::ObjectSnap snaps(canvas.document());
    snaps.find({}, drawing::SnapEndPoint);
    std::mt19937 engine(3);
    std::uniform_real_distribution place(0.0, side);
    constexpr int allKinds = drawing::SnapsSwitchedOff - 1;
    for (auto _ : state)
        benchmark::DoNotOptimize(snaps.find({place(engine), place(engine), 0.0}, allKinds, drawing::Vec3{}));
}

/// One entity is changed and the canvas painted.
void editFrame(benchmark::State &state)
{
    Canvas canvas(sizeOf(state));
    drawing::Drawing &drawing = canvas.document().drawing();
    const std::vector<drawing::RecordId> all = drawing.entities().all();
    std::size_t next = 0;
    qint64 colour = 1;
    for (auto _ : state) {
        const drawing::RecordId record = all[next = (next + 7919) % all.size()];
        drawing::FieldList fields = drawing.fields(record);
        drawing::setField(fields, 62, qint64{1 + ++colour % 6});
        drawing.setFields(record, fields);
        canvas.frame();
        if (canvas.widget().isProvisional())
            return state.SkipWithError("the edit was not painted at once");
    }
}

QString drawingFile(const QTemporaryDir &folder, int count)
{
    QFile file(folder.filePath(u"many.dxf"_s));
    if (file.open(QIODevice::WriteOnly))
        file.write(entities(count).bytes());
    return file.fileName();
}

void pdf(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = drawingFile(folder, sizeOf(state));
    for (auto _ : state) {
        const drawing::ReadResult read = drawing::Drawing::open(path);
        if (!view::exportPdf(*read.drawing, folder.filePath(u"many.pdf"_s)))
            return state.SkipWithError("no PDF was written");
    }
}

/// Another program's way from the same file to a PDF, start-up included. Skipped where it is not installed.
void pdfByLibreCad(benchmark::State &state)
{
    const QString program = QStandardPaths::findExecutable(u"librecad"_s);
    if (program.isEmpty())
        return state.SkipWithError("librecad is not installed");
    const QTemporaryDir folder;
    const QString path = drawingFile(folder, sizeOf(state));
    for (auto _ : state) {
        QProcess process;
        process.start(program, {u"dxf2pdf"_s, u"-a"_s, u"-o"_s, folder.filePath(u"many.pdf"_s), path});
        if (!process.waitForFinished(300'000) || !QFile::exists(folder.filePath(u"many.pdf"_s)))
            return state.SkipWithError("librecad wrote no PDF");
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    constexpr int few = 100'000;
    bool isNumber = false;
    const int given = qEnvironmentVariableIntValue("ORTAKIT_BENCH_ENTITIES", &isNumber);
    const int many = isNumber && given > few ? given : 1'000'000;
    const auto add = [&](const char *name, const std::function<void(benchmark::State &)> &run) {
        benchmark::RegisterBenchmark(name, run)->Unit(benchmark::kMillisecond)->Arg(few)->Arg(many)->UseRealTime();
    };
    add("readFile", readFile);
    add("firstPicture", firstPicture);
    add("barePainter", [](benchmark::State &state) { barePainter(state, false); });
    add("wholePainted", [](benchmark::State &state) { wholePainted(state, false); });
    add("barePainterSmooth", [](benchmark::State &state) { barePainter(state, true); });
    add("wholePaintedSmooth", [](benchmark::State &state) { wholePainted(state, true); });
    add("panFrame", panFrame);
    add("zoomFrame", zoomFrame);
    for (const int size : {few, many})
        benchmark::RegisterBenchmark("longestSlice", longestSlice)
            ->Unit(benchmark::kMillisecond)
            ->Arg(size)
            ->Iterations(3)
            ->UseManualTime();
    add("pick", pick);
    add("snap", snap);
    add("editFrame", editFrame);
    const auto addOnce = [&](const char *name, void (*run)(benchmark::State &)) {
        benchmark::RegisterBenchmark(name, run)->Unit(benchmark::kMillisecond)->Arg(few)->Iterations(1)->UseRealTime();
    };
    addOnce("pdf", pdf);
    addOnce("pdfByLibreCad", pdfByLibreCad);
    std::vector<bench::Ratio> ratios;
    for (const int size : {few, many}) {
        const auto sized = [size](const char *name) { return name + ("/" + std::to_string(size)); };
        ratios.push_back({sized("firstPicture"), sized("readFile")});
        ratios.push_back({sized("wholePainted"), sized("barePainter")});
        ratios.push_back({sized("wholePaintedSmooth"), sized("barePainterSmooth")});
        for (const char *frame : {"panFrame", "zoomFrame", "longestSlice", "pick", "snap", "editFrame"})
            ratios.push_back({sized(frame), sized("barePainter")});
    }
    for (const char *name : {"firstPicture", "wholePainted", "panFrame", "zoomFrame", "pick", "snap", "editFrame"})
        ratios.push_back({name + ("/" + std::to_string(many)), name + ("/" + std::to_string(few))});
    ratios.push_back({"pdfByLibreCad/" + std::to_string(few), "pdf/" + std::to_string(few)});
    return bench::runWithRatios(argc, argv, ratios);
}
