#pragma once

#include "host/drawing/math/Vec.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Arguments.h"
#include "host/lisp/Value.h"

namespace host::kernel {

class Document;

// Values of Lisp programs as this host has them, and back. Strings of the engine are UTF-8. What throws, throws the
// dialect's errors as lisp::Arguments does, for natives to let pass.

/// Bytes that are no UTF-8 become replacement characters.
QString fromUtf8(std::string_view text);
lisp::Value toLisp(const QString &text);
/// A list of three reals, in the coordinates that the point has.
lisp::Value toLisp(const drawing::Vec3 &point);
/// An integer, a real, a string, or a list of as many reals as the point has.
lisp::Value toLisp(const VariableValue &value);
/// The entity's name for programs of this document; the same for the same record each time, erased or not.
lisp::Value toLisp(drawing::RecordId entity);
/// A selection set with a number of its own, of the entities in this order, each once.
lisp::Value toLisp(lisp::Interpreter &interpreter, const std::vector<drawing::RecordId> &entities);

/// A list of two or three numbers; nothing for anything else.
std::optional<drawing::Vec3> pointFrom(const lisp::Value &value);
/// The record an entity name stands for; noRecord for a name that the drawing never gave out.
drawing::RecordId recordFrom(const Document &document, std::uint64_t entityName);

/// The document whose Lisp engine calls: not always the active one, as an engine may run while another is shown.
Document &documentOf(lisp::Arguments &args);
/// An argument as text; throws for anything but a string.
QString stringAt(lisp::Arguments &args, std::size_t index);
/// An entity name that is one of the drawing, erased or not. Throws for other values.
drawing::RecordId recordAt(lisp::Arguments &args, std::size_t index);
/// An argument as a point, z 0 when it has none; throws for anything but two or three numbers.
drawing::Vec3 pointAt(lisp::Arguments &args, std::size_t index);

/// User coordinates to world coordinates and back, by the axes that the drawing has now (UCSORG, UCSXDIR, UCSYDIR).
drawing::Vec3 toWorld(const Document &document, const drawing::Vec3 &user);
drawing::Vec3 toUser(const Document &document, const drawing::Vec3 &world);

} // namespace host::kernel
