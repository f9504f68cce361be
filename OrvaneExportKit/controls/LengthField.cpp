#include <OrvaneExportKit/controls/LengthField.h>

#include <OrvaneExportKit/settings/MeasurementUnits.h>
#include <OrvaneExportKit/windowing/UiLoader.h>

namespace windowing {

namespace {

const auto registration = WidgetClassRegistration::of<LengthField>();

} // namespace

LengthField::LengthField(QWidget *parent) : QDoubleSpinBox(parent)
{
    setSuffix(u' ' + KZStringExportAdditions::measurementUnitString());
    setSingleStep(0.1);
}

} // namespace windowing
