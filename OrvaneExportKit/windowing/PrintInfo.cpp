#include <OrvaneExportKit/windowing/PrintInfo.h>

#include <QtGui/QPageSize>

#include <algorithm>
#include <array>

namespace windowing {

namespace {

bool usesLetterPaper(QLocale::Territory territory)
{
    static constexpr std::array territories{
        QLocale::Belize,      QLocale::Canada,     QLocale::Chile,        QLocale::Colombia,  QLocale::CostaRica,
        QLocale::ElSalvador,  QLocale::Guatemala,  QLocale::Mexico,       QLocale::Nicaragua, QLocale::Panama,
        QLocale::Philippines, QLocale::PuertoRico, QLocale::UnitedStates, QLocale::Venezuela,
    };
    return std::ranges::find(territories, territory) != territories.end();
}

} // namespace

PrintInfo &PrintInfo::sharedPrintInfo()
{
    static PrintInfo printInfo{QLocale::system()};
    return printInfo;
}

PrintInfo::PrintInfo(const QLocale &locale)
    : m_paperSize(
          QPageSize::size(usesLetterPaper(locale.territory()) ? QPageSize::Letter : QPageSize::A4, QPageSize::Point))
{
}

} // namespace windowing
