#pragma once

#include <QImage>
#include <QObject>
#include <QSet>
#include <QSize>
#include <QThreadPool>

namespace host::app {

/// Pictures of drawing files for lists of them, made on a thread of its own, one after the other.
///
/// Where there is a folder to keep them in, a picture is made once for each state of its file; the oldest go when there
/// are more than a few hundred. Files beyond some 30 MB have no picture: reading them would keep the machine busy for
/// a list. The end waits for the one that is being made.
class FilePictures final : public QObject
{
    Q_OBJECT

public:
    /// `folder` is made with the first picture; empty: none are kept.
    explicit FilePictures(const QSize &size, const QString &folder = {}, QObject *parent = nullptr);
    ~FilePictures() override;

    /// Asks for a picture; once for each path.
    void want(const QString &path);
    const QSize &size() const { return m_size; }

signals:
    /// Null for what is no drawing, or too large.
    void made(const QString &path, const QImage &picture);

private:
    QImage kept(const QString &place) const;
    void keep(const QString &place, const QImage &picture) const;
    QImage make(const QString &path) const;

    const QSize m_size;
    const QString m_folder;
    QSet<QString> m_wanted;
    QThreadPool m_pool;
};

} // namespace host::app
