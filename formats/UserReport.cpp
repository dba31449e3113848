#include "formats/UserReport.h"

#include "formats/TextReading.h"

namespace ortakit {

namespace {

QString heading(QLatin1StringView title)
{
    const QString separator = QString(36, u'@') + u'\n';
    return separator + title + u'\n' + separator;
}

} // namespace

QString userReportText(const UserReport &report)
{
    return heading(QLatin1StringView("\t\tUSER INFORMATION")) + QLatin1StringView("NAME:   ") + report.name + u'\n' +
           QLatin1StringView("E-MAIL: ") + report.email + u'\n' + QLatin1StringView("PHONE:  ") + report.phone +
           QLatin1StringView("\n\nISSUE DESCRIPTION:\n") + report.issue + QLatin1StringView("\n\n") +
           heading(QLatin1StringView("\tSTEPS TO REPRODUCE THE ISSUE")) + report.steps + u'\n' +
           heading(QLatin1StringView("\tSYSTEM INFORMATION")) + report.system;
}

QString systemInformation(QByteArrayView text)
{
    QString information;
    for (LineReader reader(text); reader.next();)
        information += u'\n' + reader.string();
    return information;
}

QString readSystemInformation(const QString &path)
{
    const TextReading file = readTextFile(path, largestSystemInformation);
    return file ? systemInformation(file.text) : QString();
}

} // namespace ortakit
