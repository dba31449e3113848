// What a few bytes of a drawing may cause, at a size and at twice that: the times must grow as the sizes do, up to the
// work that a picture is granted, and not at all beyond.

#include "bench/Ratios.h"
#include "host/drawing/records/Drawing.h"
#include "host/view/build/Scene.h"
#include "host/view/paint/ScenePainter.h"

#include <QGuiApplication>
#include <QImage>

#include <benchmark/benchmark.h>
#include <cmath>

using namespace host;

namespace {

QByteArray tag(int code, const QByteArray &value)
{
    return QByteArray::number(code) + '\n' + value + '\n';
}

QByteArray point(double x, double y)
{
    return tag(10, QByteArray::number(x)) + tag(20, QByteArray::number(y));
}

QByteArray section(const QByteArray &name, const QByteArray &content)
{
    return tag(0, "SECTION") + tag(2, name) + content + tag(0, "ENDSEC");
}

/// A ring of many corners, filled with lines `spacing` apart.
QByteArray ring(int corners, const QByteArray &spacing)
{
    QByteArray text = tag(0, "HATCH") + tag(8, "0") + point(0, 0) + tag(2, "X") + tag(70, "0") + tag(91, "1") +
                      tag(92, "7") + tag(72, "0") + tag(73, "1") + tag(93, QByteArray::number(corners));
    for (int i = 0; i < corners; ++i) {
        const double angle = 2.0 * M_PI * i / corners;
        const double radius = 40.0 + i % 7 * 0.1;
        text += point(50.0 + radius * std::cos(angle), 50.0 + radius * std::sin(angle));
    }
    return text + tag(97, "0") + tag(75, "0") + tag(76, "1") + tag(52, "0") + tag(41, "1") + tag(77, "0") +
           tag(78, "1") + tag(53, "30") + tag(43, "0") + tag(44, "0") + tag(45, "0") + tag(46, spacing) + tag(79, "0");
}

QByteArray hatchLoop(int corners)
{
    return section("ENTITIES", ring(corners, "1"));
}

QByteArray denseHatches(int count)
{
    return section("ENTITIES", ring(8, "0.001").repeated(count));
}

QByteArray arrays(int count)
{
    const QByteArray block = tag(0, "BLOCK") + tag(8, "0") + tag(2, "B") + point(0, 0) + tag(0, "LINE") + tag(8, "0") +
                             point(0, 0) + tag(11, "5") + tag(21, "5") + tag(0, "ENDBLK") + tag(8, "0");
    const QByteArray insert = tag(0, "INSERT") + tag(8, "0") + tag(2, "B") + point(0, 0) + tag(70, "100") +
                              tag(71, "100") + tag(44, "1") + tag(45, "1");
    return section("BLOCKS", block) + section("ENTITIES", insert.repeated(count));
}

/// From the bytes to the picture.
void draw(benchmark::State &state, const QByteArray &content)
{
    const QByteArray bytes = content + tag(0, "EOF");
    QImage image(1600, 1200, QImage::Format_RGB32);
    for (auto _ : state) {
        const drawing::ReadResult read = drawing::Drawing::fromBytes(bytes);
        if (!read)
            return state.SkipWithError("the drawing made here cannot be read");
        view::Scene scene(static_cast<const drawing::Drawing &>(*read.drawing));
        view::ViewTransform view(image.size());
        view.fit(scene.extents(view::Scene::modelSpace));
        QPainter painter(&image);
        view::paintScene(painter, scene, view::Scene::modelSpace, view, {.antialias = true});
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    struct Row
    {
        const char *name;
        QByteArray (*make)(int);
        int size;
    };
    std::vector<bench::Ratio> ratios;
    for (const Row &row : {Row{"hatchLoop", hatchLoop, 50'000}, Row{"denseHatches", denseHatches, 200},
                           Row{"arrays", arrays, 50}, Row{"arraysBeyondTheWork", arrays, 2'000}}) {
        const std::string name = row.name;
        for (const int size : {row.size, 2 * row.size}) {
            const std::string sized = name + std::to_string(size);
            benchmark::RegisterBenchmark(sized.c_str(), draw, row.make(size))->Unit(benchmark::kMillisecond);
        }
        ratios.push_back({name + std::to_string(2 * row.size), name + std::to_string(row.size), 2.3});
    }
    return bench::runWithRatios(argc, argv, ratios);
}
