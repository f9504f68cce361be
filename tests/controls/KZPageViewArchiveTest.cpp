#include <OrvaneExportKit/controls/KZFontNameTextField.h>
#include <OrvaneExportKit/controls/KZPageView.h>

#include <OrvaneExportKit/platform/Archiver.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/windowing/ArchivedViews.h>
#include <tests/support/HandMadeArchive.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtWidgets/QApplication>

#include <cstring>
#include <memory>

using namespace Qt::Literals::StringLiterals;
using platform::Archiver;
using platform::KeyedArchiver;
using platform::KeyedUnarchiver;
using platform::PropertyList;
using platform::Unarchiver;
using support::ArchiveContents;
using support::HandMadeArchive;

namespace {

const QStringList pageViewClasses{u"KZPageView"_s, u"NSView"_s, u"NSResponder"_s, u"NSObject"_s};

std::unique_ptr<KZPageView> unarchived(const QByteArray &data)
{
    return windowing::unarchivedView<KZPageView>(KeyedUnarchiver::unarchiveObjectWithData(data));
}

std::unique_ptr<KZPageView> someView()
{
    auto view = std::make_unique<KZPageView>();
    view->setFrame({20.5, 30.25, 120.0, 120.0});
    view->setPaperSize({595.276, 841.89});
    view->setTopMargin(10.5F);
    view->setLeftMargin(20.25F);
    view->setRightMargin(-3.0F);
    view->setBottomMargin(0.1F);
    return view;
}

class PageViewArchive : public testing::TestWithParam<PropertyList::Format>
{
protected:
    QByteArray archived(KZPageView &view) const
    {
        return KeyedArchiver::archivedDataWithRootObject(QVariant::fromValue(&view), GetParam());
    }
};

INSTANTIATE_TEST_SUITE_P(Keyed, PageViewArchive,
                         testing::Values(PropertyList::Format::Binary, PropertyList::Format::Xml),
                         [](const auto &info) { return info.param == PropertyList::Format::Xml ? "Xml" : "Binary"; });

TEST_P(PageViewArchive, HoldsTheValuesAs32BitFloats)
{
    const auto view = someView();
    const ArchiveContents archive(archived(*view));
    const QVariantMap fields = archive.root();
    EXPECT_EQ(archive.classNames(fields), pageViewClasses);
    EXPECT_EQ(fields.value(u"width"_s).toDouble(), double(595.276F));
    EXPECT_EQ(fields.value(u"height"_s).toDouble(), double(841.89F));
    EXPECT_EQ(fields.value(u"topMargin"_s).toDouble(), 10.5);
    EXPECT_EQ(fields.value(u"leftMargin"_s).toDouble(), 20.25);
    EXPECT_EQ(fields.value(u"rightMargin"_s).toDouble(), -3.0);
    EXPECT_EQ(fields.value(u"bottomMargin"_s).toDouble(), double(0.1F));
}

TEST_P(PageViewArchive, HoldsTheFieldsOfAView)
{
    const auto view = someView();
    const ArchiveContents archive(archived(*view));
    const QVariantMap fields = archive.root();
    EXPECT_EQ(archive.object(fields.value(u"NSFrame"_s)), QVariant(u"{{20.5, 30.25}, {120, 120}}"_s));
    EXPECT_FALSE(fields.contains(u"NSFrameSize"_s));
    EXPECT_EQ(fields.value(u"NSvFlags"_s).toLongLong(), 256);
}

TEST_P(PageViewArchive, HoldsOnlyTheSizeOfAViewAtTheOrigin)
{
    const auto view = someView();
    view->setFrame({0.0, 0.0, 90.0, 90.0});
    const ArchiveContents archive(archived(*view));
    EXPECT_EQ(archive.object(archive.root().value(u"NSFrameSize"_s)), QVariant(u"{90, 90}"_s));
    EXPECT_FALSE(archive.root().contains(u"NSFrame"_s));
}

TEST_P(PageViewArchive, MarksAHiddenViewInTheHighestBit)
{
    const auto view = someView();
    view->hide();
    const QByteArray data = archived(*view);
    EXPECT_EQ(ArchiveContents(data).root().value(u"NSvFlags"_s).toLongLong(), -2147483648LL + 256);
    QWidget panel;
    KZPageView *read = unarchived(data).release();
    read->setParent(&panel);
    panel.show();
    EXPECT_FALSE(read->isVisible());
}

TEST_P(PageViewArchive, RestoresAllValuesOfAView)
{
    const auto view = someView();
    const auto read = unarchived(archived(*view));
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->paperSize(), QSizeF(595.276F, 841.89F));
    EXPECT_EQ(read->topMargin(), 10.5F);
    EXPECT_EQ(read->leftMargin(), 20.25F);
    EXPECT_EQ(read->rightMargin(), -3.0F);
    EXPECT_EQ(read->bottomMargin(), 0.1F);
    EXPECT_EQ(read->frame(), QRectF(20.5, 30.25, 120.0, 120.0));
}

