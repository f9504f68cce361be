#include "FieldsDialog.h"

#include "WindowReporter.h"

#include <OrvaneExportKit/windowing/Binding.h>

#include <QtCore/QJsonValue>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QPushButton>

using namespace Qt::Literals::StringLiterals;

FieldsDialog::FieldsDialog()
    : m_settings(u"org.orvane.test.fields"_s),
      m_delegate({{u"<1>"_s, u"Number"_s},
                  {u"<2>"_s, u"Name"_s},
                  {u"<3>"_s, u"Status"_s},
                  {u"<4>"_s, u"Label"_s},
                  {u"<5>"_s, u"Export Name"_s}}),
      m_first(new windowing::TokenField),
      m_second(new windowing::TokenField),
      m_text(new QLineEdit)
{
    setObjectName(u"fields"_s);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    QPushButton *button = buttons->button(QDialogButtonBox::Ok);
    button->setDefault(true);
    auto *layout = new QFormLayout(this);
    layout->addRow(u"&First:"_s, m_first);
    layout->addRow(u"&Second:"_s, m_second);
    layout->addRow(u"Te&xt:"_s, m_text);
    layout->addRow(buttons);

    m_first->setObjectName(u"first"_s);
    m_second->setObjectName(u"second"_s);
    m_text->setObjectName(u"text"_s);
    m_first->setDelegate(&m_delegate);
    m_second->setDelegate(&m_delegate);
    m_settings.setDefaultDictionary({{u"first"_s, QVariantList{u"<5>"_s, u" - "_s, u"<2>"_s}},
                                     {u"second"_s, QVariantList{u"Part "_s, u"<1>"_s, u"\nb"_s}},
                                     {u"text"_s, u"plain"_s}});
    new windowing::Binding(m_first, u"value"_s, this, u"settings.first"_s);
    new windowing::Binding(m_second, u"value"_s, this, u"settings.second"_s);
    new windowing::Binding(m_text, u"text"_s, this, u"settings.text"_s);
    connect(&m_settings, &KZExportSettings::didChangeValueForKey, this, [this](const QString &key) {
        report({{u"stored"_s, key}, {u"value"_s, QJsonValue::fromVariant(m_settings.objectForKey(key))}});
    });
    connect(button, &QPushButton::clicked, this, [] { report({{u"pressed"_s, u"default button"_s}}); });
    resize(460, sizeHint().height());
}
