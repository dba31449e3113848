#include "host/app/window/panels/LayerBox.h"

#include "host/app/window/frame/WindowServices.h"
#include "host/app/window/panels/LayerDelegate.h"
#include "host/app/window/panels/LayerOrders.h"
#include "host/app/window/panels/LayerTable.h"

#include <QBoxLayout>
#include <QFrame>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr int mostRowsOfList = 18;

bool isInLayerList(LayerColumn column)
{
    return column <= LayerColumn::Lock || column == LayerColumn::Colour;
}

bool movesInLayerList(const QKeyEvent &event)
{
    const int key = event.key();
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

} // namespace

LayerBox::LayerBox(WindowServices &services, QWidget *parent) : QComboBox(parent), m_services(services)
{
    addItem(QString());
}

void LayerBox::buildList()
{
    m_list = new QFrame(this, Qt::Popup);
    m_list->setFrameShape(QFrame::StyledPanel);
    m_list->setObjectName(u"layerListFrame"_s);
    m_pattern = new QLineEdit(m_list);
    m_pattern->setObjectName(u"layerListFilter"_s);
    m_pattern->setAccessibleName(tr("Filter of names"));
    m_pattern->setPlaceholderText(tr("Filter"));
    m_pattern->installEventFilter(this);
    m_table = new LayerTable(m_list);
    m_table->setObjectName(u"layerList"_s);
    m_table->setAccessibleName(tr("Layers"));
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_filter.setSourceModel(&m_model);
    m_table->setModel(&m_filter);
    m_table->sortByColumn(int(LayerColumn::Name), Qt::AscendingOrder);
    m_table->setItemDelegate(new LayerDelegate([] { return QStringList(); }, m_table));
    m_table->horizontalHeader()->hide();
    for (int column = 0; column < layerColumns; ++column)
        m_table->setColumnHidden(column, !isInLayerList(LayerColumn(column)));
    auto *all = new QVBoxLayout(m_list);
    all->setContentsMargins(2, 2, 2, 2);
    all->setSpacing(2);
    all->addWidget(m_pattern);
    all->addWidget(m_table);
    connect(m_pattern, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_filter.setPattern(text);
        m_table->selectRow(0);
    });
    connect(m_table, &QAbstractItemView::clicked, this, [this](const QModelIndex &index) {
        if (!index.data(Qt::CheckStateRole).isValid())
            choose(index);
    });
    connect(m_table, &LayerTable::currentWanted, this, &LayerBox::choose);
    connect(&m_model, &LayerModel::changeWanted, this, &LayerBox::changeState);
}

void LayerBox::fillList()
{
    if (const kernel::Document *document = m_services.document())
        m_model.show(layerRows(document->drawing()), document->drawing().version());
}

void LayerBox::showLayer(const QString &name)
{
    const kernel::Document *document = m_services.document();
    const std::optional<drawing::Layer> layer = document ? drawing::findLayer(document->drawing(), name) : std::nullopt;
    setItemText(0, layer ? layer->name : name);
    setItemIcon(0, layer ? colourIcon(shownColour({.layer = *layer, .colourBook = {}, .description = {}})) : QIcon());
    setToolTip(Qt::convertFromPlainText(itemText(0)));
}

void LayerBox::showPopup()
{
    if (!m_services.document() || m_services.isBusy())
        return;
    if (!m_list)
        buildList();
    fillList();
    m_pattern->clear();
    const int side = m_table->verticalHeader()->defaultSectionSize();
    const int letter = fontMetrics().averageCharWidth();
    m_table->setColumnWidth(int(LayerColumn::Name), 34 * letter);
    for (const LayerColumn column : {LayerColumn::On, LayerColumn::Freeze, LayerColumn::Lock})
        m_table->setColumnWidth(int(column), side + 6);
    m_table->setColumnWidth(int(LayerColumn::Colour), 16 * letter);
    const int rows = std::min(m_filter.rowCount(), mostRowsOfList);
    m_list->resize(50 * letter + 3 * (side + 6) + side + 12,
                   rows * side + m_pattern->sizeHint().height() + 2 * side / 2 + 8);
    QPoint place = mapToGlobal(QPoint(0, height()));
    const QRect room = screen()->availableGeometry();
    place.setX(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - m_list->width())));
    m_list->move(place);
    m_list->show();
    m_pattern->setFocus();
    for (int row = 0; row < m_filter.rowCount(); ++row)
        if (m_filter.layer(m_filter.index(row, 0)).layer.name == itemText(0)) {
            m_table->selectRow(row);
            m_table->scrollTo(m_filter.index(row, 0));
        }
}

void LayerBox::hidePopup()
{
    if (m_list)
        m_list->hide();
    QComboBox::hidePopup();
}

void LayerBox::keyPressEvent(QKeyEvent *event)
{
    const QString text = event->text();
    const bool isLetter = !text.isEmpty() && text.front().isPrint() && !text.front().isSpace();
    const int key = event->key();
    const bool opens = movesInLayerList(*event) || key == Qt::Key_Space || key == Qt::Key_F4 || key == Qt::Key_Return;
    if (!opens && !isLetter)
        return QComboBox::keyPressEvent(event);
    showPopup();
    if (isLetter && m_pattern)
        m_pattern->setText(text);
}

bool LayerBox::eventFilter(QObject *object, QEvent *event)
{
    if (object != m_pattern || event->type() != QEvent::KeyPress)
        return QComboBox::eventFilter(object, event);
    auto *key = static_cast<QKeyEvent *>(event);
    if (movesInLayerList(*key)) {
        QCoreApplication::sendEvent(m_table, event);
        return true;
    }
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
        return QComboBox::eventFilter(object, event);
    choose(m_table->currentIndex().isValid() ? m_table->currentIndex() : m_filter.index(0, 0));
    return true;
}

void LayerBox::choose(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    const QString name = m_filter.layer(index).layer.name;
    hidePopup();
    emit layerChosen(name);
}

void LayerBox::changeState(int row, LayerColumn column, const QString &value)
{
    const kernel::Document *document = m_services.document();
    if (!document || m_services.isBusy() || !layerColumn(column).isState)
        return;
    const LayerRow layer = m_model.rows()[row];
    const QString obstacle = obstacleToChanging(document->drawing(), layer, column, value);
    if (!obstacle.isEmpty())
        m_services.tell(obstacle);
    else
        m_services.run(layerChangeLine({layer}, column, value));
    fillList();
}

} // namespace host::app
