#include <tests/allocations/EveryAllocation.h>
#include <tests/support/TextOperations.h>

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/TextUnits.h>

using namespace Qt::Literals::StringLiterals;
using allocations::failEveryAllocation;
using allocations::failEveryAllocationOf;
using platform::AttributedString;
using platform::RangeList;

namespace {

constexpr std::u16string_view sampleUnits =
    u"## A title\n\n\t\"Yes\", she said ... it's 4--5\n\n> **not** here\n## The **end**\n";

const QStringView sample(sampleUnits);

QString plainText()
{
    return sample.toString();
}

AttributedString attributedText()
{
    AttributedString text(plainText());
    text.addAttributes({{u"style"_s, u"quote"_s}}, {3, 30});
    text.addAttributes({{u"weight"_s, 1}}, {10, 8});
    return text;
}

/// Both in memory of their own and shared with another text.
template <typename Act>
void onPlainTexts(const Act &act)
{
    failEveryAllocation(plainText, act);
    const QString shared = plainText();
    failEveryAllocation([&shared] { return shared; }, act);
}

template <typename Act>
void onAttributedTexts(const Act &act)
{
    failEveryAllocation(attributedText, act);
    const AttributedString shared = attributedText();
    failEveryAllocation([&shared] { return shared; }, act);
}

template <typename Act>
void onAllTexts(const Act &act)
{
    onPlainTexts(act);
    onAttributedTexts(act);
}

const RangeList ranges{{20, 3}, {2, 5}, {30, 4}, {31, 2}};

} // namespace

TEST(TextAllocation, AscendingSortedRanges)
{
    failEveryAllocationOf([] { return library::ascendingSortedRanges(ranges); });
}

TEST(TextAllocation, DeleteCharactersInRanges)
{
    onAllTexts([](auto &text) { library::deleteCharactersInRanges(text, ranges); });
}

TEST(TextAllocation, EncloseRanges)
{
    onPlainTexts([](QString &text) { library::encloseRanges(text, ranges, u"<em>"); });
}

TEST(TextAllocation, AddAttributes)
{
    onAttributedTexts([](AttributedString &text) {
        library::addAttributes(text, {{u"style"_s, u"heading"_s}, {u"size"_s, 12}}, ranges);
    });
}

TEST(TextAllocation, RemoveAttribute)
{
    onAttributedTexts([](AttributedString &text) { library::removeAttribute(text, u"style"_s, ranges); });
}

TEST(TextAllocation, RangesForAttribute)
{
    const AttributedString text = attributedText();
    failEveryAllocationOf([&text] { return library::rangesForAttribute(text, u"style"_s, u"quote"_s); });
}

TEST(TextAllocation, LineRangesForLevelString)
{
    failEveryAllocationOf([] { return library::lineRangesForLevelString(sample, u"#"); });
}

TEST(TextAllocation, RangesForStartTag)
{
    failEveryAllocationOf([] { return library::rangesForStartTag(sample, u"**", u"**"); });
}

TEST(TextAllocation, DeleteLevelMark)
{
    onAllTexts([](auto &text) { library::deleteLevelMark(text, u"##"); });
}

TEST(TextAllocation, DeleteParagraphMark)
{
    onAttributedTexts([](AttributedString &text) { library::deleteParagraphMark(text, u">", {{0, 40}, {40, 20}}); });
}

TEST(TextAllocation, ConvertStartTabsToSpace)
{
    onPlainTexts([](QString &text) { library::convertStartTabsToSpace(text, 40); });
}

TEST(TextAllocation, DeleteEmptyLines)
{
    onPlainTexts([](QString &text) { library::deleteEmptyLines(text); });
}

TEST(TextAllocation, SetMaxLineLength)
{
    onPlainTexts([](QString &text) { library::setMaxLineLength(text, 7); });
}

TEST(TextAllocation, StringWithConvertedEscSequences)
{
    failEveryAllocationOf([] { return library::stringWithConvertedEscSequences(uR"(a\nb\tc\\n)"); });
}

TEST(TextAllocation, StringWithConvertedStringsFromArray)
{
    const QStringList from{u"e"_s, u"a"_s};
    const QStringList to{u"&eacute;"_s, u"e"_s};
    failEveryAllocationOf([&] { return library::stringWithConvertedStringsFromArray(sample, from, to); });
}

TEST(TextAllocation, ConvertQuotationsToStart)
{
    onPlainTexts([](QString &text) { library::convertQuotationsToStart(text, u"<<", u">>"); });
}

TEST(TextAllocation, ConvertQuotationsToType)
{
    onAllTexts([](auto &text) { library::convertQuotationsToType(text, 1); });
}

TEST(TextAllocation, ConvertEllipses)
{
    onAllTexts([](auto &text) { library::convertEllipses(text); });
}

TEST(TextAllocation, CorrectApostrophes)
{
    onAllTexts([](auto &text) { library::correctApostrophes(text); });
}

TEST(TextAllocation, CorrectDashes)
{
    onAllTexts([](auto &text) { library::correctDashes(text); });
}

TEST(TextAllocation, Edit)
{
    const platform::TextEdits edits{{{2, 5}, u"a longer text"}, {{20, 0}, u"inserted"}, {{30, 9}, u""}};
    onAllTexts([&edits](auto &text) { edit(text, edits); });
}

TEST(TextAllocation, EditAnEmptyText)
{
    const platform::TextEdits edits{{{0, 0}, u"a text that is long enough to need memory"}};
    failEveryAllocation([] { return AttributedString(); }, [&edits](AttributedString &text) { edit(text, edits); });
}

TEST(TextAllocation, AttributedStringOfAText)
{
    const QString text = plainText();
    const QVariantMap attributes{{u"style"_s, 1}};
    failEveryAllocationOf([&] { return AttributedString(text, attributes); });
}

TEST(TextAllocation, SetAttributes)
{
    onAttributedTexts([](AttributedString &text) { text.setAttributes({{u"style"_s, u"x"_s}}, {5, 9}); });
}

TEST(TextAllocation, ReplaceCharacters)
{
    onAttributedTexts([](AttributedString &text) { text.replaceCharacters({5, 9}, u"something much longer"); });
}

TEST(TextAllocation, AttributesAtIndex)
{
    const AttributedString text = attributedText();
    failEveryAllocationOf([&text] { return text.attributesAtIndex(12); });
}
