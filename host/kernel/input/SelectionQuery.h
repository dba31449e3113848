#pragma once

#include "host/drawing/selection/SelectionFilter.h"
#include "host/kernel/input/SelectionBuilder.h"

#include <QSet>

namespace host::kernel {

class Document;

/// Why a query cannot be asked.
enum class QueryFault
{
    None,
    UnknownMethod,
    TooFewPoints, ///< for the method
    TooManyPoints ///< without a method there is one at most
};

/// How entities are to be chosen: what (ssget) and modules ask for.
///
/// Without method and point the user chooses; at a point alone, what is there. Methods: X the whole drawing, A all of
/// the current space, P previous, L last, I what is chosen already, W and C with two corners, WP CP F with a path.
struct SelectionQuery
{
    QString prompt;                    ///< for the user; empty: the usual one
    QString method;                    ///< "X", "W", ...; empty for the user's choice
    QStringList flags;                 ///< behind a colon: "S" one step, whatever it finds, "L" no locked layers, ...
    bool picksOnly = false;            ///< "+.": with S, a place with nothing there begins no window
    std::vector<drawing::Vec3> points; ///< world coordinates
    std::optional<drawing::SelectionFilter> filter;

    /// Takes method and flags from one text: "_:L" or "X" or "+.:E:S", the method in front, flags behind colons.
    void setMode(const QString &mode);
    bool asksUser() const { return method.isEmpty() && points.empty(); }
    QueryFault fault() const;
};

struct SelectionOutcome
{
    bool isCancelled = false;
    std::vector<drawing::RecordId> entities; ///< alive, each once; the newest first where the user does not choose
    std::vector<SelectionStep> steps{};      ///< how; none for what is neither picked nor in a shape
};

/// Chooses. The query must be without fault. What was chosen becomes the previous selection.
SelectionOutcome select(Document &document, const SelectionQuery &query);

/// Upper-case names.
QSet<QString> lockedLayers(const drawing::Drawing &drawing);
/// Whether the layer of `entity` is one of `layers` (upper-case names).
bool isOnLayerOf(const QSet<QString> &layers, const drawing::Drawing &drawing, drawing::RecordId entity);

} // namespace host::kernel
