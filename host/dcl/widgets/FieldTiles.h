#pragma once

#include "host/dcl/widgets/TileControl.h"

class QLabel;
class QLineEdit;
class QSlider;

namespace host::dcl {

class TileMetrics;

/// A field for a line of text. Its action is called when it is left with another text than it had when it was entered,
/// and with Enter, whatever it holds then.
class EditControl final : public TileControl
{
public:
    EditControl(const Tile &tile, const TileMetrics &metrics);
    QString value() const override;
    void setValue(const QString &value) override;
    void selectText() override;
    /// As when it is left: a text that nobody was told of is told.
    void tellLeft();
    /// What Enter does beyond the action.
    void setOnEnter(std::function<void(const EditControl &)> onEnter) { m_onEnter = std::move(onEnter); }

private:
    EditControl(const Tile &tile, const TileMetrics &metrics, QLineEdit *edit);
    bool eventFilter(QObject *object, QEvent *event) override;
    QLineEdit *edit() const;

    QString m_reported; ///< the text that a program set or was told last
    std::function<void(const EditControl &)> m_onEnter;
};

/// A slider, from "min_value" (left or bottom) to "max_value".
class SliderControl final : public TileControl
{
public:
    SliderControl(const Tile &tile, const TileMetrics &metrics);
    QString value() const override;
    void setValue(const QString &value) override;

private:
    SliderControl(const Tile &tile, const TileMetrics &metrics, QSlider *slider);
    QSlider *slider() const;
};

/// A text, of the size that its label and width had in the file: one that a program makes longer is cut.
class TextControl final : public TileControl
{
public:
    TextControl(const Tile &tile, const TileMetrics &metrics, Qt::Alignment alignment);
    QString value() const override;
    void setValue(const QString &value) override;

private:
    TextControl(const Tile &tile, Qt::Alignment alignment, QLabel *label);
};

} // namespace host::dcl
