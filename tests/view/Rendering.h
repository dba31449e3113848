#pragma once

#include "host/view/paint/ScenePainter.h"

#include <QImage>

#include <string>

namespace host::view::test {

/// The parts of a small drawing, each a run of tags written as "code value|code value|...".
struct DxfText
{
    std::string entities{};
    std::string blocks{}; ///< within the BLOCKS section; see blockText()
    std::string layers{}; ///< LAYER entries
    std::string tables{}; ///< other whole tables; see tableText()
    std::string header{};
    std::string objects{};
};

/// A block definition with its base point at the origin.
std::string blockText(const std::string &name, const std::string &entities);
/// A symbol table with its entries.
std::string tableText(const std::string &type, const std::string &entries);

QByteArray dxfBytes(const DxfText &text);
/// The drawing; a failure of the running test when it cannot be read.
std::unique_ptr<drawing::Drawing> readDrawing(const DxfText &text);

/// Two pixels a drawing unit; shows 0 to 100 both ways.
inline constexpr int renderingSize = 200;

/// A drawing painted with thin lines, looked at in drawing units.
class Rendering
{
public:
    explicit Rendering(const DxfText &text, const PaintOptions &options = {}, int block = Scene::modelSpace);
    Rendering(Scene &scene, int block, const PaintOptions &options = {});

    /// Whether anything but the ground lies within a pixel of the point.
    bool isInk(double x, double y) const;
    /// The pixel that differs most from the ground around the point.
    QColor color(double x, double y) const;
    /// How many separate runs of ink lie on the way between two points.
    int runs(QPointF from, QPointF to) const;
    /// What the ink covers, in drawing units; null when there is none.
    QRectF inkBox() const;
    qint64 inkPixels() const;
    const RenderReport &report() const { return m_report; }
    const QImage &image() const { return m_image; }

private:
    void paint(Scene &scene, int block, const PaintOptions &options);
    bool isInkPixel(int x, int y) const;

    QImage m_image;
    ViewTransform m_view;
    Ground m_ground = Ground::Black;
    RenderReport m_report;
};

/// Whether a picture is of one colour.
bool isBlank(const QImage &image);

/// Fails unless ink lies at each of the first points and at none of the second, both as "50,30 12,11".
void expectInk(const Rendering &shown, const char *ink, const char *blank);

} // namespace host::view::test
