#include "host/drawing/references/PlotStyleFile.h"

#include "files/qt/Files.h"

#include <QStringDecoder>

#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace host::drawing {

namespace {

constexpr qsizetype largestCompressed = 64 << 10;
constexpr qsizetype largestText = 4 << 20;
constexpr int colourCount = 255;
constexpr int heaviest = 211;

/// The values of one group of braces, by their keys, and the groups within.
struct PlotGroup
{
    std::map<QString, QString> values{};
    std::vector<std::pair<QString, PlotGroup>> groups{};

    QString text(const QString &key) const
    {
        const auto found = values.find(key);
        return found == values.end() ? QString() : found->second;
    }
    std::optional<double> number(const QString &key) const
    {
        bool isNumber = false;
        const double value = text(key).toDouble(&isNumber);
        return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
    }
    const PlotGroup *group(QStringView name) const
    {
        for (const auto &[key, group] : groups)
            if (key == name)
                return &group;
        return nullptr;
    }
};

/// Groups within groups within the file are as deep as the format goes; deeper ones are read over.
PlotGroup readGroups(const QString &text)
{
    constexpr std::size_t deepest = 4;
    PlotGroup root;
    std::vector<PlotGroup *> open{&root};
    std::size_t tooDeep = 0;
    for (QStringView line : QStringView(text).split(u'\n')) {
        line = line.trimmed();
        if (line == u"}") {
            if (tooDeep > 0)
                --tooDeep;
            else if (open.size() > 1)
                open.pop_back();
        } else if (line.endsWith(u'{') && !line.contains(u'=')) {
            if (open.size() == deepest || tooDeep > 0) {
                ++tooDeep;
                continue;
            }
            PlotGroup &outer = *open.back();
            outer.groups.emplace_back(line.chopped(1).trimmed().toString(), PlotGroup{});
            open.push_back(&outer.groups.back().second);
        } else if (const qsizetype equals = line.indexOf(u'='); equals > 0 && tooDeep == 0) {
            QStringView value = line.sliced(equals + 1);
            if (value.startsWith(u'"'))
                value = value.sliced(1);
            open.back()->values.insert_or_assign(line.first(equals).toString(), value.toString());
        }
    }
    return root;
}

/// Where the compressed content begins: behind the header and three numbers, which writers give four or eight bytes.
qsizetype contentStart(const QByteArray &bytes)
{
    constexpr qsizetype headerSize = 48;
    for (const qsizetype start : {headerSize + 12, headerSize + 24}) {
        if (start + 2 > bytes.size())
            continue;
        const int first = static_cast<unsigned char>(bytes[start]);
        const int second = static_cast<unsigned char>(bytes[start + 1]);
        constexpr int deflated = 8;
        if ((first & 15) == deflated && (first * 256 + second) % 31 == 0)
            return start;
    }
    return -1;
}

QString decodedText(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return decoder.hasError() ? QString::fromLatin1(bytes) : text;
}

/// A colour is a number of four bytes: its kind and red, green, blue. -1 is the entity's own, as the kinds by layer and
/// by block are.
std::optional<quint32> readColour(const PlotGroup &group)
{
    constexpr qint64 byLayer = 0xC0;
    constexpr qint64 byBlock = 0xC1;
    const QString key = group.values.contains(u"mode_color"_s) ? u"mode_color"_s : u"color"_s;
    const auto value = group.number(key);
    if (!value || *value == -1.0 || std::abs(*value) > 4294967296.0)
        return {};
    const auto bits = static_cast<qint64>(*value);
    const qint64 kind = (bits >> 24) & 0xff;
    if (kind == byLayer || kind == byBlock)
        return {};
    return static_cast<quint32>(bits & 0xffffff);
}

PlotStyle readStyle(const PlotGroup &group, const std::vector<int> &weights)
{
    constexpr int greyPolicy = 2;
    PlotStyle style{.name = group.text(u"name"_s), .colour = readColour(group)};
    style.isGrey =
        (static_cast<int>(std::clamp(group.number(u"color_policy"_s).value_or(0.0), 0.0, 255.0)) & greyPolicy) != 0;
    style.screening = static_cast<int>(std::clamp(group.number(u"screen"_s).value_or(100.0), 0.0, 100.0));
    const double linetype = group.number(u"linetype"_s).value_or(-1.0);
    if (linetype >= 0.0 && linetype < static_cast<double>(plotLinetypes().size()))
        style.linetype = static_cast<int>(linetype);
    // The first weight of the list stands for the entity's own.
    const double weight = group.number(u"lineweight"_s).value_or(0.0);
    if (weight >= 1.0 && weight < static_cast<double>(weights.size()))
        style.lineweight = weights[static_cast<std::size_t>(weight)];
    return style;
}

/// In hundredths of a millimetre, by their places.
std::vector<int> readWeights(const PlotGroup &root)
{
    constexpr int mostWeights = 1000;
    std::vector<int> weights;
    const PlotGroup *list = root.group(u"custom_lineweight_table");
    if (!list)
        return weights;
    for (const auto &[key, text] : list->values) {
        bool isPlace = false;
        const int place = key.toInt(&isPlace);
        const auto value = list->number(key);
        if (!isPlace || place < 0 || place >= mostWeights || !value)
            continue;
        if (weights.size() <= static_cast<std::size_t>(place))
            weights.resize(static_cast<std::size_t>(place) + 1, PlotStyle::ownLineweight);
        weights[static_cast<std::size_t>(place)] =
            static_cast<int>(std::lround(std::clamp(*value, 0.0, heaviest / 100.0) * 100.0));
    }
    return weights;
}

PlotStyleReading refusedTable(const char *reason)
{
    return {.error = QString::fromLatin1(reason)};
}

std::vector<PlotStyle> colourStyles(const PlotStyle &style)
{
    std::vector<PlotStyle> styles(colourCount, style);
    for (int i = 0; i < colourCount; ++i)
        styles[static_cast<std::size_t>(i)].name = u"Color_%1"_s.arg(i + 1);
    return styles;
}

} // namespace

