#include "host/app/window/frame/DrawingStatus.h"

#include "host/drawing/records/HeaderVariables.h"

#include <QLabel>
#include <QStatusBar>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// The report takes half of the status bar, or so many pixels.
constexpr int longestReport = 200;

QString versionName(drawing::Version version)
{
    using drawing::Version;
    switch (version) {
    case Version::R12:
        return u"R12"_s;
    case Version::R13:
        return u"R13"_s;
    case Version::R14:
        return u"R14"_s;
    case Version::R2000:
        return u"2000"_s;
    case Version::R2004:
        return u"2004"_s;
    case Version::R2007:
        return u"2007"_s;
    case Version::R2010:
        return u"2010"_s;
    case Version::R2013:
        return u"2013"_s;
    case Version::R2018:
        return u"2018"_s;
    }
    return QString::number(static_cast<int>(version));
}

} // namespace

DrawingStatus::DrawingStatus(QStatusBar &bar)
    : m_coordinates(new QLabel(&bar)), m_program(new QLabel(&bar)), m_drawing(new QLabel(&bar)),
      m_notDrawn(new QLabel(&bar))
{
    m_coordinates->setObjectName(u"coordinates"_s);
    m_coordinates->setMinimumWidth(bar.fontMetrics().horizontalAdvance(u"-000000.0000, -000000.0000"_s));
    m_drawing->setObjectName(u"drawingStatus"_s);
    m_notDrawn->setObjectName(u"notDrawn"_s);
    // They show names from files: markup in these could read further files.
    m_drawing->setTextFormat(Qt::PlainText);
    m_coordinates->setTextFormat(Qt::PlainText);
    m_program->setObjectName(u"programText"_s);
    m_program->setTextFormat(Qt::PlainText);
    m_notDrawn->setTextFormat(Qt::PlainText);
    bar.addWidget(m_coordinates);
    bar.addWidget(m_program);
    bar.addWidget(m_drawing, 1);
    bar.addPermanentWidget(m_notDrawn);
}

void DrawingStatus::showPointer(const drawing::Vec2 &world)
{
    m_coordinates->setText(u"%1, %2"_s.arg(world.x, 0, 'f', 4).arg(world.y, 0, 'f', 4));
}

void DrawingStatus::showTexts(const QString &coordinates, const QString &status)
{
    m_program->setText(status);
    if (!coordinates.isEmpty())
        m_coordinates->setText(coordinates);
}

void DrawingStatus::show(const drawing::Drawing &drawing, const view::RenderReport &report)
{
    const bool isModel = drawing.header().integer(u"$TILEMODE", 1) != 0;
    // A new drawing has no file yet, whatever its template is.
    const bool isDwg = drawing.isFromDwg() && !drawing.path().isEmpty();
    m_drawing->setText((isDwg ? tr("DWG %1, %2") : tr("DXF %1, %2"))
                           .arg(versionName(drawing.version()), isModel ? tr("model space") : tr("paper space")));
    const QString text = report.isWhole() ? tr("All entities drawn") : report.missing();
    const int width = std::max(m_notDrawn->window()->width() / 2, longestReport);
    m_notDrawn->setText(m_notDrawn->fontMetrics().elidedText(text, Qt::ElideRight, width));
    m_notDrawn->setToolTip(Qt::convertFromPlainText(
        report.isWhole() ? report.summary() : report.missing() + u'\n' + report.summary(), Qt::WhiteSpaceNormal));
}

void DrawingStatus::clearReport()
{
    m_notDrawn->clear();
}

void DrawingStatus::clear()
{
    m_drawing->clear();
    clearReport();
}

} // namespace host::app
