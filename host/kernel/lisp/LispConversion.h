#pragma once

#include "host/drawing/math/Vec.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Arguments.h"
#include "host/lisp/Value.h"

namespace host::kernel {

class Document;

QString fromUtf8(std::string_view text);
lisp::Value toLisp(const QString &text);
lisp::Value toLisp(const drawing::Vec3 &point);
lisp::Value toLisp(const VariableValue &value);
lisp::Value toLisp(drawing::RecordId entity);
/// A selection set with a number of its own.
lisp::Value toLisp(lisp::Interpreter &interpreter, const std::vector<drawing::RecordId> &entities);

/// A list of two or three numbers; nothing for anything else.
std::optional<drawing::Vec3> pointFrom(const lisp::Value &value);
/// The record an entity name stands for; noRecord for a name that the drawing never gave out.
drawing::RecordId recordFrom(const Document &document, std::uint64_t entityName);

/// The document whose Lisp engine calls.
Document &documentOf(lisp::Arguments &args);
QString stringAt(lisp::Arguments &args, std::size_t index);
/// An entity name that is one of the drawing, erased or not. Throws for other values.
drawing::RecordId recordAt(lisp::Arguments &args, std::size_t index);
drawing::Vec3 pointAt(lisp::Arguments &args, std::size_t index);

/// User coordinates to world coordinates and back.
drawing::Vec3 toWorld(const Document &document, const drawing::Vec3 &user);
drawing::Vec3 toUser(const Document &document, const drawing::Vec3 &world);

} // namespace host::kernel
