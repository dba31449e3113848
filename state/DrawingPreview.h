#pragma once

#include <QImage>
#include <QWidget>

/// Shows a drawing file, or a picture, fitted on black. What is shown is read when it is painted, so a hidden preview
/// costs nothing, and read again for another size.
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
    /// Shows `image` in place of a drawing; a null image shows nothing.
    void setImage(const QImage &image);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSize pixelSize() const;
    QImage render() const;

    QString m_path;
    QImage m_image;
    QImage m_picture;
    QSize m_pictureSize; ///< what m_picture was made for; invalid when it has to be made
};
