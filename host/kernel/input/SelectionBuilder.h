#pragma once

#include "host/kernel/input/Picker.h"
#include "host/kernel/input/PromptReply.h"

#include <QSet>

#include <functional>

namespace host::kernel {

enum class SelectionSize
{
    Many,  ///< until an empty answer
    Single ///< one step
};

/// A window, polygon or fence of a selection, and what it found.
struct SelectionShape
{
    ShapeKind kind = ShapeKind::Window;
    std::vector<drawing::Vec3> corners; ///< world coordinates; of a window two
    std::vector<drawing::RecordId> found;
};

/// One step of choosing: how, where, and what came in by it.
struct SelectionStep
{
    enum class Way
    {
        Other = 0, ///< all, last, previous, a program's own
        Pick = 1,
        Window = 2,
        Crossing = 3,
        Fence = 4
    };
    Way way = Way::Other;
    std::vector<drawing::Vec3> points; ///< world coordinates: where it was picked, or the corners of the shape
    std::vector<drawing::RecordId> entities;
};
/// What a shape counts as, and its corners: of a window all four, from the user's axes.
SelectionStep shapeStep(const Document &document, ShapeKind kind, const std::vector<drawing::Vec3> &points);

/// A selection while it grows, step by step: who asks the user puts each reply in and asks request() next.
///
///     SelectionBuilder chosen(document);
///     while (!chosen.isDone())
///         chosen.add(document.prompts().ask(chosen.request()));
class SelectionBuilder
{
public:
    /// `accepts` says which entities may be chosen; null for all.
    explicit SelectionBuilder(Document &document, SelectionSize size = SelectionSize::Many,
                              std::function<bool(drawing::RecordId)> accepts = {});

    /// Another prompt than "Select objects: " while entities are added.
    void setPrompt(const QString &prompt);
    /// Keywords that end the selection, for whoever asks; they go before the selection's own words.
    void setOptions(const QStringList &options) { m_options = options; }
    /// The one of them that was given; empty for none.
    const QString &option() const { return m_option; }
    /// The request for the next step, with its prompt.
    PromptRequest request() const;
    /// Puts a reply in and tells the user how many were found.
    void add(const PromptReply &reply);

    bool isDone() const { return m_isDone; }
    bool isCancelled() const { return m_isCancelled; }
    /// How it was chosen. An entity may be named in a step and have been taken out later.
    const std::vector<SelectionStep> &steps() const { return m_steps; }
    /// What is chosen, in the order of choosing.
    const std::vector<drawing::RecordId> &entities() const { return m_entities; }
    /// The shapes by which entities were added, in order.
    const std::vector<SelectionShape> &shapes() const { return m_shapes; }

private:
    void addIdle(const PromptReply &reply);
    void addShapePoint(const PromptReply &reply);
    void addWord(const QString &word);
    void finishShape();
    void take(const std::vector<drawing::RecordId> &found, SelectionStep step = {});
    bool isPolygon() const;

    Document &m_document;
    SelectionSize m_size;
    std::function<bool(drawing::RecordId)> m_accepts;
    QString m_prompt = QStringLiteral("\nSelect objects: ");
    QStringList m_options;
    QString m_option;
    std::vector<drawing::RecordId> m_entities;
    std::vector<SelectionShape> m_shapes;
    QSet<quint32> m_members;
    std::vector<std::vector<drawing::RecordId>> m_before; ///< for Undo: the selection before each step
    std::optional<ShapeKind> m_shape;                     ///< corners of it are being asked for
    bool m_shapeByDirection = false; ///< window or crossing, depending on where the second corner is
    std::vector<drawing::Vec3> m_corners;
    std::vector<SelectionStep> m_steps;
    bool m_isRemoving = false;
    bool m_isDone = false;
    bool m_isCancelled = false;
};

} // namespace host::kernel
