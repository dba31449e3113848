#pragma once

#include <QObject>

class QLineEdit;

/// Makes a line edit of a path show it shortened in the middle, while the whole path is in the edit's property
/// "value", which the state file is written from. While the edit has the keyboard focus it shows the whole path.
///
/// A dialog holds it as a member, so that it goes before the dialog does: an open dialog that is destroyed takes the
/// focus from the edit when nothing of it is left that could hear of a path.
class ElidedPathField : public QObject
{
    Q_OBJECT

public:
    /// `edit` is not owned.
    explicit ElidedPathField(QLineEdit *edit);

    /// Whether `edit` belongs to one.
    static bool isOne(const QLineEdit &edit);

    /// Takes `path` as it is, and shows it.
    void setFullPath(const QString &path);
    /// The path as of the last setFullPath(), applied state, or finished input.
    QString fullPath() const;
    /// Takes what the edit shows as the path, as when the user finishes with Return; a text that holds U+2026 is
    /// a shortened one and not taken.
    void takeText();

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The user finished with the field, by Return or by leaving it; the path may be the one before.
    void pathEntered();

private:
    bool showsStoredPath() const;
    void show();

    QLineEdit *m_edit;
};
