#include <OrvaneExportKit/platform/PropertyList.h>
#include <tests/support/PropertyListDump.h>
#include <tests/support/PythonInterchange.h>
#include <tests/support/RandomPropertyLists.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using platform::PropertyList;
using support::dump;
using support::Lines;
using support::RandomPropertyLists;

namespace {

constexpr unsigned seed = 20240229;
constexpr std::pair<PropertyList::Format, QLatin1StringView> formats[] = {{PropertyList::Format::Xml, "xml"_L1},
                                                                          {PropertyList::Format::Binary, "binary"_L1}};

class PropertyListInterchange : public support::PythonInterchange
{
protected:
    PropertyListInterchange() : PythonInterchange(QStringLiteral(ORVANE_PROPERTY_LIST_SCRIPT)) {}

    Lines readFolder() const
    {
        return PythonInterchange::readFolder([](const QByteArray &data) { return dump(PropertyList::read(data)); });
    }
};

TEST_F(PropertyListInterchange, PythonReadsWhatTheKitWrites)
{
    RandomPropertyLists lists(seed);
    Lines written;
    for (int i = 0; i < 150; ++i) {
        const QVariant value = lists.value();
        for (const auto &[format, extension] : formats) {
            const QString name = u"%1.%2"_s.arg(i).arg(extension);
            writeFile(name, PropertyList::write(value, format).data.value());
            written[name.toStdString()] = dump(value);
        }
    }
    EXPECT_EQ(runScript({u"dump"_s}), written) << "seed " << seed;
}

TEST_F(PropertyListInterchange, TheKitReadsWhatPythonWrites)
{
    const Lines written = runScript({u"generate"_s, QString::number(seed), u"150"_s});
    ASSERT_EQ(written.size(), 300U);
    EXPECT_EQ(readFolder(), written) << "seed " << seed;
}

TEST_F(PropertyListInterchange, PythonReadsCarriageReturnsUidsAndMillisecondsOfTheKit)
{
    const QVariant text = u"a\rb\r\nc\n"_s;
    const QVariant values = QVariantList{text, QDateTime::fromMSecsSinceEpoch(1'234'567'890'123, Qt::UTC),
                                         QVariant::fromValue(PropertyList::Uid{70'000})};
    writeFile(u"text"_s, PropertyList::write(text, PropertyList::Format::Xml).data.value());
    writeFile(u"values"_s, PropertyList::write(values, PropertyList::Format::Binary).data.value());
    EXPECT_EQ(runScript({u"dump"_s}), (Lines{{"text", dump(text)}, {"values", dump(values)}}));
}

TEST_F(PropertyListInterchange, BothReadTheSameFromChangedBytesThatBothTake)
{
    RandomPropertyLists random(seed);
    for (int i = 0; i < 30; ++i) {
        const QVariant value = random.value();
        for (const auto &[format, extension] : formats) {
            const QByteArray list = PropertyList::write(value, format).data.value();
            for (int change = 0; change < 25; ++change) {
                QByteArray changed = list;
                changed[static_cast<qsizetype>(random.below(static_cast<quint64>(list.size())))] =
                    static_cast<char>(random.below(256));
                writeFile(u"%1-%2.%3"_s.arg(i).arg(change).arg(extension), changed);
            }
        }
    }
    const Lines ours = readFolder();
    const Lines theirs = runScript({u"dump"_s});
    ASSERT_EQ(ours.size(), theirs.size());
    int bothTake = 0;
    for (const auto &[name, line] : theirs) {
        if (line != "error" && !ours.at(name).starts_with("error")) {
            ++bothTake;
            EXPECT_EQ(ours.at(name), line) << "seed " << seed << ", file " << name;
        }
    }
    EXPECT_GT(bothTake, 100);
}

} // namespace
