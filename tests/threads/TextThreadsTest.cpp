#include <tests/support/TextOperations.h>
#include <tests/threads/AtOnce.h>

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/CalendarFormat.h>
#include <OrvaneExportKit/platform/GeometryStrings.h>
#include <OrvaneExportKit/platform/LineRanges.h>
#include <OrvaneExportKit/platform/Paths.h>
#include <OrvaneExportKit/platform/ScalarValues.h>
#include <OrvaneExportKit/platform/TextUnits.h>
#include <OrvaneExportKit/run/FileNameChecks.h>

#include <QtCore/QDateTime>

using namespace Qt::Literals::StringLiterals;
using platform::AttributedString;
using platform::RangeList;
using threads::expectSameAtOnce;

namespace {

const QString sample =
    u"## A \"heading\"\n\n\tIt's **bold** -- and \"quoted\" ... \\u00e9\n\n! A mark\n"_s.repeated(20);

/// A text of the thread's own that shares its units, and with attributes its runs, with those of the other threads.
template <typename Text>
class SharedText : public testing::Test
{
protected:
    static Text text();

    /// Requires the same result of the operation in every thread.
    template <typename Operation>
    static void expectSame(const Operation &operation)
    {
        const Text shared = text();
        expectSameAtOnce([&] {
            Text own = shared;
            operation(own);
            return own;
        });
    }
};

template <>
QString SharedText<QString>::text()
{
    return sample;
}

template <>
AttributedString SharedText<AttributedString>::text()
{
    AttributedString text(sample);
    text.addAttributes({{u"style"_s, u"quote"_s}}, {10, 30});
    return text;
}

using Texts = testing::Types<QString, AttributedString>;
TYPED_TEST_SUITE(SharedText, Texts);

} // namespace

TYPED_TEST(SharedText, IsEditedInEveryThread)
{
    this->expectSame([](auto &text) { library::deleteCharactersInRanges(text, {{0, 3}, {20, 5}, {40, 1}}); });
    this->expectSame([](auto &text) { library::deleteLevelMark(text, u"#"); });
    this->expectSame([](auto &text) { library::convertQuotationsToType(text, 2); });
    this->expectSame([](auto &text) { library::convertEllipses(text); });
    this->expectSame([](auto &text) { library::correctApostrophes(text); });
    this->expectSame([](auto &text) { library::correctDashes(text); });
}

TEST(TextThreads, PlainTextIsLaidOutInEveryThread)
{
    const auto expectSame = [](const auto &operation) {
        expectSameAtOnce([&] {
            QString own = sample;
            operation(own);
            return own;
        });
    };
    using namespace KZMutableStringExportAdditions;
    expectSame([](QString &text) { encloseRanges(text, {{0, 3}, {20, 5}}, u"*"); });
    expectSame([](QString &text) { deleteEmptyLines(text); });
    expectSame([](QString &text) { convertStartTabsToSpace(text, 4); });
    expectSame([](QString &text) { setMaxLineLength(text, 12); });
    expectSame([](QString &text) { convertQuotationsToStart(text, u"<", u">"); });
    expectSame([](QString &text) { convertQuotationsToLanguage(text, u"de"_s); });
}

TEST(TextThreads, PlainTextIsSearchedInEveryThread)
{
    using namespace KZStringExportAdditions;
    expectSameAtOnce([] { return rangesForStartTag(sample, u"**", u"**"); });
    expectSameAtOnce([] { return lineRangesForLevelString(sample, u"#"); });
    expectSameAtOnce([] { return stringWithConvertedEscSequences(sample); });
    expectSameAtOnce([] { return stringWithConvertedStringsFromArray(sample, {u"\""_s, u"I"_s}, {u"'"_s, u"i"_s}); });
    expectSameAtOnce([] { return platform::lineRangeForRange(platform::units(sample), {30, 5}); });
}

TEST(TextThreads, AttributesOfASharedTextAreReadAndChangedInEveryThread)
{
    AttributedString shared(sample);
    shared.addAttributes({{u"style"_s, u"quote"_s}}, {10, 30});
    using namespace KZAttributedStringExportAdditions;
    expectSameAtOnce([&] { return rangesForAttribute(shared, u"style"_s, u"quote"_s); });
    expectSameAtOnce([&] { return lineRangesForLevelString(shared, u"#"); });
    expectSameAtOnce([&] {
        AttributedString own = shared;
        KZMutableAttributedStringExportAdditions::addAttributes(own, {{u"weight"_s, u"bold"_s}}, {{5, 20}, {50, 5}});
        KZMutableAttributedStringExportAdditions::removeAttribute(own, u"style"_s, {{12, 4}});
        KZMutableAttributedStringExportAdditions::deleteParagraphMark(own, u"!", {{0, own.length()}});
        return own;
    });
}

TEST(TextThreads, ValuesAreTurnedIntoTextAndBackInEveryThread)
{
    const QDateTime date(QDate(2009, 3, 7), QTime(14, 5), Qt::UTC);
    expectSameAtOnce([&] { return platform::calendarDescription(date, u"%A %d %B %Y %H:%M"_s, {}); });
    expectSameAtOnce([] { return platform::deletingPathExtension(u"/a/Report.txt"_s); });
    expectSameAtOnce([] { return platform::intValue(u" 12 pt"_s); });
    expectSameAtOnce([] { return platform::stringFromSize({595.5, 842}); });
}
