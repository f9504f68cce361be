#include <OrvaneExportKit/windowing/PrintInfo.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using windowing::PrintInfo;

namespace {

TEST(PrintInfo, HasThePaperOfTheCountry)
{
    EXPECT_EQ(PrintInfo(QLocale(u"de_DE"_s)).paperSize(), QSizeF(595.0, 842.0));
    EXPECT_EQ(PrintInfo(QLocale(u"en_GB"_s)).paperSize(), QSizeF(595.0, 842.0));
    EXPECT_EQ(PrintInfo(QLocale(u"en_US"_s)).paperSize(), QSizeF(612.0, 792.0));
    EXPECT_EQ(PrintInfo(QLocale(u"fr_CA"_s)).paperSize(), QSizeF(612.0, 792.0));
}

TEST(PrintInfo, TakesThePaperOfTheHost)
{
    PrintInfo printInfo{QLocale(u"de_DE"_s)};
    printInfo.setPaperSize({420.0, 595.5});
    EXPECT_EQ(printInfo.paperSize(), QSizeF(420.0, 595.5));
}

TEST(PrintInfo, IsSharedByTheApplication)
{
    EXPECT_EQ(&PrintInfo::sharedPrintInfo(), &PrintInfo::sharedPrintInfo());
    EXPECT_EQ(PrintInfo::sharedPrintInfo().paperSize(), PrintInfo(QLocale::system()).paperSize());
}

} // namespace
