#include "host/app/window/panels/LayerPanel.h"

#include "host/app/window/frame/WindowServices.h"
#include "host/app/window/panels/LayerDelegate.h"
#include "host/app/window/panels/LayerOrders.h"
#include "host/app/window/panels/LayerTable.h"
#include "host/drawing/editing/MergeLayers.h"
#include "host/drawing/editing/UnusedNames.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Tables.h"
#include "host/functions/ColourDialog.h"
#include "host/kernel/documents/CurrentSpace.h"

#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// The names of layers that could be taken out, in folded case.
QSet<QString> unusedLayers(const drawing::Drawing &drawing)
{
    QSet<QString> names;
    for (const drawing::NamedThing &thing :
         drawing::unusedNames(drawing, drawing::NamedKind::Layers, [](const QString &) { return true; }))
        names.insert(thing.name.toCaseFolded());
    return names;
}

QStringList linetypesOf(const kernel::Document *document)
{
    QStringList names;
    if (!document)
        return names;
    const drawing::Tables &tables = document->drawing().tables();
    for (const drawing::RecordId entry : tables.entries(drawing::TableKind::Linetype)) {
        const QString name = tables.name(entry);
        if (name.compare(u"ByLayer", Qt::CaseInsensitive) != 0 && name.compare(u"ByBlock", Qt::CaseInsensitive) != 0)
            names.append(name);
    }
    return names;
}

} // namespace

LayerPanel::LayerPanel(WindowServices &services, QWidget *parent)
    : QWidget(parent), m_services(services), m_table(new LayerTable(this)), m_message(new QLabel(this))
{
    setObjectName(u"layerPanel"_s);
    m_message->setObjectName(u"layerMessage"_s);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    buildTable();
    setFocusProxy(m_table);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(4, 4, 4, 4);
    all->addWidget(madeTools());
    all->addWidget(m_table, 1);
    all->addWidget(m_message);
    constexpr int leastLetters = 54;
    setMinimumWidth(fontMetrics().averageCharWidth() * leastLetters);
    connect(&m_services, &WindowServices::stateChanged, this, &LayerPanel::refresh);
    connect(&m_services, &WindowServices::documentChanged, this, [this] {
        m_shown.reset();
        m_reasons.clear();
        refresh();
    });
    connect(&m_model, &LayerModel::changeWanted, this, &LayerPanel::change);
    refresh();
}

void LayerPanel::buildTable()
{
    m_filter.setSourceModel(&m_model);
    m_table->setObjectName(u"layers"_s);
    m_table->setAccessibleName(tr("Layers"));
    m_table->setModel(&m_filter);
    m_table->sortByColumn(int(LayerColumn::Name), Qt::AscendingOrder);
    auto *delegate = new LayerDelegate([this] { return linetypesOf(m_services.document()); }, m_table);
    m_table->setItemDelegate(delegate);
    connect(delegate, &LayerDelegate::colourWanted, this, &LayerPanel::chooseColour, Qt::QueuedConnection);
    connect(m_table, &LayerTable::currentWanted, this, &LayerPanel::makeCurrent);
    connect(m_table, &LayerTable::removalWanted, this, &LayerPanel::remove);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &LayerPanel::showCount);
    QHeaderView &header = *m_table->horizontalHeader();
    const int letter = fontMetrics().averageCharWidth();
    header.setMinimumSectionSize(4 * letter);
    for (int column = 0; column < layerColumns; ++column) {
        const QString title = m_model.headerData(column, Qt::Horizontal).toString();
        header.resizeSection(column, fontMetrics().horizontalAdvance(title) + 2 * letter);
    }
    header.resizeSection(int(LayerColumn::Name), 22 * letter);
    header.resizeSection(int(LayerColumn::Colour), 14 * letter);
    header.resizeSection(int(LayerColumn::Linetype), 16 * letter);
    header.resizeSection(int(LayerColumn::Description), 24 * letter);
}

