#include "host/app/window/files/ClosingQuestion.h"

#include "files/qt/VisibleText.h"
#include "host/app/window/frame/DrawingTabs.h"
#include "host/kernel/documents/Document.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QTreeWidgetItem *closingRow(const kernel::Document &document)
{
    const QString file = document.path().isEmpty() ? ClosingQuestion::tr("not saved yet: a name is asked for")
                                                   : files::visibleText(QDir::toNativeSeparators(document.path()));
    auto *row = new QTreeWidgetItem({files::visibleText(shownTitle(document)), file});
    row->setCheckState(0, Qt::Checked);
    return row;
}

} // namespace

ClosingQuestion::ClosingQuestion(const QList<kernel::Document *> &changed, QWidget *parent)
    : QDialog(parent), m_documents(changed), m_list(new QTreeWidget)
{
    setObjectName(u"ClosingQuestion"_s);
    setWindowTitle(tr("Save changes"));
    resize(620, 320);
    m_list->setObjectName(u"closingList"_s);
    m_list->setAccessibleName(tr("Changed drawings"));
    m_list->setHeaderLabels({tr("Drawing"), tr("File")});
    m_list->setRootIsDecorated(false);
    for (const kernel::Document *document : changed)
        m_list->addTopLevelItem(closingRow(*document));
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->setCurrentItem(m_list->topLevelItem(0));

    auto *buttons = new QDialogButtonBox;
    m_save = buttons->addButton(tr("&Save selected"), QDialogButtonBox::AcceptRole);
    m_save->setObjectName(u"closingSave"_s);
    QPushButton *discard = buttons->addButton(tr("&Discard all changes"), QDialogButtonBox::DestructiveRole);
    discard->setObjectName(u"closingDiscard"_s);
    QPushButton *cancel = buttons->addButton(QDialogButtonBox::Cancel);
    cancel->setObjectName(u"closingCancel"_s);
    m_save->setDefault(true);
    const auto answerWith = [this](Answer answer) {
        return [this, answer] {
            m_answer = answer;
            accept();
        };
    };
    connect(m_save, &QPushButton::clicked, this, answerWith(Answer::Save));
    connect(discard, &QPushButton::clicked, this, answerWith(Answer::Discard));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_list, &QTreeWidget::itemChanged, this, &ClosingQuestion::updateButton);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("These drawings were changed. Those that are not checked are closed unsaved.")));
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
    m_list->setFocus();
}

ClosingQuestion::Answer ClosingQuestion::ask()
{
    return exec() == QDialog::Accepted ? m_answer : Answer::Cancel;
}

QList<kernel::Document *> ClosingQuestion::checked() const
{
    QList<kernel::Document *> documents;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i)
        if (m_list->topLevelItem(i)->checkState(0) == Qt::Checked)
            documents.append(m_documents[i]);
    return documents;
}

void ClosingQuestion::updateButton()
{
    m_save->setEnabled(!checked().isEmpty());
}

} // namespace host::app
