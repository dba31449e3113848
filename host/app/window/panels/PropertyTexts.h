#pragma once

#include "host/app/window/panels/PropertySurvey.h"

#include <QIcon>

class QComboBox;

namespace host::kernel {
class Document;
}

namespace host::app {

// Values of properties as people read and write them.

/// "*varies*".
QString variesText();
/// Of a value that entities have in common, in the units of the drawing; variesText() where they have none in common,
/// empty where they have no value. Points give their coordinate 0, 1 or 2.
QString surveyedText(const kernel::Document &document, drawing::PropertyKind kind, const SurveyedValue &value,
                     int axis = 0);
QString valueText(const kernel::Document &document, drawing::PropertyKind kind, const drawing::FieldValue &value,
                  int axis = 0);

/// What was written for a property: the value as Lisp reads it, or why it is none.
struct WrittenValue
{
    QString lisp;
    QString error; ///< empty when there is a value
};
WrittenValue readValue(const kernel::Document &document, const drawing::EntityProperty &property, const QString &text);

/// "ByLayer", "ByBlock", "red", "12".
QString entityColourText(int index);
/// What the variable CECOLOR holds, in the same words.
QString colourOfVariable(const QString &text);
/// A swatch of a colour's text; none where it says no colour of its own.
QIcon colourTextIcon(const QString &text);
/// The colours to choose from; the last item, whose data is "choose", is for any other one.
void fillColours(QComboBox &box);

/// "ByLayer", "ByBlock", "Default", "0.25 mm" of -1, -2, -3 and hundredths of a millimetre; and back.
QString entityWeightText(int weight);
int weightOfText(const QString &text);
QStringList weightTexts();
/// "ByLayer", "ByBlock", "40" of what group 440 holds; and the word that CHPROP takes, empty for what is none.
QString transparencyText(qint64 stored);
QString transparencyWord(const QString &text);
/// "ByLayer", "ByBlock" and those of the drawing.
QStringList linetypeTexts(const drawing::Drawing &drawing);
QStringList layerTexts(const drawing::Drawing &drawing);

} // namespace host::app
