#pragma once

#include <QObject>

class QLabel;

/// Makes a label of a path show it shortened in the middle to its width. The whole path is the label's tool tip and its
/// property "value".
///
/// A label writes nothing to a state file, but takes a value from one.
class ElidedPathLabel : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `label`.
    explicit ElidedPathLabel(QLabel *label);

    /// Takes `path` as it is, and shows it.
    void setFullPath(const QString &path);
    /// Takes what an applied state put into the label, if anything.
    void takeText();
    /// The path as of the last setFullPath() or takeText().
    QString fullPath() const;
    /// Object name of the label.
    QString name() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void show();

    QLabel *m_label;
    QString m_shown;
};
