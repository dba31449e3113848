#include "formats/TextCase.h"

#include <algorithm>

namespace ortakit {

namespace {

QChar withCase(QChar letter, bool isCapital)
{
    return isCapital ? letter.toUpper() : letter.toLower();
}

/// `convert` makes a letter of a letter.
template <class Convert>
QString withLetters(QString text, Convert convert)
{
    std::transform(text.cbegin(), text.cend(), text.begin(),
                   [&convert](QChar unit) { return unit.isLetter() ? convert(unit) : unit; });
    return text;
}

QString inSentenceCase(const QString &text)
{
    QString converted = withLetters(text, [](QChar letter) { return letter.toLower(); });
    if (!text.isEmpty() && text.front().isLetter())
        converted.front() = text.front().toUpper();
    return converted;
}

QString inTitleCase(QString text)
{
    bool isAtWordStart = true;
    for (QChar &unit : text) {
        if (unit.isLetter())
            unit = withCase(unit, isAtWordStart);
        isAtWordStart = unit.isSpace();
    }
    return text;
}

} // namespace

QString inTextCase(const QString &text, TextCase textCase)
{
    switch (textCase) {
    case TextCase::Sentence:
        return inSentenceCase(text);
    case TextCase::Lower:
        return text.toLower();
    case TextCase::Upper:
        return text.toUpper();
    case TextCase::Title:
        return inTitleCase(text);
    case TextCase::Toggle:
        return withLetters(text, [](QChar letter) { return withCase(letter, !letter.isUpper()); });
    }
    return text;
}

} // namespace ortakit
