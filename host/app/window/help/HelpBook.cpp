#include "host/app/window/help/HelpBook.h"

#include <QFile>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr qsizetype excerptLength = 140;

QList<QStringList> tableRows(const QString &path)
{
    QList<QStringList> rows;
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts))
            rows.append(line.split(u'\t'));
    return rows;
}

/// The next place from `from` on where a word of the text begins with `word`; -1 for none.
qsizetype placeOf(const QString &word, const QString &text, qsizetype from = 0)
{
    for (qsizetype at = text.indexOf(word, from); at >= 0; at = text.indexOf(word, at + 1))
        if (at == 0 || !text[at - 1].isLetterOrNumber())
            return at;
    return -1;
}

qsizetype countOf(const QString &word, const QString &text, qsizetype most)
{
    qsizetype count = 0;
    for (qsizetype at = placeOf(word, text); at >= 0 && count < most; at = placeOf(word, text, at + 1))
        ++count;
    return count;
}

QString excerptAround(const QString &text, qsizetype place)
{
    if (text.size() <= excerptLength)
        return text;
    qsizetype begin = std::clamp<qsizetype>(place - excerptLength / 3, 0, text.size() - excerptLength);
    if (begin > 0)
        begin = text.indexOf(u' ', begin) + 1;
    const QString cut = text.sliced(begin, std::min(excerptLength, text.size() - begin)).trimmed();
    return (begin > 0 ? u"…"_s : QString()) + cut + (begin + excerptLength < text.size() ? u"…"_s : QString());
}

} // namespace

HelpBook::HelpBook(const QString &folder) : m_folder(folder)
{
    for (const QStringList &row : tableRows(folder + u"/contents.tsv"_s))
        m_contents.append({row.value(0).toInt(), row.value(1), row.value(2)});
}

const QList<HelpBook::Section> &HelpBook::sections() const
{
    if (!m_sections.isEmpty())
        return m_sections;
    for (const QStringList &row : tableRows(m_folder + u"/search.tsv"_s)) {
        const Hit hit{row.value(0), row.value(1), row.value(2), row.value(3)};
        m_sections.append({hit, (hit.page + u' ' + hit.heading + u' ' + hit.excerpt).toLower(), hit.heading.toLower()});
    }
    return m_sections;
}

QStringList HelpBook::words(const QString &sought)
{
    return sought.toLower().split(u' ', Qt::SkipEmptyParts);
}

QList<HelpBook::Hit> HelpBook::search(const QString &sought, qsizetype most) const
{
    struct Found
    {
        const Section *section;
        qsizetype words;
        double worth;
    };
    const QStringList wanted = words(sought);
    const QString whole = wanted.join(u' ');
    QList<Found> found;
    for (const Section &section : sections()) {
        Found each{&section, 0, section.foldedHeading == whole ? 100.0 : 0.0};
        for (const QString &word : wanted) {
            const qsizetype count = countOf(word, section.folded, 8);
            each.words += count > 0 ? 1 : 0;
            each.worth += std::sqrt(double(count)) + (placeOf(word, section.foldedHeading) >= 0 ? 8.0 : 0.0) +
                          (placeOf(word, section.hit.page.toLower()) >= 0 ? 3.0 : 0.0);
        }
        if (each.words > 0)
            found.append(each);
    }
    std::ranges::stable_sort(found, [](const Found &a, const Found &b) {
        return a.words != b.words ? a.words > b.words : a.worth > b.worth;
    });
    QList<Hit> hits;
    for (const Found &each : found) {
        if (hits.size() == most || each.words < found.first().words)
            break;
        Hit hit = each.section->hit;
        qsizetype place = -1;
        for (const QString &word : wanted)
            if (place < 0)
                place = placeOf(word, hit.excerpt.toLower());
        hit.excerpt = excerptAround(hit.excerpt, std::max<qsizetype>(place, 0));
        hits.append(hit);
    }
    return hits;
}

} // namespace host::app
