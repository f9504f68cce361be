#include <tests/reference/EscapeSequences.h>
#include <tests/reference/Generators.h>
#include <tests/reference/PropertyTesting.h>

#include <OrvaneExportKit/platform/TextUnits.h>
#include <OrvaneExportKit/text/EscapeSequences.h>

#include <gtest/gtest.h>

using property::asLibrary;
using property::asReference;
using property::forEachCase;
using property::Pieces;
using property::printed;
using property::Random;
using property::view;

namespace {

/// Up to eight short strings over an alphabet of the substituted texts, some of them empty.
std::vector<std::u16string> randomStrings(Random &random, const Pieces &pieces)
{
    const std::size_t longest = random.oneOf<std::size_t>({1, 2, 4});
    std::vector<std::u16string> strings;
    for (std::size_t count = random.between(0, 8); count > 0; --count) {
        strings.push_back(property::randomString(random, pieces, longest));
    }
    return strings;
}

QStringList asStringList(const std::vector<std::u16string> &strings)
{
    QStringList list;
    for (const std::u16string &string : strings) {
        list.push_back(asLibrary(string));
    }
    return list;
}

} // namespace

TEST(EscapeSequencesProperty, StringWithConvertedEscSequences)
{
    forEachCase([](Random &random) {
        const std::u16string text = property::randomText(
            random, {u"\\", u"\\", u"\\", u"\\\\", u"f", u"n", u"t", u"r", u"\\n", u"\f", u"\n", u"\t", u"\r", u"a"});

        EXPECT_EQ(asReference(KZStringExportAdditions::stringWithConvertedEscSequences(view(text))),
                  reference::stringWithConvertedEscSequences(text))
            << "text " << printed(text);
    });
}

TEST(EscapeSequencesProperty, StringWithConvertedStringsFromArray)
{
    forEachCase([](Random &random) {
        const Pieces pieces = random.oneOf({Pieces{u"a", u"b"}, Pieces{u"a", u"b", u"c", u"\U0001F600", u"\xD83D"}});
        const std::u16string text = property::randomText(random, pieces);
        const std::vector<std::u16string> from = randomStrings(random, pieces);
        const std::vector<std::u16string> to = randomStrings(random, pieces);

        EXPECT_EQ(asReference(KZStringExportAdditions::stringWithConvertedStringsFromArray(
                      view(text), asStringList(from), asStringList(to))),
                  reference::stringWithConvertedStringsFromArray(text, from, to))
            << "text " << printed(text) << "\nfrom " << printed(from) << "\nto " << printed(to);
    });
}
