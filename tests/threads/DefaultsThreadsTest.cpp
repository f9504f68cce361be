#include <tests/support/DefaultsFolder.h>
#include <tests/threads/AtOnce.h>

using namespace Qt::Literals::StringLiterals;
using platform::UserDefaults;

namespace {

const QString domainName = QStringLiteral("com.example.plain-text");

class DefaultsThreads : public support::DefaultsFolder
{
};

TEST_F(DefaultsThreads, OneObjectIsReadInEveryThread)
{
    UserDefaults defaults(folder());
    defaults.setApplicationDomain(domainName);
    defaults.registerDefaults({{u"registered"_s, 1}});
    ASSERT_TRUE(defaults.setObject(u"value"_s, u"a"_s));
    support::writeFile(path(u"damaged"_s), "damaged");
    threads::atOnce([&](int) {
        QString error;
        EXPECT_EQ(defaults.objectForKey(u"a"_s, &error), u"value"_s);
        EXPECT_EQ(defaults.dictionaryRepresentation().size(), 2);
        EXPECT_EQ(defaults.persistentDomainForName(domainName)->size(), 1);
        EXPECT_EQ(defaults.persistentDomainForName(u"damaged"_s, &error), std::nullopt);
        EXPECT_FALSE(error.isEmpty());
        EXPECT_EQ(defaults.persistentDomainNames(), (QStringList{domainName, u"damaged"_s}));
        EXPECT_EQ(defaults.lastError(), QString());
    });
}

TEST_F(DefaultsThreads, EveryThreadSavesWithAnObjectOfItsOwn)
{
    std::vector<std::unique_ptr<UserDefaults>> defaults;
    for (int thread = 0; thread < threads::count; ++thread) {
        defaults.push_back(std::make_unique<UserDefaults>(folder()));
        defaults.back()->setApplicationDomain(domainName);
    }
    std::vector<int> saves(threads::count);
    threads::atOnce([&](int thread) {
        const auto index = static_cast<std::size_t>(thread);
        const int number = ++saves[index];
        EXPECT_TRUE(defaults[index]->setObject(number, u"%1-%2"_s.arg(thread).arg(number)))
            << testing::PrintToString(defaults[index]->lastError());
    });
    EXPECT_EQ(savedDomain(domainName)->size(), threads::count * threads::rounds);
}

} // namespace
