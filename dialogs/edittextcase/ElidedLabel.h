#pragma once

#include <QLabel>

/// Shows a plain text in a fixed number of lines, broken anywhere if need be. What does not fit ends in "…" and is then
/// the label's tool tip. The width does not depend on the text.
class ElidedLabel final : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(int lineCount READ lineCount WRITE setLineCount)

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    int lineCount() const { return m_lineCount; }
    void setLineCount(int lines);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool paintLines();

    int m_lineCount = 1;
};
