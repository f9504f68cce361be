#include <OrvaneExportKit/platform/ValueTransformer.h>

#include <QtCore/QMap>

#include <utility>

namespace platform {

namespace {

using Registry = QMap<QString, std::shared_ptr<ValueTransformer>>;

Registry &registry()
{
    static Registry transformers;
    return transformers;
}

} // namespace

ValueTransformer::~ValueTransformer() = default;

void setValueTransformer(std::shared_ptr<ValueTransformer> transformer, const QString &name)
{
    if (transformer == nullptr) {
        registry().remove(name);
    } else {
        registry()[name] = std::move(transformer);
    }
}

std::shared_ptr<ValueTransformer> valueTransformerForName(const QString &name)
{
    return registry().value(name);
}

QStringList valueTransformerNames()
{
    return registry().keys();
}

} // namespace platform