PlotStyleTable::PlotStyleTable(bool isByColour, std::vector<PlotStyle> styles)
    : m_isByColour(isByColour), m_styles(std::move(styles))
{
    for (std::size_t i = 0; i < m_styles.size(); ++i)
        if (const QString key = m_styles[i].name.toCaseFolded(); !m_byName.contains(key))
            m_byName.insert(key, static_cast<int>(i));
}

const PlotStyle *PlotStyleTable::ofColour(int index) const
{
    const auto place = static_cast<std::size_t>(index - 1);
    return m_isByColour && index > 0 && place < m_styles.size() ? &m_styles[place] : nullptr;
}

const PlotStyle *PlotStyleTable::named(const QString &name) const
{
    const auto found = m_byName.constFind(name.toCaseFolded());
    return !m_isByColour && found != m_byName.constEnd() ? &m_styles[static_cast<std::size_t>(*found)] : nullptr;
}

PlotStyleReading readPlotStyles(const QByteArray &bytes)
{
    const qsizetype lineEnd = bytes.indexOf('\n');
    const QByteArray head = bytes.first(std::max<qsizetype>(lineEnd, 0)).trimmed();
    const bool isByColour = head.contains(",CTBVER");
    if (!head.startsWith("PIAFILEVERSION_2") || (!isByColour && !head.contains(",STBVER")))
        return refusedTable("it is no table of plot styles");
    const qsizetype start = contentStart(bytes);
    if (start < 0)
        return refusedTable("its content cannot be unpacked");
    if (bytes.size() - start > largestCompressed)
        return refusedTable("it is too large for a table of plot styles");
    // What Qt takes begins with the size, which may be a guess.
    const QByteArray text = qUncompress(QByteArray("\0\4\0\0", 4) + bytes.sliced(start));
    if (text.isEmpty() || text.size() > largestText)
        return refusedTable("its content cannot be unpacked");
    const PlotGroup root = readGroups(decodedText(text));
    const std::vector<int> weights = readWeights(root);
    std::vector<PlotStyle> styles(isByColour ? colourCount : 0);
    const PlotGroup *list = root.group(u"plot_style");
    if (!list)
        return refusedTable("it holds no plot styles");
    for (const auto &[place, group] : list->groups) {
        bool isPlace = false;
        const int number = place.toInt(&isPlace);
        if (!isByColour)
            styles.push_back(readStyle(group, weights));
        else if (isPlace && number >= 0 && number < colourCount)
            styles[static_cast<std::size_t>(number)] = readStyle(group, weights);
    }
    return {.table = PlotStyleTable(isByColour, std::move(styles))};
}

