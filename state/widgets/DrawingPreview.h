#pragma once

#include "platform/db/OdDbDatabase.h"

#include <QImage>
#include <QWidget>

/// Shows a drawing file, a block of the active drawing, or a picture, fitted on black. What is shown is read when it is
/// painted, so a hidden preview costs nothing, and read again for another size.
class DrawingPreview : public QWidget
{
    Q_OBJECT

public:
    explicit DrawingPreview(QWidget *parent = nullptr);

    /// Shows the drawing file at `path`, read anew even when it is the same path; empty shows nothing. A file that is
    /// no drawing shows a short message.
    void setDrawing(const QString &path);
    /// Path of the drawing that is shown; empty when there is none.
    QString drawing() const { return m_path; }
    /// Shows the block `name` of `database`, or of the active drawing when there is none, in place of a drawing file;
    /// empty shows nothing. A block that is not there shows a short message.
    void setBlock(const QString &name, const OdDbDatabasePtr &database = nullptr);
    /// Name of the block that is shown; empty when there is none.
    QString block() const { return m_block; }
    /// Shows `image` in place of a drawing; a null image shows nothing.
    void setImage(const QImage &image);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void take(const QString &path, const QString &block, const QImage &image,
              const OdDbDatabasePtr &database = nullptr);
    QSize pixelSize() const;
    QImage render() const;

    // At most one of these is not empty.
    QString m_path;
    QString m_block;
    QImage m_image;
    OdDbDatabasePtr m_database; ///< of the block; null for the active drawing
    QImage m_picture;
    QSize m_pictureSize; ///< what m_picture was made for; invalid when it has to be made
};
