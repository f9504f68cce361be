#include <OrvaneExportKit/run/FileNames.h>
#include <tests/support/Printers.h>
#include <tests/support/RecordingOpenPanel.h>

#include <gtest/gtest.h>

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtCore/QSize>
#include <QtCore/QTemporaryDir>

#include <deque>
#include <limits>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using KZStringExportAdditions::filenamesFromComponents;
using platform::componentTexts;
using support::RecordingOpenPanel;

namespace {

/// A document that equals every other one with the same three texts.
class TextsDocument final : public ExportDocument
{
public:
    explicit TextsDocument(QString name, QString status = {}, QString label = {})
        : m_name(std::move(name)), m_status(std::move(status)), m_label(std::move(label))
    {
    }

    QString name() const override { return m_name; }
    QString status() const override { return m_status; }
    QString label() const override { return m_label; }

    bool isEqual(const ExportDocument &other) const override
    {
        return name() == other.name() && status() == other.status() && label() == other.label();
    }

    std::size_t hash() const override { return qHashMulti(0, m_name, m_status, m_label); }

private:
    QString m_name;
    QString m_status;
    QString m_label;
};

/// The path of one document, exported to a file path without extension in the folder /x.
QString pathOf(const TextsDocument &document, const QStringList &components, bool convertSpaces = false)
{
    return filenamesFromComponents(u"/x/missing"_s, components, {&document}, convertSpaces, {}).constFirst();
}

/// A temporary folder as destination.
class FilenamesInAFolder : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_folder.isValid()); }

    QString folder() const { return m_folder.path(); }

    /// The path of a document named "Report" in the folder.
    QString report(const QString &pathExtension, bool convertSpaces = false) const
    {
        const TextsDocument document(u"Report"_s);
        return filenamesFromComponents(folder(), {u"<2>"_s}, {&document}, convertSpaces, pathExtension).constFirst();
    }

private:
    QTemporaryDir m_folder;
};

TEST(FilenamesFromComponents, AreNoneForNoDocuments)
{
    EXPECT_EQ(filenamesFromComponents(u"/x/missing.txt"_s, {u"<1>"_s}, {}, true, u"txt"_s), QStringList());
}

TEST(FilenamesFromComponents, TakeFolderExtensionAndBaseNameFromAFilePath)
{
    const TextsDocument first(u"A"_s);
    const TextsDocument second(u"B"_s);
    const QStringList components{u"<5>"_s, u" "_s, u"<1>"_s};
    EXPECT_EQ(filenamesFromComponents(u"/Users/u/Desktop/Novel.html"_s, components, {&first, &second}, false, u"txt"_s),
              (QStringList{u"/Users/u/Desktop/Novel 001.html"_s, u"/Users/u/Desktop/Novel 002.html"_s}));
    EXPECT_EQ(filenamesFromComponents(u"/Users/u/Desktop/Novel.html"_s, components, {&first, &second}, true, u"txt"_s),
              (QStringList{u"/Users/u/Desktop/Novel_001.html"_s, u"/Users/u/Desktop/Novel_002.html"_s}));
}

TEST_F(FilenamesInAFolder, HaveTheExtensionThatTheOpenPanelRequires)
{
    const RecordingOpenPanel panel(u"rtf"_s);
    EXPECT_EQ(report(u"txt"_s), folder() + u"/Report.rtf"_s);
}

TEST_F(FilenamesInAFolder, HaveTheGivenExtensionWhenTheOpenPanelRequiresNothing)
{
    const RecordingOpenPanel panel({});
    EXPECT_EQ(report(u"txt"_s), folder() + u"/Report.txt"_s);
}

TEST_F(FilenamesInAFolder, HaveTheGivenExtensionWithoutAnOpenPanel)
{
    EXPECT_EQ(report(u"txt"_s), folder() + u"/Report.txt"_s);
}

TEST_F(FilenamesInAFolder, HaveNeitherExtensionNorDotWhenBothAreEmpty)
{
    const RecordingOpenPanel panel({});
    EXPECT_EQ(report({}), folder() + u"/Report"_s);
}

TEST_F(FilenamesInAFolder, HaveTheExtensionOfTheOpenPanelWhenNoneIsGiven)
{
    const RecordingOpenPanel panel(u"rtf"_s);
    EXPECT_EQ(report({}), folder() + u"/Report.rtf"_s);
}

