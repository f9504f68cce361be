#include <tests/support/Application.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QLibrary>
#include <QtCore/QLocale>

using namespace Qt::Literals::StringLiterals;

namespace {

// This program does not link the kit: like a host that meets it through a plug-in, it loads it while it runs.

/// The languages of the user who runs this program, set before anything can ask for them.
const bool languagesAreSet = qputenv("LC_ALL", "pl_PL.UTF-8") && qputenv("LANGUAGE", "pl:en_AU:de");

QString level()
{
    return QCoreApplication::translate("Localizable", "Level");
}

class LateLoading : public testing::Test
{
protected:
    void SetUp() override { QLocale::setDefault(QLocale(u"de_DE"_s)); }

    QLibrary m_kit{QStringLiteral(ORVANE_CORE_FILE)};
};

TEST_F(LateLoading, TranslatesTheKitsTexts)
{
    const support::Application application;
    ASSERT_TRUE(m_kit.load()) << m_kit.errorString().toStdString();
    EXPECT_EQ(level(), u"Ebene"_s);
}

TEST_F(LateLoading, OutlivesTheLastPluginAndTheApplicationObject)
{
    {
        const support::Application application;
        ASSERT_TRUE(m_kit.load()) << m_kit.errorString().toStdString();
        m_kit.unload();
        EXPECT_EQ(level(), u"Ebene"_s);
    }
    const support::Application application;
    EXPECT_EQ(level(), u"Ebene"_s);
}

TEST_F(LateLoading, TakesTheFirstOfTheUsersLanguagesThatTheKitSpeaks)
{
    ASSERT_TRUE(languagesAreSet);
    QLocale::setDefault(QLocale::system());
    const support::Application application;
    ASSERT_TRUE(m_kit.load()) << m_kit.errorString().toStdString();
    EXPECT_EQ(QCoreApplication::translate("Localizable", "ProcDoc"), u"Processing document"_s);
}

} // namespace
