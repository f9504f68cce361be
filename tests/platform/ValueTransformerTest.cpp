#include <OrvaneExportKit/platform/ValueTransformer.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using platform::setValueTransformer;
using platform::ValueTransformer;
using platform::valueTransformerForName;
using platform::valueTransformerNames;

namespace {

/// Shows a number larger by `difference`, and counts the objects of its class.
class Adder : public ValueTransformer
{
public:
    explicit Adder(int difference) : m_difference(difference) { ++s_living; }
    ~Adder() override { --s_living; }

    static int living() { return s_living; }

    QMetaType transformedValueClass() const override { return QMetaType::fromType<int>(); }
    bool allowsReverseTransformation() const override { return true; }
    QVariant transformedValue(const QVariant &value) const override { return value.toInt() + m_difference; }
    QVariant reverseTransformedValue(const QVariant &value) const override { return value.toInt() - m_difference; }

private:
    static inline int s_living = 0;
    int m_difference;
};

/// Leaves the registry as it found it.
class ValueTransformers : public testing::Test
{
protected:
    void TearDown() override
    {
        setValueTransformer(nullptr, u"AdderB"_s);
        setValueTransformer(nullptr, u"AdderA"_s);
        EXPECT_EQ(Adder::living(), 0);
    }
};

TEST_F(ValueTransformers, AreFoundByTheirNames)
{
    setValueTransformer(std::make_unique<Adder>(1), u"AdderA"_s);
    setValueTransformer(std::make_unique<Adder>(2), u"AdderB"_s);
    EXPECT_EQ(valueTransformerForName(u"AdderA"_s)->transformedValue(10), QVariant(11));
    EXPECT_EQ(valueTransformerForName(u"AdderB"_s)->transformedValue(10), QVariant(12));
    EXPECT_EQ(valueTransformerForName(u"AdderB"_s)->reverseTransformedValue(10), QVariant(8));
}

TEST_F(ValueTransformers, AreMissingUnderOtherNames)
{
    setValueTransformer(std::make_unique<Adder>(1), u"AdderA"_s);
    EXPECT_EQ(valueTransformerForName(u"addera"_s), nullptr);
    EXPECT_EQ(valueTransformerForName(QString()), nullptr);
}

TEST_F(ValueTransformers, NameThemselvesInAscendingOrder)
{
    const QStringList before = valueTransformerNames();
    setValueTransformer(std::make_unique<Adder>(2), u"AdderB"_s);
    setValueTransformer(std::make_unique<Adder>(1), u"AdderA"_s);
    QStringList expected = before + QStringList{u"AdderA"_s, u"AdderB"_s};
    expected.sort();
    EXPECT_EQ(valueTransformerNames(), expected);
}

TEST_F(ValueTransformers, AreDestroyedWhenAnotherTakesTheirName)
{
    setValueTransformer(std::make_unique<Adder>(1), u"AdderA"_s);
    setValueTransformer(std::make_unique<Adder>(5), u"AdderA"_s);
    EXPECT_EQ(valueTransformerForName(u"AdderA"_s)->transformedValue(10), QVariant(15));
    EXPECT_EQ(Adder::living(), 1);
}

TEST_F(ValueTransformers, StayWithWhoeverUsesThemWhenReplaced)
{
    setValueTransformer(std::make_unique<Adder>(1), u"AdderA"_s);
    std::shared_ptr<ValueTransformer> used = valueTransformerForName(u"AdderA"_s);
    setValueTransformer(std::make_unique<Adder>(5), u"AdderA"_s);
    EXPECT_EQ(used->transformedValue(10), QVariant(11));
    used.reset();
    EXPECT_EQ(Adder::living(), 1);
}

TEST_F(ValueTransformers, AreTakenOutByNull)
{
    setValueTransformer(std::make_unique<Adder>(1), u"AdderA"_s);
    setValueTransformer(nullptr, u"AdderA"_s);
    EXPECT_EQ(valueTransformerForName(u"AdderA"_s), nullptr);
    EXPECT_FALSE(valueTransformerNames().contains(u"AdderA"_s));
    EXPECT_EQ(Adder::living(), 0);
}

TEST_F(ValueTransformers, ServeSeveralNames)
{
    const auto adder = std::make_shared<Adder>(1);
    setValueTransformer(adder, u"AdderA"_s);
    setValueTransformer(adder, u"AdderB"_s);
    setValueTransformer(nullptr, u"AdderA"_s);
    EXPECT_EQ(valueTransformerForName(u"AdderB"_s), adder);
}

} // namespace
