#pragma once

#include <QObject>

class QLineEdit;

/// Makes the state of a dialog have what the user types. In every line edit with a name, but for those of paths (see
/// ElidedPathField) and within other widgets, the full text follows what is typed, so that dots in it are no shortened
/// text, and a field that is worked on shows its text whole; left again, it shows it shortened to its width.
///
/// A dialog holds it as a member: see ElidedPathField.
class TypedFields : public QObject
{
    Q_OBJECT

public:
    /// For the line edits that `dialog` has now.
    explicit TypedFields(const QWidget &dialog);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
