#include <gtest/gtest.h>

#include <QtCore/QBuffer>
#include <QtCore/QMetaProperty>
#include <QtCore/QPluginLoader>
#include <QtGui/QIcon>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QWidget>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

struct OfferedControl {
    const char *className;
    QStringList properties;
    bool isContainer = false;
};

/// Each control as Qt Designer meets it: loaded as a plug-in, and known by its interface alone.
class DesignerControl : public testing::TestWithParam<OfferedControl>
{
protected:
    static const QList<QDesignerCustomWidgetInterface *> &controls()
    {
        static QPluginLoader loader(QStringLiteral(ORVANE_DESIGNER_FILE));
        static const auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
        static const auto controls =
            collection == nullptr ? QList<QDesignerCustomWidgetInterface *>() : collection->customWidgets();
        return controls;
    }

    void SetUp() override
    {
        for (QDesignerCustomWidgetInterface *candidate : controls()) {
            if (candidate->name() == QLatin1StringView(GetParam().className)) {
                control = candidate;
            }
        }
        ASSERT_NE(control, nullptr) << GetParam().className;
    }

    QDesignerCustomWidgetInterface *control = nullptr;
};

INSTANTIATE_TEST_SUITE_P(
    Offered, DesignerControl,
    testing::Values(OfferedControl{"KZContentView", {}, true},
                    OfferedControl{"KZFontNameTextField", {u"selectedFontName"_s, u"selectedFontSize"_s}},
                    OfferedControl{
                        "KZPageView",
                        {u"paperSize"_s, u"topMargin"_s, u"leftMargin"_s, u"rightMargin"_s, u"bottomMargin"_s}},
                    OfferedControl{"windowing::TokenField", {}}),
    [](const auto &info) { return QString::fromLatin1(info.param.className).section(u':', -1).toStdString(); });

TEST_P(DesignerControl, IsMadeByThePlugin)
{
    QWidget panel;
    const QWidget *widget = control->createWidget(&panel);
    ASSERT_NE(widget, nullptr);
    EXPECT_STREQ(widget->metaObject()->className(), GetParam().className);
    EXPECT_EQ(widget->parentWidget(), &panel);
}

TEST_P(DesignerControl, HasItsPropertiesInThePropertyEditor)
{
    const std::unique_ptr<QWidget> widget(control->createWidget(nullptr));
    for (const QString &name : GetParam().properties) {
        const QMetaObject *metaObject = widget->metaObject();
        const QMetaProperty property = metaObject->property(metaObject->indexOfProperty(name.toLatin1().constData()));
        EXPECT_TRUE(property.isValid() && property.isDesignable() && property.isWritable()) << name.toStdString();
        EXPECT_NE(property.metaType(), QMetaType::fromType<float>()) << "not in the editor: " << name.toStdString();
    }
}

TEST_P(DesignerControl, IsDescribed)
{
    EXPECT_FALSE(control->icon().pixmap(22).isNull());
    EXPECT_FALSE(control->toolTip().isEmpty());
    EXPECT_FALSE(control->whatsThis().isEmpty());
    EXPECT_EQ(control->group(), u"Export Kit"_s);
    EXPECT_EQ(control->isContainer(), GetParam().isContainer);
    EXPECT_TRUE(control->includeFile().startsWith(u"OrvaneExportKit/"_s));
}

/// Makes the widget of an interface file by the plug-in.
class PluginLoader : public QUiLoader
{
public:
    explicit PluginLoader(QDesignerCustomWidgetInterface *control) : m_control(control) {}

protected:
    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        if (className != m_control->name()) {
            return nullptr;
        }
        QWidget *widget = m_control->createWidget(parent);
        widget->setObjectName(name);
        return widget;
    }

private:
    QDesignerCustomWidgetInterface *m_control;
};

TEST_P(DesignerControl, ComesOntoAFormWithAPlaceForBindings)
{
    QByteArray xml = control->domXml().toUtf8();
    QBuffer file(&xml);
    file.open(QIODevice::ReadOnly);
    PluginLoader loader(control);
    const std::unique_ptr<QWidget> widget(loader.load(&file));
    ASSERT_NE(widget, nullptr) << loader.errorString().toStdString();
    EXPECT_STREQ(widget->metaObject()->className(), GetParam().className);
    EXPECT_FALSE(widget->objectName().isEmpty());
    EXPECT_EQ(widget->property("bindings").metaType(), QMetaType::fromType<QStringList>());
}

} // namespace
