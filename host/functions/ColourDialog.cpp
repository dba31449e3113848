#include "host/functions/ColourDialog.h"

#include "host/view/display/AciColor.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace host::kernel {

namespace {

constexpr int byBlockIndex = 0;
constexpr int byLayerIndex = 256;
constexpr int lastIndex = 255;
constexpr int swatchSize = 16;
// The first nine and the greys stand in rows of their own; between them a hue has a column of ten.
constexpr int firstHue = 10;
constexpr int firstGrey = 250;
constexpr int shadesOfHue = 10;

const QStringList &colourNames()
{
    static const QStringList names = {QStringLiteral("BYBLOCK"), QStringLiteral("RED"),  QStringLiteral("YELLOW"),
                                      QStringLiteral("GREEN"),   QStringLiteral("CYAN"), QStringLiteral("BLUE"),
                                      QStringLiteral("MAGENTA"), QStringLiteral("WHITE")};
    return names;
}

QString shownColour(const ChosenColour &colour)
{
    if (colour.trueColour)
        return QColor(*colour.trueColour).name();
    if (colour.index == byLayerIndex)
        return QStringLiteral("BYLAYER");
    return colour.index == byBlockIndex ? QStringLiteral("BYBLOCK") : QString::number(colour.index);
}

/// Row and column.
std::pair<int, int> placeInTable(int index)
{
    if (index < firstHue)
        return {0, index - 1};
    if (index >= firstGrey)
        return {1 + shadesOfHue, index - firstGrey};
    return {1 + index % shadesOfHue, index / shadesOfHue - 1};
}

QToolButton *madeSwatchButton(int index, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(QStringLiteral("colour_%1").arg(index));
    button->setFixedSize(swatchSize, swatchSize);
    button->setToolTip(QString::number(index));
    const QColor colour = view::aciColor(index, view::shownGround());
    button->setStyleSheet(QStringLiteral("QToolButton { background: %1; border: 1px solid gray; }").arg(colour.name()));
    return button;
}

} // namespace

std::optional<int> colourNumber(const QString &text, bool allowsLogical)
{
    const QString word = text.trimmed().toUpper();
    bool isNumber = false;
    int number = word.toInt(&isNumber);
    if (!isNumber)
        number = word == QStringLiteral("BYLAYER") ? byLayerIndex : static_cast<int>(colourNames().indexOf(word));
    const bool isLogical = number == byBlockIndex || number == byLayerIndex;
    const bool isKnown = number >= byBlockIndex && number <= byLayerIndex && (allowsLogical || !isLogical);
    return isKnown ? std::optional(number) : std::nullopt;
}

int nearestIndex(QRgb colour)
{
    const auto distance = [colour](int index) {
        const QRgb other = view::aciColor(index, view::shownGround()).rgb();
        const int red = qRed(colour) - qRed(other);
        const int green = qGreen(colour) - qGreen(other);
        const int blue = qBlue(colour) - qBlue(other);
        return red * red + green * green + blue * blue;
    };
    int nearest = 1;
    for (int index = 1; index <= lastIndex; ++index)
        if (distance(index) < distance(nearest))
            nearest = index;
    return nearest;
}

ColourDialog::ColourDialog(QWidget *parent, const ChosenColour &present, ColourChoice choice)
    : QDialog(parent), m_choice(choice), m_chosen(present)
{
    setObjectName(QStringLiteral("colourDialog"));
    setWindowTitle(tr("Select Color"));
    auto *all = new QVBoxLayout(this);
    all->addWidget(madeTable());
    all->addWidget(madeWords(choice));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    all->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_field->setText(shownColour(present));
    m_field->selectAll();
    m_field->setFocus();
    connect(m_field, &QLineEdit::textEdited, this, &ColourDialog::read);
}

QWidget *ColourDialog::madeTable()
{
    auto *table = new QWidget(this);
    auto *grid = new QGridLayout(table);
    grid->setSpacing(1);
    for (int index = 1; index <= lastIndex; ++index) {
        QToolButton *button = madeSwatchButton(index, table);
        const auto [row, column] = placeInTable(index);
        grid->addWidget(button, row, column);
        connect(button, &QToolButton::clicked, this, [this, index] { choose({.index = index}); });
    }
    return table;
}

QWidget *ColourDialog::madeWords(ColourChoice choice)
{
    auto *words = new QWidget(this);
    auto *row = new QHBoxLayout(words);
    const auto add = [&](const char *name, const QString &text, const auto &action) {
        auto *button = new QPushButton(text, words);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        row->addWidget(button);
        connect(button, &QPushButton::clicked, this, action);
    };
    if (choice.hasLogical) {
        add("byLayer", tr("By&Layer"), [this] { choose({.index = byLayerIndex}); });
        add("byBlock", tr("By&Block"), [this] { choose({.index = byBlockIndex}); });
    }
    if (choice.hasTrue)
        add("more", tr("&More Colors..."), [this] { chooseTrue(); });
    auto *label = new QLabel(tr("&Color:"), words);
    m_field = new QLineEdit(words);
    m_field->setObjectName(QStringLiteral("colour"));
    label->setBuddy(m_field);
    row->addStretch();
    row->addWidget(label);
    row->addWidget(m_field);
    return words;
}

void ColourDialog::choose(const ChosenColour &colour)
{
    m_chosen = colour;
    m_field->setText(shownColour(colour));
    m_ok->setEnabled(true);
}

void ColourDialog::read(const QString &text)
{
    const std::optional<int> number = colourNumber(text, m_choice.hasLogical);
    m_ok->setEnabled(number.has_value());
    if (number)
        m_chosen = {.index = *number};
}

void ColourDialog::chooseTrue()
{
    const QRgb present = m_chosen.trueColour.value_or(view::aciColor(m_chosen.index, view::shownGround()).rgb());
    QColorDialog dialog(QColor(present), this);
    dialog.setObjectName(QStringLiteral("trueColourDialog"));
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QRgb colour = dialog.selectedColor().rgb();
    choose({.index = nearestIndex(colour), .trueColour = colour});
}

} // namespace host::kernel
