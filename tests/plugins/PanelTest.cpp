#include <tests/plugins/PanelTest.h>

#include <OrvaneExportKit/windowing/PanelBindings.h>
#include <tests/support/Input.h>
#include <tests/support/TemporaryDefaults.h>

#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

using namespace Qt::Literals::StringLiterals;

namespace plugins {

namespace {

class Document final : public ExportDocument
{
public:
    QString name() const override { return u"Document"_s; }
    QString status() const override { return {}; }
    QString label() const override { return {}; }
};

} // namespace

PanelTest::PanelTest(const char *pluginFile)
    : m_loader(QString::fromUtf8(pluginFile)), m_plugin(qobject_cast<ExportPlugin *>(m_loader.instance()))
{
}

PanelTest::~PanelTest()
{
    m_panel.reset();
    m_loader.unload();
}

void PanelTest::SetUp()
{
    ASSERT_NE(m_plugin, nullptr) << m_loader.errorString().toStdString();
    m_plugin->storeMissingChoices();
    m_host.setProperty("settings", QVariant::fromValue(&m_plugin->settings()));
    m_panel = windowing::UiLoader::load(m_plugin->bundle(), u"Panel"_s);
    QStringList keys = m_plugin->settings().defaultDictionary().keys();
    for (const ExportPlugin::Choice &choice : m_plugin->choices()) {
        keys.append(choice.key);
    }
    windowing::bindPanel(*m_panel, &m_host, keys);
    m_panel->show();
    ASSERT_TRUE(support::isActive(m_panel.get()));
}

void PanelTest::changeOutside(const char *key, const QVariant &value) const
{
    m_plugin->settings().setValue(value, QString::fromLatin1(key));
}

QString PanelTest::exported(const char *text) const
{
    const platform::AttributedString content(QString::fromUtf8(text));
    return QString::fromUtf8(m_plugin->exportedData(Document(), content));
}

void PanelTest::focus(const char *name) const
{
    auto &widget = control<QWidget>(name);
    if (!widget.isVisible()) {
        const auto &tabs = control<QTabWidget>("tabs");
        for (int index = 0; index < tabs.count(); ++index) {
            if (tabs.widget(index)->isAncestorOf(&widget)) {
                const QPoint center = tabs.tabBar()->tabRect(index).center();
                QTest::mouseClick(m_panel->windowHandle(), Qt::LeftButton, {},
                                  tabs.tabBar()->mapTo(m_panel.get(), center));
            }
        }
    }
    ASSERT_TRUE(widget.isVisible()) << name;
    widget.setFocus();
    ASSERT_NE(QApplication::focusWidget(), nullptr);
}

void PanelTest::type(const char *name, const char *text) const
{
    focus(name);
    typeInto(*m_panel, text);
    support::press(*m_panel, Qt::Key_Return);
}

void PanelTest::press(const char *name, Qt::Key key) const
{
    focus(name);
    support::press(*m_panel, key);
}

void typeInto(const QWidget &widget, const char *text)
{
    support::press(widget, Qt::Key_A, Qt::ControlModifier);
    support::press(widget, Qt::Key_Delete);
    for (const char *character = text; *character != '\0'; ++character) {
        QTest::keyClick(widget.window()->windowHandle(), *character);
    }
}

} // namespace plugins
