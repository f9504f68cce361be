#include "PanelOwner.h"

using namespace Qt::Literals::StringLiterals;

PanelOwner::PanelOwner()
    : m_settings(u"org.orvane.example.panel"_s),
      m_fileNameTokens({{u"<1>"_s, tr("Number")},
                        {u"<2>"_s, tr("Name")},
                        {u"<3>"_s, tr("Status")},
                        {u"<4>"_s, tr("Label")},
                        {u"<5>"_s, tr("Export Name")}})
{
    m_settings.setDefaultDictionary({
        {u"fileName"_s, QVariantList{u"<5>"_s, u" "_s, u"<1>"_s, u" - "_s, u"<2>"_s}},
        {u"format"_s, u"paragraphs"_s},
        {u"quotations"_s, u"en_US"_s},
        {u"margin"_s, QVariantMap{{u"top"_s, 72.0F}, {u"left"_s, 72.0F}, {u"right"_s, 72.0F}, {u"bottom"_s, 72.0F}}},
        {u"lineHeight"_s, 1.5F},
    });
    m_settings.readSettingsFromDefaults();
}
