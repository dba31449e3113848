#include "host/view/paint/PagePainter.h"

#include "files/qt/Files.h"

#include <QCoreApplication>

namespace host::view {

namespace {

constexpr int largestSide = 16'000;
constexpr QSize usualPixels{1600, 1200};
/// A picture without a sheet gets the lineweights that it would have on this long a one.
constexpr double longSide = 297.0;
constexpr double pictureMargin = 0.03;

QString pageMessage(const char *text)
{
    return QCoreApplication::translate("host::view::Export", text);
}

QSize boundedSize(const QSize &size)
{
    return {std::clamp(size.width(), 1, largestSide), std::clamp(size.height(), 1, largestSide)};
}

} // namespace

PagePainter::PagePainter(const drawing::Drawing &drawing, const ExportOptions &options)
    : m_scene(drawing, options.surroundings), m_options(options)
{
    m_scene.appearance().showOnly(options.layers);
}

std::optional<Page> PagePainter::page(const QString &layout, bool isSheet, QString &error)
{
    const SheetWish &wish = m_options.sheet;
    if (!layout.isEmpty()) {
        const auto found = drawing::findLayout(m_scene.drawing(), layout);
        if (!found) {
            error = pageMessage("There is no layout named %1").arg(layout);
            return {};
        }
        return Page{.layout = found->name, .plan = planLayout(m_scene, *found, wish)};
    }
    const int block = m_options.space.isEmpty() ? Scene::modelSpace : m_scene.block(m_options.space);
    if (!m_scene.exists(block)) {
        error = pageMessage("There is no block named %1").arg(m_options.space);
        return {};
    }
    if (isSheet || wish.paper || wish.scale || m_options.dotsPerInch)
        return Page{.plan = planBlock(m_scene, block, wish)};
    return Page{.plan = {.block = block}, .isSheet = false};
}

std::optional<Frame> PagePainter::frame(const Page &page, double usualDotsPerInch, QString &error) const
{
    const QSize size = boundedSize(m_options.pixels.value_or(usualPixels));
    if (!page.isSheet)
        return Frame{.size = size, .unitsPerMillimetre = std::max(size.width(), size.height()) / longSide};
    const QSizeF sheet = page.plan.size;
    if (m_options.pixels) {
        const double units = std::min(size.width() / sheet.width(), size.height() / sheet.height());
        const QSizeF left = QSizeF(size) - sheet * units;
        return Frame{.size = size, .unitsPerMillimetre = units, .corner = {left.width() / 2.0, left.height() / 2.0}};
    }
    const double units = m_options.dotsPerInch.value_or(usualDotsPerInch) / drawing::millimetresPerInch;
    const QSizeF exact = sheet * units;
    if (std::max(exact.width(), exact.height()) > largestSide) {
        error = pageMessage("The sheet would be %1 by %2 pixels; %3 each way are the most")
                    .arg(qRound64(exact.width()))
                    .arg(qRound64(exact.height()))
                    .arg(largestSide);
        return {};
    }
    return Frame{.size = boundedSize(exact.toSize()), .unitsPerMillimetre = units};
}

ViewTransform PagePainter::pictureView(const Page &page, const QSize &size)
{
    ViewTransform view{QSizeF(size)};
    const auto &window = m_options.sheet.window;
    view.fit(window ? *window : m_scene.extents(page.plan.block, Seen::Plotted), window ? 0.0 : pictureMargin);
    return view;
}

const drawing::PlotStyleReading &PagePainter::readStyleSheet(const QString &name)
{
    if (const auto known = m_plotStyles.constFind(name); known != m_plotStyles.constEnd())
        return *known;
    const auto &find = m_options.surroundings.file;
    const QString path = find ? find(name) : drawing::namedFiles(m_scene.drawing())(name);
    if (path.isEmpty()) {
        const auto table = drawing::builtInPlotStyles(name);
        return *m_plotStyles.insert(name, {table, table ? QString() : pageMessage("it is not found")});
    }
    return *m_plotStyles.insert(name, drawing::readPlotStyleFile(path));
}

std::shared_ptr<const drawing::PlotStyleTable> PagePainter::plotStyles(const Page &page, QString &lack)
{
    if (m_options.plotStyles || !m_options.withPlotStyles)
        return m_options.plotStyles;
    const QString &name = page.plan.styleSheet;
    if (!page.plan.hasPlotStyles || name.isEmpty())
        return {};
    const drawing::PlotStyleReading &reading = readStyleSheet(name);
    if (reading.table)
        return std::make_shared<drawing::PlotStyleTable>(*reading.table);
    lack = pageMessage("the plot styles %1 are left out: %2").arg(name, reading.error);
    return {};
}

PaintOptions PagePainter::paintOptions(const Page &page, const Frame &frame, PaintOptions base) const
{
    base.ground = m_options.ground;
    base.fillGround = false;
    base.antialias = true;
    base.plottedOnly = true;
    base.textAsLetters = m_options.text == TextForm::Letters;
    if (m_options.withLineweights)
        base.pixelsPerMillimetre = frame.unitsPerMillimetre * page.plan.weightFactor;
    return base;
}

void PagePainter::paint(QPainter &painter, const Page &page, const Frame &frame, PaintOptions base,
                        ExportResult &result)
{
    const PaintOptions options = paintOptions(page, frame, base);
    if (base.fillGround)
        painter.fillRect(QRect(QPoint(), frame.size), groundColor(m_options.ground));
    const double units = frame.unitsPerMillimetre;
    QString lack;
    m_scene.appearance().setPlotLook({plotStyles(page, lack), units});
    painter.save();
    painter.translate(frame.corner);
    QPainterPath clip;
    const QRectF printed = page.plan.printed;
    clip.addRect(page.isSheet ? QRectF(printed.topLeft() * units, printed.size() * units)
                              : QRectF(QPointF(), QSizeF(frame.size)));
    painter.setClipPath(clip, Qt::IntersectClip);
    if (options.clips)
        options.clips->begin(painter, clip);
    const ViewTransform view = page.isSheet ? page.plan.view(units) : pictureView(page, frame.size);
    const PaintResult painted = paintScene(painter, m_scene, page.plan.block, view, options);
    if (options.clips)
        options.clips->end(painter);
    painter.restore();
    RenderReport report = m_scene.report(page.plan.block);
    report.isCutShort |= painted.isCutShort;
    result.report.add(report);
    result.pages.push_back({page.layout, report, lack});
}

} // namespace host::view
