#include "dialogs/mergesheets/SheetNames.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace ortakit {

namespace {

constexpr qsizetype longestName = 255;

bool isForbidden(QChar character)
{
    return character < u' ' || QStringView(u"<>/\\\":;?*|,=`").contains(character);
}

QString ownName(const QString &sheet)
{
    QString name = sheet;
    if (isDrawingFile(sheet)) {
        // The path may be one of another system.
        const qsizetype folder = std::max(sheet.lastIndexOf(u'/'), sheet.lastIndexOf(u'\\'));
        name = sheet.sliced(folder + 1).chopped(4);
    }
    std::replace_if(name.begin(), name.end(), isForbidden, QChar(u'_'));
    return name;
}

/// The names that are given away, without regard to case.
class TakenNames
{
public:
    bool contains(const QString &name) const { return m_names.contains(name.toCaseFolded()); }
    void add(const QString &name) { m_names.insert(name.toCaseFolded()); }
    QString numbered(const QString &name)
    {
        // Goes on where it ended before: many equal names would else be gone through again for each.
        int &number = m_lastNumbers[name.toCaseFolded()];
        number = std::max(number, 1);
        QString text = name;
        while (contains(text))
            text = name + QStringLiteral(" (%1)").arg(++number);
        return text;
    }

private:
    QSet<QString> m_names;
    QHash<QString, int> m_lastNumbers;
};

} // namespace

bool isDrawingFile(const QString &sheet)
{
    return sheet.endsWith(QLatin1String(".dwg"), Qt::CaseInsensitive) ||
           sheet.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive);
}

bool canBeInName(const QString &text)
{
    return std::none_of(text.cbegin(), text.cend(), isForbidden);
}

QList<SheetName> mergedSheetNames(const QStringList &sheets, const QString &prefix, EqualNames equalNames)
{
    const QString model = QStringLiteral("Model");
    TakenNames taken;
    taken.add(model);
    QList<SheetName> names;
    for (const QString &sheet : sheets) {
        SheetName name{prefix + ownName(sheet)};
        if (equalNames == EqualNames::Number)
            name.text = taken.numbered(name.text);
        if (name.text.trimmed().isEmpty())
            name.problem = SheetNameProblem::Empty;
        else if (name.text.size() > longestName)
            name.problem = SheetNameProblem::TooLong;
        else if (name.text.compare(model, Qt::CaseInsensitive) == 0)
            name.problem = SheetNameProblem::Reserved;
        else if (taken.contains(name.text))
            name.problem = SheetNameProblem::Repeated;
        taken.add(name.text);
        names.append(name);
    }
    return names;
}

} // namespace ortakit
