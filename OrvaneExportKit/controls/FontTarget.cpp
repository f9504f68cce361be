#include <OrvaneExportKit/controls/FontTarget.h>

#include <OrvaneExportKit/controls/KZFontNameTextField.h>
#include <OrvaneExportKit/windowing/Binding.h>
#include <OrvaneExportKit/windowing/Font.h>
#include <OrvaneExportKit/windowing/FontPanel.h>
#include <OrvaneExportKit/windowing/UiLoader.h>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

const WidgetClassRegistration registration(u"KZFontNameTextField"_s, [](QWidget *parent) -> QWidget * {
    auto *field = new KZFontNameTextField(parent);
    new FontTarget(field);
    return field;
});

} // namespace

FontTarget::FontTarget(KZFontNameTextField *field) : QObject(field), m_field(field)
{
    field->setTarget(this);
    field->setAction("takeFont");
}

void FontTarget::takeFont(FontPanel *sender)
{
    const QFont font = sender->convertFont(
        Font::fontWithName(m_field->selectedFontName(), static_cast<double>(m_field->selectedFontSize())));
    store(u"selectedFontName"_s, Font::fontName(font));
    store(u"selectedFontSize"_s, Font::pointSize(font));
}

void FontTarget::store(const QString &name, const QVariant &value)
{
    if (Binding *binding = bindingOf(m_field, name)) {
        binding->storeUntransformed(value);
    } else {
        m_field->setProperty(name.toLatin1().constData(), value);
    }
}

} // namespace windowing
