#pragma once

#include "host/drawing/records/Drawing.h"

#include <QObject>
#include <QPointF>

namespace host::app {

class DrawingCanvas;
class WindowServices;

/// Text as Lisp reads it, in its quotes.
QString lispString(const QString &text);

/// Editing what entities say, begun by a double click: a line over a text or a dimension's text, a window for
/// paragraphs, definitions of attributes and the attributes of a block reference. What comes of it runs as TEXTEDIT or
/// EATTEDIT, in one undo step; what is left as it was runs nothing.
class TextEditing final : public QObject
{
    Q_OBJECT

public:
    /// `services` must outlive it.
    explicit TextEditing(WindowServices &services, QObject *parent = nullptr);

    /// Edits what lies at that place of the canvas. False when nothing there says anything, and while something runs.
    bool editAt(DrawingCanvas &canvas, const QPointF &at);
    /// Edits the entity, of which `at` was pointed to; a locked layer is told. False for what says nothing.
    bool edit(DrawingCanvas &canvas, drawing::RecordId entity, const QPointF &at);

    /// The line that gives the entity these answers to the prompts of the command, as (command) has them.
    static QString commandLine(const drawing::Drawing &drawing, const QString &command, drawing::RecordId entity,
                               const QStringList &answers);

private:
    bool isLocked(drawing::RecordId entity) const;
    void editLine(DrawingCanvas &canvas, drawing::RecordId entity, const QPointF &at);
    void editParagraph(DrawingCanvas &canvas, drawing::RecordId entity);
    void editDefinition(DrawingCanvas &canvas, drawing::RecordId entity);
    void editAttributes(DrawingCanvas &canvas, drawing::RecordId reference, const QPointF &at);
    /// Runs the command for the entity, which is chosen where it has no handle to be named by.
    void run(const QString &command, drawing::RecordId entity, const QStringList &answers);

    WindowServices &m_services;
};

} // namespace host::app
