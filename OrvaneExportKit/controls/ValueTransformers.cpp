#include <OrvaneExportKit/controls/ValueTransformers.h>

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/ScalarValues.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr float tenthsOfLine = 10.0F;

} // namespace

KZMeasurementUnitTransformer::KZMeasurementUnitTransformer(float factor) : m_factor(factor)
{
}

std::unique_ptr<KZMeasurementUnitTransformer> KZMeasurementUnitTransformer::initWithFactor(float factor)
{
    return std::make_unique<KZMeasurementUnitTransformer>(factor);
}

QVariant KZMeasurementUnitTransformer::transformedValue(const QVariant &value) const
{
    return value.isNull() ? 0.0F : platform::floatValue(value) * m_factor;
}

QVariant KZMeasurementUnitTransformer::reverseTransformedValue(const QVariant &value) const
{
    return value.isNull() ? 0.0F : platform::floatValue(value) / m_factor;
}

std::unique_ptr<KZLineHeightMultipleTransformer> KZLineHeightMultipleTransformer::init()
{
    return std::make_unique<KZLineHeightMultipleTransformer>();
}

QVariant KZLineHeightMultipleTransformer::transformedValue(const QVariant &value) const
{
    const float tenths = platform::floatValue(value) * tenthsOfLine;
    return static_cast<float>(platform::intValue(tenths)); // the field shows whole tenths
}

QVariant KZLineHeightMultipleTransformer::reverseTransformedValue(const QVariant &value) const
{
    return platform::floatValue(value) / tenthsOfLine;
}

std::unique_ptr<KZEmptyStringTransformer> KZEmptyStringTransformer::init()
{
    return std::make_unique<KZEmptyStringTransformer>();
}

QVariant KZEmptyStringTransformer::transformedValue(const QVariant &value) const
{
    return value.isNull() ? QVariant(u""_s) : value;
}

QVariant KZEmptyStringTransformer::reverseTransformedValue(const QVariant &value) const
{
    return transformedValue(value);
}

// "en_UK" is no common identifier, but stored settings hold it.
KZLocaleTransformer::KZLocaleTransformer()
    : m_localeArray{u"af"_s, u"de"_s, u"sv"_s, u"en_US"_s, u"en_UK"_s, u"de_CH"_s, u"it"_s, u"fr"_s, u"ja"_s}
{
}

std::unique_ptr<KZLocaleTransformer> KZLocaleTransformer::init()
{
    return std::make_unique<KZLocaleTransformer>();
}

QVariant KZLocaleTransformer::transformedValue(const QVariant &value) const
{
    constexpr int german = 1;
    const bool isText = value.typeId() == QMetaType::QString;
    const qsizetype index = isText ? m_localeArray.lastIndexOf(value.toString()) : -1;
    return index < 0 ? german : static_cast<int>(index);
}

QVariant KZLocaleTransformer::reverseTransformedValue(const QVariant &value) const
{
    const qint32 index = platform::intValue(value);
    platform::requireIndex("KZLocaleTransformer::reverseTransformedValue", index,
                           static_cast<std::size_t>(m_localeArray.size()));
    return m_localeArray[index];
}
