#include "formats/TextCase.h"

#include "tests/formats/Folder.h"

namespace {

TEST(TextCase, ConvertsAsWorded)
{
    const std::tuple<TextCase, QString, QString> rows[] = {
        {TextCase::Sentence, u"hello World. bye"_s, u"Hello world. bye"_s},
        {TextCase::Sentence, u" hello"_s, u" hello"_s},
        {TextCase::Sentence, u"2ND FLOOR"_s, u"2nd floor"_s},
        {TextCase::Sentence, u"élan ÉTÉ"_s, u"Élan été"_s},
        {TextCase::Sentence, u"ßA"_s, u"ßa"_s},
        {TextCase::Sentence, {}, {}},
        {TextCase::Lower, u"ABC 12 ÄÖ İ"_s, u"abc 12 äö i\u0307"_s},
        {TextCase::Lower, u"\U00010400"_s, u"\U00010428"_s},
        {TextCase::Upper, u"straße ı i"_s, u"STRASSE I I"_s},
        {TextCase::Upper, u"\U00010428"_s, u"\U00010400"_s},
        {TextCase::Title, u"the (big) dog"_s, u"The (big) Dog"_s},
        {TextCase::Title, u"2ND\tFLOOR\u00A0o'NEIL\nx-RAY"_s, u"2nd\tFloor\u00A0O'neil\nX-ray"_s},
        {TextCase::Title, u"ßa ǆa \U00010428a"_s, u"ßa Ǆa \U00010428a"_s},
        {TextCase::Toggle, u"aB1c"_s, u"Ab1C"_s},
        {TextCase::Toggle, u"ß ÿ ǅ ΟΔΟΣ ς \U00010428"_s, u"ß Ÿ Ǆ οδοσ Σ \U00010428"_s},
    };
    for (const auto &[textCase, text, converted] : rows)
        EXPECT_EQ(inTextCase(text, textCase), converted) << text.toStdString();
}

} // namespace
