#pragma once

#include <QByteArrayView>
#include <QString>

namespace ortakit {

/// What a user reports about a problem. Texts of several lines have line feeds between them.
struct UserReport
{
    QString name;
    QString email;
    QString phone;
    QString issue;
    QString steps;
    QString system; ///< what a program found out about the system
};

/// The report as plain text: a heading between lines of "@" for each section, and nothing left out where a field is
/// empty. Line feeds only; see withPlatformLineEnds().
QString userReportText(const UserReport &report);

/// Far beyond what a program has to say about a system.
inline constexpr qint64 largestSystemInformation = qint64(32) * 1024 * 1024;

/// The lines of a text as a report shows them: each with a line feed before it, none behind the last.
QString systemInformation(QByteArrayView text);

/// The same of the file at `path`; empty when it cannot be read, see readTextFile().
QString readSystemInformation(const QString &path);

} // namespace ortakit
