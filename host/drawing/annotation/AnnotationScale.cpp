#include "host/drawing/annotation/AnnotationScale.h"

#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/HeaderVariables.h"

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
        if (tags.text(300) == name)
            return scaleFactor(tags).value_or(0.0);
    }
    return 0.0;
}

/// A variable that drawings keep among their objects, or in the header; empty without it.
QString annotationVariable(const Drawing &drawing, const QString &name)
{
    return drawing.dictionaries().variable(name).value_or(drawing.header().text(u'$' + name));
}

} // namespace

std::optional<double> scaleFactor(const TagList &scale)
{
    const double paper = scale.real(140, 1.0);
    const double factor = isFactor(paper) ? scale.real(141, 1.0) / paper : 0.0;
    return isFactor(factor) ? std::optional(factor) : std::nullopt;
}

AnnotationView annotationView(const Drawing &drawing)
{
    const bool isInHeader = drawing.header().integer(u"$ANNOALLVISIBLE"_s, 1) != 0;
    const QString showsAll = annotationVariable(drawing, u"ANNOALLVISIBLE"_s);
    return {.scale = annotationVariable(drawing, u"CANNOSCALE"_s),
            .showsAll = showsAll.isEmpty() ? isInHeader : showsAll.trimmed() != u"0"};
}

double annotationFactor(const Drawing &drawing)
{
    const QString name = annotationVariable(drawing, u"CANNOSCALE"_s);
    const double listed = factorInList(drawing, name);
    const double factor = isFactor(listed) ? listed : factorOfName(name);
    return isFactor(factor) ? factor : 1.0;
}

} // namespace host::drawing
