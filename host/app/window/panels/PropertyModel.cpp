#include "host/app/window/panels/PropertyModel.h"

#include "host/app/window/panels/PropertyTexts.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QCoreApplication>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

using drawing::PropertyKind;
using drawing::PropertySection;

QString lineText(const char *text)
{
    return QCoreApplication::translate("Properties", text);
}

constexpr std::pair<PropertySection, const char *> sections[] = {
    {PropertySection::General, QT_TRANSLATE_NOOP("Properties", "General")},
    {PropertySection::Geometry, QT_TRANSLATE_NOOP("Properties", "Geometry")},
    {PropertySection::Text, QT_TRANSLATE_NOOP("Properties", "Text")},
    {PropertySection::Misc, QT_TRANSLATE_NOOP("Properties", "Misc")},
};

/// A line, or one for each coordinate of a point.
void addLines(std::vector<PropertyLine> &lines, const kernel::Document &document, int property,
              const SurveyedValue &value)
{
    const drawing::EntityProperty &row = drawing::entityProperties()[property];
    const bool isPoint = row.kind == PropertyKind::Point || row.kind == PropertyKind::Vector;
    for (int axis = 0; axis < (isPoint ? 3 : 1); ++axis) {
        static constexpr const char *axes[] = {" X", " Y", " Z"};
        const QString name = lineText(row.label) + (isPoint ? QString::fromLatin1(axes[axis]) : QString());
        lines.push_back({.name = name,
                         .text = surveyedText(document, row.kind, value, axis),
                         .property = property,
                         .axis = isPoint ? axis : -1,
                         .kind = row.kind,
                         .isTold = value.isTold});
    }
}

struct CurrentRow
{
    const char *variable;
    const char *label;
    PropertyKind kind;
};

constexpr CurrentRow currentRows[] = {
    {"CECOLOR", QT_TRANSLATE_NOOP("Properties", "Color"), PropertyKind::Colour},
    {"CLAYER", QT_TRANSLATE_NOOP("Properties", "Layer"), PropertyKind::Layer},
    {"CELTYPE", QT_TRANSLATE_NOOP("Properties", "Linetype"), PropertyKind::Linetype},
    {"CELTSCALE", QT_TRANSLATE_NOOP("Properties", "Linetype scale"), PropertyKind::Number},
    {"CELWEIGHT", QT_TRANSLATE_NOOP("Properties", "Lineweight"), PropertyKind::Weight},
    {"THICKNESS", QT_TRANSLATE_NOOP("Properties", "Thickness"), PropertyKind::Length},
    {"TEXTSTYLE", QT_TRANSLATE_NOOP("Properties", "Text style"), PropertyKind::TextStyle},
    {"DIMSTYLE", QT_TRANSLATE_NOOP("Properties", "Dimension style"), PropertyKind::DimensionStyle},
};

QString currentText(const kernel::Document &document, const CurrentRow &row)
{
    const kernel::SystemVariables &variables = document.variables();
    const QString name = QString::fromLatin1(row.variable);
    switch (row.kind) {
    case PropertyKind::Colour:
        return colourOfVariable(variables.text(name));
    case PropertyKind::Weight:
        return entityWeightText(variables.integer(name, -1));
    case PropertyKind::Number:
    case PropertyKind::Length:
        return valueText(document, row.kind, variables.real(name));
    default:
        return variables.text(name);
    }
}

} // namespace

std::vector<PropertyLine> surveyedLines(const kernel::Document &document, const PropertySurvey &survey,
                                        const QByteArray &type)
{
    std::vector<PropertyLine> lines;
    const std::span<const drawing::EntityProperty> properties = drawing::entityProperties();
    for (const auto &[section, title] : sections) {
        const std::size_t heading = lines.size();
        for (std::size_t i = 0; i < properties.size(); ++i) {
            if (properties[i].section != section || !properties[i].label)
                continue;
            const SurveyedValue value = survey.value(type, i);
            if (value.count > 0 && (value.common || value.varies))
                addLines(lines, document, int(i), value);
        }
        if (lines.size() > heading)
            lines.insert(lines.begin() + std::ptrdiff_t(heading), {.name = lineText(title), .isHeading = true});
    }
    return lines;
}

std::vector<PropertyLine> currentLines(const kernel::Document &document)
{
    std::vector<PropertyLine> lines = {
        {.name = lineText(QT_TRANSLATE_NOOP("Properties", "Of what is drawn next")), .isHeading = true}};
    for (const CurrentRow &row : currentRows)
        lines.push_back({.name = lineText(row.label),
                         .text = currentText(document, row),
                         .variable = row.variable,
                         .kind = row.kind});
    return lines;
}

void PropertyModel::show(std::vector<PropertyLine> lines)
{
    const bool isSame = std::ranges::equal(
        m_lines, lines, [](const PropertyLine &left, const PropertyLine &right) { return left.isSame(right); });
    if (!isSame) {
        beginResetModel();
        m_lines = std::move(lines);
        endResetModel();
        return;
    }
    for (int row = 0; row < int(lines.size()); ++row) {
        if (m_lines[row] == lines[row])
            continue;
        m_lines[row] = lines[row];
        emit dataChanged(index(row, 0), index(row, 1));
    }
}

int PropertyModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_lines.size());
}

int PropertyModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant PropertyModel::data(const QModelIndex &index, int role) const
{
    const PropertyLine &line = m_lines[index.row()];
    const bool isValue = index.column() == 1;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return isValue ? line.text : line.name;
    case Qt::ToolTipRole:
        return isValue ? Qt::convertFromPlainText(line.text, Qt::WhiteSpaceNormal) : line.name;
    case Qt::AccessibleTextRole:
        return isValue ? u"%1: %2"_s.arg(line.name, line.text) : line.name;
    case Qt::DecorationRole:
        return isValue && line.kind == PropertyKind::Colour ? QVariant(colourTextIcon(line.text)) : QVariant();
    case Qt::FontRole: {
        QFont font;
        font.setBold(true);
        return line.isHeading ? QVariant(font) : QVariant();
    }
    case Qt::BackgroundRole:
        return line.isHeading ? QVariant(QGuiApplication::palette().brush(QPalette::Button)) : QVariant();
    case Qt::ForegroundRole:
        return isValue && line.isTold ? QVariant(QGuiApplication::palette().brush(QPalette::PlaceholderText))
                                      : QVariant();
    default:
        return {};
    }
}

QVariant PropertyModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == 0 ? lineText(QT_TRANSLATE_NOOP("Properties", "Property"))
                        : lineText(QT_TRANSLATE_NOOP("Properties", "Value"));
}

Qt::ItemFlags PropertyModel::flags(const QModelIndex &index) const
{
    const PropertyLine &line = m_lines[index.row()];
    if (line.isHeading)
        return Qt::ItemIsEnabled;
    const Qt::ItemFlags always = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return index.column() == 1 && !line.isTold ? always | Qt::ItemIsEditable : always;
}

bool PropertyModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable))
        return false;
    const PropertyLine line = m_lines[index.row()];
    if (value.toString() != line.text)
        emit changeWanted(line, value.toString());
    return true;
}

} // namespace host::app
