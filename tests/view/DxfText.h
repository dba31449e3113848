#pragma once

#include "host/drawing/records/Drawing.h"

#include <QByteArray>

#include <memory>
#include <string>

namespace host::view::test {

/// The parts of a small drawing, each a run of tags written as "code value|code value|...".
struct DxfText
{
    std::string entities{};
    std::string blocks{}; ///< within the BLOCKS section; see blockText()
    std::string layers{}; ///< LAYER entries
    std::string tables{}; ///< other whole tables; see tableText()
    std::string header{};
    std::string objects{};
};

/// A block definition with its base point at the origin.
std::string blockText(const std::string &name, const std::string &entities);
/// A symbol table with its entries.
std::string tableText(const std::string &type, const std::string &entries);

QByteArray dxfBytes(const DxfText &text);
/// The drawing; a failure of the running test when it cannot be read.
std::unique_ptr<drawing::Drawing> readDrawing(const DxfText &text);

} // namespace host::view::test
