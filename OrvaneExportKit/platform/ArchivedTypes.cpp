#include <OrvaneExportKit/platform/ArchivedTypes.h>

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

} // namespace

QUrl ArchivedUrl::url() const
{
    const QUrl relative(string);
    return base.isValid() ? base.toUrl().resolved(relative) : relative;
}

} // namespace platform
