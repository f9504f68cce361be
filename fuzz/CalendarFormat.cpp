// Describes a date by the format and the locale in the input, and requires what holds for every format: its halves
// describe the halves of the text, and percent signs written twice stand for themselves.
//
// The first line is the date in milliseconds since 1970, the second one the format, the others entries of the locale.

#include <fuzz/Require.h>

#include <OrvaneExportKit/platform/CalendarFormat.h>

#include <algorithm>
#include <array>

namespace {

using namespace Qt::Literals::StringLiterals;

/// Each line is a format, or names separated by semicolons.
QVariantMap locale(const QStringList &lines)
{
    static const std::array keys{u"NSTimeDateFormatString"_s, u"NSDateFormatString"_s,     u"NSTimeFormatString"_s,
                                 u"NSMonthNameArray"_s,       u"NSWeekDayNameArray"_s,     u"NSAMPMDesignation"_s,
                                 u"NSShortMonthNameArray"_s,  u"NSShortWeekDayNameArray"_s};
    QVariantMap locale;
    for (qsizetype i = 0; i < lines.size() && i < qsizetype{keys.size()}; ++i) {
        const QVariant names = lines[i].split(u';');
        locale.insert(keys.at(static_cast<std::size_t>(i)), lines[i].contains(u';') ? names : QVariant(lines[i]));
    }
    return locale;
}

/// The first index from the middle on at which no conversion is cut in two.
qsizetype borderNearMiddle(const QString &format)
{
    qsizetype index = 0;
    while (index < format.size() && index < format.size() / 2) {
        index += format[index] == u'%' ? 2 : 1;
    }
    return std::min(index, format.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    QStringList lines =
        QString::fromUtf8(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size)).split(u'\n');
    const QDateTime date = QDateTime::fromMSecsSinceEpoch(lines.takeFirst().toLongLong(), Qt::UTC);
    const QString format = lines.isEmpty() ? QString() : lines.takeFirst();
    const QVariantMap names = locale(lines);
    const QString text = platform::calendarDescription(date, format, names);
    if (format.isEmpty() || !date.toLocalTime().isValid()) {
        return 0;
    }
    const qsizetype border = borderNearMiddle(format);
    const auto part = [&](const QString &partOfFormat) {
        return partOfFormat.isEmpty() ? QString() : platform::calendarDescription(date, partOfFormat, names);
    };
    require(text == part(format.first(border)) + part(format.sliced(border)), "halves give another text");
    require(part(QString(format).replace(u'%', "%%"_L1)) == format, "doubled percent signs do not give the format");
    return 0;
}
