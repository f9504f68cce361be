#include <OrvaneExportKit/platform/ArchivedTypes.h>

#include <OrvaneExportKit/platform/ValueComparison.h>

namespace platform {

namespace {

/// Lets `QVariant` convert URLs for as long as the library is there.
class UrlConversions
{
public:
    UrlConversions()
    {
        QMetaType::registerConverter(&ArchivedUrl::url);
        QMetaType::registerConverter<ArchivedUrl, QString>([](const ArchivedUrl &url) {
            return url.base.isValid() ? url.url().toString(QUrl::FullyEncoded) : url.string;
        });
    }

    UrlConversions(const UrlConversions &) = delete;
    UrlConversions &operator=(const UrlConversions &) = delete;

    ~UrlConversions()
    {
        QMetaType::unregisterConverterFunction(QMetaType::fromType<ArchivedUrl>(), QMetaType::fromType<QUrl>());
        QMetaType::unregisterConverterFunction(QMetaType::fromType<ArchivedUrl>(), QMetaType::fromType<QString>());
    }
};

const UrlConversions urlConversions;

/// As `==` of lists is, but in a time that follows what there is.
ValueComparison comparison()
{
    return ValueComparison(ValueComparison::Numbers::OfAnyType);
}

} // namespace

bool operator==(const ObjectSet &a, const ObjectSet &b)
{
    return comparison().equal(a.elements, b.elements);
}

bool operator==(const OrderedObjectSet &a, const OrderedObjectSet &b)
{
    return comparison().equal(a.elements, b.elements);
}

bool operator==(const CountedObjectSet &a, const CountedObjectSet &b)
{
    return a.counts == b.counts && comparison().equal(a.elements, b.elements);
}

bool operator==(const ObjectDictionary &a, const ObjectDictionary &b)
{
    ValueComparison values = comparison();
    return values.equal(a.keys, b.keys) && values.equal(a.objects, b.objects);
}

QUrl ArchivedUrl::url() const
{
    const QUrl relative(string);
    return base.isValid() ? base.toUrl().resolved(relative) : relative;
}

} // namespace platform
