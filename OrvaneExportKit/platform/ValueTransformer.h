#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <memory>

/// \file
/// Conversions between the values that settings hold and the values that controls show, known to bindings by name.
///
/// For use on the application's main thread.

namespace platform {

/// Converts a stored value to the value that a control shows, and back. In both directions a null `QVariant` stands
/// for no value.
class ORVANE_CORE_EXPORT ValueTransformer
{
public:
    ValueTransformer() = default;
    ValueTransformer(const ValueTransformer &) = delete;
    ValueTransformer &operator=(const ValueTransformer &) = delete;
    virtual ~ValueTransformer();

    /// The type of the shown value.
    virtual QMetaType transformedValueClass() const = 0;

    /// Whether `reverseTransformedValue` may be called: a control's value can be stored again.
    virtual bool allowsReverseTransformation() const = 0;

    /// The shown value of a stored one.
    virtual QVariant transformedValue(const QVariant &value) const = 0;

    /// The stored value of a shown one.
    virtual QVariant reverseTransformedValue(const QVariant &value) const = 0;
};

/// Registers the transformer under the name in place of the one registered before; null leaves the name without one.
///
/// The registry shares ownership: whoever took the earlier transformer from the registry can go on using it. A plug-in
/// takes a transformer of its own class out again before it is unloaded.
///
///     platform::setValueTransformer(std::make_unique<PercentTransformer>(), u"PercentTransformer"_s);
ORVANE_CORE_EXPORT void setValueTransformer(std::shared_ptr<ValueTransformer> transformer, const QString &name);

/// The transformer registered under the name, or null.
ORVANE_CORE_EXPORT std::shared_ptr<ValueTransformer> valueTransformerForName(const QString &name);

/// The names that have a transformer, in ascending order.
ORVANE_CORE_EXPORT QStringList valueTransformerNames();

} // namespace platform
