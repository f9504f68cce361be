#include <OrvaneExportKit/platform/YesNoTransformer.h>

#include <OrvaneExportKit/platform/ScalarValues.h>

using namespace Qt::Literals::StringLiterals;

namespace platform {

namespace {

[[maybe_unused]] const bool isRegistered = [] {
    setValueTransformer(std::make_shared<YesNoTransformer>(), u"YesNoTransformer"_s);
    return true;
}();

} // namespace

QVariant YesNoTransformer::transformedValue(const QVariant &value) const
{
    if (value.isNull()) {
        return {};
    }
    const QString text = value.typeId() == QMetaType::QString ? value.toString() : QString();
    return text == u"yes" || text == u"true" || boolValue(value);
}

QVariant YesNoTransformer::reverseTransformedValue(const QVariant &value) const
{
    return boolValue(value) ? u"yes"_s : u"no"_s;
}

} // namespace platform
