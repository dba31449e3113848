#pragma once

#include "host/view/paint/Export.h"
#include "host/view/paint/ScenePainter.h"

namespace host::view {

/// One page before it is painted.
struct Page
{
    QString layout{}; ///< empty for what is no layout
    SheetPlan plan;
    bool isSheet = true; ///< otherwise a picture that shows everything
};

/// A page on a device: where its sheet lies and how large a millimetre is there.
struct Frame
{
    QSize size; ///< of the device
    double unitsPerMillimetre = 1.0;
    QPointF corner{}; ///< of the sheet, upper left
};

/// Puts pages of a drawing on painters of any kind, as the options of an export say.
class PagePainter
{
public:
    /// The drawing must outlive it.
    PagePainter(const drawing::Drawing &drawing, const ExportOptions &options);

    /// The page of a layout, or of the options' space where the name is empty. Nothing, with a sentence in `error`,
    /// where there is none. Without wishes for a sheet a space is a picture unless `isSheet`.
    std::optional<Page> page(const QString &layout, bool isSheet, QString &error);
    /// Nothing, with a sentence, where it would be larger than pictures are made.
    std::optional<Frame> frame(const Page &page, double usualDotsPerInch, QString &error) const;
    /// Fills the frame with the ground and paints the page, whose report goes into the result. Of `base` only what
    /// depends on the device counts.
    void paint(QPainter &painter, const Page &page, const Frame &frame, PaintOptions base, ExportResult &result);

    const ExportOptions &options() const { return m_options; }

private:
    ViewTransform pictureView(const Page &page, const QSize &size);
    /// The table for a page; null for none, with the reason in `lack` when there should be one.
    std::shared_ptr<const drawing::PlotStyleTable> plotStyles(const Page &page, QString &lack);
    const drawing::PlotStyleReading &readStyleSheet(const QString &name);
    PaintOptions paintOptions(const Page &page, const Frame &frame, PaintOptions base) const;

    Scene m_scene;
    const ExportOptions m_options;
    QHash<QString, drawing::PlotStyleReading> m_plotStyles; ///< read, by the names that pages have for them
};

} // namespace host::view
