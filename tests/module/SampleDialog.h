#pragma once

#include "state/ToolDialog.h"

#include <QLineEdit>

namespace ortakit::test {

/// A tool's dialog with one field, "name", and a list that Lisp hands over.
class SampleDialog final : public ToolDialog
{
public:
    explicit SampleDialog(QWidget *parent) : ToolDialog(parent, QStringLiteral("breakline"))
    {
        setWindowTitle(QStringLiteral("Sample"));
        name->setObjectName(QStringLiteral("name"));
        ++alive;
        ++made;
    }
    ~SampleDialog() override { --alive; }

    QLineEdit *name = new QLineEdit(this);
    QStringList entries;

    /// How many exist now, and how many were ever made.
    static inline int alive = 0;
    static inline int made = 0;

protected:
    Reentry reentry() const override { return Reentry::WholeState; }
};

} // namespace ortakit::test