TEST_F(FilenamesInAFolder, AskTheOpenPanelOnceForAllDocuments)
{
    const RecordingOpenPanel panel(u"rtf"_s);
    const TextsDocument first(u"A"_s);
    const TextsDocument second(u"B"_s);
    EXPECT_EQ(filenamesFromComponents(folder(), {u"<2>"_s}, {&first, &second}, false, {}),
              (QStringList{folder() + u"/A.rtf"_s, folder() + u"/B.rtf"_s}));
    EXPECT_EQ(panel.timesAsked(), 1);
}

TEST_F(FilenamesInAFolder, AskTheOpenPanelAlsoForNoDocuments)
{
    const RecordingOpenPanel panel(u"rtf"_s);
    EXPECT_EQ(filenamesFromComponents(folder(), {u"<2>"_s}, {}, false, {}), QStringList());
    EXPECT_EQ(panel.timesAsked(), 1);
}

TEST_F(FilenamesInAFolder, HaveAnEmptyBaseName)
{
    const TextsDocument document(u"A"_s);
    EXPECT_EQ(filenamesFromComponents(folder(), {u"<5>"_s, u"-<2>"_s}, {&document}, false, u"txt"_s),
              QStringList(folder() + u"/-A.txt"_s));
}

TEST_F(FilenamesInAFolder, AreJoinedByASingleSlash)
{
    const TextsDocument document(u"A"_s);
    EXPECT_EQ(filenamesFromComponents(folder() + u"/"_s, {u"<2>"_s}, {&document}, false, u"txt"_s),
              QStringList(folder() + u"/A.txt"_s));
}

TEST_F(FilenamesInAFolder, KeepASlashInTheExtension)
{
    EXPECT_EQ(report(u"a/b"_s), folder() + u"/Report.a/b"_s);
}

TEST_F(FilenamesInAFolder, ConvertSpacesInTheExtension)
{
    EXPECT_EQ(report(u"my text"_s, true), folder() + u"/Report.my_text"_s);
    EXPECT_EQ(report(u"my text"_s, false), folder() + u"/Report.my text"_s);
}

TEST_F(FilenamesInAFolder, DoNotConvertSpacesInTheFolder)
{
    const QTemporaryDir spaced(folder() + u"/my folder XXXXXX"_s);
    ASSERT_TRUE(spaced.isValid());
    const TextsDocument document(u"A B"_s);
    EXPECT_EQ(filenamesFromComponents(spaced.path(), {u"<2>"_s}, {&document}, true, u"txt"_s),
              QStringList(spaced.path() + u"/A_B.txt"_s));
}

