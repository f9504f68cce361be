#include <designer/Controls.h>

#include <OrvaneExportKit/controls/KZContentView.h>
#include <OrvaneExportKit/controls/KZFontNameTextField.h>
#include <OrvaneExportKit/controls/KZPageView.h>
#include <OrvaneExportKit/windowing/TokenField.h>

#include <QtGui/QIcon>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What Qt Designer has to know of a control.
struct Description {
    QString header;
    QString toolTip;
    QString whatsThis;
    bool isContainer = false;
};

template <typename Widget>
class Control final : public QDesignerCustomWidgetInterface
{
public:
    explicit Control(Description description) : m_description(std::move(description)) {}

    QString name() const override { return QString::fromLatin1(Widget::staticMetaObject.className()); }
    QString group() const override { return u"Export Kit"_s; }
    QString toolTip() const override { return m_description.toolTip; }
    QString whatsThis() const override { return m_description.whatsThis; }
    QString includeFile() const override { return m_description.header; }
    bool isContainer() const override { return m_description.isContainer; }
    QWidget *createWidget(QWidget *parent) override { return new Widget(parent); }

    QIcon icon() const override
    {
        return QIcon(u":/OrvaneExportKitDesigner/icons/"_s + name().section(u':', -1) + u".png"_s);
    }

    QString domXml() const override
    {
        const QString className = name().section(u':', -1);
        const QString objectName = className.startsWith(u"KZ") ? className.mid(2) : className;
        return u"<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">"
               "<property name=\"bindings\" stdset=\"0\"><stringlist/></property></widget></ui>"_s.arg(
                   name(), objectName.left(1).toLower() + objectName.mid(1));
    }

private:
    Description m_description;
};

} // namespace

Controls::Controls(QObject *parent) : QObject(parent)
{
    m_controls.push_back(std::make_unique<Control<KZContentView>>(
        Description{u"OrvaneExportKit/controls/KZContentView.h"_s, u"Container that ends edits"_s,
                    u"Holds a panel, and stores what the user is typing when the panel is taken out."_s, true}));
    m_controls.push_back(std::make_unique<Control<KZFontNameTextField>>(
        Description{u"OrvaneExportKit/controls/KZFontNameTextField.h"_s, u"Font by name and size"_s,
                    u"Shows a font by name and size, and lets the user choose another in the font panel."_s}));
    m_controls.push_back(std::make_unique<Control<KZPageView>>(
        Description{u"OrvaneExportKit/controls/KZPageView.h"_s, u"Page with margins"_s,
                    u"Shows a page of the chosen size, with the area that its margins leave for text."_s}));
    m_controls.push_back(std::make_unique<Control<windowing::TokenField>>(
        Description{u"OrvaneExportKit/windowing/TokenField.h"_s, u"Text with tokens"_s,
                    u"Takes free text with tokens in it, such as a pattern for file names."_s}));
}

Controls::~Controls() = default;

QList<QDesignerCustomWidgetInterface *> Controls::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> controls;
    for (const auto &control : m_controls) {
        controls.append(control.get());
    }
    return controls;
}
