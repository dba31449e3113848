#pragma once

#include "host/view/build/DisplayBuilder.h"
#include "host/view/build/ProxyBytes.h"

#include <array>

namespace host::view {

/// Draws the picture that an entity of another program keeps: a row of pieces, each its length, kind and content.
/// Settings hold for what follows them. Shapes are in ProxyShapes.cpp, texts in ProxyTexts.cpp.
class ProxyDrawer
{
public:
    explicit ProxyDrawer(BuildContext &context) : m_context(context), m_style(context.style) {}

    /// Costs by the bytes. What is left out makes the display simplified.
    void draw(QByteArrayView graphics);

private:
    /// Draws one piece, or takes its setting; false when it could not be drawn as it should be.
    using Draw = bool (ProxyDrawer::*)(ProxyBytes &);
    struct Row
    {
        int kind = 0;
        Draw draw = nullptr;
    };
    static const std::array<Row, 28> rows;

    bool drawPiece(int kind, QByteArrayView content);

    bool nothing(ProxyBytes &) { return true; }
    bool circle(ProxyBytes &bytes);
    bool circleOfPoints(ProxyBytes &bytes);
    bool arc(ProxyBytes &bytes);
    bool arcOfPoints(ProxyBytes &bytes);
    bool polyline(ProxyBytes &bytes) { return addLine({.points = bytes.countedPoints()}); }
    bool polygon(ProxyBytes &bytes);
    bool mesh(ProxyBytes &bytes);
    bool shell(ProxyBytes &bytes);
    bool text(ProxyBytes &bytes) { return plainText(bytes, false); }
    bool wideText(ProxyBytes &bytes) { return plainText(bytes, true); }
    bool text2(ProxyBytes &bytes) { return styledText(bytes, false); }
    bool wideText2(ProxyBytes &bytes) { return styledText(bytes, true); }
    bool plainText(ProxyBytes &bytes, bool isWide);
    bool styledText(ProxyBytes &bytes, bool isWide);
    bool xline(ProxyBytes &bytes) { return endless(bytes, true); }
    bool ray(ProxyBytes &bytes) { return endless(bytes, false); }
    bool endless(ProxyBytes &bytes, bool isBothWays);
    bool lightPolyline(ProxyBytes &bytes);

    bool colour(ProxyBytes &bytes);
    bool trueColour(ProxyBytes &bytes);
    bool linetype(ProxyBytes &bytes);
    bool fill(ProxyBytes &bytes);
    bool lineweight(ProxyBytes &bytes);
    bool linetypeScale(ProxyBytes &bytes);
    bool pushMatrix(ProxyBytes &bytes);
    bool popMatrix(ProxyBytes &bytes);
    bool clip(ProxyBytes &) { return false; }

    struct Letters
    {
        Vec3 at{};
        Vec3 normal{};
        Vec3 direction{};
        double height = 0.0;
        double width = 1.0;
        double oblique = 0.0; ///< radians
        QString font{};
    };
    bool addText(const QString &content, const Letters &letters);
    bool addLine(Curve curve);
    bool addClosed(Path corners, bool isFilled);
    /// All round, or an open arc; with `closing` points to close it by.
    bool addArc(const ArcSpan &span, const Path &closing, bool isFilled);
    bool addShape(Curve curve, bool isFilled);
    void toWorld(Curve &curve) const;
    const Matrix &map() const { return m_matrices.back(); }

    BuildContext &m_context;
    Style m_style;
    bool m_isFilled = false;
    std::vector<Matrix> m_matrices{Matrix()};
    std::size_t m_tooDeep = 0; ///< matrices that were not kept
};

} // namespace host::view
