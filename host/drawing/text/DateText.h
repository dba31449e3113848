#pragma once

#include <QDateTime>

#include <optional>

namespace host::drawing {

/// Days since the begin of the Julian calendar, with the time of day as fraction: what DATE holds.
double julianDate(const QDateTime &time);
/// YYYYMMDD.HHMMSSmmm: what CDATE holds.
double calendarDate(const QDateTime &time);

/// A Julian date written after a picture. In it D, DD, DDD, DDDD stand for the day (5, 05, Sat, Saturday), M, MO, MON,
/// MONTH for the month (9, 09, Sep, September), YY and YYYY for the year, H and HH for the hour, MM for the minute, SS
/// for the second and MSEC for its thousandths; AM/PM, am/pm, A/P and a/p for the half of the day, which makes the
/// hours count to 12. Letter case counts; anything else stands for itself. Names are English, whatever the machine's
/// language, so that a drawing says the same everywhere. Nothing for a date before the calendar or beyond the year
/// 9999.
std::optional<QString> dateText(double julian, QStringView picture);

} // namespace host::drawing
