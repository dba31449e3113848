#include "host/drawing/annotation/AnnotationScale.h"

#include "host/drawing/records/Dictionaries.h"

#include <QStringList>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

bool isFactor(double value)
{
    constexpr double largest = 1e9;
    return value >= 1.0 / largest && value <= largest;
}

/// "1:50" read as it stands; 0 for what is no such scale.
double factorOfName(const QString &name)
{
    const QStringList parts = name.split(u':');
    const double paper = parts.value(0).toDouble();
    return parts.size() == 2 && isFactor(paper) ? parts[1].toDouble() / paper : 0.0;
}

/// Of the scale with that name in the drawing's list; 0 without one.
double factorInList(const Drawing &drawing, const QString &name)
{
    const Dictionaries &dictionaries = drawing.dictionaries();
    const RecordId list = dictionaries.find(dictionaries.root(), u"ACAD_SCALELIST"_s);
    if (!isValid(list))
        return 0.0;
    for (const Dictionaries::Entry &entry : dictionaries.entries(list)) {
        if (!isValid(entry.record) || !drawing.isType(entry.record, "SCALE"))
            continue;
        const TagList tags = drawing.tags(entry.record);
        const double paper = tags.real(140, 1.0);
        if (tags.text(300) == name && isFactor(paper))
            return tags.real(141, 1.0) / paper;
    }
    return 0.0;
}

} // namespace

double annotationFactor(const Drawing &drawing)
{
    const Dictionaries &dictionaries = drawing.dictionaries();
    const RecordId variables = dictionaries.find(dictionaries.root(), u"AcDbVariableDictionary"_s);
    const RecordId record = isValid(variables) ? dictionaries.find(variables, u"CANNOSCALE"_s) : noRecord;
    if (!isValid(record))
        return 1.0;
    const QString name = drawing.tags(record).text(1);
    const double listed = factorInList(drawing, name);
    const double factor = isFactor(listed) ? listed : factorOfName(name);
    return isFactor(factor) ? factor : 1.0;
}

} // namespace host::drawing
