#include "platform/widgets/CKvQtUnitSpinBox.h"
#include "tests/kernel/Bench.h"

#include <QLineEdit>
#include <QtMath>

namespace {

TEST_F(Bench, unitsAreShownAndRead)
{
    constexpr int distance = CKvQtUnitSpinBox::Distance;
    constexpr int angle = CKvQtUnitSpinBox::Angle;
    const struct
    {
        int mode; ///< LUNITS or AUNITS; -1 for a box without a drawing
        int precision;
        int unitType;
        double value;
        const char *shown;
        const char *typed; ///< comes back as the value
    } rows[] = {
        {-1, 0, distance, 2.5, "2.50", "2.5"},
        {-1, 0, angle, M_PI_4, "45", "45.0"},
        {-1, 0, distance, 18.0, "18.00", "1'-6\""},
        {-1, 0, distance, 2.5, "2.50", "2 1/2"},
        {4, 4, CKvQtUnitSpinBox::Unitless, 2.5, "2.50", "2.5"},
        {2, 3, distance, 17.5, "17.500", "17.5"},
        {2, 1, distance, 18.0, "18.0", "1'-6\""},
        {1, 2, distance, 17.5, "1.75E+01", "1.75e1"},
        {3, 2, distance, 17.5, "1'-5.50\"", "1'-5.5\""},
        {4, 1, distance, 17.5, "1'-5 1/2\"", "1'5-1/2\""},
        {5, 1, distance, 2.5, "2 1/2", "2.5"},
        {0, 1, angle, M_PI_4, "45.0", "45"},
        {0, 1, angle, -M_PI_4, "-45.0", "-45"},
        {1, 2, angle, M_PI_4, "45d0'", "45d0'0\""},
        {2, 0, angle, M_PI_4, "50g", "50"},
        {3, 2, angle, 0.5, "0.50r", "0.5"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.shown);
        CKvQtUnitSpinBox box;
        box.setRange(-1e6, 1e6);
        box.setUnitType(row.unitType);
        if (row.mode >= 0) {
            const QString set = QStringLiteral("(setvar \"%1UNITS\" %2)(setvar \"%1UPREC\" %3)");
            lisp(set.arg(row.unitType == angle ? QStringLiteral("A") : QStringLiteral("L"))
                     .arg(row.mode)
                     .arg(row.precision)
                     .toStdString());
            box.setDatabase(document().database());
        }
        box.setUnitValue(row.value);
        EXPECT_EQ(box.text(), QString::fromUtf8(row.shown));
        EXPECT_NEAR(box.value(), row.value, 1e-9);
        QString text = QString::fromUtf8(row.typed);
        int position = 0;
        EXPECT_EQ(box.validate(text, position), QValidator::Acceptable);
        EXPECT_NEAR(box.valueFromText(text), row.value, 1e-9);
    }
}

TEST_F(Bench, whatCannotBeReadGoesBackToTheDefault)
{
    CKvQtUnitSpinBox box;
    box.setDefaultValue(7.0);
    for (const char *typed : {"", "abc", "1,5", "1'x", "nan", "inf"}) {
        QString text = QString::fromLatin1(typed);
        int position = 0;
        EXPECT_EQ(box.validate(text, position), QValidator::Intermediate) << typed;
        EXPECT_EQ(box.valueFromText(text), 7.0) << typed;
    }
    QString empty;
    box.fixup(empty);
    EXPECT_EQ(empty, QStringLiteral("7.00"));
}

TEST_F(Bench, thePointIsThePointInEveryLanguage)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    CKvQtUnitSpinBox box;
    box.setRange(0, 1e6);
    box.setValue(1234.5);
    EXPECT_EQ(box.text(), QStringLiteral("1234.50"));
    QLocale::setDefault(before);
}

TEST_F(Bench, typingIntoTheBox)
{
    lisp("(setvar \"LUNITS\" 4)(setvar \"LUPREC\" 2)");
    CKvQtUnitSpinBox box;
    box.setRange(0, 1000);
    box.setDatabase(document().database());
    auto *edit = box.findChild<QLineEdit *>();
    edit->setText(QStringLiteral("2'-3 1/4\""));
    box.interpretText();
    EXPECT_DOUBLE_EQ(box.value(), 27.25);
    EXPECT_EQ(box.text(), QStringLiteral("2'-3 1/4\""));
}

} // namespace
