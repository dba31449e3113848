#include "host/app/uses/HelpParts.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace host::app {

QList<Paragraph> paragraphsOf(const char *text)
{
    QList<Paragraph> paragraphs;
    if (!*text)
        return paragraphs;
    for (const QString &part : usesText(text).split(u"\n\n"_s, Qt::SkipEmptyParts))
        paragraphs.append({part, part.startsWith(u' ')});
    return paragraphs;
}

QString optionWord(const OptionRow &row)
{
    const QString name = QString::fromLatin1(row.name);
    return row.value ? name + u' ' + QLatin1StringView(row.value) : name;
}

QString optionText(const OptionRow &row)
{
    QStringList limits;
    if (row.range)
        limits.append(QCoreApplication::translate("Uses", "%1 to %2")
                          .arg(QString::number(row.range->least, 'g', 10), QString::number(row.range->most, 'g', 10)));
    if (row.byDefault)
        limits.append(QCoreApplication::translate("Uses", "default: %1").arg(usesText(row.byDefault)));
    const QString text = usesText(row.help);
    return limits.isEmpty() ? text : u"%1 (%2)"_s.arg(text, limits.join("; "_L1));
}

QString exitStatusText()
{
    return QCoreApplication::translate(
        "Uses",
        "Exit status: 0 done, 1 a tool, expression or session failed or passed a limit, 2 wrong use, 3 part of a batch "
        "failed or, with --strict, of a picture is missing, 4 a file could not be read or written, 5 a picture was "
        "written, but there was more to show than is drawn in one go: a few lines of a drawing can make millions.");
}

} // namespace host::app
