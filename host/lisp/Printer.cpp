#include "host/lisp/Printer.h"

#include "host/lisp/File.h"
#include "host/lisp/Function.h"
#include "host/lisp/Native.h"
#include "host/lisp/Text.h"

#include <cmath>
#include <cstdio>

namespace host::lisp {

static std::string realToText(double real)
{
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.6g", real);
    std::string text = buffer;
    if (!std::isfinite(real) || text.find('.') != std::string::npos)
        return text;
    const std::size_t exponent = text.find('e');
    text.insert(exponent == std::string::npos ? text.size() : exponent, ".0");
    return text;
}

static void appendEscaped(std::string &out, const std::string &text)
{
    out.push_back('"');
    for (const char c : text) {
        static constexpr std::string_view special = "\"\\\n\t\r\x1B";
        static constexpr std::string_view letters = "\"\\ntre";
        if (const std::size_t found = special.find(c); found != std::string_view::npos) {
            out.push_back('\\');
            out.push_back(letters[found]);
        } else if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
            char buffer[8];
            std::snprintf(buffer, sizeof buffer, "\\%03o", static_cast<unsigned>(static_cast<unsigned char>(c)));
            out += buffer;
        } else {
            out.push_back(c);
        }
    }
    out.push_back('"');
}

static std::string hexadecimal(std::uint64_t number)
{
    char buffer[24];
    std::snprintf(buffer, sizeof buffer, "%llx", static_cast<unsigned long long>(number));
    return buffer;
}

static void appendAtom(std::string &out, const Value &atom, PrintStyle style)
{
    switch (atom.tag()) {
    case Tag::Nil:
        out += "nil";
        break;
    case Tag::Integer:
        out += std::to_string(atom.asInteger());
        break;
    case Tag::Real:
        out += realToText(atom.asReal());
        break;
    case Tag::EntityName:
        out += "<Entity name: " + hexadecimal(atom.asEntityName()) + ">";
        break;
    case Tag::Symbol:
        out += atom.asSymbol().name();
        break;
    case Tag::String:
        if (style == PrintStyle::Readable)
            appendEscaped(out, atom.asString());
        else
            out += atom.asString();
        break;
    case Tag::Function:
        out += "<Function: " + atom.asFunction().displayName() + ">";
        break;
    case Tag::Native:
        out += "<Subr: " + atom.asNative().name + ">";
        break;
    case Tag::File:
        out += "<File: " + atom.asFile().path() + ">";
        break;
    case Tag::SelectionSet:
        out += "<Selection set: " + hexadecimal(atom.asSelectionSet().mark) + ">";
        break;
    case Tag::CaughtError:
        out += "<Caught error: " + atom.asCaughtError().message + ">";
        break;
    case Tag::HostObject:
        out += "#<VLA-OBJECT " + atom.asHostObject().kind + " " + hexadecimal(atom.asHostObject().number) + ">";
        break;
    case Tag::Cons:
        break;
    }
}

/// Cuts behind a whole character.
static std::string brokenOff(std::string text, std::size_t longest)
{
    std::size_t end = std::min(longest, text.size());
    while (end > 0 && end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
        --end;
    text.replace(end, std::string::npos, "...");
    return text;
}

std::string toText(const Value &value, PrintStyle style, std::size_t longest)
{
    std::string out;
    // What is still to print of each list that is open, outermost first.
    std::vector<const Value *> open;
    const Value *current = &value;
    while (true) {
        if (out.size() > longest)
            return brokenOff(std::move(out), longest);
        if (current->isCons()) {
            out.push_back('(');
            open.push_back(&current->cdr());
            current = &current->car();
            continue;
        }
        appendAtom(out, *current, style);
        while (!open.empty() && !open.back()->isCons()) {
            if (open.back()->isTrue()) {
                out += " . ";
                appendAtom(out, *open.back(), style);
            }
            out.push_back(')');
            open.pop_back();
        }
        if (open.empty())
            return out.size() > longest ? brokenOff(std::move(out), longest) : out;
        out.push_back(' ');
        current = &open.back()->car();
        open.back() = &open.back()->cdr();
    }
}

std::string toShortText(const Value &value)
{
    return toText(value, PrintStyle::Readable, 200);
}

} // namespace host::lisp
