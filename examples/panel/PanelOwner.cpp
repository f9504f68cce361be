#include "PanelOwner.h"

#include <OrvaneExportKit/windowing/Font.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QString textFontName()
{
    return windowing::Font::fontName(windowing::Font::userFontOfSize(12.0));
}

} // namespace

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
        {u"font"_s, QVariantMap{{u"name"_s, textFontName()}, {u"size"_s, 12.0F}}},
        {u"format"_s, u"paragraphs"_s},
        {u"quotations"_s, u"en_US"_s},
        {u"paper"_s, u"{595.28, 841.89}"_s},
        {u"margin"_s, QVariantMap{{u"top"_s, 72.0F}, {u"left"_s, 72.0F}, {u"right"_s, 72.0F}, {u"bottom"_s, 72.0F}}},
        {u"lineHeight"_s, 1.5F},
    });
    m_settings.readSettingsFromDefaults();
}

QVariant PanelOwner::fontAttributes() const
{
    return m_settings.nonPropertyListObjectForKey(u"fontAttributes"_s);
}

void PanelOwner::setFontAttributes(const QVariant &attributes)
{
    m_settings.setNonPropertyListObject(attributes, u"fontAttributes"_s);
}
