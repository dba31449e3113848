// The case that the tool gives to texts, in Lisp, is the one that its dialog shows, in C++.

#include "formats/TextCase.h"

#include "tests/tools/ToolRun.h"

#include <array>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

/// A string as Lisp reads it.
QString quoted(QString text)
{
    text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s).replace(u'\n', u"\\n"_s).replace(u'\t', u"\\t"_s);
    return u'"' + text + u'"';
}

/// All characters that might have a case, each once behind a blank and once behind another character.
QString everyCase()
{
    QString text;
    for (uint code = 0x80; code < 0x1F000; ++code) {
        const QString character = QString::fromUcs4(std::array{char32_t(code)}.data(), 1);
        const QChar::Category category = QChar::category(code);
        const bool hasCase = character.toUpper() != character || character.toLower() != character;
        if (hasCase || (category >= QChar::Letter_Uppercase && category < QChar::Letter_Other))
            text += u' ' + character + character;
    }
    return text;
}

using TextCase = ToolTest;

TEST_F(TextCase, InLispIsThatOfThePreview)
{
    const QStringList texts = {u"hello World. bye"_s,   u" hello"_s,
                               u"2ND FLOOR"_s,          u"élan ÉTÉ"_s,
                               u"ßA straße ı i"_s,      u""_s,
                               u"ABC 12 ÄÖ İ"_s,        u"\U00010400 \U00010428a"_s,
                               u"the (big) dog"_s,      u"2ND\tFLOOR\u00A0o'NEIL\nx-RAY"_s,
                               u"ǆa aB1c ÿ ǅ ΟΔΟΣ ς"_s, everyCase()};
    QString session;
    for (const QString &text : texts) {
        for (int style = 1; style <= 5; ++style) {
            const QString expected = ortakit::inTextCase(text, static_cast<ortakit::TextCase>(style - 1));
            for (const QString &paragraph : {u"nil"_s, u"T"_s})
                session += u"expect-lisp (= (edittextcase:converted %1 %2 %3) %4)\n"_s.arg(
                    quoted(text), QString::number(style), paragraph, quoted(expected));
        }
    }
    plays(session);
}

} // namespace
