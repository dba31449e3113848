#include "host/view/paint/DifferencePicture.h"

#include "files/qt/Files.h"
#include "host/drawing/comparing/ShownDifferences.h"
#include "host/view/paint/ScenePainter.h"
#include "host/view/paint/SvgClips.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>

namespace host::view {

using namespace Qt::StringLiterals;

namespace {

constexpr double longSideOfPicture = 297.0; ///< millimetres, for the width of lines
constexpr double smallestUnringed = 2.0;    ///< millimetres
constexpr int pdfDots = 300;                ///< an inch
constexpr double legendShare = 0.035;       ///< of the picture's height

const UniformLook unchangedLook{.colour{0xb8, 0xb8, 0xb8}};
const UniformLook removedLook{.colour{0xd0, 0x20, 0x20}, .weight = 30, .isDashed = true};
const UniformLook oldLook{.colour{0xf0, 0x90, 0x00}, .weight = 20, .isDashed = true};
const UniformLook newLook{.colour{0x10, 0x50, 0xd0}, .weight = 45};
const UniformLook addedLook{.colour{0x00, 0x90, 0x40}, .weight = 60};

QString legendText(const char *text, size_t count)
{
    return QCoreApplication::translate("host::view::DifferencePicture", text, nullptr, static_cast<int>(count));
}

/// One of the two drawings.
struct ComparedSide
{
    ComparedSide(const drawing::Drawing &drawing, const drawing::MacroSurroundings &surroundings, const QString &layout)
        : scene(drawing, surroundings)
    {
        if (layout.isEmpty())
            block = Scene::modelSpace;
        else if (const auto tab = drawing::findLayout(drawing, layout))
            block = layoutBlock(scene, *tab);
    }

    /// How many of the records can be seen.
    size_t count(const RecordSet &records)
    {
        if (!block)
            return 0;
        scene.prepare(*block);
        return static_cast<size_t>(
            std::ranges::count_if(records, [this](RecordId id) { return scene.find(*block, id) != nullptr; }));
    }

    Scene scene;
    std::optional<int> block; ///< nothing where it has no such layout
};

class DifferencePainter
{
public:
    DifferencePainter(const drawing::Comparison &comparison, const DifferenceView &view)
        : m_shown(drawing::shownDifferences(comparison)), m_before(comparison.pairs.before(), view.before, view.layout),
          m_after(comparison.pairs.after(), view.after, view.layout)
    {
    }

    bool hasAnything() const { return m_before.block || m_after.block; }

    void paint(QPainter &painter, const QSizeF &size, ClipMarks *clips)
    {
        painter.fillRect(QRectF(QPointF(), size), groundColor(Ground::White));
        const double legendHeight = size.height() * legendShare;
        ViewTransform view(QSizeF(size.width(), size.height() - legendHeight));
        view.fit(extents());
        m_options = {.ground = Ground::White,
                     .fillGround = false,
                     .antialias = true,
                     .pixelsPerMillimetre = std::max(size.width(), size.height()) / longSideOfPicture,
                     .clips = clips};
        RecordSet differing = m_shown.after.alone;
        differing.insert(m_shown.after.changed.begin(), m_shown.after.changed.end());
        paintSide(painter, m_after, view, unchangedLook, nullptr, &differing);
        paintSide(painter, m_before, view, oldLook, &m_shown.before.changed);
        paintSide(painter, m_before, view, removedLook, &m_shown.before.alone);
        paintSide(painter, m_after, view, newLook, &m_shown.after.changed);
        paintSide(painter, m_after, view, addedLook, &m_shown.after.alone);
        paintLegend(painter, QRectF(0.0, size.height() - legendHeight, size.width(), legendHeight));
    }

    RenderReport report()
    {
        RenderReport report = m_after.block ? m_after.scene.report(*m_after.block) : RenderReport();
        report.isCutShort |= m_isCutShort;
        return report;
    }

private:
    Box extents()
    {
        Box box;
        for (ComparedSide *side : {&m_before, &m_after})
            if (side->block)
                if (const Box own = side->scene.extents(*side->block); !own.isEmpty()) {
                    box.add(own.low);
                    box.add(own.high);
                }
        return box;
    }

    void paintSide(QPainter &painter, ComparedSide &side, const ViewTransform &view, const UniformLook &look,
                   const RecordSet *only, const RecordSet *except = nullptr)
    {
        if (!side.block || (only && only->empty()))
            return;
        PaintOptions options = m_options;
        options.look = look;
        options.only = only;
        options.except = except;
        m_isCutShort |= paintScene(painter, side.scene, *side.block, view, options).isCutShort;
        if (only)
            ringSmallOnes(painter, side, view, look, *only);
    }

