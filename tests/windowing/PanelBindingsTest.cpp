#include <OrvaneExportKit/windowing/PanelBindings.h>
#include <tests/support/PanelController.h>
#include <tests/support/Printers.h>

#include <OrvaneExportKit/windowing/Binding.h>

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class PanelBindings : public testing::Test
{
protected:
    PanelBindings()
    {
        m_title->setObjectName(u"titleField"_s);
        m_count->setObjectName(u"countField"_s);
    }

    /// What binding the panel says about the entries that cannot be bound.
    QString problems()
    {
        try {
            windowing::bindPanel(m_panel, &m_controller);
        } catch (const platform::InvalidArgumentException &error) {
            return QString::fromUtf8(error.what());
        }
        return {};
    }

    support::PanelController m_controller;
    QWidget m_panel;
    QWidget *m_group = new QWidget(&m_panel);
    QLineEdit *m_title = new QLineEdit(m_group);
    QSpinBox *m_count = new QSpinBox(m_group);
};

TEST_F(PanelBindings, BindEveryEntryOfEveryWidget)
{
    m_panel.setProperty("bindings", QStringList{u"windowTitle=name"_s});
    m_title->setProperty("bindings", QStringList{u"text=settings.title"_s, u"toolTip=name"_s});
    m_controller.setProperty("name", u"Plain Text"_s);
    EXPECT_EQ(problems(), QString());
    EXPECT_EQ(m_panel.windowTitle(), u"Plain Text"_s);
    EXPECT_EQ(m_title->toolTip(), u"Plain Text"_s);
    EXPECT_EQ(windowing::infoForBinding(m_title, u"text"_s)->observedKeyPath, u"settings.title"_s);
}

TEST_F(PanelBindings, ReadTransformersAndPlaceholders)
{
    m_title->setProperty("bindings", QStringList{u"text=settings.title||No | title = none"_s});
    m_count->setProperty("bindings", QStringList{u"value = settings.line | KZLineHeightMultipleTransformer"_s});
    m_controller.settings()->setObject(1.5F, u"line"_s);
    EXPECT_EQ(problems(), QString());
    EXPECT_EQ(m_title->placeholderText(), u"No | title = none"_s);
    EXPECT_EQ(m_count->value(), 15);
}

TEST_F(PanelBindings, TellAllThatCannotBeBoundWithTheNameOfTheControlAndBindTheRest)
{
    m_panel.setObjectName(u"panel"_s);
    m_panel.setProperty("bindings", QStringList{u"settings.title"_s});
    m_title->setProperty("bindings", QStringList{u"text=setings.title"_s, u"toolTip=name"_s, u"tooltip=name"_s});
    m_count->setProperty("bindings", QStringList{u"value=settings.count|KZNone"_s});
    m_controller.setProperty("name", u"Plain Text"_s);
    EXPECT_EQ(problems(),
              u"panel: \"settings.title\": an entry reads \"name=keyPath\" or \"name=keyPath|transformer\"\n"
              "titleField: \"text=setings.title\": the key path \"setings.title\": support::PanelController has no "
              "property \"setings\"\n"
              "titleField: \"tooltip=name\": QLineEdit has no value \"tooltip\" to bind\n"
              "countField: \"value=settings.count|KZNone\": no value transformer is registered as \"KZNone\""_s);
    EXPECT_EQ(m_title->toolTip(), u"Plain Text"_s);
}

TEST_F(PanelBindings, TellAKeyThatTheSettingsDoNotKnow)
{
    m_title->setProperty("bindings", QStringList{u"text=settings.auhtor"_s, u"toolTip=name"_s});
    m_count->setProperty("bindings", QStringList{u"value=settings.margin.top"_s});
    m_controller.settings()->setObject(QVariantMap{{u"top"_s, 72}}, u"margin"_s);
    m_controller.setProperty("name", u"Plain Text"_s);
    QString problems;
    try {
        windowing::bindPanel(m_panel, &m_controller, {u"author"_s, u"margin"_s});
    } catch (const platform::InvalidArgumentException &error) {
        problems = QString::fromUtf8(error.what());
    }
    EXPECT_EQ(problems,
              u"titleField: \"text=settings.auhtor\": there is no choice \"auhtor\"; there are: author, margin"_s);
    EXPECT_FALSE(windowing::infoForBinding(m_title, u"text"_s));
    EXPECT_EQ(m_title->toolTip(), u"Plain Text"_s);
    EXPECT_EQ(m_count->value(), 72);
}

} // namespace
