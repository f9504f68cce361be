#include <tests/allocations/EveryAllocation.h>
#include <tests/support/DefaultsFolder.h>

#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/KeyPaths.h>
#include <OrvaneExportKit/platform/NotificationCenter.h>
#include <OrvaneExportKit/platform/ScalarValues.h>
#include <OrvaneExportKit/platform/UserDefaults.h>
#include <OrvaneExportKit/platform/ValueTransformer.h>
#include <OrvaneExportKit/platform/YesNoTransformer.h>
#include <OrvaneExportKit/settings/KZExportSettings.h>

#include <QtCore/QSize>

using namespace Qt::Literals::StringLiterals;
using allocations::failEveryAllocation;
using allocations::failEveryAllocationOf;
using platform::UserDefaults;

namespace {

struct Settings {
    std::unique_ptr<KZExportSettings> settings;

    bool operator==(const Settings &other) const
    {
        return settings->defaultDictionary() == other.settings->defaultDictionary();
    }
};

Settings settings()
{
    Settings result{KZExportSettings::initWithBundleIdentifier(u"com.example.allocations"_s)};
    result.settings->setObject(u"text"_s, u"text"_s);
    result.settings->setObject(QVariantMap{{u"top"_s, 72}}, u"margin"_s);
    return result;
}

template <typename Act>
void onSettings(const Act &act)
{
    failEveryAllocation(settings, [&act](Settings &state) { act(*state.settings); });
}

} // namespace

TEST(SettingsAllocation, SetValue)
{
    const QVariant value = u"new"_s;
    const QString key = u"key"_s;
    onSettings([&](KZExportSettings &object) { object.setValue(value, key); });
}

TEST(SettingsAllocation, SetScalars)
{
    const QString key = u"key"_s;
    onSettings([&](KZExportSettings &object) { object.setFloat(1.5F, key); });
    onSettings([&](KZExportSettings &object) { object.setInteger(-1, key); });
    onSettings([&](KZExportSettings &object) { object.setBool(true, key); });
}

TEST(SettingsAllocation, SetNonPropertyListObject)
{
    const QVariant value = QSize(3, 4);
    onSettings([&](KZExportSettings &object) { object.setNonPropertyListObject(value, u"size"_s); });
}

TEST(SettingsAllocation, NonPropertyListObjectForKey)
{
    const Settings object = settings();
    object.settings->setNonPropertyListObject(QSize(3, 4), u"size"_s);
    failEveryAllocationOf([&] {
        const QVariant size = object.settings->nonPropertyListObjectForKey(u"size"_s);
        return size.isValid() ? size : throw std::bad_alloc(); // an archive that does not fit into memory reads as none
    });
}

TEST(SettingsAllocation, DefaultData)
{
    const Settings object = settings();
    failEveryAllocationOf([&] { return object.settings->defaultData(); });
}

TEST(SettingsAllocation, SetDefaultDictionary)
{
    const QVariantMap values{{u"a"_s, 1}, {u"b"_s, QVariantList{1, u"text"_s}}};
    onSettings([&](KZExportSettings &object) { object.setDefaultDictionary(values); });
}

TEST(SettingsAllocation, SetDefaultData)
{
    const QByteArray data = settings().settings->defaultData();
    failEveryAllocation(
        [] { return Settings{KZExportSettings::initWithBundleIdentifier(u"com.example.allocations"_s)}; },
        [&](Settings &state) { state.settings->setDefaultData(data); });
}

TEST(SettingsAllocation, UpdateQuotationSettingForKey)
{
    failEveryAllocation(
        [] {
            Settings result = settings();
            result.settings->setInteger(1, u"quotes"_s);
            return result;
        },
        [](Settings &state) { state.settings->updateQuotationSettingForKey(u"quotes"_s); });
}

TEST(SettingsAllocation, KeyPaths)
{
    const QVariant value = 36;
    onSettings([&](KZExportSettings &object) { platform::setValueForKeyPath(&object, value, u"margin.top"_s); });
    const Settings object = settings();
    failEveryAllocationOf([&] { return platform::valueForKeyPath(object.settings.get(), u"margin.top"_s); });
}

TEST(SettingsAllocation, ScalarValuesOfStrings)
{
    const QVariant value = u" 12.5 points"_s;
    failEveryAllocationOf([&] { return platform::floatValue(value); });
    failEveryAllocationOf([&] { return platform::intValue(value); });
    failEveryAllocationOf([&] { return platform::boolValue(value); });
}

TEST(SettingsAllocation, SetValueTransformer)
{
    failEveryAllocationOf([] {
        platform::setValueTransformer(std::make_shared<platform::YesNoTransformer>(), u"AllocationTransformer"_s);
        const bool isThere = platform::valueTransformerForName(u"AllocationTransformer"_s) != nullptr;
        platform::setValueTransformer(nullptr, u"AllocationTransformer"_s);
        return isThere;
    });
}

TEST(SettingsAllocation, Notifications)
{
    failEveryAllocationOf([] {
        platform::NotificationCenter center;
        int calls = 0;
        const platform::Observation observation =
            center.addObserver(u"name"_s, nullptr, [&calls](const platform::Notification &) { ++calls; });
        center.postNotificationName(u"name"_s, nullptr);
        return calls;
    });
}

TEST(SettingsAllocation, BundleTexts)
{
    const platform::Bundle bundle = platform::Bundle::kitBundle();
    failEveryAllocationOf([&] { return bundle.localizedStringForKey(u"Level"_s); });
    failEveryAllocationOf([&] { return bundle.pathForResource(u"Quotes"_s, u"plist"_s); });
}

class DefaultsAllocation : public support::DefaultsFolder
{
};

TEST_F(DefaultsAllocation, PersistentDomain)
{
    const QVariantMap domain{{u"a"_s, 1}, {u"b"_s, u"text"_s}};
    const QVariantMap newDomain{{u"a"_s, 2}};
    ASSERT_TRUE(UserDefaults(folder()).setPersistentDomain(domain, u"com.example"_s));
    failEveryAllocationOf([&] { return UserDefaults(folder()).persistentDomainForName(u"com.example"_s); });
}
