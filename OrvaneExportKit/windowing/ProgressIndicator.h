#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtWidgets/QProgressBar>

namespace windowing {

/// A bar that shows how far a value has come between a minimum and a maximum, each a finite double. It is never in the
/// busy state: where minimum and maximum are equal, the bar is empty.
///
///     bar->setMaxValue(3);
///     bar->setDoubleValue(1);   // a third of the bar
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT ProgressIndicator : public QProgressBar
{
    Q_OBJECT
    Q_PROPERTY(double minValue READ minValue WRITE setMinValue)
    Q_PROPERTY(double maxValue READ maxValue WRITE setMaxValue)
    Q_PROPERTY(double doubleValue READ doubleValue WRITE setDoubleValue)

public:
    /// The range is 0 to 100 at first, and the value 0.
    explicit ProgressIndicator(QWidget *parent = nullptr);

    /// Where the bar is empty.
    double minValue() const { return m_minValue; }
    void setMinValue(double value);

    /// Where the bar is full.
    double maxValue() const { return m_maxValue; }
    void setMaxValue(double value);

    /// The value as it was set, also when it is outside the range; the bar is then empty or full.
    double doubleValue() const { return m_doubleValue; }

    /// Sets the value. A bar that looks different with it is redrawn before the call returns.
    void setDoubleValue(double value);

private:
    void showValue();

    double m_minValue = 0;
    double m_maxValue = 100;
    double m_doubleValue = 0;
};

} // namespace windowing
