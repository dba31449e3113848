#pragma once

#include <QList>
#include <QString>

namespace host::dcl {

/// The value of an attribute as the file has it.
struct AttributeValue
{
    enum class Kind
    {
        Text,
        Number, ///< an integer or a real
        Word    ///< a reserved word, true and false among them
    };

    Kind kind = Kind::Text;
    QString text;      ///< without quotes; of a number, as written
    double number = 0; ///< of a number, and of a text that is one

    bool operator==(const AttributeValue &) const = default;
};

/// What an attribute may be.
struct AttributeRow
{
    const char *name;
    AttributeValue::Kind kind;
    const char *words; ///< of the kind Word: those there are, with a blank between
};

/// The row of the attribute that is written like this, in lower case; null for one that the language does not have.
const AttributeRow *findAttribute(const QString &name);

/// Why the value does not suit the attribute; empty when it does. A number of either kind suits a number, and a text
/// that is what is asked for is as good as without quotes.
QString whyUnsuitable(const AttributeRow &row, const AttributeValue &value);

} // namespace host::dcl
