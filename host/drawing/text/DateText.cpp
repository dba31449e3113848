#include "host/drawing/text/DateText.h"

#include <QDate>
#include <QLocale>
#include <QTime>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr double millisecondsPerDay = 86'400'000.0;

QString padded(int number, int width)
{
    return QString::number(number).rightJustified(width, u'0');
}

/// A date with the way its hours are counted.
struct Moment
{
    QDate day;
    QTime time;
    bool isHalfDay = false;

    int hour() const { return isHalfDay ? (time.hour() + 11) % 12 + 1 : time.hour(); }
    bool isMorning() const { return time.hour() < 12; }
};

struct DateCode
{
    QLatin1StringView code;
    QString (*text)(const Moment &moment);
};

// Longer codes before those they begin with.
constexpr DateCode dateCodes[] = {
    {"MONTH"_L1, [](const Moment &m) { return QLocale::c().monthName(m.day.month()); }},
    {"AM/PM"_L1, [](const Moment &m) { return m.isMorning() ? u"AM"_s : u"PM"_s; }},
    {"am/pm"_L1, [](const Moment &m) { return m.isMorning() ? u"am"_s : u"pm"_s; }},
    {"DDDD"_L1, [](const Moment &m) { return QLocale::c().dayName(m.day.dayOfWeek()); }},
    {"MSEC"_L1, [](const Moment &m) { return padded(m.time.msec(), 3); }},
    {"YYYY"_L1, [](const Moment &m) { return padded(m.day.year(), 4); }},
    {"DDD"_L1, [](const Moment &m) { return QLocale::c().dayName(m.day.dayOfWeek(), QLocale::ShortFormat); }},
    {"MON"_L1, [](const Moment &m) { return QLocale::c().monthName(m.day.month(), QLocale::ShortFormat); }},
    {"A/P"_L1, [](const Moment &m) { return m.isMorning() ? u"A"_s : u"P"_s; }},
    {"a/p"_L1, [](const Moment &m) { return m.isMorning() ? u"a"_s : u"p"_s; }},
    {"DD"_L1, [](const Moment &m) { return padded(m.day.day(), 2); }},
    {"MO"_L1, [](const Moment &m) { return padded(m.day.month(), 2); }},
    {"MM"_L1, [](const Moment &m) { return padded(m.time.minute(), 2); }},
    {"YY"_L1, [](const Moment &m) { return padded(m.day.year() % 100, 2); }},
    {"HH"_L1, [](const Moment &m) { return padded(m.hour(), 2); }},
    {"SS"_L1, [](const Moment &m) { return padded(m.time.second(), 2); }},
    {"D"_L1, [](const Moment &m) { return QString::number(m.day.day()); }},
    {"M"_L1, [](const Moment &m) { return QString::number(m.day.month()); }},
    {"H"_L1, [](const Moment &m) { return QString::number(m.hour()); }},
};

std::optional<Moment> momentOf(double julian)
{
    constexpr double firstOfYear10000 = 5373485.0;
    if (!(julian >= 1.0) || julian >= firstOfYear10000)
        return {};
    double day = std::floor(julian);
    int milliseconds = static_cast<int>(std::lround((julian - day) * millisecondsPerDay));
    if (milliseconds >= static_cast<int>(millisecondsPerDay)) {
        milliseconds = 0;
        day += 1.0;
    }
    return Moment{.day = QDate::fromJulianDay(static_cast<qint64>(day)),
                  .time = QTime::fromMSecsSinceStartOfDay(milliseconds)};
}

} // namespace

double julianDate(const QDateTime &time)
{
    return static_cast<double>(time.date().toJulianDay()) + time.time().msecsSinceStartOfDay() / millisecondsPerDay;
}

double calendarDate(const QDateTime &time)
{
    const QDate day = time.date();
    const QTime hour = time.time();
    return day.year() * 10000 + day.month() * 100 + day.day() + hour.hour() / 1e2 + hour.minute() / 1e4 +
           hour.second() / 1e6 + hour.msec() / 1e9;
}

std::optional<QString> dateText(double julian, QStringView picture)
{
    std::optional<Moment> moment = momentOf(julian);
    if (!moment)
        return {};
    moment->isHalfDay =
        picture.contains("AM/PM"_L1, Qt::CaseInsensitive) || picture.contains("A/P"_L1, Qt::CaseInsensitive);
    QString text;
    while (!picture.isEmpty()) {
        const auto *found = std::find_if(std::begin(dateCodes), std::end(dateCodes),
                                         [&](const DateCode &row) { return picture.startsWith(row.code); });
        const bool isCode = found != std::end(dateCodes);
        if (isCode)
            text += found->text(*moment);
        else
            text += picture.front();
        picture = picture.sliced(isCode ? found->code.size() : 1);
    }
    return text;
}

} // namespace host::drawing
