#pragma once

#include "host/app/window/panels/PropertyModel.h"

#include <QTimer>
#include <QWidget>

#include <memory>

class QComboBox;
class QLabel;
class QTableView;

namespace host::app {

class WindowServices;

/// What the chosen entities are, and have in common; without any, what the next entity will have. A value that is
/// written is for all that are chosen, or all of one type, in one step to undo; what stands on locked layers stays as
/// it is, which is said. Input that is no value is refused below the table.
///
/// Many entities are looked through a piece at a time. Its parts are called "propertyType", "properties" and
/// "propertyMessage".
class PropertiesPanel final : public QWidget
{
    Q_OBJECT

public:
    PropertiesPanel(WindowServices &services, QWidget *parent);

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void buildTable();
    void editLine(const QModelIndex &index);
    /// Begins to look at what is chosen, where it or the drawing is other than before.
    void refresh();
    void goOn();
    void showLines();
    void showTypes();
    void showMessage();
    QByteArray type() const;
    void change(const PropertyLine &line, const QString &text);
    void chooseColour(const QModelIndex &index);
    /// Those of the chosen ones that a change is for: of the type, and not on locked layers.
    std::vector<drawing::RecordId> meant() const;
    void run(const QString &line, const std::vector<drawing::RecordId> &entities);

    WindowServices &m_services;
    PropertyModel m_model;
    QComboBox *m_type;
    QTableView *m_table;
    QLabel *m_message;
    std::unique_ptr<PropertySurvey> m_survey; ///< null where nothing is chosen
    QTimer m_more;                            ///< the survey goes on when it fires
    const void *m_document = nullptr;         ///< what is shown is of it
    quint64 m_revision = ~quint64(0);
    std::vector<drawing::RecordId> m_chosen;
    bool m_isChanging = false; ///< what is chosen is another for the moment
    QString m_error;           ///< of what was written last
};

} // namespace host::app
