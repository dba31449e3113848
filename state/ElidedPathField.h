#pragma once

#include <QObject>

class QLineEdit;

/// Makes a line edit of a path show it shortened in the middle, while the whole path is in the edit's property
/// "value", which the state file is written from. While the edit has the keyboard focus it shows the whole path.
class ElidedPathField : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `edit`.
    explicit ElidedPathField(QLineEdit *edit);

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
