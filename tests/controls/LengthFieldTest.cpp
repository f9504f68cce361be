#include <OrvaneExportKit/controls/LengthField.h>

#include <tests/support/Printers.h>
#include <tests/support/TemporaryDefaults.h>

using namespace Qt::Literals::StringLiterals;

namespace {

using LengthField = support::TemporaryDefaults;

TEST_F(LengthField, ShowsTheUsersUnitBehindTheNumber)
{
    windowing::LengthField field;
    field.setLocale(QLocale::c());
    field.setValue(2.54);
    EXPECT_EQ(field.text(), u"2.54 cm"_s);
    ASSERT_TRUE(defaults().setPersistentDomain({{u"AppleMeasurementUnits"_s, u"Inches"_s}},
                                               platform::UserDefaults::globalDomain()));
    EXPECT_EQ(windowing::LengthField().suffix(), u" in"_s);
}

TEST_F(LengthField, GoesInStepsOfATenthFromNothingTo9999)
{
    windowing::LengthField field;
    EXPECT_EQ(field.value(), 0.0);
    field.stepUp();
    EXPECT_EQ(field.value(), 0.1);
    field.setValue(1000.0);
    EXPECT_EQ(field.value(), 99.99);
}

} // namespace