TEST_P(PageViewArchive, ShowsAViewThatWasNotHiddenWithItsPanel)
{
    QWidget panel;
    KZPageView *read = unarchived(archived(*someView())).release();
    read->setParent(&panel);
    panel.show();
    EXPECT_TRUE(read->isVisible());
}

TEST_P(PageViewArchive, IsReadAsOtherProgramsWriteIt)
{
    HandMadeArchive archive;
    const QVariant frame = archive.add(u"{{1, 9}, {480, 270}}"_s);
    const QVariant root = archive.add(pageViewClasses, {{u"NSvFlags"_s, 268},
                                                        {u"NSFrame"_s, frame},
                                                        {u"NSSuperview"_s, QVariant::fromValue(PropertyList::Uid{0})},
                                                        {u"width"_s, 612.0F},
                                                        {u"height"_s, 792},
                                                        {u"topMargin"_s, 36.5},
                                                        {u"leftMargin"_s, 1.0F}});
    const auto view = unarchived(archive.data(root, GetParam()));
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->frame(), QRectF(1.0, 9.0, 480.0, 270.0)); // not made square
    EXPECT_EQ(view->paperSize(), QSizeF(612.0, 792.0));
    EXPECT_EQ(view->topMargin(), 36.5F);
    EXPECT_EQ(view->leftMargin(), 1.0F);
    EXPECT_EQ(view->rightMargin(), 0.0F); // missing
    EXPECT_EQ(view->bottomMargin(), 0.0F);
}

TEST_P(PageViewArchive, MakesNoViewUntilAProgramAsksForIt)
{
    const QByteArray data = archived(*someView());
    const auto widgets = QApplication::allWidgets().size();
    const QVariant object = KeyedUnarchiver::unarchiveObjectWithData(data);
    EXPECT_EQ(object.value<platform::KeyedObject>().className(), u"KZPageView");
    EXPECT_EQ(QApplication::allWidgets().size(), widgets);
    {
        const auto view = windowing::unarchivedView<KZPageView>(object);
        EXPECT_EQ(QApplication::allWidgets().size(), widgets + 1);
    }
    EXPECT_EQ(QApplication::allWidgets().size(), widgets);
    EXPECT_EQ(windowing::unarchivedView<KZPageView>(u"text"_s), nullptr);
    EXPECT_EQ(windowing::unarchivedView<KZFontNameTextField>(object), nullptr);
}

TEST_P(PageViewArchive, IsWrittenAgainAsItStands)
{
    const QVariant object = KeyedUnarchiver::unarchiveObjectWithData(archived(*someView()));
    const auto view = unarchived(KeyedArchiver::archivedDataWithRootObject(object, GetParam()));
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->frame(), QRectF(20.5, 30.25, 120.0, 120.0));
}

TEST_P(PageViewArchive, IsRefusedWithAFrameThatIsNone)
{
    for (const QString &text : {u"{{1, 9}, {480}}"_s, u"wide"_s, u"{{0, 0}, {1e300, 5}}"_s, u"{{0, 0}, {nan, 5}}"_s}) {
        HandMadeArchive archive;
        const QVariant frame = archive.add(text);
        const QVariant root = archive.add(pageViewClasses, {{u"NSFrame"_s, frame}});
        EXPECT_THROW(unarchived(archive.data(root, GetParam())), platform::ArchiveException) << text.toStdString();
    }
}

TEST_P(PageViewArchive, IsRefusedWithAMarginThatIsNoNumber)
{
    HandMadeArchive archive;
    const QVariant root = archive.add(pageViewClasses, {{u"topMargin"_s, u"wide"_s}});
    EXPECT_THROW(unarchived(archive.data(root, GetParam())), platform::ArchiveException);
}

