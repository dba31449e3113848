#pragma once

#include <QObject>
#include <QStringList>

namespace host::app {

/// A drawing that was open lately.
struct RecentFile
{
    QString path; ///< full
    bool isPinned = false;

    friend bool operator==(const RecentFile &, const RecentFile &) = default;
};

/// The drawings that were opened or saved last, in workbench.ini of the user's settings, where programs that run
/// side by side see each other's. Pinned ones stay, before the ten others; among both the last one comes first.
class RecentFiles final : public QObject
{
    Q_OBJECT

public:
    /// `folder` is that of the file.
    explicit RecentFiles(const QString &folder, QObject *parent = nullptr);

    static constexpr qsizetype most = 10; ///< that are not pinned

    /// Reads the file.
    QList<RecentFile> all() const;
    // A file that cannot be written is no reason to complain: the list is as it was then.
    /// Becomes the first one.
    void add(const QString &path);
    void setPinned(const QString &path, bool isPinned);
    void remove(const QString &path);
    /// All but the pinned ones.
    void clear();

signals:
    void changed();

private:
    void change(const std::function<void(QList<RecentFile> &)> &work);

    QString m_file;
};

} // namespace host::app