    /// Nobody finds a point among lines: what is smaller than a letter gets a ring.
    void ringSmallOnes(QPainter &painter, ComparedSide &side, const ViewTransform &view, const UniformLook &look,
                       const RecordSet &records) const
    {
        const double millimetre = m_options.pixelsPerMillimetre;
        const double small = smallestUnringed * millimetre;
        painter.setPen(QPen(look.colour, 0.25 * millimetre, look.isDashed ? Qt::DashLine : Qt::SolidLine));
        painter.setBrush(Qt::NoBrush);
        for (const RecordId id : records) {
            const RecordSummary *summary = side.scene.find(*side.block, id);
            if (!summary || summary->box.isEmpty())
                continue;
            const QRectF box = QRectF(view.toScreen(summary->box.low.xy()), view.toScreen(summary->box.high.xy()));
            if (std::max(std::abs(box.width()), std::abs(box.height())) < small)
                painter.drawEllipse(box.center(), small, small);
        }
    }

    void paintLegend(QPainter &painter, const QRectF &area)
    {
        const std::pair<const UniformLook *, QString> entries[] = {
            {&removedLook, legendText(QT_TRANSLATE_NOOP("host::view::DifferencePicture", "gone: %n"),
                                      m_before.count(m_shown.before.alone))},
            {&addedLook, legendText(QT_TRANSLATE_NOOP("host::view::DifferencePicture", "new: %n"),
                                    m_after.count(m_shown.after.alone))},
            {&oldLook, legendText(QT_TRANSLATE_NOOP("host::view::DifferencePicture", "changed, as it was: %n"),
                                  m_before.count(m_shown.before.changed))},
            {&newLook, legendText(QT_TRANSLATE_NOOP("host::view::DifferencePicture", "changed, as it is: %n"),
                                  m_after.count(m_shown.after.changed))},
            {&unchangedLook, legendText(QT_TRANSLATE_NOOP("host::view::DifferencePicture", "the same in both"), 0)},
        };
        QFont font;
        font.setPixelSize(std::max(6, qRound(area.height() * 0.5)));
        painter.setFont(font);
        const double sample = area.height() * 1.5;
        const double gap = area.height() * 0.4;
        double x = gap;
        for (const auto &[look, text] : entries) {
            const double width = std::max(1.0, look->weight / 100.0 * m_options.pixelsPerMillimetre);
            QPen pen(look->colour, width, look->isDashed ? Qt::DashLine : Qt::SolidLine, Qt::FlatCap);
            painter.setPen(pen);
            painter.drawLine(QPointF(x, area.center().y()), QPointF(x + sample, area.center().y()));
            x += sample + gap;
            const double length = QFontMetricsF(font).horizontalAdvance(text);
            painter.setPen(Qt::black);
            painter.drawText(QRectF(x, area.top(), length + gap, area.height()), Qt::AlignVCenter | Qt::TextDontClip,
                             text);
            x += length + 2.0 * gap;
        }
    }

    drawing::ShownDifferences m_shown;
    ComparedSide m_before;
    ComparedSide m_after;
    PaintOptions m_options;
    bool m_isCutShort = false;
};

QByteArray pngOf(DifferencePainter &differences, const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull())
        return {};
    QPainter painter(&image);
    differences.paint(painter, size, nullptr);
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray svgOf(DifferencePainter &differences, const QSize &size)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    QPainter painter(&generator);
    SvgClips clips;
    differences.paint(painter, size, &clips);
    painter.end();
    return clips.applied(buffer.data());
}

QByteArray pdfOf(DifferencePainter &differences)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(pdfDots);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageOrientation(QPageLayout::Landscape);
    writer.setPageMargins(QMarginsF(0.0, 0.0, 0.0, 0.0));
    QPainter painter(&writer);
    differences.paint(painter, QSizeF(writer.width(), writer.height()), nullptr);
    painter.end();
    return buffer.data();
}

} // namespace

ExportResult exportDifferences(const drawing::Comparison &comparison, const QString &path, const DifferenceView &view)
{
    DifferencePainter differences(comparison, view);
    if (!differences.hasAnything())
        return {.error =
                    QCoreApplication::translate("host::view::Export", "There is no layout named %1").arg(view.layout)};
    const QString ending = QFileInfo(path).suffix().toLower();
    const QByteArray bytes = ending == "pdf"_L1   ? pdfOf(differences)
                             : ending == "svg"_L1 ? svgOf(differences, view.pixels)
                                                  : pngOf(differences, view.pixels);
    const QString reason =
        bytes.isEmpty() ? QCoreApplication::translate("host::view::DifferencePicture", "the picture is too large")
                        : files::replaceFile(path, bytes);
    ExportResult result{.report = differences.report()};
    if (!reason.isEmpty())
        result.error = QCoreApplication::translate("host::view::Export", "Cannot write %1: %2")
                           .arg(QDir::toNativeSeparators(path), reason);
    return result;
}

} // namespace host::view
