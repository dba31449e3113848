#pragma once

#include "host/dcl/widgets/TileControl.h"

class QAbstractButton;
class QPushButton;

namespace host::dcl {

class TileMetrics;

/// A button. A program that sets its value writes on it.
class ButtonControl final : public TileControl
{
public:
    ButtonControl(const Tile &tile, const TileMetrics &metrics);
    void setValue(const QString &value) override;

private:
    ButtonControl(const Tile &tile, const TileMetrics &metrics, QPushButton *button);
};

/// A toggle or a radio button: "1" or "0".
class CheckControl final : public TileControl
{
public:
    CheckControl(const Tile &tile, const TileMetrics &metrics);
    QString value() const override;
    void setValue(const QString &value) override;
    QAbstractButton *button() const;

private:
    CheckControl(const Tile &tile, const TileMetrics &metrics, QAbstractButton *button);
};

} // namespace host::dcl
