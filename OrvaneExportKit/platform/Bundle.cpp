#include <OrvaneExportKit/platform/Bundle.h>

#include <OrvaneExportKit/platform/BundleTranslator.h>
#include <OrvaneExportKit/platform/Paths.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QList>
#include <QtCore/QMetaClassInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView kitIdentifier("org.orvane.ExportKit");

} // namespace

QString bndlIdentifier = kitIdentifier;

namespace platform {

namespace {

/// All bundles, the latest last. A function, because plug-ins register theirs while they are being loaded.
QList<Bundle> &registeredBundles()
{
    static QList<Bundle> bundles{Bundle(kitIdentifier, u":/OrvaneExportKit"_s)};
    return bundles;
}

} // namespace

Bundle::Bundle(const QString &identifier, const QString &resourceRoot)
    : m_identifier(identifier), m_resourceRoot(resourceRoot)
{
}

Bundle Bundle::bundleWithIdentifier(const QString &identifier)
{
    const QList<Bundle> &bundles = registeredBundles();
    const auto found = std::find_if(bundles.rbegin(), bundles.rend(),
                                    [&identifier](const Bundle &bundle) { return bundle.identifier() == identifier; });
    return found == bundles.rend() ? Bundle() : *found;
}

Bundle Bundle::bundleForClass(const QMetaObject &metaObject)
{
    const int entry = metaObject.indexOfClassInfo("BundleIdentifier");
    return entry < 0 ? kitBundle() : bundleWithIdentifier(QString::fromUtf8(metaObject.classInfo(entry).value()));
}

Bundle Bundle::kitBundle()
{
    return bundleWithIdentifier(kitIdentifier);
}

QString Bundle::pathForResource(const QString &name, const QString &type) const
{
    const QString path = appendingPathComponent(m_resourceRoot, name + u'.' + type);
    return !isNull() && QFileInfo::exists(path) ? path : QString();
}

QString Bundle::localizedStringForKey(const QString &key, const QString &value, const QString &table) const
{
    const QByteArray context = table.isEmpty() ? "Localizable" : table.toUtf8();
    const QString text = isNull() ? key
                                  : QCoreApplication::translate(context.constData(), key.toUtf8().constData(),
                                                                m_identifier.toUtf8().constData());
    return text == key && !value.isEmpty() ? value : text;
}

BundleRegistration::BundleRegistration(const QString &identifier, const QString &resourceRoot)
    : m_bundle(identifier, resourceRoot), m_translator(std::make_unique<BundleTranslator>(m_bundle))
{
    registeredBundles().append(m_bundle);
}

BundleRegistration::~BundleRegistration()
{
    QList<Bundle> &bundles = registeredBundles();
    bundles.removeAt(bundles.lastIndexOf(m_bundle));
}

} // namespace platform
