#include <OrvaneExportKit/controls/KZFontNameTextField.h>

#include <OrvaneExportKit/platform/Archiver.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/windowing/ArchivedViews.h>
#include <OrvaneExportKit/windowing/Frames.h>
#include <tests/support/HandMadeArchive.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtGui/QColor>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using platform::ArchiveException;
using platform::Archiver;
using platform::KeyedArchiver;
using platform::KeyedUnarchiver;
using platform::PropertyList;
using platform::Unarchiver;
using support::ArchiveContents;
using support::HandMadeArchive;
using windowing::TextField;

namespace {

const QStringList fontFieldClasses{u"KZFontNameTextField"_s, u"NSTextField"_s, u"NSControl"_s, u"NSView"_s,
                                   u"NSResponder"_s,         u"NSObject"_s};
const QStringList cellClasses{u"NSTextFieldCell"_s, u"NSActionCell"_s, u"NSCell"_s, u"NSObject"_s};

std::unique_ptr<KZFontNameTextField> unarchived(const QByteArray &data)
{
    return windowing::unarchivedView<KZFontNameTextField>(KeyedUnarchiver::unarchiveObjectWithData(data));
}

std::unique_ptr<KZFontNameTextField> someField()
{
    auto field = KZFontNameTextField::initWithFrame({20.5, 30.0, 150.0, 22.0});
    field->setSelectedFontAttributes(QVariantMap{{u"NSColor"_s, QColor(Qt::red)}, {u"NSUnderline"_s, 1}});
    field->setSelectedFontName(u"Palatino-Italic"_s);
    field->setSelectedFontSize(17.25F);
    field->setTag(-42);
    return field;
}

class FontFieldArchive : public testing::TestWithParam<PropertyList::Format>
{
protected:
    static QByteArray archived(KZFontNameTextField &field)
    {
        return KeyedArchiver::archivedDataWithRootObject(QVariant::fromValue(&field), GetParam());
    }
};

INSTANTIATE_TEST_SUITE_P(Keyed, FontFieldArchive,
                         testing::Values(PropertyList::Format::Binary, PropertyList::Format::Xml),
                         [](const auto &info) { return info.param == PropertyList::Format::Xml ? "Xml" : "Binary"; });

TEST_P(FontFieldArchive, HoldsAttributesNameAndSize)
{
    const ArchiveContents archive(archived(*someField()));
    const QVariantMap fields = archive.root();
    EXPECT_EQ(archive.classNames(fields), fontFieldClasses);
    EXPECT_EQ(archive.object(fields.value(u"selectedFontName"_s)), QVariant(u"Palatino-Italic"_s));
    EXPECT_EQ(fields.value(u"selectedFontSize"_s), QVariant(17.25));
    const QVariantMap attributes = archive.object(fields.value(u"selectedFontAttributes"_s)).toMap();
    EXPECT_EQ(archive.classNames(attributes).first(), u"NSDictionary"_s);
    const QVariantList keys = attributes.value(u"NS.keys"_s).toList();
    const QVariantList values = attributes.value(u"NS.objects"_s).toList();
    ASSERT_EQ(keys.size(), 2);
    EXPECT_EQ(archive.object(keys[0]), QVariant(u"NSColor"_s));
    EXPECT_EQ(archive.classNames(archive.object(values[0]).toMap()).first(), u"NSColor"_s);
    EXPECT_EQ(archive.object(keys[1]), QVariant(u"NSUnderline"_s));
    EXPECT_EQ(archive.object(values[1]), QVariant(qint64(1)));
}

TEST_P(FontFieldArchive, HoldsTheFieldsOfATextField)
{
    const auto field = someField();
    field->setEnabled(false);
    const ArchiveContents archive(archived(*field));
    const QVariantMap fields = archive.root();
    EXPECT_EQ(archive.object(fields.value(u"NSFrame"_s)), QVariant(u"{{20.5, 30}, {150, 22}}"_s));
    EXPECT_EQ(fields.value(u"NSvFlags"_s).toLongLong(), 256);
    EXPECT_EQ(fields.value(u"NSEnabled"_s), QVariant(false));
    EXPECT_EQ(fields.value(u"NSTag"_s).toLongLong(), -42);
    const QVariantMap cell = archive.object(fields.value(u"NSCell"_s)).toMap();
    EXPECT_EQ(archive.classNames(cell), cellClasses);
    EXPECT_EQ(cell.value(u"NSCellFlags"_s).toLongLong(), 0x04600000); // text, bezel, selectable, not editable
    EXPECT_EQ(cell.value(u"NSCellFlags2"_s).toLongLong(), 2 << 26);   // centred
    EXPECT_EQ(cell.value(u"NSTextBezelStyle"_s).toLongLong(), 1);
    EXPECT_EQ(archive.classNames(archive.object(cell.value(u"NSSupport"_s)).toMap()).first(), u"NSFont"_s);
    const QVariantMap contents = archive.object(cell.value(u"NSContents"_s)).toMap();
    EXPECT_EQ(archive.object(contents.value(u"NSString"_s)), QVariant(u"Palatino-Italic, 17pt"_s));
}

TEST_P(FontFieldArchive, HoldsNothingForWhatIsMissing)
{
    KZFontNameTextField field;
    field.setSelectedFontName({});
    const ArchiveContents archive(archived(field));
    const QVariant nothing = QVariant::fromValue(PropertyList::Uid{0});
    EXPECT_EQ(archive.root().value(u"selectedFontAttributes"_s).value<PropertyList::Uid>(), PropertyList::Uid{0});
    EXPECT_EQ(archive.root().value(u"selectedFontName"_s).value<PropertyList::Uid>(), PropertyList::Uid{0});
    const auto read = unarchived(archived(field));
    EXPECT_FALSE(read->selectedFontAttributes().isValid());
    EXPECT_TRUE(read->selectedFontName().isNull());
    EXPECT_EQ(read->text(), u"(null), 10pt"_s);
}

TEST_P(FontFieldArchive, RestoresTheFieldAndItsText)
{
    const auto read = unarchived(archived(*someField()));
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->selectedFontAttributes(), someField()->selectedFontAttributes());
    EXPECT_EQ(read->selectedFontName(), u"Palatino-Italic"_s);
    EXPECT_EQ(read->selectedFontSize(), 17.25F);
    EXPECT_EQ(read->text(), u"Palatino-Italic, 17pt"_s);
    EXPECT_EQ(read->attributedStringValue().attributesAtIndex(0), read->selectedFontAttributes().toMap());
    EXPECT_FALSE(read->fieldAttributes());
    EXPECT_EQ(windowing::frameOf(*read), QRectF(20.5, 30.0, 150.0, 22.0));
    EXPECT_EQ(read->tag(), -42);
    EXPECT_TRUE(read->isEnabled());
    EXPECT_FALSE(read->isEditable());
    EXPECT_EQ(read->bezelStyle(), TextField::BezelStyle::Rounded);
    EXPECT_TRUE(read->alignment().testFlag(Qt::AlignHCenter));
}

