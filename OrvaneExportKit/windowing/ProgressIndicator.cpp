#include <OrvaneExportKit/windowing/ProgressIndicator.h>

#include <OrvaneExportKit/windowing/UiLoader.h>

#include <QtCore/QtMath>

#include <algorithm>

namespace windowing {

namespace {

const auto registration = WidgetClassRegistration::of<ProgressIndicator>();

/// More steps than any screen has pixels.
constexpr int resolution = 100'000;

} // namespace

ProgressIndicator::ProgressIndicator(QWidget *parent) : QProgressBar(parent)
{
    setRange(0, resolution);
    setValue(0);
}

void ProgressIndicator::setMinValue(double value)
{
    m_minValue = value;
    showValue();
}

void ProgressIndicator::setMaxValue(double value)
{
    m_maxValue = value;
    showValue();
}

void ProgressIndicator::setDoubleValue(double value)
{
    m_doubleValue = value;
    showValue();
}

void ProgressIndicator::showValue()
{
    const double range = m_maxValue - m_minValue;
    const double part = range > 0 ? std::clamp((m_doubleValue - m_minValue) / range, 0.0, 1.0) : 0.0;
    setValue(qFloor(part * resolution)); // redraws by itself, at once, where that shows
}

} // namespace windowing
