#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QLocale>
#include <QtCore/QSizeF>

namespace windowing {

/// Print settings that the whole application shares.
///
/// The paper is the usual one of the user's country until the host says what the user prints on:
///
///     windowing::PrintInfo::sharedPrintInfo().setPaperSize(QPageSize(QPageSize::A5).size(QPageSize::Point));
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT PrintInfo
{
public:
    /// The one instance of the application; its paper is that of the system's locale at first.
    static PrintInfo &sharedPrintInfo();

    /// Settings for the usual paper of a locale's country: Letter where that is in use, else A4.
    explicit PrintInfo(const QLocale &locale);

    /// Width and height of an upright sheet, in points (1/72 inch).
    QSizeF paperSize() const { return m_paperSize; }
    void setPaperSize(QSizeF size) { m_paperSize = size; }

private:
    QSizeF m_paperSize;
};

} // namespace windowing
