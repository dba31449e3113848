#pragma once

#include "host/kernel/input/PickCompanions.h"
#include "host/kernel/input/Picker.h"
#include "host/kernel/input/PromptReply.h"
#include "host/kernel/input/SelectionStep.h"
#include "host/kernel/languages/Texts.h"

#include <QSet>

#include <functional>

namespace host::kernel {

enum class SelectionSize
{
    Many,      ///< until an empty answer
    Single,    ///< one step that found something
    OneStep,   ///< one step, whatever it found
    OnePicking ///< one step, and a place with nothing there is one: it does not begin a window
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
    /// Whether a program's (command) gives the next replies. What a user finds is told whatever CMDECHO is, and picks
    /// replace what was chosen before when PICKADD is 0.
    void setAnsweredByProgram(bool isByProgram) { m_isByProgram = isByProgram; }
    /// Picks choose what is picked alone, whatever PICKSTYLE is.
    void setAlone() { m_isAlone = true; }
    /// The request for the next step, with its prompt.
    PromptRequest request() const;
    /// Puts a reply in and tells the user how many were found.
    void add(const PromptReply &reply);

    bool isDone() const { return m_isDone; }
    bool isCancelled() const { return m_isCancelled; }
    /// How it was chosen, what a program chose before and gave as a set included. An entity may be named in a step and
    /// have been taken out later.
    const SelectionSteps &steps() const { return m_steps; }
    /// What is chosen, in the order of choosing.
    const std::vector<drawing::RecordId> &entities() const { return m_entities; }

private:
    void addIdle(const PromptReply &reply);
    void takeAnswered(const PromptReply &reply);
    void addShapePoint(const PromptReply &reply);
    void addWord(const QString &word);
    void addGroup(const PromptReply &reply);
    void undoStep();
    void startOver();
    void finishShape();
    void take(const std::vector<drawing::RecordId> &found, SelectionStep step = {});
    void tellFound(int count) const;
    std::vector<drawing::RecordId> withCompanions(std::vector<drawing::RecordId> picked);
    bool isPolygon() const;

    Document &m_document;
    SelectionSize m_size;
    std::function<bool(drawing::RecordId)> m_accepts;
    QString m_prompt = Kernel::tr("\nSelect objects: ");
    QStringList m_options;
    QString m_option;
    std::vector<drawing::RecordId> m_entities;
    QSet<quint32> m_members;
    std::vector<std::vector<drawing::RecordId>> m_before; ///< for Undo: the selection before each step
    std::optional<ShapeKind> m_shape;                     ///< corners of it are being asked for
    bool m_shapeByDirection = false; ///< window or crossing, depending on where the second corner is
    std::vector<drawing::Vec3> m_corners;
    SelectionSteps m_steps;
    PickCompanions m_companions;
    bool m_isRemoving = false;
    bool m_isAdding = false;   ///< said so: PICKADD does not count
    bool m_isMultiple = false; ///< places are picked until an empty answer
    bool m_isByNames = false;  ///< a group's name is being asked for
    bool m_isByProgram = false;
    bool m_isAlone = false;
    bool m_isDone = false;
    bool m_isCancelled = false;
};

} // namespace host::kernel