TEST_F(FilenamesInAFolder, TreatAnExistingFileLikeATypedPath)
{
    const RecordingOpenPanel panel(u"rtf"_s);
    QFile file(folder() + u"/old.txt"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const TextsDocument document(u"A"_s);
    EXPECT_EQ(filenamesFromComponents(file.fileName(), {u"<5> <2>"_s}, {&document}, false, u"html"_s),
              QStringList(folder() + u"/old A.txt"_s));
    EXPECT_EQ(panel.timesAsked(), 0);
}

TEST_F(FilenamesInAFolder, CreateNothing)
{
    report(u"txt"_s);
    EXPECT_TRUE(QDir(folder()).isEmpty());
}

TEST(FilenamesFromComponents, IgnoreTheGivenExtensionForAFilePathWithout)
{
    const RecordingOpenPanel panel(u"rtf"_s);
    const TextsDocument document(u"A"_s);
    EXPECT_EQ(filenamesFromComponents(u"/x/Chapter"_s, {u"<5> <2>"_s}, {&document}, false, u"html"_s),
              QStringList(u"/x/Chapter A"_s));
    EXPECT_EQ(panel.timesAsked(), 0);
}

TEST(FilenamesFromComponents, TurnEverySlashIntoAColon)
{
    EXPECT_EQ(pathOf(TextsDocument(u"A/B"_s), {u"<2>"_s}), u"/x/A:B"_s);
    EXPECT_EQ(pathOf(TextsDocument(u"A"_s), {u"a/"_s, u"/<2>/"_s}), u"/x/a::A:"_s);
    EXPECT_EQ(pathOf(TextsDocument(u"A"_s, u"B/C"_s, u"/D"_s), {u"<3><4>"_s}), u"/x/B:C:D"_s);
}

TEST(FilenamesFromComponents, WriteTheRunningNumberWithAtLeastThreeDigits)
{
    std::deque<TextsDocument> stored;
    QList<const ExportDocument *> documents;
    for (int i = 0; i < 1000; ++i) {
        documents.append(&stored.emplace_back(QString::number(i)));
    }
    const QStringList paths = filenamesFromComponents(u"/x/missing"_s, {u"<1>"_s}, documents, false, {});
    ASSERT_EQ(paths.size(), 1000);
    EXPECT_EQ(paths[0], u"/x/001"_s);
    EXPECT_EQ(paths[6], u"/x/007"_s);
    EXPECT_EQ(paths[41], u"/x/042"_s);
    EXPECT_EQ(paths[998], u"/x/999"_s);
    EXPECT_EQ(paths[999], u"/x/1000"_s);
}

TEST(FilenamesFromComponents, AreEqualForAPatternWithoutTokens)
{
    const TextsDocument first(u"A"_s);
    const TextsDocument second(u"B"_s);
    EXPECT_EQ(filenamesFromComponents(u"/x/missing.txt"_s, {u"same"_s}, {&first, &second}, false, {}),
              (QStringList{u"/x/same.txt"_s, u"/x/same.txt"_s}));
}

TEST(FilenamesFromComponents, ReplaceEveryOccurrenceOfEveryToken)
{
    const TextsDocument document(u"name"_s, u"status"_s, u"label"_s);
    EXPECT_EQ(pathOf(document, {u"<1><2><3><4><5>,<5><4><3><2><1>"_s}),
              u"/x/001namestatuslabelmissing,missinglabelstatusname001"_s);
}

TEST(FilenamesFromComponents, KeepEveryOtherCharacter)
{
    EXPECT_EQ(pathOf(TextsDocument(u"A"_s), {u"<0><6><22>< 2>%d%@\\1 $1 <2"_s}), u"/x/<0><6><22>< 2>%d%@\\1 $1 <2"_s);
}

TEST(FilenamesFromComponents, JoinTheComponentsWithoutASeparator)
{
    EXPECT_EQ(pathOf(TextsDocument(u"A"_s), {u"a<"_s, u"2"_s, u">b"_s}), u"/x/aAb"_s);
}

TEST(FilenamesFromComponents, ReplaceATokenInTextThatAnEarlierTokenPutIn)
{
    EXPECT_EQ(pathOf(TextsDocument(u"N<4>"_s, u"S"_s, u"L"_s), {u"<2>"_s}), u"/x/NL"_s);
    EXPECT_EQ(pathOf(TextsDocument(u"N"_s, u"<5>"_s, u"<5>"_s), {u"<3> <4>"_s}), u"/x/missing missing"_s);
    EXPECT_EQ(pathOf(TextsDocument(u"<3>"_s, u"<4>"_s, u"<5>"_s), {u"<2>"_s}), u"/x/missing"_s);
}

TEST(FilenamesFromComponents, KeepATokenInTextThatALaterTokenPutIn)
{
    EXPECT_EQ(pathOf(TextsDocument(u"N"_s, u"S<2>"_s), {u"<3>"_s}), u"/x/S<2>"_s);
    EXPECT_EQ(pathOf(TextsDocument(u"<1><2>"_s, u"<1><2><3>"_s, u"<1><2><3><4>"_s), {u"<2> <3> <4>"_s}),
              u"/x/<1><2> <1><2><3> <1><2><3><4>"_s);
}

TEST(FilenamesFromComponents, SearchTheBaseNameForNoToken)
{
    const TextsDocument document(u"N"_s, u"S"_s, u"L"_s);
    EXPECT_EQ(filenamesFromComponents(u"/x/<1><2><3><4><5>.txt"_s, {u"<5>"_s}, {&document}, false, {}),
              QStringList(u"/x/<1><2><3><4><5>.txt"_s));
}

TEST(FilenamesFromComponents, ReplaceATokenThatInsertedAndLiteralTextForm)
{
    EXPECT_EQ(pathOf(TextsDocument(u"<"_s, u"S"_s, u"L"_s), {u"<2>4>"_s}), u"/x/L"_s);
}

TEST(FilenamesFromComponents, ConvertTheSpaceAlone)
{
    const TextsDocument document(u"a b"_s, u"c\td"_s, u"e\u00A0f "_s);
    EXPECT_EQ(pathOf(document, {u"<2> <3> <4>"_s}, true), u"/x/a_b_c\td_e\u00A0f_"_s);
}

TEST(FilenamesFromComponents, ConvertSpacesInTheBaseNameOfAFilePathButNotInItsFolder)
{
    const TextsDocument document(u"A B"_s);
    EXPECT_EQ(filenamesFromComponents(u"/my x/Vol. 1"_s, {u"<5> <2>"_s}, {&document}, true, {}),
              QStringList(u"/my x/Vol._1_A_B"_s));
}

TEST(FilenamesFromComponents, TakeAFileNameAloneAndAFileInTheRoot)
{
    const TextsDocument document(u"A"_s);
    EXPECT_EQ(filenamesFromComponents(u"missing.txt"_s, {u"<5> <2>"_s}, {&document}, false, {}),
              QStringList(u"missing A.txt"_s));
    EXPECT_EQ(filenamesFromComponents(u"/missing.txt"_s, {u"<5> <2>"_s}, {&document}, false, {}),
              QStringList(u"/missing A.txt"_s));
}

TEST(FilenamesFromComponents, TakeAnEmptyDestinationAsAFilePath)
{
    const TextsDocument document(u"A"_s);
    EXPECT_EQ(filenamesFromComponents({}, {u"<5><2>"_s}, {&document}, false, u"txt"_s), QStringList(u"A"_s));
}

TEST(FilenamesFromComponents, CheckNoNames)
{
    const TextsDocument document({});
    EXPECT_EQ(filenamesFromComponents(u"/x/missing.txt"_s, {u"<2>"_s}, {&document}, false, {}),
              QStringList(u"/x/.txt"_s));
}

TEST(FilenamesFromComponents, NumberADocumentThatStandsTwiceByItsFirstPlace)
{
    const TextsDocument first(u"A"_s);
    const TextsDocument second(u"B"_s);
    EXPECT_EQ(filenamesFromComponents(u"/x/missing"_s, {u"<1><2>"_s}, {&first, &second, &first, &second}, false, {}),
              (QStringList{u"/x/001A"_s, u"/x/002B"_s, u"/x/001A"_s, u"/x/002B"_s}));
}

TEST(FilenamesFromComponents, NumberEqualDocumentsByTheFirstOfThem)
{
    const TextsDocument first(u"A"_s);
    const TextsDocument second(u"B"_s);
    const TextsDocument equalToFirst(u"A"_s);
    EXPECT_EQ(filenamesFromComponents(u"/x/missing"_s, {u"<1><2>"_s}, {&first, &second, &equalToFirst}, false, {}),
              (QStringList{u"/x/001A"_s, u"/x/002B"_s, u"/x/001A"_s}));
}

/// The running numbers of documents as a text.
QString numbersOf(const QList<const ExportDocument *> &documents)
{
    const QStringList paths = filenamesFromComponents(u"missing"_s, {u"<1>"_s}, documents, false, {});
    return paths.join(u' ');
}

/// A document that equals those of the same name, and leaves it to a subclass how that is said.
class NamedDocument : public ExportDocument
{
public:
    explicit NamedDocument(QString name) : m_name(std::move(name)) {}

    QString name() const override { return m_name; }
    QString status() const override { return {}; }
    QString label() const override { return {}; }
    bool isEqual(const ExportDocument &other) const override { return m_name == other.name(); }

private:
    QString m_name;
};

TEST(FilenamesFromComponents, NumberEqualDocumentsAlikeWhoseClassHasNoHash)
{
    const NamedDocument documents[]{NamedDocument(u"A"_s), NamedDocument(u"B"_s), NamedDocument(u"A"_s),
                                    NamedDocument(u"B"_s), NamedDocument(u"C"_s)};
    EXPECT_EQ(numbersOf({&documents[0], &documents[1], &documents[2], &documents[3], &documents[4], &documents[0]}),
              u"001 002 001 002 005 001"_s);
}

TEST(FilenamesFromComponents, NumberEqualDocumentsAlikeThatFirstAskForIdentity)
{
    class IdentityFirst final : public NamedDocument
    {
    public:
        using NamedDocument::NamedDocument;
        bool isEqual(const ExportDocument &other) const override
        {
            return ExportDocument::isEqual(other) || NamedDocument::isEqual(other);
        }
    };
    class IdentityLast final : public NamedDocument
    {
    public:
        using NamedDocument::NamedDocument;
        bool isEqual(const ExportDocument &other) const override
        {
            return NamedDocument::isEqual(other) || ExportDocument::isEqual(other);
        }
    };
    const IdentityFirst first[]{IdentityFirst(u"A"_s), IdentityFirst(u"B"_s), IdentityFirst(u"A"_s)};
    EXPECT_EQ(numbersOf({&first[0], &first[1], &first[2]}), u"001 002 001"_s);
    const IdentityLast last[]{IdentityLast(u"A"_s), IdentityLast(u"B"_s), IdentityLast(u"A"_s)};
    EXPECT_EQ(numbersOf({&last[0], &last[1], &last[2]}), u"001 002 001"_s);
}

TEST(FilenamesFromComponents, NumberDocumentsAlikeThatStandForTheSameOther)
{
    /// Equals what stands for the same document.
    class Proxy final : public ExportDocument
    {
    public:
        explicit Proxy(const ExportDocument &document) : m_document(document) {}

        QString name() const override { return m_document.name(); }
        QString status() const override { return {}; }
        QString label() const override { return {}; }
        bool isEqual(const ExportDocument &other) const override
        {
            const auto *const proxy = dynamic_cast<const Proxy *>(&other);
            return proxy != nullptr && m_document.isEqual(proxy->m_document);
        }

    private:
        const ExportDocument &m_document;
    };
    class PlainDocument final : public ExportDocument
    {
    public:
        QString name() const override { return {}; }
        QString status() const override { return {}; }
        QString label() const override { return {}; }
    };
    const PlainDocument first;
    const PlainDocument second;
    const Proxy proxies[]{Proxy(first), Proxy(second), Proxy(first)};
    EXPECT_EQ(numbersOf({&proxies[0], &proxies[1], &proxies[2]}), u"001 002 001"_s);
}

TEST(FilenamesFromComponents, NumberDocumentsOfClassesWithAndWithoutAHash)
{
    class SameTexts final : public NamedDocument
    {
    public:
        using NamedDocument::NamedDocument;
        std::size_t hash() const override { return qHash(name()); }
    };
    const NamedDocument unhashed[]{NamedDocument(u"A"_s), NamedDocument(u"B"_s)};
    const SameTexts hashed[]{SameTexts(u"A"_s), SameTexts(u"B"_s), SameTexts(u"C"_s), SameTexts(u"C"_s)};
    EXPECT_EQ(numbersOf({&unhashed[0], &hashed[0], &hashed[1], &unhashed[1], &hashed[2], &hashed[3], &hashed[1]}),
              u"001 001 003 003 005 005 003"_s);
}

TEST(FilenamesFromComponents, CompareDocumentsThatAreDistinctByIdentityAFewTimesOnly)
{
    class CountingDocument final : public NamedDocument
    {
    public:
        CountingDocument(const QString &name, int &comparisons) : NamedDocument(name), m_comparisons(comparisons) {}

        bool isEqual(const ExportDocument &other) const override
        {
            ++m_comparisons;
            return ExportDocument::isEqual(other);
        }

    private:
        int &m_comparisons;
    };
    constexpr int count = 1000; // which would be half a million in pairs
    int comparisons = 0;
    std::deque<CountingDocument> stored;
    QList<const ExportDocument *> documents;
    for (int i = 0; i < count; ++i) {
        documents.append(&stored.emplace_back(u"same"_s, comparisons));
    }
    EXPECT_TRUE(numbersOf(documents).endsWith(u" 999 1000"_s));
    EXPECT_LT(comparisons, 5 * count);
}

TEST(FilenamesFromComponents, NumberDocumentsApartThatOnlyShareTheirHash)
{
    class SameHashDocument final : public ExportDocument
    {
    public:
        QString name() const override { return u"A"_s; }
        QString status() const override { return {}; }
        QString label() const override { return {}; }
        std::size_t hash() const override { return 1; }
    };
    const SameHashDocument first;
    const SameHashDocument second;
    EXPECT_EQ(filenamesFromComponents(u"/x/missing"_s, {u"<1>"_s}, {&first, &second, &first}, false, {}),
              (QStringList{u"/x/001"_s, u"/x/002"_s, u"/x/001"_s}));
}

TEST(FilenamesFromComponents, ThrowForANullDocument)
{
    const TextsDocument document(u"A"_s);
    EXPECT_THROW(filenamesFromComponents(u"/x/missing"_s, {u"<1>"_s}, {&document, nullptr}, false, {}),
                 platform::InvalidArgumentException);
    EXPECT_THROW(filenamesFromComponents(u"/x/missing"_s, {u"same"_s}, {nullptr}, false, {}),
                 platform::InvalidArgumentException);
}

TEST(FilenamesFromComponents, NumberAHundredThousandDocuments)
{
    // Every name stands twice: in the first half and again, as an equal document, in the second.
    constexpr int half = 50'000;
    std::deque<TextsDocument> stored;
    QList<const ExportDocument *> documents;
    for (int i = 0; i < 2 * half; ++i) {
        documents.append(&stored.emplace_back(QString::number(i % half)));
    }
    const QStringList paths = filenamesFromComponents(u"/x/missing.txt"_s, {u"<1> <2>"_s}, documents, false, {});
    ASSERT_EQ(paths.size(), 2 * half);
    for (int i = 0; i < 2 * half; ++i) {
        const int number = i % half + 1;
        ASSERT_EQ(paths[i], u"/x/%1 %2.txt"_s.arg(number, 3, 10, QChar(u'0')).arg(number - 1));
    }
}

TEST(ComponentTexts, KeepStrings)
{
    EXPECT_EQ(componentTexts({u"<2>"_s, u""_s, u" \u00E9 "_s}), (QStringList{u"<2>"_s, u""_s, u" \u00E9 "_s}));
    EXPECT_EQ(componentTexts({}), QStringList());
}

TEST(ComponentTexts, WriteNumbersInDecimal)
{
    EXPECT_EQ(componentTexts({7, -3, 0u, std::numeric_limits<qint64>::min(), std::numeric_limits<quint64>::max()}),
              (QStringList{u"7"_s, u"-3"_s, u"0"_s, u"-9223372036854775808"_s, u"18446744073709551615"_s}));
    EXPECT_EQ(componentTexts({2.5, -0.125, 0.5F, 3.0}), (QStringList{u"2.5"_s, u"-0.125"_s, u"0.5"_s, u"3"_s}));
}

TEST(ComponentTexts, WriteBooleansAsOneAndZero)
{
    EXPECT_EQ(componentTexts({true, false}), (QStringList{u"1"_s, u"0"_s}));
}

TEST(ComponentTexts, WriteDatesInIso8601)
{
    const QDate date(2024, 2, 29);
    const QTime time(13, 5, 9, 125);
    EXPECT_EQ(componentTexts({date, QDateTime(date, time), QDateTime(date, time, Qt::UTC)}),
              (QStringList{u"2024-02-29"_s, u"2024-02-29T13:05:09.125"_s, u"2024-02-29T13:05:09.125Z"_s}));
}

TEST(ComponentTexts, ReadBytesAsUtf8)
{
    EXPECT_EQ(componentTexts({QByteArray("a\xC3\xA9")}), QStringList(u"a\u00E9"_s));
    EXPECT_EQ(componentTexts({QByteArray("\xEF\xBB\xBF"
                                         "a")}),
              QStringList(u"\uFEFFa"_s));
    EXPECT_EQ(componentTexts({QByteArray("\xFF"
                                         "a")}),
              QStringList(u"\uFFFDa"_s));
}

TEST(ComponentTexts, WriteListsAndMapsAsCompactJson)
{
    EXPECT_EQ(componentTexts(
                  {QVariantList{u"a"_s, 1, true}, QStringList{u"b"_s, u"c"_s}, QVariantMap{{u"k"_s, QVariantList{2}}}}),
              (QStringList{uR"(["a",1,true])"_s, uR"(["b","c"])"_s, uR"({"k":[2]})"_s}));
}

TEST(ComponentTexts, WriteNothingAsTheEmptyString)
{
    EXPECT_EQ(componentTexts({QVariant(), QVariant::fromValue(nullptr)}), (QStringList{u""_s, u""_s}));
}

TEST(ComponentTexts, WriteAnyOtherValueByTheNameOfItsType)
{
    EXPECT_EQ(componentTexts({QSize(1, 2), QSizeF(1, 2)}), (QStringList{u"<QSize>"_s, u"<QSizeF>"_s}));
}

} // namespace
