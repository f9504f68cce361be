#include <OrvaneExportKit/platform/PropertyList.h>
#include <tests/support/PropertyListDump.h>
#include <tests/support/RandomPropertyLists.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using platform::PropertyList;
using support::dump;
using support::RandomPropertyLists;

namespace {

constexpr unsigned seeds = 20;
constexpr PropertyList::Format formats[] = {PropertyList::Format::Xml, PropertyList::Format::Binary};

std::string afterRoundTrip(const QVariant &value, PropertyList::Format format)
{
    const auto written = PropertyList::write(value, format);
    return written.data ? dump(PropertyList::read(*written.data)) : written.error.toStdString();
}

TEST(PropertyListRoundTrip, KeepsRandomValues)
{
    for (unsigned seed = 0; seed < seeds; ++seed) {
        RandomPropertyLists lists(seed);
        for (int i = 0; i < 50; ++i) {
            const QVariant value = lists.value();
            for (const auto format : formats) {
                ASSERT_EQ(afterRoundTrip(value, format), dump(value)) << "seed " << seed << ", value " << i;
            }
        }
    }
}

TEST(PropertyListRoundTrip, GivesTheSameBytesForWhatHasBeenRead)
{
    for (unsigned seed = 0; seed < seeds; ++seed) {
        const QVariant value = RandomPropertyLists(seed).value();
        for (const auto format : formats) {
            const QByteArray written = PropertyList::write(value, format).data.value();
            const QVariant read = PropertyList::read(written).value.value();
            EXPECT_EQ(PropertyList::write(read, format).data, written) << "seed " << seed;
        }
    }
}

TEST(PropertyListRoundTrip, KeepsEveryCharacterThatTheFormatHolds)
{
    QString characters;
    for (char32_t character = 1; character <= QChar::LastValidCodePoint; ++character) {
        if (!QChar::isSurrogate(character)) {
            characters += QString::fromUcs4(&character, 1);
        }
    }
    for (const auto format : formats) {
        EXPECT_EQ(afterRoundTrip(characters, format), dump(characters));
    }
}

TEST(PropertyListRoundTrip, OfBinaryKeepsHalfPairsNullsAndMilliseconds)
{
    const QVariantMap value{{QString(QChar(0xDC00)), QString(QChar(u'\0')) + u"a"_s},
                            {u"date"_s, QDateTime::fromMSecsSinceEpoch(1'234'567'890'123, Qt::UTC)},
                            {u"early"_s, QDateTime::fromMSecsSinceEpoch(-1'234'567'890'123, Qt::UTC)},
                            {u"uid"_s, QVariant::fromValue(PropertyList::Uid{7})}};
    EXPECT_EQ(afterRoundTrip(value, PropertyList::Format::Binary), dump(value));
}

TEST(PropertyListRoundTrip, OfXmlKeepsUids)
{
    const QVariant value = QVariantList{QVariant::fromValue(PropertyList::Uid{7})};
    EXPECT_EQ(afterRoundTrip(value, PropertyList::Format::Xml), dump(value));
}

/// A list with a few bytes changed, put in or left out.
QByteArray mutated(QByteArray list, RandomPropertyLists &random)
{
    for (quint64 changes = 1 + random.below(3); changes > 0 && !list.isEmpty(); --changes) {
        const auto position = static_cast<qsizetype>(random.below(static_cast<quint64>(list.size())));
        switch (random.below(5)) {
        case 0:
            list[position] = static_cast<char>(random.below(256));
            break;
        case 1:
            list[position] = static_cast<char>(list[position] ^ static_cast<char>(1 << random.below(8)));
            break;
        case 2:
            list.truncate(position);
            break;
        case 3:
            list.remove(position, 1 + static_cast<qsizetype>(random.below(8)));
            break;
        default:
            list.insert(position, list.mid(static_cast<qsizetype>(random.below(static_cast<quint64>(list.size()))), 8));
            break;
        }
    }
    return list;
}

TEST(PropertyListMutations, GiveAValueThatCanBeWrittenOrAnError)
{
    for (unsigned seed = 0; seed < seeds; ++seed) {
        RandomPropertyLists random(seed);
        for (const auto format : formats) {
            const QByteArray list = PropertyList::write(random.value(), format).data.value();
            for (int i = 0; i < 200; ++i) {
                const QByteArray changed = mutated(list, random);
                const auto result = PropertyList::read(changed);
                ASSERT_NE(result.value.has_value(), !result.error.isEmpty()) << changed.toHex().toStdString();
                if (!result.value) {
                    ASSERT_TRUE(result.error.startsWith(u"line ") || result.error.startsWith(u"byte "))
                        << result.error.toStdString();
                } else if (dump(*result.value).find("nullptr") == std::string::npos) {
                    ASSERT_EQ(afterRoundTrip(*result.value, PropertyList::Format::Binary), dump(*result.value))
                        << changed.toHex().toStdString();
                }
            }
        }
    }
}

} // namespace
