#pragma once

#include "host/app/window/panels/PropertySurvey.h"

#include <QAbstractTableModel>

namespace host::kernel {
class Document;
}

namespace host::app {

/// One line of the properties: a heading, a property of what is chosen, or a system variable for what is drawn next.
struct PropertyLine
{
    QString name;
    QString text{};
    int property = -1;              ///< index into entityProperties(); -1 for what is none
    int axis = -1;                  ///< of a point's coordinate
    const char *variable = nullptr; ///< of what is current
    drawing::PropertyKind kind = drawing::PropertyKind::Text;
    bool isHeading = false;
    bool isTold = false; ///< it is shown and cannot be set

    bool operator==(const PropertyLine &) const = default;
    /// The same thing, whatever its value.
    bool isSame(const PropertyLine &other) const
    {
        return name == other.name && property == other.property && axis == other.axis && variable == other.variable;
    }
};

/// What the chosen entities have, under headings; of one type, or of all where `type` is empty.
std::vector<PropertyLine> surveyedLines(const kernel::Document &document, const PropertySurvey &survey,
                                        const QByteArray &type);
/// What the next entity will have.
std::vector<PropertyLine> currentLines(const kernel::Document &document);

/// The lines as a table of names and values. It changes nothing: what is written into a value is asked for with
/// changeWanted(), and shows when the drawing has it.
class PropertyModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// In place of those before; where only values differ, choice and place stay.
    void show(std::vector<PropertyLine> lines);
    const std::vector<PropertyLine> &lines() const { return m_lines; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

signals:
    void changeWanted(const host::app::PropertyLine &line, const QString &text);

private:
    std::vector<PropertyLine> m_lines;
};

} // namespace host::app
