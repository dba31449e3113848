#pragma once

#include <QRandomGenerator>
#include <QStringList>

namespace ortakit::test {

/// Makes lines as a hostile user would write them: many keywords, delimiters, quotes, semicolons and odd characters.
/// The same seed makes the same lines.
class LispLines
{
public:
    LispLines(int seed, QStringList words) : m_random(quint32(seed)), m_words(std::move(words)) {}

    QString line()
    {
        QString text;
        for (int pieces = m_random.bounded(14); pieces > 0; --pieces)
            text += piece();
        return text;
    }

    /// A search text: mostly one with surprises, otherwise a handful of characters that are rarely an expression.
    QString search()
    {
        using namespace Qt::StringLiterals;
        static const QStringList searches = {
            u""_s,       u"car"_s,        u"A*"_s,        u"["_s,       u"("_s,    u"\\"_s,     u"."_s,
            u"^"_s,      u"$"_s,          u"\\b"_s,       u"(?<=a)b"_s, u"x|"_s,   u"\u017F"_s, u"k"_s,
            u"\u00C9"_s, u"\U0001F600"_s, u"(?=.c\\K)"_s, u"\\d+"_s,    u"\""_s,   u";.*"_s,    u"\\R"_s,
            u"\\X"_s,    u"(?-i)C"_s,     u"\\s+"_s,      u"\\w"_s,     u"^.*$"_s, u"(?m)^."_s, u"(?s).*"_s,
            u"\\Z"_s,    u"(*UCP)\\w"_s,  u"(*CRLF)."_s,  u"[^a]"_s,
        };
        if (m_random.bounded(3) > 0)
            return pick(searches);
        QString text;
        for (int characters = 1 + m_random.bounded(5); characters > 0; --characters)
            text += pick(u"aAcr1()[]*+?|.\\^$;\" "_s);
        return text;
    }

private:
    template <class List>
    typename List::value_type pick(const List &list)
    {
        return list[m_random.bounded(int(list.size()))];
    }

    QString piece()
    {
        using namespace Qt::StringLiterals;
        // "%1" is a keyword.
        static const QStringList pieces = {
            u"%1"_s, u"%1"_s, u"(%1 "_s, u"(%1 "_s, u"(%1)"_s, u" %1 "_s, u"'%1"_s, u"car"_s, u" "_s, u"("_s,
            u"("_s,  u")"_s,  u"\t"_s,   u"\""_s,   u"1"_s,    u" 11"_s,  u"908"_s, u"a"_s,   u"c"_s, u"rr"_s,
            u"b"_s,  u"K"_s,  u"s"_s,    u"+"_s,    u"-"_s,    u"?"_s,    u"\\"_s,  u"'"_s,
        };
        // Characters that end a line or a word in some places and not in others, and some of several units.
        static const QString odd =
            u"\u2028\u2029\u00A0\u0085\u3000\r\n\v\f\u001C\u00E9\u88AC\u212A\u0661\uFEFF\u0301\uFFFF"_s + QChar(u'\0');
        const int chance = m_random.bounded(600);
        if (chance < 2)
            return QString(1, QChar(chance ? 0xD83D : 0xDE00)); // spoils the whole line, so there are few
        if (chance < 20)
            return u";"_s;
        if (chance < 24)
            return chance < 22 ? u"\U0001F600"_s : u"\r\n"_s;
        if (chance < 60)
            return QString(pick(odd));
        const QString text = pick(pieces).replace(u"%1"_s, pick(m_words));
        if (chance < 80)
            return text.toUpper();
        return chance < 100 ? text.left(m_random.bounded(int(text.size()) + 1)) : text;
    }

    QRandomGenerator m_random;
    QStringList m_words;
};

} // namespace ortakit::test