/// Reads an archive without keys field by field, as its layout says.
TEST(PageViewArchiveWithoutKeys, HoldsSixItemsAfterTheView)
{
    const auto view = someView();
    Archiver archiver;
    view->encodeWithCoder(archiver);

    Unarchiver unarchiver(archiver.archivedData());
    for (const double expected : {20.5, 30.25, 120.0, 120.0}) {
        double number = 0.0;
        unarchiver.decodeValueOfObjCType("d", &number);
        EXPECT_EQ(number, expected);
    }
    bool hidden = true;
    unarchiver.decodeValueOfObjCType("B", &hidden);
    EXPECT_FALSE(hidden);
    for (const double size : {595.276, 841.89}) {
        float item = 0.0F;
        unarchiver.decodeValueOfObjCType("f", &item);
        EXPECT_EQ(std::memcmp(&item, &size, sizeof item), 0); // the first four bytes of the 64-bit number
    }
    for (const float expected : {10.5F, 20.25F, -3.0F, 0.1F}) {
        float margin = 0.0F;
        unarchiver.decodeValueOfObjCType("f", &margin);
        EXPECT_EQ(margin, expected);
    }
    float none = 0.0F;
    EXPECT_THROW(unarchiver.decodeValueOfObjCType("f", &none), platform::ArchiveException);
}

TEST(PageViewArchiveWithoutKeys, EndsInTheBytesOfTheItems)
{
    const auto view = someView();
    Archiver archiver;
    view->encodeWithCoder(archiver);
    // Each item is a kind, its type code and four bytes, the least significant first.
    constexpr qsizetype itemLength = 6;
    const QByteArray items = archiver.archivedData().last(6 * itemLength);
    const double width = 595.276;
    quint64 widthBits = 0;
    std::memcpy(&widthBits, &width, sizeof width);
    quint32 topBits = 0;
    const float top = 10.5F;
    std::memcpy(&topBits, &top, sizeof top);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(quint8(items[2 + i]), quint8(widthBits >> (8 * i)));
        EXPECT_EQ(quint8(items[2 * itemLength + 2 + i]), quint8(topBits >> (8 * i)));
    }
    for (int item = 0; item < 6; ++item) {
        EXPECT_EQ(items[item * itemLength + 1], 'f');
    }
}

TEST(PageViewArchiveWithoutKeys, DoesNotKeepThePaperSize)
{
    const auto view = someView();
    Archiver archiver;
    view->encodeWithCoder(archiver);
    Unarchiver unarchiver(archiver.archivedData());
    const auto read = KZPageView::initWithCoder(unarchiver);

    const auto firstHalf = [](double number) {
        double half = 0.0;
        std::memcpy(&half, &number, 4);
        return half;
    };
    EXPECT_EQ(read->paperSize(), QSizeF(firstHalf(595.276), firstHalf(841.89)));
    EXPECT_NE(read->paperSize(), view->paperSize());
    EXPECT_EQ(read->topMargin(), 10.5F);
    EXPECT_EQ(read->leftMargin(), 20.25F);
    EXPECT_EQ(read->rightMargin(), -3.0F);
    EXPECT_EQ(read->bottomMargin(), 0.1F);
    EXPECT_EQ(read->frame(), view->frame());
}

TEST(PageViewArchiveWithoutKeys, ReadsWholePointSizesAsNothing)
{
    // The first four bytes of 595 and 842 as 64-bit numbers are 0.
    KZPageView view;
    view.setPaperSize({595.0, 842.0});
    Archiver archiver;
    view.encodeWithCoder(archiver);
    Unarchiver unarchiver(archiver.archivedData());
    EXPECT_EQ(KZPageView::initWithCoder(unarchiver)->paperSize(), QSizeF(0.0, 0.0));
}

TEST(PageViewArchiveWithoutKeys, IsRefusedWhenItIsCutShort)
{
    Archiver archiver;
    const float number = 1.0F;
    archiver.encodeValueOfObjCType("f", &number);
    Unarchiver unarchiver(archiver.archivedData());
    EXPECT_THROW(KZPageView::initWithCoder(unarchiver), platform::ArchiveException);
}

} // namespace
