#include "platform/widgets/CKvQtUnitSpinBox.h"
#include "tests/kernel/Bench.h"

#include <QLineEdit>
#include <QtMath>

#include <ostream>

namespace {

struct UnitCase
{
    const char *name;
    const char *variables; ///< Lisp that sets the units; null for a box without a drawing
    int unitType;
    double value;
    const char *shown;
    const char *typed; ///< comes back as the value
};

std::ostream &operator<<(std::ostream &stream, const UnitCase &row)
{
    return stream << row.name;
}

class UnitBox : public Bench, public testing::WithParamInterface<UnitCase>
{
};

TEST_P(UnitBox, showsAndReads)
{
    const UnitCase &row = GetParam();
    CKvQtUnitSpinBox box;
    box.setRange(-1e6, 1e6);
    box.setUnitType(row.unitType);
    if (row.variables) {
        lisp(row.variables);
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

constexpr int distance = CKvQtUnitSpinBox::Distance;
constexpr int angle = CKvQtUnitSpinBox::Angle;
constexpr int plain = CKvQtUnitSpinBox::Unitless;

INSTANTIATE_TEST_SUITE_P(
    All, UnitBox,
    testing::Values(
        UnitCase{"plain", nullptr, distance, 2.5, "2.50", "2.5"},
        UnitCase{"plain angle in degrees", nullptr, angle, M_PI_4, "45", "45.0"},
        UnitCase{"plain with feet", nullptr, distance, 18.0, "18.00", "1'-6\""},
        UnitCase{"plain with a fraction", nullptr, distance, 2.5, "2.50", "2 1/2"},
        UnitCase{"no units", "(setvar \"LUNITS\" 4)", plain, 2.5, "2.50", "2.5"},
        UnitCase{"decimal", "(setvar \"LUNITS\" 2)(setvar \"LUPREC\" 3)", distance, 17.5, "17.500", "17.5"},
        UnitCase{"decimal with feet typed", "(setvar \"LUNITS\" 2)(setvar \"LUPREC\" 1)", distance, 18.0, "18.0",
                 "1'-6\""},
        UnitCase{"scientific", "(setvar \"LUNITS\" 1)(setvar \"LUPREC\" 2)", distance, 17.5, "1.75E+01", "1.75e1"},
        UnitCase{"engineering", "(setvar \"LUNITS\" 3)(setvar \"LUPREC\" 2)", distance, 17.5, "1'-5.50\"", "1'-5.5\""},
        UnitCase{"architectural", "(setvar \"LUNITS\" 4)(setvar \"LUPREC\" 1)", distance, 17.5, "1'-5 1/2\"",
                 "1'5-1/2\""},
        UnitCase{"fractional", "(setvar \"LUNITS\" 5)(setvar \"LUPREC\" 1)", distance, 2.5, "2 1/2", "2.5"},
        UnitCase{"degrees", "(setvar \"AUNITS\" 0)(setvar \"AUPREC\" 1)", angle, M_PI_4, "45.0", "45"},
        UnitCase{"negative degrees", "(setvar \"AUNITS\" 0)(setvar \"AUPREC\" 1)", angle, -M_PI_4, "-45.0", "-45"},
        UnitCase{"minutes", "(setvar \"AUNITS\" 1)(setvar \"AUPREC\" 2)", angle, M_PI_4, "45d0'", "45d0'0\""},
        UnitCase{"grads", "(setvar \"AUNITS\" 2)(setvar \"AUPREC\" 0)", angle, M_PI_4, "50g", "50"},
        UnitCase{"radians", "(setvar \"AUNITS\" 3)(setvar \"AUPREC\" 2)", angle, 0.5, "0.50r", "0.5"}));

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