TEST_P(FontFieldArchive, IsReadAsOtherProgramsWriteIt)
{
    HandMadeArchive archive;
    const QVariant name = archive.add(u"Helvetica"_s);
    const QVariant size = archive.add(u"{150, 22}"_s);
    const QVariant fontName = archive.add(u"LucidaGrande"_s);
    const QVariant font = archive.add({u"NSFont"_s, u"NSObject"_s},
                                      {{u"NSName"_s, fontName}, {u"NSSize"_s, 13.0}, {u"NSfFlags"_s, 1044}});
    const QVariant contents = archive.add(u"old"_s);
    // The cell refers back to its field, which comes two entries (its class, then itself) behind the cell.
    constexpr quint32 indexOfField = 10;
    const QVariant cell =
        archive.add(cellClasses, {{u"NSCellFlags"_s, -1804468671},
                                  {u"NSCellFlags2"_s, 138413056},
                                  {u"NSContents"_s, contents},
                                  {u"NSSupport"_s, font},
                                  {u"NSControlView"_s, QVariant::fromValue(PropertyList::Uid{indexOfField})}});
    const QVariant root = archive.add(fontFieldClasses, {{u"NSvFlags"_s, 268},
                                                         {u"NSFrameSize"_s, size},
                                                         {u"NSEnabled"_s, true},
                                                         {u"NSCell"_s, cell},
                                                         {u"selectedFontName"_s, name},
                                                         {u"selectedFontSize"_s, 12}});
    ASSERT_EQ(root.value<PropertyList::Uid>().value, indexOfField);
    const auto field = unarchived(archive.data(root, GetParam()));
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->text(), u"Helvetica, 12pt"_s);
    EXPECT_TRUE(field->isEditable()); // as the cell has it
    EXPECT_TRUE(field->alignment().testFlag(Qt::AlignHCenter));
    EXPECT_EQ(field->bezelStyle(), TextField::BezelStyle::Square);
    EXPECT_TRUE(field->hasFrame());
    EXPECT_EQ(field->font().family(), u"LucidaGrande"_s);
    EXPECT_EQ(field->width(), 150);
}

