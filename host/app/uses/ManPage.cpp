#include "host/app/uses/HelpParts.h"
#include "host/app/uses/UseForms.h"

#include <QDate>
#include <QDateTime>
#include <QRegularExpression>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// Text that means nothing but itself to the formatter.
QString manText(QString text)
{
    text.replace(u'\\', "\\e"_L1).replace(u'-', "\\-"_L1);
    static const QRegularExpression lineBegin(u"^([.'])"_s, QRegularExpression::MultilineOption);
    return text.replace(lineBegin, u"\\&\\1"_s);
}

/// The same in lines that editors show whole.
QString manLines(const QString &text)
{
    constexpr qsizetype width = 72;
    QString lines;
    qsizetype column = 0;
    for (const QString &word : text.split(u' ', Qt::SkipEmptyParts)) {
        const bool fits = column + 1 + word.size() <= width;
        lines += (column == 0 ? QString() : fits ? u" "_s : u"\n"_s) + word;
        column = (fits ? column + 1 : 0) + word.size();
    }
    return manText(lines) + u'\n';
}

QString manHeading(const QString &heading)
{
    return u".SH "_s + manText(heading.toUpper()) + u'\n';
}

/// The day of the page: that of the sources where a package's build says it.
QString manDate()
{
    bool isSet = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isSet);
    const QDate day = isSet ? QDateTime::fromSecsSinceEpoch(seconds, QTimeZone::utc()).date() : QDate::currentDate();
    return day.toString(Qt::ISODate);
}

QString manEntry(const QString &name, const QString &text)
{
    return u".TP\n.B "_s + manText(name) + u'\n' + manLines(text);
}

QString manOptions(const QList<OptionRow> &rows)
{
    QString text;
    for (const OptionRow &row : rows) {
        text += u".TP\n\\fB"_s + manText(QString::fromLatin1(row.name)) + u"\\fR"_s;
        if (row.value)
            text += u" \\fI"_s + manText(QString::fromLatin1(row.value)) + u"\\fR"_s;
        text += u'\n' + manLines(optionText(row));
    }
    return text;
}

QString manParagraphs(const char *source)
{
    QString text;
    for (const Paragraph &paragraph : paragraphsOf(source)) {
        if (paragraph.isAsIs)
            text += u".PP\n.nf\n"_s + manText(paragraph.text) + u"\n.fi\n"_s;
        else
            text += (text.isEmpty() ? QString() : u".PP\n"_s) + manLines(paragraph.text);
    }
    return text;
}

QString manCommands(bool ofTools)
{
    QString text;
    for (const UseRow &row : allUses())
        if (*row.name && !row.isHidden && row.isOfTool == ofTools && !row.needsSession)
            text += manEntry(row.title(), usesText(row.purpose) + u"; see ortakit-%1(1)"_s.arg(row.title()));
    return text;
}

QString manSynopsis(const UseRow &use)
{
    QString text = manHeading(u"Synopsis"_s);
    bool isFirst = true;
    for (const char *usage : use.usages) {
        text += (isFirst ? QString() : u".br\n"_s) + u".B ortakit\n"_s + manLines(QString::fromLatin1(usage));
        isFirst = false;
    }
    return text;
}

/// The parts of the description, options behind each.
QString manSections(const UseRow &use)
{
    QString text;
    bool isOptions = false;
    for (const UseSection &section : use.sections) {
        const QString paragraphs = manParagraphs(section.text);
        if (*section.heading)
            text += manHeading(usesText(section.heading));
        else if (text.isEmpty())
            text += manHeading(u"Description"_s);
        else if (!paragraphs.isEmpty())
            text += manHeading(u"Notes"_s);
        text += paragraphs;
        if (!section.options.isEmpty() && !*section.heading && !isOptions)
            text += manHeading(u"Options"_s);
        isOptions = isOptions || !section.options.isEmpty();
        text += manOptions(section.options);
    }
    return text;
}

} // namespace

QString manPage(const UseRow &use, const QString &version)
{
    const QString name = *use.name ? u"ortakit-"_s + use.title() : u"ortakit"_s;
    QString text =
        u".TH %1 1 \"%2\" \"ortakit %3\" \"User Commands\"\n"_s.arg(manText(name.toUpper()), manDate(), version);
    text += manHeading(u"Name"_s) + manText(name) + u" \\- "_s + manText(usesText(use.purpose)) + u'\n';
    text += manSynopsis(use) + manSections(use);
    if (!*use.name)
        text += manHeading(u"Commands"_s) + manCommands(false) + manHeading(u"Drafting tools without their dialogs"_s) +
                manCommands(true);
    const auto entries = entriesOf(use);
    if (!entries.isEmpty())
        text += manHeading(usesText(use.entriesHeading));
    for (const auto &[key, about] : entries)
        text += manEntry(key, about);
    text += manHeading(u"Options for every use"_s) + manOptions(commonOptions());
    const QString status = exitStatusText();
    text += manHeading(u"Exit status"_s) + manLines(status.section(u": "_s, 1));
    if (*use.example)
        text += manHeading(u"Example"_s) + u".nf\n"_s + manText(u"ortakit "_s + QString::fromLatin1(use.example)) +
                u"\n.fi\n"_s;
    return *use.name ? text + manHeading(u"See also"_s) + u".BR ortakit (1)\n"_s : text;
}

} // namespace host::app
