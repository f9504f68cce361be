#include <examples/host/window/WordCount.h>

#include <gtest/gtest.h>

using host::wordCount;

TEST(WordCount, IsZeroForNoTextAndForBlanks)
{
    EXPECT_EQ(wordCount(u""), 0);
    EXPECT_EQ(wordCount(u" \t\n\u00A0"), 0);
}

TEST(WordCount, CountsRunsBetweenWhiteSpaceOfAnyKind)
{
    EXPECT_EQ(wordCount(u"one two\nthree\tfour\u2003five"), 5);
    EXPECT_EQ(wordCount(u"  it's well-known  "), 2);
}

TEST(WordCount, LeavesOutMarksThatStandAlone)
{
    EXPECT_EQ(wordCount(u"## The key * * *"), 2);
    EXPECT_EQ(wordCount(u"**bold** -- 41"), 2);
}

TEST(WordCount, KnowsLettersBeyondTheBasicPlane)
{
    EXPECT_EQ(wordCount(u"\U00010400\U00010401 x"), 2);
}