QWidget *LayerPanel::madeTools()
{
    auto *tools = new QWidget(this);
    auto *rows = new QVBoxLayout(tools);
    rows->setContentsMargins(0, 0, 0, 0);
    auto *row = new QHBoxLayout;
    rows->addLayout(row);
    const auto add = [&](const QString &name, const QString &text, const QString &tip, void (LayerPanel::*act)()) {
        auto *button = new QToolButton(tools);
        button->setObjectName(name);
        button->setText(text);
        button->setToolTip(tip);
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this, act);
        row->addWidget(button);
    };
    add(u"newLayer"_s, tr("&New"), tr("A layer that looks like the chosen one"), &LayerPanel::makeNew);
    add(u"deleteLayer"_s, tr("&Delete"), tr("Takes unused layers out of the drawing"), &LayerPanel::remove);
    auto *current = new QToolButton(tools);
    current->setObjectName(u"setLayer"_s);
    current->setText(tr("Make &current"));
    current->setFocusPolicy(Qt::StrongFocus);
    connect(current, &QToolButton::clicked, this, [this] { makeCurrent(m_table->currentIndex()); });
    row->addWidget(current);
    row->addStretch();
    auto *filters = new QHBoxLayout;
    rows->addLayout(filters);
    m_pattern = new QLineEdit(tools);
    m_pattern->setObjectName(u"layerFilter"_s);
    m_pattern->setAccessibleName(tr("Filter of names"));
    m_pattern->setPlaceholderText(tr("Filter: part of a name, or a pattern"));
    m_pattern->setClearButtonEnabled(true);
    connect(m_pattern, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_filter.setPattern(text);
        showCount();
    });
    filters->addWidget(m_pattern, 1);
    m_kind = new QComboBox(tools);
    m_kind->setObjectName(u"layerKind"_s);
    m_kind->setAccessibleName(tr("Which layers are shown"));
    m_kind->addItems({tr("All"), tr("Used"), tr("Of references"), tr("Not frozen"), tr("Visible")});
    connect(m_kind, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_filter.setKind(LayerFilter::Kind(index));
        refreshUnused();
        showCount();
    });
    filters->addWidget(m_kind);
    return tools;
}

void LayerPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

// What is shown

void LayerPanel::refresh()
{
    if (!isVisible())
        return;
    const kernel::Document *document = m_services.document();
    Shown now;
    if (document) {
        const drawing::Drawing &drawing = document->drawing();
        now = {document, drawing.revision(drawing::Section::Tables), 0, drawing.header().text(u"$CLAYER"),
               kernel::currentViewport(drawing)};
        if (drawing::isValid(now.viewport))
            now.viewports = drawing.revision();
    }
    if (m_shown != now) {
        m_shown = now;
        m_model.show(document ? layerRows(document->drawing()) : std::vector<LayerRow>(),
                     document ? document->drawing().version() : drawing::Version::R2018);
        m_table->setColumnHidden(int(LayerColumn::Viewport), !drawing::isValid(now.viewport));
    }
    refreshUnused();
    showCount();
}

/// Who uses layers takes a look at every record: only for those who ask.
void LayerPanel::refreshUnused()
{
    const kernel::Document *document = m_services.document();
    if (m_filter.kind() != LayerFilter::Kind::Used || !document || m_unusedRevision == document->drawing().revision())
        return;
    m_unusedRevision = document->drawing().revision();
    m_filter.setUnused(unusedLayers(document->drawing()));
}

void LayerPanel::showCount()
{
    if (!m_reasons.isEmpty())
        return m_message->setText(m_reasons.join(u'\n'));
    const qsizetype chosen = m_table->selectionModel()->selectedRows().size();
    const QString shown = tr("%1 of %2 layers").arg(m_filter.rowCount()).arg(m_model.rowCount());
    m_message->setText(chosen > 1 ? tr("%1, %2 chosen").arg(shown).arg(chosen) : shown);
}

