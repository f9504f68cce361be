#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/ValueTransformer.h>

#include <QtCore/QStringList>

#include <memory>

/// \file
/// The transformers that settings panels bind through, each registered under the name of its class whenever a settings
/// object is created.
///
/// Numbers go in as anything that `platform/ScalarValues.h` reads, and come out as 32-bit floats, an index as an `int`.
///
/// For use on the application's main thread.

/// A length in points, shown in the user's unit.
///
///     KZMeasurementUnitTransformer centimetres(2.54f / 72.0f);
///     centimetres.transformedValue(72.0f);   // 2.54f
class ORVANE_CORE_EXPORT KZMeasurementUnitTransformer : public platform::ValueTransformer
{
public:
    /// `factor` is the number of units in a point.
    explicit KZMeasurementUnitTransformer(float factor);
    static std::unique_ptr<KZMeasurementUnitTransformer> initWithFactor(float factor);

    /// The number of units in a point.
    float factor() const noexcept { return m_factor; }
    void setFactor(float factor) noexcept { m_factor = factor; }

    QMetaType transformedValueClass() const override { return QMetaType::fromType<float>(); }
    bool allowsReverseTransformation() const override { return true; }

    /// The number times the factor; no value gives 0.
    QVariant transformedValue(const QVariant &value) const override;

    /// The number divided by the factor, which gives an infinite number or NaN when the factor is 0; no value gives 0.
    QVariant reverseTransformedValue(const QVariant &value) const override;

private:
    float m_factor;
};

/// A line-height multiple, shown as whole tenths.
///
///     KZLineHeightMultipleTransformer().transformedValue(1.25f);         // 12.0f
///     KZLineHeightMultipleTransformer().reverseTransformedValue(12.5f);  // 1.25f
class ORVANE_CORE_EXPORT KZLineHeightMultipleTransformer : public platform::ValueTransformer
{
public:
    /// A transformer, owned by the caller.
    static std::unique_ptr<KZLineHeightMultipleTransformer> init();

    QMetaType transformedValueClass() const override { return QMetaType::fromType<float>(); }
    bool allowsReverseTransformation() const override { return true; }

    /// Ten times the number, without its fraction; no value gives 0. Beyond the range of a 32-bit integer it is the
    /// nearest end of that range, for NaN 0.
    QVariant transformedValue(const QVariant &value) const override;

    /// A tenth of the number, fraction and all; no value gives 0.
    QVariant reverseTransformedValue(const QVariant &value) const override;
};

/// A text that may be missing, shown and stored as a text that may be empty.
class ORVANE_CORE_EXPORT KZEmptyStringTransformer : public platform::ValueTransformer
{
public:
    /// A transformer, owned by the caller.
    static std::unique_ptr<KZEmptyStringTransformer> init();

    QMetaType transformedValueClass() const override { return QMetaType::fromType<QString>(); }
    bool allowsReverseTransformation() const override { return true; }

    /// The empty string for no value; any other value, of whatever type, as it is.
    QVariant transformedValue(const QVariant &value) const override;

    /// The same: an empty field stores the empty string, not nothing.
    QVariant reverseTransformedValue(const QVariant &value) const override;
};

/// A language, shown as its place in the list "af", "de", "sv", "en_US", "en_UK", "de_CH", "it", "fr", "ja", as a
/// pop-up menu selects it.
///
///     KZLocaleTransformer().transformedValue(u"en_US"_s);   // 3
class ORVANE_CORE_EXPORT KZLocaleTransformer : public platform::ValueTransformer
{
public:
    /// The second one is owned by the caller.
    KZLocaleTransformer();
    static std::unique_ptr<KZLocaleTransformer> init();

    QMetaType transformedValueClass() const override { return QMetaType::fromType<int>(); }
    bool allowsReverseTransformation() const override { return true; }

    /// The index of the language; that of "de" for no value and for anything that is not in the list exactly so.
    QVariant transformedValue(const QVariant &value) const override;

    /// The language at the index; "af" for no value. Throws `platform::RangeException` for an index outside the list.
    QVariant reverseTransformedValue(const QVariant &value) const override;

private:
    const QStringList m_localeArray;
};
