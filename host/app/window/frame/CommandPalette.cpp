#include "host/app/window/frame/CommandPalette.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSet>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr qsizetype mostRecent = 20;
constexpr int recentBonus = 15;
enum Score
{
    NoMatch = -1,
    Scattered = 20,
    Within = 60,
    AtWord = 90,
    WholeWord = 120
};

int wordScore(QStringView word, QStringView text)
{
    int best = NoMatch;
    for (qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(word, at + 1, Qt::CaseInsensitive)) {
        const qsizetype end = at + word.size();
        const bool begins = at == 0 || !text[at - 1].isLetterOrNumber();
        const bool ends = end == text.size() || !text[end].isLetterOrNumber();
        best = std::max<int>(best, !begins ? Within : ends ? WholeWord : AtWord);
    }
    if (best != NoMatch)
        return best;
    qsizetype next = 0;
    for (const QChar c : text)
        if (next < word.size() && c.toLower() == word[next].toLower())
            ++next;
    return next == word.size() ? Scattered : NoMatch;
}

} // namespace

int fuzzyScore(QStringView sought, QStringView text)
{
    int total = 0;
    for (const QStringView word : sought.split(u' ', Qt::SkipEmptyParts)) {
        const int score = wordScore(word, text);
        if (score == NoMatch)
            return NoMatch;
        total += score;
    }
    return total;
}

/// The rows that fit, as title, keys and help.
class PaletteModel final : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    void setRows(QList<PaletteRow> rows) { m_rows = std::move(rows); }
    const PaletteRow &row(int shown) const { return m_rows[m_shown[shown]]; }

    void filter(const QString &sought, const QStringList &recent)
    {
        QList<std::pair<int, int>> ranked; // a rank that is lower is better
        for (int i = 0; i < m_rows.size(); ++i) {
            const int score = sought.isEmpty() ? 0 : scoreOf(m_rows[i], sought);
            const auto place = static_cast<int>(recent.indexOf(m_rows[i].id));
            const int bonus = place < 0 ? 0 : sought.isEmpty() ? 1000 - place : recentBonus;
            if (score != NoMatch)
                ranked.append({-score - bonus, i});
        }
        std::ranges::sort(ranked);
        beginResetModel();
        m_shown.clear();
        for (const auto &[rank, index] : ranked)
            m_shown.append(index);
        endResetModel();
    }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
    }
    int columnCount(const QModelIndex & = {}) const override { return 3; }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const PaletteRow &row = m_rows[m_shown[index.row()]];
        if (role == Qt::DisplayRole)
            return index.column() == 0 ? row.title : index.column() == 1 ? row.keys : helpOf(row);
        if (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole)
            return helpOf(row);
        return {};
    }

    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        const bool canRun = m_rows[m_shown[index.row()]].obstacle.isEmpty();
        return Qt::ItemIsSelectable | (canRun ? Qt::ItemIsEnabled : Qt::NoItemFlags);
    }

private:
    static QString helpOf(const PaletteRow &row) { return row.obstacle.isEmpty() ? row.help : row.obstacle; }

    static int scoreOf(const PaletteRow &row, const QString &sought)
    {
        constexpr int whole = 1'000'000;
        if (row.title.compare(sought, Qt::CaseInsensitive) == 0)
            return whole;
        const int named = std::max(fuzzyScore(sought, row.title), fuzzyScore(sought, row.words));
        if (named != NoMatch)
            return named;
        return row.help.contains(sought, Qt::CaseInsensitive) ? Scattered / 2 : NoMatch;
    }

    QList<PaletteRow> m_rows;
    QList<int> m_shown;
};

CommandPalette::CommandPalette(QWidget *parent)
    : QDialog(parent, Qt::Popup), m_field(new QLineEdit(this)), m_list(new QTreeView(this)),
      m_model(new PaletteModel(this))
{
    setObjectName(u"palette"_s);
    setWindowTitle(tr("Commands"));
    m_field->setObjectName(u"paletteField"_s);
    m_field->setPlaceholderText(tr("What is to be done? A command, a menu entry, a system variable"));
    m_field->setAccessibleName(tr("What is sought"));
    m_field->installEventFilter(this);
    m_list->setObjectName(u"paletteList"_s);
    m_list->setAccessibleName(tr("Commands that fit"));
    m_list->setModel(m_model);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setHeaderHidden(true);
    m_list->setAllColumnsShowFocus(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_field);
    layout->addWidget(m_list);
    connect(m_field, &QLineEdit::textChanged, this, &CommandPalette::filter);
    connect(m_list, &QTreeView::clicked, this, &CommandPalette::run);
}

void CommandPalette::open(const QList<PaletteRow> &rows)
{
    QList<PaletteRow> once;
    QSet<QString> seen;
    for (const PaletteRow &row : rows)
        if (!seen.contains(row.id)) {
            seen.insert(row.id);
            once.append(row);
        }
    m_model->setRows(once);
    m_field->clear();
    filter();
    const QSize size(std::min(760, parentWidget()->width() - 20), std::min(460, parentWidget()->height() - 60));
    setGeometry({parentWidget()->mapToGlobal(QPoint((parentWidget()->width() - size.width()) / 2, 40)), size});
    m_list->header()->resizeSection(0, size.width() * 45 / 100);
    m_list->header()->resizeSection(1, size.width() * 15 / 100);
    show();
    m_field->setFocus();
}

void CommandPalette::filter()
{
    m_model->filter(m_field->text().trimmed(), m_recent);
    m_list->setCurrentIndex(m_model->index(0, 0));
    m_list->scrollToTop();
}

void CommandPalette::choose(int step)
{
    const int last = m_model->rowCount() - 1;
    const QModelIndex wanted = m_model->index(std::clamp(m_list->currentIndex().row() + step, 0, std::max(last, 0)), 0);
    // Rows that cannot be run are no current ones for the view by itself, but are to be read.
    m_list->selectionModel()->setCurrentIndex(wanted, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_list->scrollTo(wanted);
}

void CommandPalette::run()
{
    const QModelIndex current = m_list->currentIndex();
    if (!current.isValid() || !m_model->row(current.row()).obstacle.isEmpty())
        return;
    const PaletteRow row = m_model->row(current.row());
    m_recent.removeAll(row.id);
    m_recent.prepend(row.id);
    m_recent = m_recent.first(std::min(m_recent.size(), mostRecent));
    hide();
    // What runs may ask, and is not to do so within this window's event.
    QTimer::singleShot(0, parentWidget(), row.run);
}

QStringList CommandPalette::shownTitles() const
{
    QStringList titles;
    for (int i = 0; i < m_model->rowCount(); ++i)
        titles.append(m_model->row(i).title);
    return titles;
}

bool CommandPalette::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(object, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Up:
        choose(-1);
        return true;
    case Qt::Key_Down:
        choose(1);
        return true;
    case Qt::Key_PageUp:
        choose(-10);
        return true;
    case Qt::Key_PageDown:
        choose(10);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        run();
        return true;
    default:
        return false;
    }
}

} // namespace host::app
