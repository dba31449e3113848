#include "host/app/window/panels/ResultsPanel.h"

#include "files/qt/Files.h"
#include "host/app/window/frame/WindowServices.h"
#include "host/app/window/panels/ResultsModel.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/CurrentView.h"
#include "host/view/build/EntityExtents.h"

#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace host::app {

using kernel::Results;

ResultsPanel::ResultsPanel(WindowServices &services, QWidget *parent)
    : QWidget(parent), m_services(services), m_model(new ResultsModel(this)), m_rows(new QTableView(this)),
      m_summary(new QLabel(this)), m_shown(new QComboBox(this)), m_save(new QPushButton(tr("&Save..."), this))
{
    m_rows->setObjectName(u"resultRows"_s);
    m_rows->setAccessibleName(tr("Results"));
    m_rows->setModel(m_model);
    m_rows->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_rows->setSelectionMode(QAbstractItemView::SingleSelection);
    m_rows->setWordWrap(false);
    m_rows->setTabKeyNavigation(false);
    m_rows->verticalHeader()->hide();
    m_rows->horizontalHeader()->setStretchLastSection(true);
    m_shown->setObjectName(u"resultsShown"_s);
    m_shown->setAccessibleName(tr("Which results are shown"));
    m_shown->addItem(tr("All"));
    m_shown->addItem(tr("Done"), int(Results::State::Done));
    m_shown->addItem(tr("Skipped"), int(Results::State::Skipped));
    m_save->setObjectName(u"saveResults"_s);
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    auto *bar = new QHBoxLayout;
    bar->addStretch(1);
    bar->addWidget(m_shown);
    bar->addWidget(m_save);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_summary);
    column->addLayout(bar);
    column->addWidget(m_rows, 1);
    connect(m_shown, &QComboBox::currentIndexChanged, this, &ResultsPanel::renew);
    connect(m_save, &QPushButton::clicked, this, &ResultsPanel::save);
    connect(m_rows, &QAbstractItemView::clicked, this, [this](const QModelIndex &at) { showRow(at.row()); });
    connect(m_rows, &QAbstractItemView::activated, this, [this](const QModelIndex &at) { showRow(at.row()); });
    connect(&services, &WindowServices::documentChanged, this, &ResultsPanel::renew);
    connect(&services, &WindowServices::resultsChanged, this, &ResultsPanel::renew);
    renew();
}

void ResultsPanel::renew()
{
    kernel::Document *document = m_services.document();
    const QVariant state = m_shown->currentData();
    m_model->show(document, state.isValid() ? std::optional(Results::State(state.toInt())) : std::nullopt);
    const bool hasList = document && !document->results().title().isEmpty();
    m_summary->setText(hasList ? document->results().summary() : tr("No tool has listed results in this drawing."));
    m_save->setEnabled(hasList);
    m_rows->resizeColumnToContents(0);
    m_rows->setColumnWidth(1, fontMetrics().averageCharWidth() * 14);
}

void ResultsPanel::showRow(int row)
{
    kernel::Document *document = m_services.document();
    const Results::Row *result = m_model->at(row);
    if (!document || !result || !isValid(result->entity) || m_services.isBusy())
        return;
    const drawing::Drawing &drawing = document->drawing();
    drawing::RecordId entity = result->entity;
    if (drawing.isAlive(entity) && drawing.kind(entity) == drawing::RecordKind::Child)
        entity = drawing.parent(entity);
    const std::vector<drawing::RecordId> seen = kernel::currentEntities(drawing);
    if (!drawing.isAlive(entity))
        return m_services.tell(tr("It is not in the drawing any more."));
    if (std::ranges::find(seen, entity) == seen.end())
        return m_services.tell(tr("It is not in the space that is shown."));
    document->setImpliedSelection({entity});
    kernel::showBox(*document, document->entityExtents().of(entity));
}

void ResultsPanel::save()
{
    kernel::Document *document = m_services.document();
    QString kind;
    const QString path = QFileDialog::getSaveFileName(this, tr("Save results"), u"results.txt"_s,
                                                      tr("Text (*.txt);;JSON (*.json)"), &kind);
    if (path.isEmpty() || !document)
        return;
    const Results &results = document->results();
    const bool isJson = path.endsWith(u".json"_s, Qt::CaseInsensitive) || kind.contains(u"*.json"_s);
    const QByteArray bytes =
        isJson ? results.toJson(document->drawing()) : results.toText(document->drawing()).toUtf8();
    const QString problem = files::replaceFile(path, bytes);
    m_services.tell(problem.isEmpty() ? tr("Written: %1").arg(path) : problem);
}

} // namespace host::app
