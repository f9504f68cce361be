#include <OrvaneExportKit/windowing/UiLoader.h>

#include <OrvaneExportKit/controls/FontTarget.h>
#include <OrvaneExportKit/controls/KZFontNameTextField.h>
#include <OrvaneExportKit/controls/KZPageView.h>
#include <OrvaneExportKit/controls/LengthField.h>
#include <OrvaneExportKit/windowing/DictionaryTable.h>
#include <tests/support/Files.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QPluginLoader>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <string>

/// A widget class that interface files may name once it is registered.
class TestDial : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int hours READ hours WRITE setHours)

public:
    explicit TestDial(QWidget *parent = nullptr) : QWidget(parent) {}

    /// Keeps the hours that the form has set by then.
    Q_INVOKABLE void awakeFromNib() { m_hoursWhenAwake = m_hours; }
    int hoursWhenAwake() const { return m_hoursWhenAwake; }

    int hours() const { return m_hours; }
    void setHours(int hours) { m_hours = hours; }

private:
    int m_hours = 12;
    int m_hoursWhenAwake = 0;
};

namespace {

using namespace Qt::Literals::StringLiterals;
using windowing::UiLoader;
using windowing::WidgetClassRegistration;

/// A bundle in a temporary folder with an interface file "Panel" in it.
class UiLoaderTest : public testing::Test
{
protected:
    /// Writes the file: a form of the class Panel with a label, a button and what `content` holds.
    void writePanel(const QByteArray &content = {}) const
    {
        support::writeFile(m_folder.filePath(u"Panel.ui"_s), R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
 <class>Panel</class>
 <widget class="QWidget" name="panel">
  <widget class="QLabel" name="message"><property name="text"><string>Message</string></property></widget>
  <widget class="QPushButton" name="button">
   <property name="tag" stdset="0"><number>1</number></property>
  </widget>)" + content + "</widget></ui>");
    }

    std::unique_ptr<QWidget> load() const
    {
        return UiLoader::load(platform::Bundle(u"org.example.panels"_s, m_folder.path()), u"Panel"_s);
    }

    /// What the exception says that loading ends with.
    std::string loadingError() const
    {
        try {
            load();
        } catch (const platform::InvalidArgumentException &error) {
            return error.what();
        }
        return "no error";
    }

private:
    QTemporaryDir m_folder;
};

testing::AssertionResult holds(const std::string &text, const std::string &piece)
{
    if (text.find(piece) == std::string::npos) {
        return testing::AssertionFailure() << '"' << text << "\" lacks \"" << piece << '"';
    }
    return testing::AssertionSuccess();
}

const QByteArray dial = R"(<widget class="TestDial" name="dial"><property name="hours"><number>24</number></property>
</widget>)";

TEST_F(UiLoaderTest, FindsOutletsByNameAndType)
{
    writePanel();
    const auto panel = load();
    EXPECT_EQ(UiLoader::outlet<QLabel>(*panel, u"message"_s)->text(), u"Message"_s);
    EXPECT_EQ(UiLoader::outlet<QWidget>(*panel, u"panel"_s), panel.get());
    EXPECT_EQ(UiLoader::outlet<QPushButton>(*panel, u"button"_s)->property("tag"), 1);
}

TEST_F(UiLoaderTest, RefusesOutletsThatAreMissingOrOfAnotherType)
{
    writePanel();
    const auto panel = load();
    EXPECT_THROW(UiLoader::outlet<QLabel>(*panel, u"massage"_s), platform::InvalidArgumentException);
    EXPECT_THROW(UiLoader::outlet<QLabel>(*panel, u"button"_s), platform::InvalidArgumentException);
    EXPECT_THROW(UiLoader::outlet<QLabel>(*panel, u"panel"_s), platform::InvalidArgumentException);
}

TEST_F(UiLoaderTest, CreatesRegisteredClassesWithTheirProperties)
{
    writePanel(dial);
    const auto registration = WidgetClassRegistration::of<TestDial>();
    const auto panel = load();
    EXPECT_EQ(UiLoader::outlet<TestDial>(*panel, u"dial"_s)->hours(), 24);
}

TEST_F(UiLoaderTest, WakesWidgetsWhenTheFormIsComplete)
{
    writePanel(dial);
    const auto registration = WidgetClassRegistration::of<TestDial>();
    const auto panel = load();
    EXPECT_EQ(UiLoader::outlet<TestDial>(*panel, u"dial"_s)->hoursWhenAwake(), 24);
}

