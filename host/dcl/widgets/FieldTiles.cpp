#include "host/dcl/widgets/FieldTiles.h"

#include "host/dcl/widgets/TileCaption.h"
#include "host/dcl/widgets/TileMetrics.h"

#include <QBoxLayout>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

#include <algorithm>

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

/// What a line edit has around its text, on both sides together.
constexpr int editMargins = 12;
constexpr int usualEditLimit = 132;
constexpr int usualEditWidth = 8;
constexpr int usualSliderWidth = 16;
constexpr int farthestSlider = 10'000'000;

/// Label and field beside each other. A field of a width of its own stands at the right end.
QWidget *framed(const Tile &tile, QLineEdit &edit, const TileMetrics &metrics)
{
    auto *frame = new QWidget;
    auto *layout = new QHBoxLayout(frame);
    layout->setContentsMargins({});
    addLabel(*layout, tile, edit);
    const double characters = tile.number(u"edit_width"_s);
    if (characters > 0) {
        layout->addStretch();
        edit.setFixedWidth(metrics.width(characters) + editMargins);
    } else {
        edit.setMinimumWidth(metrics.width(usualEditWidth) + editMargins);
    }
    layout->addWidget(&edit, characters > 0 ? 0 : 1);
    askSize(*frame, tile, metrics);
    frame->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return frame;
}

QLineEdit *makeEdit(const Tile &tile)
{
    auto *edit = new QLineEdit;
    edit->setFont(fontOf(tile, edit->font()));
    edit->setMaxLength(tile.integer(u"edit_limit"_s, usualEditLimit, 1, 32767));
    edit->setText(tile.text(u"value"_s));
    if (!tile.text(u"password_char"_s).isEmpty())
        edit->setEchoMode(QLineEdit::Password);
    return edit;
}

QWidget *sliderFrame(const Tile &tile, QSlider &slider, const TileMetrics &metrics)
{
    auto *frame = new QWidget;
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins({});
    addLabel(*layout, tile, slider);
    layout->addWidget(&slider, 1);
    askSize(*frame, tile, metrics);
    const bool isVertical = slider.orientation() == Qt::Vertical;
    frame->setSizePolicy(isVertical ? QSizePolicy::Fixed : QSizePolicy::Expanding,
                         isVertical ? QSizePolicy::Expanding : QSizePolicy::Fixed);
    return frame;
}

QSlider *makeSlider(const Tile &tile, const TileMetrics &metrics)
{
    const bool isVertical = tile.word(u"layout"_s) == "vertical"_L1;
    auto *slider = new QSlider(isVertical ? Qt::Vertical : Qt::Horizontal);
    const int least = tile.integer(u"min_value"_s, 0, -farthestSlider, farthestSlider);
    const int most = std::max(least, tile.integer(u"max_value"_s, 10000, -farthestSlider, farthestSlider));
    slider->setRange(least, most);
    slider->setSingleStep(tile.integer(u"small_increment"_s, std::max(1, (most - least) / 100), 1, farthestSlider));
    slider->setPageStep(tile.integer(u"big_increment"_s, std::max(1, (most - least) / 10), 1, farthestSlider));
    slider->setValue(tile.text(u"value"_s).toInt());
    if (isVertical)
        slider->setMinimumHeight(metrics.height(5));
    else
        slider->setMinimumWidth(metrics.width(usualSliderWidth));
    slider->setFocusPolicy(Qt::StrongFocus);
    return slider;
}

/// A label that keeps the size it was made with.
class TextLabel final : public QLabel
{
public:
    TextLabel(const QString &text, QSize size) : QLabel(text), m_size(size) { setTextFormat(Qt::PlainText); }
    QSize sizeHint() const override { return m_size; }
    QSize minimumSizeHint() const override { return m_size; }

private:
    QSize m_size;
};

QLabel *makeText(const Tile &tile, const TileMetrics &metrics)
{
    const QString text = tile.text(tile.has(u"value"_s) ? u"value"_s : u"label"_s);
    QLabel measured(text.isEmpty() ? u" "_s : text);
    measured.setTextFormat(Qt::PlainText);
    measured.setFont(fontOf(tile, measured.font()));
    QSize size = measured.sizeHint();
    if (text.isEmpty())
        size.setWidth(0);
    auto *label = new TextLabel(text, size.expandedTo(metrics.asked(tile)));
    label->setFont(measured.font());
    return label;
}

} // namespace

EditControl::EditControl(const Tile &tile, const TileMetrics &metrics) : EditControl(tile, metrics, makeEdit(tile)) {}

EditControl::EditControl(const Tile &tile, const TileMetrics &metrics, QLineEdit *edit)
    : TileControl(tile, framed(tile, *edit, metrics), edit), m_reported(edit->text())
{
    edit->installEventFilter(this);
}

QLineEdit *EditControl::edit() const
{
    return static_cast<QLineEdit *>(field());
}

QString EditControl::value() const
{
    return edit()->text();
}

void EditControl::setValue(const QString &value)
{
    edit()->setText(value);
    m_reported = edit()->text();
}

void EditControl::selectText()
{
    giveFocus();
    edit()->selectAll();
}

void EditControl::tellLeft()
{
    if (edit()->text() == m_reported)
        return;
    m_reported = edit()->text();
    report(Reason::Left);
}

bool EditControl::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            m_reported = edit()->text();
            report(Reason::Chosen);
            if (m_onEnter)
                m_onEnter(*this);
            return true;
        }
    }
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason why = static_cast<QFocusEvent *>(event)->reason();
        const bool isLeft = why != Qt::ActiveWindowFocusReason && why != Qt::PopupFocusReason;
        if (isLeft)
            tellLeft();
    }
    return TileControl::eventFilter(object, event);
}

SliderControl::SliderControl(const Tile &tile, const TileMetrics &metrics)
    : SliderControl(tile, metrics, makeSlider(tile, metrics))
{
}

SliderControl::SliderControl(const Tile &tile, const TileMetrics &metrics, QSlider *slider)
    : TileControl(tile, sliderFrame(tile, *slider, metrics), slider)
{
    connect(slider, &QSlider::valueChanged, this,
            [this, slider] { report(slider->isSliderDown() ? Reason::Dragged : Reason::Chosen); });
    connect(slider, &QSlider::sliderReleased, this, [this] { report(Reason::Chosen); });
}

QSlider *SliderControl::slider() const
{
    return static_cast<QSlider *>(field());
}

QString SliderControl::value() const
{
    return QString::number(slider()->value());
}

void SliderControl::setValue(const QString &value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber)
        return;
    const QSignalBlocker quiet(slider());
    slider()->setValue(int(std::clamp(number, double(slider()->minimum()), double(slider()->maximum()))));
    slider()->update();
}

TextControl::TextControl(const Tile &tile, const TileMetrics &metrics, Qt::Alignment alignment)
    : TextControl(tile, alignment, makeText(tile, metrics))
{
}

TextControl::TextControl(const Tile &tile, Qt::Alignment alignment, QLabel *label) : TileControl(tile, label, label)
{
    label->setAlignment(alignment | Qt::AlignVCenter);
    label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QString TextControl::value() const
{
    return static_cast<QLabel *>(field())->text();
}

void TextControl::setValue(const QString &value)
{
    static_cast<QLabel *>(field())->setText(value);
}

} // namespace host::dcl
