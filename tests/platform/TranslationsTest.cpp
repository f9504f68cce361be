#include <OrvaneExportKit/platform/Translations.h>

#include <OrvaneExportKit/platform/Bundle.h>
#include <tests/support/Application.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtCore/QTranslator>
#include <QtCore/QXmlStreamReader>

#include <utility>

using namespace Qt::Literals::StringLiterals;
using platform::Bundle;
using platform::setLanguage;

namespace {

/// Context and source text.
using Source = std::pair<QString, QString>;
/// What a translation file holds: the translation of each source, null where it is not finished.
using Messages = QMap<Source, QString>;

QByteArray contentsOf(const QString &pathInLibrary)
{
    QFile file(QStringLiteral(ORVANE_SOURCE_FOLDER "/") + pathInLibrary);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return file.readAll();
}

Messages messagesOf(const QString &code)
{
    Messages messages;
    QXmlStreamReader xml(contentsOf(u"resources/translations/OrvaneExportKit_"_s + code + u".ts"_s));
    Source source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == u"name") {
            source.first = xml.readElementText();
        } else if (xml.name() == u"source") {
            source.second = xml.readElementText();
        } else if (xml.name() == u"translation") {
            const bool finished = !xml.attributes().hasAttribute(u"type"_s);
            EXPECT_FALSE(messages.contains(source)) << source.second.toStdString();
            messages[source] = finished ? xml.readElementText() : QString();
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return messages;
}

QStringList placeholdersIn(const QString &text)
{
    static const QRegularExpression placeholder(u"%(?:L?\\d+|n|@)"_s);
    QStringList found;
    for (const QRegularExpressionMatch &match : placeholder.globalMatch(text)) {
        found.append(match.captured());
    }
    found.sort();
    return found;
}

QString translated(const Source &source)
{
    return QCoreApplication::translate(source.first.toUtf8().constData(), source.second.toUtf8().constData());
}

QString level()
{
    return Bundle::kitBundle().localizedStringForKey(u"Level"_s);
}

QString processingDocument()
{
    return Bundle::kitBundle().localizedStringForKey(u"ProcDoc"_s);
}

/// A text that reads differently in British and in American English.
QString refusalOfDot()
{
    return translated({u"FileNameChecks"_s, u"The name ends with a dot or a blank."_s});
}

TEST(TranslationFiles, AreThoseOfTheNineLanguages)
{
    const QDir folder(QStringLiteral(ORVANE_SOURCE_FOLDER "/resources/translations"));
    QStringList names;
    for (const QString &code :
         {u"af"_s, u"de"_s, u"de_CH"_s, u"en_UK"_s, u"en_US"_s, u"fr"_s, u"it"_s, u"ja"_s, u"sv"_s}) {
        names.append(u"OrvaneExportKit_"_s + code + u".ts"_s);
    }
    EXPECT_EQ(folder.entryList({u"*.ts"_s}, QDir::Files, QDir::Name), names);
}

TEST(TranslationFiles, HoldTheTextsOfTheFileNameChecks)
{
    static const QRegularExpression call(u"translated\\(\"([^\"]+)\"\\)"_s);
    const QString code = QString::fromUtf8(contentsOf(u"run/FileNameChecks.cpp"_s));
    QStringList textsInCode;
    for (const QRegularExpressionMatch &match : call.globalMatch(code)) {
        textsInCode.append(match.captured(1));
    }
    QStringList textsInFile;
    for (const Source &source : messagesOf(u"de"_s).keys()) {
        if (source.first == u"FileNameChecks") {
            textsInFile.append(source.second);
        }
    }
    textsInCode.sort();
    EXPECT_FALSE(textsInCode.isEmpty());
    EXPECT_EQ(textsInFile, textsInCode);
}

class TranslationFile : public testing::TestWithParam<const char *>
{
protected:
    QString code() const { return QString::fromLatin1(GetParam()); }
    Messages messages() const { return messagesOf(code()); }
    /// The locale that has this translation.
    QLocale locale() const { return QLocale(code() == u"en_UK" ? u"en_GB"_s : code()); }
};

INSTANTIATE_TEST_SUITE_P(All, TranslationFile,
                         testing::Values("af", "de", "de_CH", "en_UK", "en_US", "fr", "it", "ja", "sv"),
                         [](const auto &info) { return std::string(info.param); });

TEST_P(TranslationFile, HoldsTheSameSourcesAsTheOthers)
{
    EXPECT_EQ(messages().keys(), messagesOf(u"de"_s).keys());
    EXPECT_TRUE(messages().contains({u"Localizable"_s, u"Level"_s}));
    EXPECT_TRUE(messages().contains({u"Localizable"_s, u"ProcDoc"_s}));
}

TEST_P(TranslationFile, IsFinished)
{
    const Messages all = messages();
    for (auto message = all.begin(); message != all.end(); ++message) {
        EXPECT_FALSE(message.value().trimmed().isEmpty()) << message.key().second.toStdString();
    }
}

TEST_P(TranslationFile, KeepsThePlaceholders)
{
    const Messages all = messages();
    for (auto message = all.begin(); message != all.end(); ++message) {
        EXPECT_EQ(placeholdersIn(message.value()), placeholdersIn(message.key().second));
    }
}

TEST_P(TranslationFile, HasLabelsToWhichTheCodeAddsTheRest)
{
    for (const QString &key : {u"Level"_s, u"ProcDoc"_s}) {
        const QString label = messages().value({u"Localizable"_s, key});
        EXPECT_EQ(label, label.trimmed());
        EXPECT_FALSE(label.contains(u':')) << label.toStdString();
    }
}

TEST_P(TranslationFile, IsCompiledIntoTheLibrary)
{
    EXPECT_NE(Bundle::kitBundle().pathForResource(u"translations/OrvaneExportKit_"_s + code(), u"qm"_s), QString());
    const support::Application application;
    setLanguage(locale());
    const Messages all = messages();
    for (auto message = all.begin(); message != all.end(); ++message) {
        EXPECT_EQ(translated(message.key()), message.value());
    }
}

class StartLanguage : public testing::Test
{
protected:
    void TearDown() override { QLocale::setDefault(m_locale); }

private:
    const QLocale m_locale;
};

TEST_F(StartLanguage, IsThatOfTheUsersLocale)
{
    QLocale::setDefault(QLocale(u"sv_FI"_s));
    const support::Application application;
    EXPECT_EQ(level(), u"Niv\u00E5"_s);
}

TEST_F(StartLanguage, IsChosenAnewByEveryApplicationObject)
{
    for (const auto &[locale, text] : {std::pair{u"ja_JP"_s, u"\u30EC\u30D9\u30EB"_s}, {u"de_AT"_s, u"Ebene"_s}}) {
        QLocale::setDefault(QLocale(locale));
        const support::Application application;
        EXPECT_EQ(level(), text);
    }
}

class SetLanguage : public testing::Test
{
private:
    support::Application m_application;
};

TEST_F(SetLanguage, SwitchesTheTexts)
{
    setLanguage(QLocale(u"it_IT"_s));
    EXPECT_EQ(level(), u"Livello"_s);
    setLanguage(QLocale(u"fr_FR"_s));
    EXPECT_EQ(level(), u"Niveau"_s);
}

TEST_F(SetLanguage, TakesTheTextsOfTheLanguageForAnyCountry)
{
    for (const QString &country : {u"de_AT"_s, u"de_LI"_s, u"de_CH"_s, u"de"_s}) {
        setLanguage(QLocale(country));
        EXPECT_EQ(level(), u"Ebene"_s);
    }
    setLanguage(QLocale(u"fr_CA"_s));
    EXPECT_EQ(level(), u"Niveau"_s);
}

TEST_F(SetLanguage, TakesBritishTextsForBritainAlone)
{
    setLanguage(QLocale(u"en_GB"_s));
    EXPECT_EQ(refusalOfDot(), u"The name ends with a full stop or a space."_s);
    for (const QString &country : {u"en_US"_s, u"en_AU"_s, u"en"_s}) {
        setLanguage(QLocale(country));
        EXPECT_EQ(refusalOfDot(), u"The name ends with a dot or a blank."_s);
    }
}

TEST_F(SetLanguage, FallsBackToEnglish)
{
    for (const QLocale &locale : {QLocale(u"pl_PL"_s), QLocale(u"zh_TW"_s), QLocale::c()}) {
        setLanguage(QLocale(u"af_ZA"_s));
        setLanguage(locale);
        EXPECT_EQ(processingDocument(), u"Processing document"_s);
    }
}

TEST_F(SetLanguage, LeavesAKeyWithoutATranslationAsItIs)
{
    setLanguage(QLocale(u"de_DE"_s));
    EXPECT_EQ(Bundle::kitBundle().localizedStringForKey(u"NoSuchKey"_s), u"NoSuchKey"_s);
    EXPECT_EQ(Bundle::kitBundle().localizedStringForKey(u"NoSuchKey"_s, u"value"_s), u"value"_s);
    EXPECT_EQ(Bundle::kitBundle().localizedStringForKey(u"Level"_s, {}, u"NoSuchTable"_s), u"Level"_s);
}

TEST_F(SetLanguage, ServesEveryBundleWithoutATextOfItsOwn)
{
    setLanguage(QLocale(u"de_DE"_s));
    EXPECT_EQ(Bundle(u"org.example"_s, {}).localizedStringForKey(u"Level"_s, u"value"_s), u"Ebene"_s);
}

class LanguageChanges final : public QObject
{
public:
    LanguageChanges() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        m_count += object == QCoreApplication::instance() && event->type() == QEvent::LanguageChange ? 1 : 0;
        return false;
    }

    int count() const { return m_count; }

private:
    int m_count = 0;
};

TEST_F(SetLanguage, TellsTheApplication)
{
    QCoreApplication::processEvents();
    const LanguageChanges changes;
    setLanguage(QLocale(u"de_DE"_s));
    QCoreApplication::processEvents();
    EXPECT_EQ(changes.count(), 1);
}

/// A host's translator with a text of its own for one of the kit's keys.
class HostTranslator final : public QTranslator
{
public:
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return qstrcmp(source, "Level") == 0 ? u"Tier"_s : QString();
    }
    bool isEmpty() const override { return false; }
};

TEST_F(SetLanguage, StaysBehindTheTranslatorsOfTheHost)
{
    HostTranslator host;
    ASSERT_TRUE(QCoreApplication::installTranslator(&host));
    setLanguage(QLocale(u"de_DE"_s));
    EXPECT_EQ(level(), u"Tier"_s);
    EXPECT_EQ(processingDocument(), u"Dokument wird verarbeitet"_s);
}

} // namespace
