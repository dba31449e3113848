#include "host/dcl/AttributeTable.h"

#include <algorithm>

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

using Kind = AttributeValue::Kind;

constexpr const char *truth = "true false";
constexpr const char *places = "left right top bottom centered filled";
constexpr const char *margins = "none tiny fat normal";
constexpr const char *colours = "dialog_line dialog_foreground dialog_background graphics_background "
                                "graphics_foreground black red yellow green cyan blue magenta white";

constexpr AttributeRow attributeRows[] = {
    {"action", Kind::Text, ""},
    {"alignment", Kind::Word, places},
    {"allow_accept", Kind::Word, truth},
    {"aspect_ratio", Kind::Number, ""},
    {"audit_level", Kind::Number, ""},
    {"big_increment", Kind::Number, ""},
    {"children_alignment", Kind::Word, places},
    {"children_fixed_height", Kind::Word, truth},
    {"children_fixed_width", Kind::Word, truth},
    {"color", Kind::Word, colours},
    {"edit_limit", Kind::Number, ""},
    {"edit_width", Kind::Number, ""},
    {"fixed_height", Kind::Word, truth},
    {"fixed_width", Kind::Word, truth},
    {"fixed_width_font", Kind::Word, truth},
    {"height", Kind::Number, ""},
    {"horizontal_margin", Kind::Word, margins},
    {"initial_focus", Kind::Text, ""},
    {"is_bold", Kind::Word, truth},
    {"is_cancel", Kind::Word, truth},
    {"is_default", Kind::Word, truth},
    {"is_enabled", Kind::Word, truth},
    {"is_help", Kind::Word, truth},
    {"is_tab_stop", Kind::Word, truth},
    {"key", Kind::Text, ""},
    {"label", Kind::Text, ""},
    {"layout", Kind::Word, "horizontal vertical"},
    {"list", Kind::Text, ""},
    {"max_value", Kind::Number, ""},
    {"min_value", Kind::Number, ""},
    {"mnemonic", Kind::Text, ""},
    {"multiple_select", Kind::Word, truth},
    {"password_char", Kind::Text, ""},
    {"small_increment", Kind::Number, ""},
    {"tab_truncate", Kind::Word, truth},
    {"tabs", Kind::Text, ""},
    {"value", Kind::Text, ""},
    {"vertical_margin", Kind::Word, margins},
    {"width", Kind::Number, ""},
};

} // namespace

const AttributeRow *findAttribute(const QString &name)
{
    const auto row =
        std::find_if(std::begin(attributeRows), std::end(attributeRows),
                     [&name](const AttributeRow &candidate) { return name == QLatin1StringView(candidate.name); });
    return row == std::end(attributeRows) ? nullptr : row;
}

QString whyUnsuitable(const AttributeRow &row, const AttributeValue &value)
{
    bool isNumber = value.kind == Kind::Number;
    if (value.kind == Kind::Text)
        value.text.toDouble(&isNumber);
    // A colour may be a number of the table of colours.
    if (row.kind == Kind::Text || (isNumber && (row.kind == Kind::Number || row.words == colours)))
        return {};
    if (row.kind == Kind::Number)
        return u"a number is expected"_s;
    const QString words = QLatin1StringView(row.words);
    if (words.split(u' ').contains(value.text.toLower()))
        return {};
    return u"expected is one of "_s + words;
}

} // namespace host::dcl
