#include "host/app/window/panels/PropertiesPanel.h"

#include "host/app/window/frame/WindowServices.h"
#include "host/app/window/panels/LayerRows.h"
#include "host/app/window/panels/PropertyDelegate.h"
#include "host/app/window/panels/PropertyOrders.h"
#include "host/app/window/panels/PropertyTexts.h"
#include "host/drawing/records/Entities.h"
#include "host/functions/ColourDialog.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// A look at entities takes no longer; the window answers in between.
constexpr std::chrono::milliseconds propertySlice(10);

/// "LWPOLYLINE" as people say it: "Lwpolyline".
QString shownType(const QByteArray &type)
{
    const QString name = QString::fromLatin1(type);
    return name.left(1) + name.mid(1).toLower();
}

} // namespace

PropertiesPanel::PropertiesPanel(WindowServices &services, QWidget *parent)
    : QWidget(parent), m_services(services), m_type(new QComboBox(this)), m_table(new QTableView(this)),
      m_message(new QLabel(this))
{
    m_type->setObjectName(u"propertyType"_s);
    m_type->setAccessibleName(tr("Which of the chosen entities"));
    m_message->setObjectName(u"propertyMessage"_s);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    buildTable();
    setFocusProxy(m_table);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(4, 4, 4, 4);
    all->addWidget(m_type);
    all->addWidget(m_table, 1);
    all->addWidget(m_message);
    constexpr int leastLetters = 42;
    setMinimumWidth(fontMetrics().averageCharWidth() * leastLetters);
    m_more.setInterval(0);
    connect(&m_more, &QTimer::timeout, this, &PropertiesPanel::goOn);
    connect(m_type, &QComboBox::activated, this, &PropertiesPanel::showLines);
    connect(&m_model, &PropertyModel::changeWanted, this, &PropertiesPanel::change);
    connect(&m_services, &WindowServices::stateChanged, this, &PropertiesPanel::refresh);
    connect(&m_services, &WindowServices::selectionChanged, this, &PropertiesPanel::refresh);
    connect(&m_services, &WindowServices::documentChanged, this, [this] {
        m_document = nullptr;
        m_survey.reset();
        refresh();
    });
}

void PropertiesPanel::buildTable()
{
    m_table->setObjectName(u"properties"_s);
    m_table->setAccessibleName(tr("Properties"));
    m_table->setModel(&m_model);
    auto *delegate = new PropertyDelegate([this] { return m_services.document(); }, m_table);
    m_table->setItemDelegate(delegate);
    connect(delegate, &PropertyDelegate::colourWanted, this, &PropertiesPanel::chooseColour, Qt::QueuedConnection);
    m_table->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    m_table->installEventFilter(this);
    connect(m_table, &QAbstractItemView::clicked, this, &PropertiesPanel::editLine);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setWordWrap(false);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->resizeSection(0, fontMetrics().averageCharWidth() * 17);
    connect(&m_model, &QAbstractItemModel::modelReset, this, [this] {
        m_table->clearSpans();
        for (int row = 0; row < m_model.rowCount(); ++row)
            if (m_model.lines()[row].isHeading)
                m_table->setSpan(row, 0, 1, 2);
    });
}

void PropertiesPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

/// A value is written where a click or Enter was, whichever column has the cursor.
void PropertiesPanel::editLine(const QModelIndex &index)
{
    const QModelIndex value = index.siblingAtColumn(1);
    if (!value.isValid() || !(value.flags() & Qt::ItemIsEditable))
        return;
    m_table->setCurrentIndex(value);
    m_table->edit(value);
}

