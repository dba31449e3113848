#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;
class QTableView;

namespace host::app {

class ResultsModel;
class WindowServices;

/// What the last tool that keeps a list of its results did in the drawing in front, and what it left alone. A row that
/// is chosen is shown on the canvas, and its entity becomes the one that is chosen; the list is saved as text or JSON.
class ResultsPanel final : public QWidget
{
    Q_OBJECT

public:
    ResultsPanel(WindowServices &services, QWidget *parent);

private:
    /// Those of the document in front, as they are now.
    void renew();
    void showRow(int row);
    void save();

    WindowServices &m_services;
    ResultsModel *m_model;
    QTableView *m_rows;
    QLabel *m_summary;
    QComboBox *m_shown;
    QPushButton *m_save;
};

} // namespace host::app
