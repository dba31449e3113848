#include "host/app/window/panels/StyleBar.h"

#include "host/app/window/frame/WindowServices.h"
#include "host/app/window/panels/LayerBox.h"
#include "host/app/window/panels/LayerOrders.h"
#include "host/app/window/panels/PropertyTexts.h"
#include "host/app/window/panels/StateIcons.h"
#include "host/drawing/records/Entities.h"
#include "host/functions/ColourDialog.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// A look at entities takes no longer; the window answers in between.
constexpr std::chrono::milliseconds surveySlice(10);

/// The index into entityProperties() of a property of all entities.
std::size_t generalProperty(drawing::PropertyKind kind)
{
    const std::span<const drawing::EntityProperty> rows = drawing::entityProperties();
    const auto row = std::ranges::find(rows, kind, &drawing::EntityProperty::kind);
    return std::size_t(row - rows.begin());
}

} // namespace

StyleBar::StyleBar(WindowServices &services, QWidget *parent)
    : QToolBar(tr("Current properties"), parent), m_services(services)
{
    setObjectName(u"styleBar"_s);
    m_layer = new LayerBox(services, this);
    addBox(m_layer, u"currentLayer"_s, tr("Layer"), 26);
    m_colour = addBox(new QComboBox(this), u"currentColour"_s, tr("Color"), 14);
    m_linetype = addBox(new QComboBox(this), u"currentLinetype"_s, tr("Linetype"), 14);
    m_weight = addBox(new QComboBox(this), u"currentWeight"_s, tr("Lineweight"), 11);
    fillColours(*m_colour);
    m_weight->addItems(weightTexts());
    m_more.setInterval(0);
    connect(&m_more, &QTimer::timeout, this, &StyleBar::goOn);
    connect(m_layer, &LayerBox::layerChosen, this,
            [this](const QString &name) { change(u"_LAyer"_s, u"_CLAYER"_s, {name}); });
    connect(m_colour, &QComboBox::activated, this, &StyleBar::changeColour);
    connect(m_linetype, &QComboBox::activated, this,
            [this] { change(u"_LType"_s, u"_CELTYPE"_s, {m_linetype->currentText()}); });
    connect(m_weight, &QComboBox::activated, this,
            [this] { change(u"_LWeight"_s, u"_CELWEIGHT"_s, {m_weight->currentText()}); });
    connect(&m_services, &WindowServices::stateChanged, this, &StyleBar::refresh);
    connect(&m_services, &WindowServices::selectionChanged, this, &StyleBar::refresh);
    connect(&m_services, &WindowServices::documentChanged, this, &StyleBar::refresh);
    refresh();
}

QComboBox *StyleBar::addBox(QComboBox *box, const QString &name, const QString &title, int letters)
{
    box->setObjectName(name);
    box->setAccessibleName(title);
    box->setToolTip(title);
    box->setMinimumWidth(fontMetrics().averageCharWidth() * letters + box->iconSize().width());
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMaxVisibleItems(24);
    addWidget(box);
    return box;
}

void StyleBar::refresh()
{
    m_more.stop();
    m_survey.reset();
    const kernel::Document *document = m_services.document();
    setEnabled(document);
    // What runs may change the drawing in the middle of a survey; its end is told.
    if (!document || m_services.isBusy())
        return;
    fillLinetypes();
    if (document->impliedSelection().empty())
        return showCurrent();
    m_survey = std::make_unique<PropertySurvey>(document->drawing(), document->impliedSelection());
    goOn();
}

void StyleBar::goOn()
{
    if (!m_survey || m_services.isBusy())
        return m_more.stop();
    if (m_survey->goOn(QDeadlineTimer(surveySlice)))
        m_more.stop();
    else if (!m_more.isActive())
        m_more.start();
    showSurveyed();
}

void StyleBar::fillLinetypes()
{
    const kernel::Document *document = m_services.document();
    const quint64 tables = document->drawing().revision(drawing::Section::Tables);
    if (m_document == document && m_tables == tables)
        return;
    m_document = document;
    m_tables = tables;
    m_linetype->clear();
    m_linetype->addItems(linetypeTexts(document->drawing()));
}

void StyleBar::showIn(QComboBox &box, const QString &text)
{
    int row = box.findText(text, Qt::MatchFixedString);
    // What no list has, "*varies*" and other colours, stands in it while it is shown.
    if (box.itemData(box.count() - 1).toString() == "extra"_L1 && row != box.count() - 1)
        box.removeItem(box.count() - 1);
    if (row < 0 && !text.isEmpty()) {
        box.addItem(&box == m_colour ? colourTextIcon(text) : QIcon(), text, u"extra"_s);
        row = box.count() - 1;
    }
    box.setCurrentIndex(row);
}

void StyleBar::showCurrent()
{
    const kernel::SystemVariables &variables = m_services.document()->variables();
    m_layer->showLayer(variables.text(u"CLAYER"));
    showIn(*m_colour, colourOfVariable(variables.text(u"CECOLOR")));
    showIn(*m_linetype, variables.text(u"CELTYPE"));
    showIn(*m_weight, entityWeightText(variables.integer(u"CELWEIGHT", -1)));
}

void StyleBar::showSurveyed()
{
    using enum drawing::PropertyKind;
    const auto text = [this](drawing::PropertyKind kind) {
        return surveyedText(*m_services.document(), kind, m_survey->value({}, generalProperty(kind)));
    };
    m_layer->showLayer(text(Layer));
    showIn(*m_colour, text(Colour));
    showIn(*m_linetype, text(Linetype));
    showIn(*m_weight, text(Weight));
}

void StyleBar::change(const QString &option, const QString &variable, const QStringList &value)
{
    kernel::Document *document = m_services.document();
    if (!document || m_services.isBusy())
        return refresh();
    const std::vector<drawing::RecordId> chosen = document->impliedSelection();
    QStringList words = value;
    if (words.last() == variesText())
        return refresh();
    if (option == u"_LWeight" && !chosen.empty())
        words.last() = words.last().section(u' ', 0, 0);
    else if (option == u"_LWeight")
        words.last() = QString::number(weightOfText(words.last()));
    if (chosen.empty())
        return m_services.run(typedLine(QStringList{variable} + words));
    m_services.run(typedLine(QStringList{u"_CHPROP"_s, option} + words + QStringList{QString()}));
    if (m_services.document() == document)
        document->setImpliedSelection(chosen);
}

void StyleBar::changeColour()
{
    if (m_colour->currentData().toString() == "choose"_L1)
        return chooseColour();
    const QString text = m_colour->currentText();
    if (text.contains(u','))
        change(u"_Color"_s, u"_CECOLOR"_s, {u"_Truecolor"_s, text});
    else
        change(u"_Color"_s, u"_CECOLOR"_s, {text});
}

void StyleBar::chooseColour()
{
    const kernel::Document *document = m_services.document();
    if (!document || m_services.isBusy())
        return refresh();
    // The current colour is one of the table; entities may have any.
    const bool hasTrue =
        !document->impliedSelection().empty() && document->drawing().version() >= drawing::Version::R2004;
    kernel::ColourDialog dialog(window(), {.index = drawing::colourByLayer}, {.hasTrue = hasTrue});
    if (dialog.exec() != QDialog::Accepted)
        return refresh();
    const kernel::ChosenColour &colour = dialog.chosen();
    if (colour.trueColour)
        change(u"_Color"_s, {}, {u"_Truecolor"_s, colourText(0, *colour.trueColour & 0xffffffU)});
    else
        change(u"_Color"_s, u"_CECOLOR"_s, {entityColourText(colour.index)});
}

} // namespace host::app