void LayerPanel::tell(const QStringList &reasons)
{
    constexpr qsizetype mostReasons = 4;
    m_reasons = reasons.mid(0, mostReasons);
    if (reasons.size() > mostReasons)
        m_reasons.append(tr("... and %1 more").arg(reasons.size() - mostReasons));
    showCount();
}

// What is changed

std::vector<LayerRow> LayerPanel::chosen() const
{
    std::vector<LayerRow> layers;
    for (const QModelIndex &index : m_table->selectionModel()->selectedRows())
        layers.push_back(m_filter.layer(index));
    return layers;
}

std::vector<LayerRow> LayerPanel::meant(int row) const
{
    const QModelIndex index = m_filter.mapFromSource(m_model.index(row, 0));
    if (index.isValid() && m_table->selectionModel()->isRowSelected(index.row()))
        return chosen();
    return {m_model.rows()[row]};
}

bool LayerPanel::mayChange()
{
    m_reasons.clear();
    if (m_services.document() && !m_services.isBusy())
        return true;
    tell({m_services.document() ? tr("Nothing can be changed while a command runs.") : tr("No drawing is open.")});
    return false;
}

void LayerPanel::run(const QString &line)
{
    if (!line.isEmpty())
        m_services.run(line);
    refresh();
}

void LayerPanel::change(int row, LayerColumn column, const QString &value)
{
    if (!mayChange())
        return;
    if (column == LayerColumn::Name)
        rename(LayerRow(m_model.rows()[row]), value.trimmed());
    else
        changeLayers(meant(row), column, value);
}

void LayerPanel::changeLayers(const std::vector<LayerRow> &layers, LayerColumn column, const QString &value)
{
    QStringList reasons;
    std::vector<LayerRow> able;
    for (const LayerRow &row : layers) {
        const QString obstacle = obstacleToChanging(m_services.document()->drawing(), row, column, value);
        if (obstacle.isEmpty())
            able.push_back(row);
        else
            reasons.append(obstacle);
    }
    const QString line = layerChangeLine(able, column, value);
    if (line.isEmpty() && !able.empty())
        reasons.append(tr("\"%1\" is no value for this.").arg(value));
    tell(reasons);
    run(line);
}

void LayerPanel::rename(const LayerRow &layer, const QString &name)
{
    const QString obstacle = obstacleToRenaming(m_services.document()->drawing(), layer.layer.name, name);
    tell(obstacle.isEmpty() ? QStringList() : QStringList{obstacle});
    if (obstacle.isEmpty())
        run(layerRenameLine(layer.layer.name, name));
}

void LayerPanel::chooseColour(const QModelIndex &index)
{
    if (!index.isValid() || !mayChange())
        return;
    const LayerRow row = m_filter.layer(index);
    const std::vector<LayerRow> layers = meant(m_filter.mapToSource(index).row());
    const std::optional<QRgb> exact =
        row.layer.trueColour ? std::optional<QRgb>(*row.layer.trueColour | 0xff000000U) : std::nullopt;
    const bool hasTrue = m_services.document()->drawing().version() >= drawing::Version::R2004;
    kernel::ColourDialog dialog(window(), {.index = row.layer.colour, .trueColour = exact},
                                {.hasLogical = false, .hasTrue = hasTrue});
    if (dialog.exec() != QDialog::Accepted || !mayChange())
        return;
    const kernel::ChosenColour &colour = dialog.chosen();
    changeLayers(layers, LayerColumn::Colour,
                 colour.trueColour ? colourText(0, *colour.trueColour & 0xffffffU) : QString::number(colour.index));
}

