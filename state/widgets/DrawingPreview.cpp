#include "state/widgets/DrawingPreview.h"

#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvUtils.h"

#include <QPainter>

DrawingPreview::DrawingPreview(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void DrawingPreview::setDrawing(const QString &path)
{
    take(path, {}, {});
}

void DrawingPreview::setBlock(const QString &name, const OdDbDatabasePtr &database)
{
    take({}, name, {}, database);
}

void DrawingPreview::setImage(const QImage &image)
{
    take({}, {}, image);
}

void DrawingPreview::take(const QString &path, const QString &block, const QImage &image,
                          const OdDbDatabasePtr &database)
{
    m_database = database;
    m_path = path;
    m_block = block;
    m_image = image;
    m_pictureSize = {};
    update();
}

void DrawingPreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    if (m_pictureSize != pixelSize()) {
        m_pictureSize = pixelSize();
        m_picture = render();
    }
    if (!m_picture.isNull()) {
        QRectF place({}, m_picture.deviceIndependentSize());
        place.moveCenter(QRectF(rect()).center());
        painter.drawImage(place, m_picture);
    } else if (!m_path.isEmpty() || !m_block.isEmpty()) {
        painter.setPen(Qt::gray);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, tr("No preview"));
    }
}

QSize DrawingPreview::pixelSize() const
{
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

QImage DrawingPreview::render() const
{
    QImage picture;
    OdDbDatabase *database = m_database.get();
    if (!database && ACTIVE_DOCUMENT())
        database = ACTIVE_DOCUMENT()->database();
    if (!m_path.isEmpty())
        picture = CKvUtils::drawingPicture(m_path, pixelSize(), Qt::black);
    else if (!m_block.isEmpty())
        picture = CKvUtils::blockPicture(database, m_block, pixelSize(), Qt::black);
    else if (!m_image.isNull())
        picture = m_image.scaled(pixelSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(devicePixelRatioF());
    return picture;
}
