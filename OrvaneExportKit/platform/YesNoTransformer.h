#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/ValueTransformer.h>

namespace platform {

/// A choice that is stored as the text "yes" or "no", shown as a check box. It is registered as "YesNoTransformer" when
/// the kit is loaded.
///
///     checked=settings.typography|YesNoTransformer
///
/// For use on the application's main thread.
class ORVANE_CORE_EXPORT YesNoTransformer : public ValueTransformer
{
public:
    QMetaType transformedValueClass() const override { return QMetaType::fromType<bool>(); }
    bool allowsReverseTransformation() const override { return true; }

    /// Whether the text is "yes" or "true"; any other value as `boolValue` reads it. No value stays none.
    QVariant transformedValue(const QVariant &value) const override;

    /// "yes" or "no".
    QVariant reverseTransformedValue(const QVariant &value) const override;
};

} // namespace platform