PlotStyleReading readPlotStyleFile(const QString &path)
{
    const files::WholeBytes file = files::readWhole(path, largestText);
    return file ? readPlotStyles(file.bytes) : PlotStyleReading{.error = file.reason};
}

std::optional<PlotStyleTable> builtInPlotStyles(const QString &name)
{
    const QString key = name.toLower();
    const PlotStyle black{.name = u"Black"_s, .colour = 0};
    if (key == "monochrome.stb"_L1)
        return PlotStyleTable(false, {PlotStyle{.name = u"Normal"_s, .colour = 0}, black});
    const QString stem = key.endsWith(".ctb"_L1) ? key.chopped(4) : key;
    if (stem == "monochrome"_L1)
        return PlotStyleTable(true, colourStyles(black));
    if (stem == "grayscale"_L1)
        return PlotStyleTable(true, colourStyles({.isGrey = true}));
    for (const int part : {25, 50, 75, 100})
        if (stem == u"screening %1%"_s.arg(part) || stem == u"screening %1"_s.arg(part))
            return PlotStyleTable(true, colourStyles({.screening = part}));
    return {};
}

const std::vector<std::vector<double>> &plotLinetypes()
{
    static const std::vector<std::vector<double>> linetypes = {
        {},                                           // solid
        {2.5, -2.5},                                  // dashed
        {0, -1},                                      // dotted
        {2.5, -1.25, 0, -1.25},                       // dash dot
        {1.25, -1.25},                                // short dash
        {5, -2.5},                                    // medium dash
        {10, -2.5},                                   // long dash
        {2.5, -2.5},                                  // short dash, twice as large
        {10, -5},                                     // medium dash, twice as large
        {20, -5},                                     // long dash, twice as large
        {10, -2.5, 5, -2.5},                          // medium and long dash
        {5, -1.25, 1.25, -1.25, 1.25, -1.25},         // medium, short, short
        {10, -1.25, 1.25, -1.25},                     // long, short
        {10, -1.25, 0, -1.25, 0, -1.25},              // long, dot, dot
        {10, -1.25, 0, -1.25},                        // long, dot
        {5, -1.25, 0, -1.25, 1.25, -1.25, 0, -1.25},  // medium, dot, short, dot
        {0, -2.5},                                    // sparse dots
        {6, -1.5},                                    // ISO dash
        {6, -9},                                      // ISO dash, space
        {12, -1.5, 0, -1.5},                          // ISO long dash, dot
        {12, -1.5, 0, -1.5, 0, -1.5},                 // ISO long dash, two dots
        {12, -1.5, 0, -1.5, 0, -1.5, 0, -1.5},        // ISO long dash, three dots
        {0, -1.5},                                    // ISO dots
        {12, -1.5, 3, -1.5},                          // ISO long dash, short dash
        {12, -1.5, 3, -1.5, 3, -1.5},                 // ISO long dash, two short ones
        {6, -1.5, 0, -1.5},                           // ISO dash, dot
        {6, -1.5, 6, -1.5, 0, -1.5},                  // ISO two dashes, dot
        {6, -1.5, 0, -1.5, 0, -1.5},                  // ISO dash, two dots
        {6, -1.5, 6, -1.5, 0, -1.5, 0, -1.5},         // ISO two dashes, two dots
        {6, -1.5, 0, -1.5, 0, -1.5, 0, -1.5},         // ISO dash, three dots
        {6, -1.5, 6, -1.5, 0, -1.5, 0, -1.5, 0, -1.5} // ISO two dashes, three dots
    };
    return linetypes;
}

} // namespace host::drawing