TEST_P(FontFieldArchive, IsRefusedWithValuesOfOtherTypes)
{
    for (const QString &key : {u"selectedFontName"_s, u"selectedFontAttributes"_s}) {
        HandMadeArchive archive;
        const QVariant number = archive.add(12);
        const QVariant root = archive.add(fontFieldClasses, {{key, number}});
        EXPECT_THROW(unarchived(archive.data(root, GetParam())), ArchiveException) << key.toStdString();
    }
    HandMadeArchive archive;
    const QVariant number = archive.add(12);
    const QVariant cell = archive.add(cellClasses, {{u"NSContents"_s, number}});
    const QVariant root = archive.add(fontFieldClasses, {{u"NSCell"_s, cell}});
    EXPECT_THROW(unarchived(archive.data(root, GetParam())), ArchiveException);
}

template <typename Number>
Number next(Unarchiver &unarchiver, const char *type)
{
    Number number{};
    unarchiver.decodeValueOfObjCType(type, &number);
    return number;
}

TEST(FontFieldArchiveWithoutKeys, HoldsThreeItemsAfterTheTextField)
{
    const auto field = someField();
    Archiver archiver;
    field->encodeWithCoder(archiver);

    Unarchiver unarchiver(archiver.archivedData());
    for (const double expected : {20.5, 30.0, 150.0, 22.0}) {
        EXPECT_EQ(next<double>(unarchiver, "d"), expected);
    }
    EXPECT_FALSE(next<bool>(unarchiver, "B")); // hidden
    EXPECT_TRUE(next<bool>(unarchiver, "B"));  // enabled
    EXPECT_EQ(next<qint64>(unarchiver, "q"), -42);
    EXPECT_EQ(unarchiver.decodeObject(), QVariant(u"Palatino-Italic, 17pt"_s));
    EXPECT_EQ(next<int>(unarchiver, "i"), 0); // editable
    EXPECT_EQ(next<int>(unarchiver, "i"), 2); // centred
    EXPECT_EQ(next<int>(unarchiver, "i"), 1); // rounded
    EXPECT_EQ(unarchiver.decodeObject(), field->selectedFontAttributes());
    EXPECT_EQ(unarchiver.decodeObject(), QVariant(u"Palatino-Italic"_s));
    EXPECT_EQ(next<float>(unarchiver, "f"), 17.25F);
    EXPECT_THROW(unarchiver.decodeObject(), ArchiveException);
}

TEST(FontFieldArchiveWithoutKeys, RestoresTheValuesAndShowsTheOldSize)
{
    const auto field = someField();
    Archiver archiver;
    field->encodeWithCoder(archiver);
    Unarchiver unarchiver(archiver.archivedData());
    const auto read = KZFontNameTextField::initWithCoder(unarchiver);
    EXPECT_EQ(read->selectedFontAttributes(), field->selectedFontAttributes());
    EXPECT_EQ(read->selectedFontName(), u"Palatino-Italic"_s);
    EXPECT_EQ(read->selectedFontSize(), 17.25F);
    EXPECT_EQ(read->text(), u"Palatino-Italic, 0pt"_s);
    read->setFontNameWithFont({});
    EXPECT_EQ(read->text(), u"Palatino-Italic, 17pt"_s);
}

TEST(FontFieldArchiveWithoutKeys, KeepsThatNameAndAttributesAreMissing)
{
    KZFontNameTextField field;
    field.setSelectedFontName({});
    Archiver archiver;
    field.encodeWithCoder(archiver);
    Unarchiver unarchiver(archiver.archivedData());
    const auto read = KZFontNameTextField::initWithCoder(unarchiver);
    EXPECT_TRUE(read->selectedFontName().isNull());
    EXPECT_FALSE(read->selectedFontAttributes().isValid());
}

} // namespace
