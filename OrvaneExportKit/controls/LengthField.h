#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtWidgets/QDoubleSpinBox>

namespace windowing {

/// A spin box for a length in the user's unit, which stands behind the number: "2.54 cm". In steps of a tenth, up to
/// 99.99 unless the panel says otherwise.
///
/// Settings keep lengths in points; bind through "KZMeasurementUnitTransformer":
///
///     value=settings.top-margin|KZMeasurementUnitTransformer
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT LengthField : public QDoubleSpinBox
{
    Q_OBJECT

public:
    /// A field that shows 0.
    explicit LengthField(QWidget *parent = nullptr);
};

} // namespace windowing