TEST_F(UiLoaderTest, KnowsTheControlsOfTheKit)
{
    writePanel(R"(<widget class="KZFontNameTextField" name="font"/><widget class="KZPageView" name="page"/>
        <widget class="windowing::LengthField" name="length"/><widget class="windowing::DictionaryTable" name="table"/>)");
    const auto panel = load();
    const auto *font = UiLoader::outlet<KZFontNameTextField>(*panel, u"font"_s);
    EXPECT_TRUE(font->fieldAttributes().has_value());
    EXPECT_NE(qobject_cast<windowing::FontTarget *>(font->target()), nullptr);
    EXPECT_NO_THROW(UiLoader::outlet<KZPageView>(*panel, u"page"_s));
    EXPECT_NO_THROW(UiLoader::outlet<windowing::LengthField>(*panel, u"length"_s));
    EXPECT_NO_THROW(UiLoader::outlet<windowing::DictionaryTable>(*panel, u"table"_s));
}

TEST_F(UiLoaderTest, NamesFileAndClassThatItDoesNotKnow)
{
    writePanel(dial);
    EXPECT_TRUE(holds(loadingError(), "Panel.ui"));
    EXPECT_TRUE(holds(loadingError(), "TestDial"));
}

TEST_F(UiLoaderTest, DoesNotKnowClassesWhoseRegistrationHasEnded)
{
    writePanel(dial);
    {
        const auto registration = WidgetClassRegistration::of<TestDial>();
        EXPECT_EQ(loadingError(), "no error");
    }
    EXPECT_TRUE(holds(loadingError(), "TestDial"));
}

TEST_F(UiLoaderTest, PutsTheLatestRegistrationFirst)
{
    writePanel(dial);
    const auto first = WidgetClassRegistration::of<TestDial>();
    {
        const WidgetClassRegistration second(u"TestDial"_s,
                                             [](QWidget *parent) -> QWidget * { return new QLabel(parent); });
        EXPECT_NE(load()->findChild<QLabel *>(u"dial"_s), nullptr);
    }
    EXPECT_NE(load()->findChild<TestDial *>(u"dial"_s), nullptr);
}

TEST_F(UiLoaderTest, NamesTheFileThatIsMissing)
{
    EXPECT_TRUE(holds(loadingError(), "Panel.ui"));
    EXPECT_TRUE(holds(loadingError(), "org.example.panels"));
}

TEST_F(UiLoaderTest, NamesTheFileThatItCannotRead)
{
    writePanel("<widget class=");
    EXPECT_TRUE(holds(loadingError(), "Panel.ui"));
}

/// Translates one text of one form.
class PanelTranslator final : public QTranslator
{
public:
    PanelTranslator() { QCoreApplication::installTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QByteArray(context) == "Panel" && QByteArray(source) == "Message" ? u"Meldung"_s : QString();
    }
};

TEST_F(UiLoaderTest, TranslatesTextsInTheContextOfTheFormsClass)
{
    writePanel();
    const PanelTranslator translator;
    EXPECT_EQ(UiLoader::outlet<QLabel>(*load(), u"message"_s)->text(), u"Meldung"_s);
}

/// Set by the code of the library that stands in a folder of Qt Designer.
constexpr const char *designerLibraryRan = "ORVANE_TEST_DESIGNER_LIBRARY_RAN";

TEST_F(UiLoaderTest, RunsNoLibraryOfADesignerFolder)
{
    const QString library = QStringLiteral(DESIGNER_LIBRARY);
    EXPECT_EQ(QFileInfo(library).path(), QCoreApplication::applicationDirPath() + u"/designer"_s);
    const QStringList libraryPaths = QCoreApplication::libraryPaths();
    writePanel();
    load();
    EXPECT_FALSE(qEnvironmentVariableIsSet(designerLibraryRan));
    EXPECT_EQ(QCoreApplication::libraryPaths(), libraryPaths);
    EXPECT_TRUE(QPluginLoader(library).load()); // and were it loaded, it would be known
    EXPECT_TRUE(qEnvironmentVariableIsSet(designerLibraryRan));
}

TEST_F(UiLoaderTest, RunsNoLibraryOfADesignerFolderThatTheEnvironmentNames)
{
    const QTemporaryDir plugins;
    EXPECT_TRUE(QDir(plugins.path()).mkdir(u"designer"_s));
    EXPECT_TRUE(QFile::copy(QStringLiteral(DESIGNER_LIBRARY), plugins.filePath(u"designer/library.so"_s)));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_PLUGIN_PATH"_s, plugins.path());
    environment.remove(QString::fromLatin1(designerLibraryRan)); // which the test before this one has set
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  {u"--gtest_filter=UiLoaderTest.RunsNoLibraryOfADesignerFolder"_s});
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0);
}

} // namespace

#include "UiLoaderTest.moc"
