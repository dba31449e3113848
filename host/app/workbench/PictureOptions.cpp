#include "host/app/workbench/PictureOptions.h"

#include "host/view/paint/PaperSizes.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using view::ExportOptions;

constexpr double smallestPaper = 10.0; ///< millimetres
constexpr double largestPaper = 5000.0;
constexpr int mostPixels = 16'000;

std::optional<QSizeF> twoNumbers(const QString &text)
{
    static const QRegularExpression form(u"^([0-9]+(?:\\.[0-9]+)?)[xX]([0-9]+(?:\\.[0-9]+)?)$"_s);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return {};
    return QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble());
}

bool isPaper(const QSizeF &size)
{
    const auto [low, high] = std::minmax({size.width(), size.height()});
    return low >= smallestPaper && high <= largestPaper;
}

std::optional<double> positiveNumber(const QString &text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber && std::isfinite(value) && value > 0.0 ? std::optional(value) : std::nullopt;
}

} // namespace

QString setScale(PictureOptions &options, const QString &value)
{
    const auto paper = positiveNumber(value.section(u':', 0, 0));
    // A number alone could be meant either way about.
    const auto units = positiveNumber(value.section(u':', 1));
    const double scale = paper && units ? *paper / *units : 0.0;
    if (!(scale >= 1e-9 && scale <= 1e9))
        return u"--scale takes millimetres on the sheet to drawing units, as 1:50, not \"%1\""_s.arg(value);
    options.as.sheet.scale = scale;
    return {};
}

QString setPaper(PictureOptions &options, const QString &value)
{
    QString name = value;
    std::optional<bool> isAcross;
    for (const auto &[ending, across] : {std::pair{u"-landscape"_s, true}, std::pair{u"-portrait"_s, false}}) {
        if (name.endsWith(ending, Qt::CaseInsensitive)) {
            name.chop(ending.size());
            isAcross = across;
        }
    }
    std::optional<QSizeF> size = twoNumbers(name);
    options.as.sheet.turnsPaper = !size && !isAcross;
    if (!size)
        size = view::namedPaper(name);
    if (!size || !isPaper(*size))
        return u"--paper takes A0 to A6, B0 to B6, ANSI-A to ANSI-E, ARCH-A to ARCH-E1 or millimetres from 10 to 5000 "
               u"as 420x297, with -landscape or -portrait behind, not \"%1\""_s.arg(value);
    if (isAcross && *isAcross != (size->width() > size->height()))
        size->transpose();
    options.as.sheet.paper = size;
    return {};
}

QString setSize(PictureOptions &options, const QString &value)
{
    const auto size = twoNumbers(value);
    const QSize pixels = size ? size->toSize() : QSize();
    const auto [low, high] = std::minmax({pixels.width(), pixels.height()});
    if (!size || value.contains(u'.') || low < 1 || high > mostPixels)
        return u"--size takes pixels from 1 to %1 as 2000x1400, not \"%2\""_s.arg(mostPixels).arg(value);
    options.as.pixels = pixels;
    return {};
}

QString setResolution(PictureOptions &options, const QString &value)
{
    options.as.dotsPerInch = value.toDouble();
    return {};
}

QString setPictureGround(PictureOptions &options, const QString &value)
{
    options.as.ground = value == "black"_L1 ? view::Ground::Black : view::Ground::White;
    return {};
}

QString setWindow(PictureOptions &options, const QString &value)
{
    drawing::Box box;
    const QStringList parts = value.split(u',');
    bool isGood = parts.size() == 4;
    for (qsizetype i = 0; isGood && i < 4; i += 2) {
        bool hasX = false;
        bool hasY = false;
        const drawing::Vec3 corner{parts[i].toDouble(&hasX), parts[i + 1].toDouble(&hasY), 0.0};
        isGood = hasX && hasY && std::abs(corner.x) <= 1e15 && std::abs(corner.y) <= 1e15;
        box.add(corner);
    }
    if (!isGood || !(box.low.x < box.high.x) || !(box.low.y < box.high.y))
        return u"--window takes two corners as 0,0,420,297, not \"%1\""_s.arg(value);
    options.as.sheet.window = box;
    return {};
}

QString setTextForm(PictureOptions &options, const QString &value)
{
    options.as.text = value == "text"_L1 ? view::TextForm::Letters : view::TextForm::Outlines;
    return {};
}

QString pictureConflict(const PictureOptions &options, const QString &extension)
{
    const QStringList &given = options.given;
    if (extension == "dxf"_L1 && !given.isEmpty())
        return u"%1 is for pictures, and %2 is none"_s.arg(given.first(), extension);
    for (const QString &option : {u"--size"_s, u"--dpi"_s})
        if (extension == "pdf"_L1 && given.contains(option))
            return u"%1 is for png and svg: a pdf has its sheet, see --paper"_s.arg(option);
    if (extension == "png"_L1 && given.contains(u"--text"_s))
        return u"--text is for pdf and svg: a png has no letters"_s;
    if (given.contains(u"--size"_s) && given.contains(u"--dpi"_s))
        return u"--size and --dpi exclude each other"_s;
    return {};
}

} // namespace host::app