bool PropertiesPanel::eventFilter(QObject *object, QEvent *event)
{
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    // A menu has F2 too.
    if (object == m_table && isOverride && static_cast<QKeyEvent *>(event)->key() == Qt::Key_F2)
        event->accept();
    if (object != m_table || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(object, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_F2)
        return QWidget::eventFilter(object, event);
    editLine(m_table->currentIndex());
    return true;
}

// What is shown

void PropertiesPanel::refresh()
{
    const kernel::Document *document = m_services.document();
    if (!isVisible() || m_isChanging || (document && m_services.isBusy()))
        return;
    if (!document) {
        m_survey.reset();
        showTypes();
        return m_model.show({});
    }
    // What is current shows in variables, some of which are no part of the drawing.
    const bool isSame = m_document == document && m_revision == document->drawing().revision() &&
                        m_chosen == document->impliedSelection();
    if (isSame && m_survey && m_survey->isDone())
        return;
    if (isSame && m_survey)
        return goOn();
    if (!isSame)
        m_error.clear();
    // Another choice begins with all of it.
    if (m_chosen != document->impliedSelection())
        m_type->setCurrentIndex(-1);
    m_document = document;
    m_revision = document->drawing().revision();
    m_chosen = document->impliedSelection();
    m_survey = m_chosen.empty() ? nullptr : std::make_unique<PropertySurvey>(document->drawing(), m_chosen);
    goOn();
}

void PropertiesPanel::goOn()
{
    if (m_services.isBusy() || !m_survey || m_survey->goOn(QDeadlineTimer(propertySlice)))
        m_more.stop();
    else if (!m_more.isActive())
        m_more.start();
    showTypes();
    showLines();
}

QByteArray PropertiesPanel::type() const
{
    return m_type->currentData().toByteArray();
}

void PropertiesPanel::showTypes()
{
    const QSignalBlocker blocker(m_type);
    const QByteArray before = type();
    m_type->clear();
    m_type->setEnabled(m_survey != nullptr);
    if (!m_survey)
        return m_type->addItem(m_services.document() ? tr("Nothing chosen") : tr("No drawing is open"));
    const auto add = [this](const QString &name, qsizetype count, const QByteArray &type) {
        m_type->addItem(u"%1 (%2)"_s.arg(name).arg(count), type);
    };
    qsizetype sum = 0;
    for (const qsizetype count : m_survey->counts())
        sum += count;
    if (m_survey->counts().size() != 1)
        add(tr("All"), sum, {});
    for (auto count = m_survey->counts().begin(); count != m_survey->counts().end(); ++count)
        add(shownType(count.key()), *count, count.key());
    m_type->setCurrentIndex(std::max(0, m_type->findData(before)));
}

void PropertiesPanel::showLines()
{
    const kernel::Document *document = m_services.document();
    if (!document || m_services.isBusy())
        return;
    m_model.show(m_survey ? surveyedLines(*document, *m_survey, type()) : currentLines(*document));
    showMessage();
}

void PropertiesPanel::showMessage()
{
    QStringList lines;
    if (!m_error.isEmpty())
        lines.append(m_error);
    if (m_survey && m_survey->lockedCount() > 0)
        lines.append(tr("%1 of %2 are on locked layers and stay as they are.")
                         .arg(m_survey->lockedCount())
                         .arg(m_survey->entities().size()));
    m_message->setText(lines.join(u'\n'));
    m_message->setVisible(!lines.isEmpty());
}

// What is changed

std::vector<drawing::RecordId> PropertiesPanel::meant() const
{
    const drawing::Drawing &drawing = m_services.document()->drawing();
    const QByteArray wanted = type();
    QSet<QString> locked;
    for (const drawing::Layer &layer : drawing::allLayers(drawing))
        if (layer.isLocked)
            locked.insert(layer.name.toCaseFolded());
    std::vector<drawing::RecordId> entities = m_survey->entities();
    std::erase_if(entities, [&](drawing::RecordId id) {
        const bool isOther = !wanted.isEmpty() && drawing.typeName(id).toByteArray().toUpper() != wanted;
        return isOther || (!locked.isEmpty() && locked.contains(drawing.tags(id).text(8, u"0"_s).toCaseFolded()));
    });
    return entities;
}

void PropertiesPanel::change(const PropertyLine &line, const QString &text)
{
    const kernel::Document *document = m_services.document();
    if (!document || m_services.isBusy())
        return;
    m_error.clear();
    const std::vector<drawing::RecordId> entities = m_survey ? meant() : std::vector<drawing::RecordId>();
    const PropertyOrder order =
        line.variable ? variableOrder(*document, line, text) : propertyOrder(*document, line, text);
    if (!order.error.isEmpty())
        m_error = u"%1: %2"_s.arg(line.name, order.error);
    else if (!line.variable && entities.empty())
        m_error = tr("Nothing was changed: what is chosen is on locked layers.");
    else if (text != variesText())
        run(order.line, entities);
    showLines();
}

/// What was chosen is chosen again, for the next change.
void PropertiesPanel::run(const QString &line, const std::vector<drawing::RecordId> &entities)
{
    kernel::Document *document = m_services.document();
    const std::vector<drawing::RecordId> chosen = document->impliedSelection();
    m_isChanging = true;
    if (!entities.empty() && entities != chosen)
        document->setImpliedSelection(entities);
    m_services.run(line);
    if (m_services.document() == document)
        document->setImpliedSelection(chosen);
    m_isChanging = false;
    refresh();
}

void PropertiesPanel::chooseColour(const QModelIndex &index)
{
    const kernel::Document *document = m_services.document();
    if (!document || m_services.isBusy() || !index.isValid())
        return;
    const PropertyLine line = m_model.lines()[index.row()];
    const bool hasTrue = !line.variable && document->drawing().version() >= drawing::Version::R2004;
    kernel::ColourDialog dialog(window(), {.index = drawing::colourByLayer}, {.hasTrue = hasTrue});
    if (dialog.exec() != QDialog::Accepted)
        return;
    const kernel::ChosenColour &colour = dialog.chosen();
    change(line, colour.trueColour ? colourText(0, *colour.trueColour & 0xffffffU) : entityColourText(colour.index));
}

} // namespace host::app
