#pragma once

#include <QDialog>
#include <QList>

#include <functional>

class QLineEdit;
class QTreeView;

namespace host::app {

class PaletteModel;

/// Something that can be found and run.
struct PaletteRow
{
    QString id;                ///< what it is remembered by
    QString title;             ///< "Draw > Line"
    QString words;             ///< what else it is found by: "LINE"
    QString keys;              ///< its shortcut; may be empty
    QString help;              ///< one line
    QString obstacle;          ///< why it cannot be run now; empty when it can
    std::function<void()> run; ///< called after the palette is gone
};

/// How well a text fits what is sought, higher is better; -1 when it does not. Each word of `sought` must be found: at
/// the begin of a word best, anywhere in it less, as letters that come one behind the other least.
int fuzzyScore(QStringView sought, QStringView text);

/// A field and a list of all that can be done, those first that were run last; what is typed leaves those that fit, the
/// best first. Up and Down choose, Enter runs, Esc or a click beside it closes. What cannot be run now is grey and says
/// why.
class CommandPalette : public QDialog
{
    Q_OBJECT

public:
    explicit CommandPalette(QWidget *parent);

    /// Shows it over its parent with these rows; ids that are there twice count once.
    void open(const QList<PaletteRow> &rows);
    /// The ids that were run last, the newest first.
    const QStringList &recent() const { return m_recent; }
    void setRecent(const QStringList &ids) { m_recent = ids; }
    /// What is shown now, the best first.
    QStringList shownTitles() const;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void filter();
    void run();
    void choose(int step);

    QLineEdit *m_field;
    QTreeView *m_list;
    PaletteModel *m_model;
    QStringList m_recent;
};

} // namespace host::app
