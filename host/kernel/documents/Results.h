#pragma once

#include "host/drawing/records/Record.h"
#include "platform/Export.h"

#include <QObject>
#include <QString>

#include <vector>

namespace host::drawing {
class Drawing;
}

namespace host::kernel {

/// What a tool that touches many things did, and what it left alone and why: the list of the last run that kept one.
/// It is no part of the drawing and not undone. Adding costs no more than the row.
class KV_EXPORT Results final : public QObject
{
    Q_OBJECT

public:
    enum class State
    {
        Done,
        Skipped
    };
    struct Row
    {
        drawing::RecordId entity = drawing::noRecord; ///< noRecord for what is none; it may be gone by now
        State state = State::Done;
        QString text{}; ///< what was done, or why not
    };
    /// Rows beyond these are counted and not kept.
    static constexpr std::size_t mostRows = 100'000;

    using QObject::QObject;

    /// A new list in place of the one before, also of one that is still open.
    void begin(const QString &title);
    /// False when no list is open, or it is full.
    bool add(Row row);
    /// The list is whole. False when none was open.
    bool end();

    const QString &title() const { return m_title; }
    const std::vector<Row> &rows() const { return m_rows; }
    /// Those that were not kept among them.
    qsizetype count(State state) const { return state == State::Done ? m_done : m_skipped; }
    /// Somebody shows the lists that are whole: the program need not print them.
    void setShown(bool isShown) { m_isShown = isShown; }
    bool isShown() const { return m_isShown; }

    /// The title with both counts.
    QString summary() const;
    /// The summary and a line a row, with handle and type of the entity, for a person to read; at most so many rows.
    QString toText(const drawing::Drawing &drawing, std::size_t most = mostRows) const;
    /// An object with "title", "done", "skipped" and "results", a list of objects with "state" ("done" or "skipped"),
    /// "handle" and "type" (empty for what is no entity) and "text"; UTF-8, an object a line.
    QByteArray toJson(const drawing::Drawing &drawing) const;

signals:
    /// A list has been ended.
    void ended();

private:
    QString m_title;
    std::vector<Row> m_rows;
    qsizetype m_done = 0;
    qsizetype m_skipped = 0;
    bool m_isOpen = false;
    bool m_isShown = false;
};

} // namespace host::kernel