void LayerPanel::makeCurrent(const QModelIndex &index)
{
    if (!index.isValid() || !mayChange())
        return;
    const LayerRow row = m_filter.layer(index);
    if (isReferenced(row))
        tell({tr("\"%1\" belongs to an external reference and cannot be current.").arg(row.layer.name)});
    else if (row.layer.isFrozen)
        tell({tr("\"%1\" is frozen and cannot be current.").arg(row.layer.name)});
    else if (!row.isCurrent)
        run(layerCurrentLine(row.layer.name));
    showCount();
}

void LayerPanel::makeNew()
{
    if (!mayChange())
        return;
    const drawing::Drawing &drawing = m_services.document()->drawing();
    const QString name = freeLayerName(drawing);
    const QModelIndex at = m_table->currentIndex();
    const LayerRow model = at.isValid() ? m_filter.layer(at) : LayerRow();
    m_pattern->clear();
    m_kind->setCurrentIndex(0);
    run(layerNewLine(name, at.isValid() ? &model : nullptr, drawing.version()));
    choose(name);
}

/// A new layer waits for its name.
void LayerPanel::choose(const QString &name)
{
    for (int row = 0; row < m_filter.rowCount(); ++row) {
        const QModelIndex index = m_filter.index(row, 0);
        if (m_filter.layer(index).layer.name != name)
            continue;
        m_table->setFocus();
        m_table->selectRow(row);
        m_table->editName(index);
        return;
    }
}

void LayerPanel::remove()
{
    const std::vector<LayerRow> layers = chosen();
    if (layers.empty() || !mayChange())
        return;
    const drawing::Drawing &drawing = m_services.document()->drawing();
    const QSet<QString> unused = unusedLayers(drawing);
    QStringList names;
    QStringList reasons;
    for (const LayerRow &row : layers) {
        const QString obstacle = drawing::obstacleToRemovingLayer(drawing, row.layer.name);
        if (!obstacle.isEmpty())
            reasons.append(obstacle);
        else if (!unused.contains(row.layer.name.toCaseFolded()))
            reasons.append(tr("Layer \"%1\" is used.").arg(row.layer.name));
        else
            names.append(row.layer.name);
    }
    tell(reasons);
    if (!names.isEmpty())
        run(layerDeleteLine(names));
}

// The menu

void LayerPanel::addStates(QMenu &menu)
{
    for (int number = int(LayerColumn::On); number <= int(LayerColumn::Viewport); ++number) {
        const auto column = LayerColumn(number);
        if (!layerColumn(column).isState || m_table->isColumnHidden(number))
            continue;
        QMenu &states = *menu.addMenu(layersText(layerColumn(column).title));
        for (const bool state : {true, false}) {
            const QString text = layerStateText(column, state);
            states.addAction(stateIcon(markOf(column, state)), text, this, [this, column, text] {
                if (mayChange())
                    changeLayers(chosen(), column, text);
            });
        }
    }
}

void LayerPanel::contextMenuEvent(QContextMenuEvent *event)
{
    const QModelIndex at = m_table->currentIndex();
    QMenu menu(this);
    menu.setObjectName(u"layerMenu"_s);
    QAction *current = menu.addAction(tr("Make &current"), this, [this, at] { makeCurrent(at); });
    QAction *renaming = menu.addAction(tr("&Rename"), this, [this, at] { m_table->editName(at); });
    menu.addAction(tr("&New"), this, &LayerPanel::makeNew);
    QAction *removal = menu.addAction(tr("&Delete"), this, &LayerPanel::remove);
    for (QAction *action : {current, renaming, removal})
        action->setEnabled(at.isValid());
    menu.addSeparator();
    if (at.isValid())
        addStates(menu);
    menu.addAction(tr("C&olor..."), this, [this, at] { chooseColour(at.siblingAtColumn(int(LayerColumn::Colour))); })
        ->setEnabled(at.isValid());
    menu.addSeparator();
    menu.addAction(tr("Select &all"), m_table, &QTableView::selectAll);
    menu.exec(event->globalPos());
}

} // namespace host::app
