#include "formats/SettingsListing.h"

#include "formats/TextReading.h"

namespace ortakit {

namespace {

template <class Listing>
auto &linesOfClass(Listing &listing, SettingClass settingClass)
{
    switch (settingClass) {
    case SettingClass::ReadOnly:
        return listing.readOnly;
    case SettingClass::Dangerous:
        return listing.dangerous;
    case SettingClass::Standard:
        break;
    }
    return listing.standard;
}

SettingClass classOf(QByteArrayView line)
{
    if (line.contains("read-only"))
        return SettingClass::ReadOnly;
    return line.contains("dangerous") ? SettingClass::Dangerous : SettingClass::Standard;
}

} // namespace

const QList<QByteArray> &SettingsListing::lines(SettingClass settingClass) const
{
    return linesOfClass(*this, settingClass);
}

SettingsListing parseSettingsListing(QByteArrayView text)
{
    SettingsListing listing;
    for (LineReader reader(text); reader.next();)
        linesOfClass(listing, classOf(reader.line())).append(reader.line().toByteArray());
    return listing;
}

SettingsListing readSettingsListing(const QString &path)
{
    const TextReading file = readTextFile(path, largestSettingsListing);
    return file ? parseSettingsListing(file.text) : SettingsListing();
}

QByteArray settingsScript(const QList<QByteArray> &lines)
{
    return lines.join('\n').trimmed();
}

} // namespace ortakit
