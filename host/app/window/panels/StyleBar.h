#pragma once

#include "host/app/window/panels/PropertySurvey.h"

#include <QTimer>
#include <QToolBar>

#include <memory>

class QComboBox;

namespace host::app {

class LayerBox;
class WindowServices;

/// Layer, colour, linetype and lineweight: of what is chosen ("*varies*" where that differs), which a choice here
/// changes as CHPROP does; where nothing is chosen, of what is drawn next. What was chosen stays chosen.
///
/// Its parts are called "currentLayer", "currentColour", "currentLinetype" and "currentWeight".
class StyleBar final : public QToolBar
{
    Q_OBJECT

public:
    StyleBar(WindowServices &services, QWidget *parent);

private:
    QComboBox *addBox(QComboBox *box, const QString &name, const QString &title, int letters);
    /// Begins to look at what is chosen, or shows what is current.
    void refresh();
    void goOn();
    void showCurrent();
    void showSurveyed();
    void fillLinetypes();
    void showIn(QComboBox &box, const QString &text);
    /// `option` of CHPROP for what is chosen, else `variable`.
    void change(const QString &option, const QString &variable, const QStringList &value);
    void changeColour();
    void chooseColour();

    WindowServices &m_services;
    LayerBox *m_layer;
    QComboBox *m_colour;
    QComboBox *m_linetype;
    QComboBox *m_weight;
    std::unique_ptr<PropertySurvey> m_survey; ///< null where nothing is chosen
    QTimer m_more;                            ///< the survey goes on when it fires
    const void *m_document = nullptr;         ///< the lists are of
    quint64 m_tables = ~quint64(0);
};

} // namespace host::app
