#include <OrvaneExportKit/run/ExportDocument.h>

#include <gtest/gtest.h>

namespace {

/// A document that overrides only what it must.
class BlankDocument final : public ExportDocument
{
public:
    QString name() const override { return {}; }
    QString status() const override { return {}; }
    QString label() const override { return {}; }
};

TEST(ExportDocument, IsEqualToItselfAlone)
{
    const BlankDocument document;
    const BlankDocument twin;
    EXPECT_TRUE(document.isEqual(document));
    EXPECT_FALSE(document.isEqual(twin));
    EXPECT_FALSE(twin.isEqual(document));
}

TEST(ExportDocument, KeepsItsHash)
{
    const BlankDocument document;
    EXPECT_EQ(document.hash(), document.hash());
}

TEST(ExportDocument, DiffersFromAnotherInItsHash)
{
    const BlankDocument documents[2];
    EXPECT_NE(documents[0].hash(), documents[1].hash());
}

} // namespace
