#pragma once

#include "host/drawing/records/Drawing.h"
#include "platform/Export.h"

#include <QHash>

#include <functional>
#include <optional>
#include <variant>

namespace host::kernel {

class Document;
struct HostVariable;

/// The value of a system variable: an integer, a real, text or a point, flat or not. Lengths are drawing units, angles
/// radians. Which of the kinds a variable has never changes.
using VariableValue = std::variant<qint32, double, QString, drawing::Vec2, drawing::Vec3>;

/// What came of setting a variable.
enum class SetOutcome
{
    Done,
    Unknown,   ///< no variable of that name
    ReadOnly,  ///< only the host itself sets it
    WrongType, ///< no value of its kind, nor one that becomes one
    OutOfRange ///< beyond its limits, or the name of a layer, style ... that there is not
};

/// The system variables of one document, by name without regard to letter case: those of the drawing's header (named
/// without the $ that the file has; changing one is an undoable change of the drawing), those of its objects, those of
/// the user's settings and those of the host. Angles are radians. Numbers given for a real variable may be integers;
/// the other way round is refused. Setting what a variable is already changes nothing, nor the drawing.
class KV_EXPORT SystemVariables
{
public:
    /// The document owns it. Nothing is read before it is asked for.
    explicit SystemVariables(Document &document);
    ~SystemVariables();
    SystemVariables(const SystemVariables &) = delete;
    SystemVariables &operator=(const SystemVariables &) = delete;

    /// Nothing for an unknown name. Some are worked out at each call (DATE, EXTMIN), which costs what that costs.
    std::optional<VariableValue> get(QStringView name) const;
    /// Tells the editor's reactors first, when the value is acceptable.
    SetOutcome set(QStringView name, const VariableValue &value);
    /// As set(), for the host itself: read-only variables as well, and the range is not looked at.
    void setInternally(QStringView name, const VariableValue &value);

    // For readers who know what they want: `otherwise` for an unknown name or another kind of value.
    qint32 integer(QStringView name, qint32 otherwise = 0) const;
    double real(QStringView name, double otherwise = 0.0) const;
    drawing::Vec3 point(QStringView name) const;
    QString text(QStringView name) const;
    /// As text, whatever its kind: what a prompt shows. Empty for an unknown name.
    QString display(QStringView name) const;

    /// Puts into the drawing what is kept in one of its objects, and into the user's settings what is kept there, as
    /// far as it was set since the last time. Called at the end of each run and before the drawing is saved, so that a
    /// setting which a program changes and puts back leaves no trace: making the object takes a handle, which cannot be
    /// given back.
    void storeObjectSettings();

    /// Whether set() refuses every value; false for an unknown name.
    bool isReadOnly(QStringView name) const;
    /// All names, sorted: those of the host and those that the drawing's header has.
    QStringList names() const;

private:
    // What is kept where the variable's row says; nothing where it does not say it.
    std::optional<VariableValue> headerValue(const QString &name) const;
    std::optional<VariableValue> viewportValue(const HostVariable &variable) const;
    std::optional<VariableValue> userValue(const HostVariable &variable) const;
    std::optional<VariableValue> dictionaryValue(const HostVariable &variable) const;
    std::optional<VariableValue> storedValue(const HostVariable &variable) const;
    void setInHeader(const QString &name, const HostVariable *variable, const VariableValue &value);
    bool setInViewport(const HostVariable &variable, const VariableValue &value);

    Document &m_document;
    /// By upper-case name: what is kept in memory, and what has still to be put into an object of the drawing.
    QHash<QString, VariableValue> m_values;
};

} // namespace host::kernel
