#include "LatexPlugin.h"

#include "LatexSource.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const platform::BundleRegistration bundleRegistration(u"org.orvane.latex"_s, u":/org.orvane.latex"_s);

const styled::Styles &defaultStyles()
{
    static const styled::Styles styles{
        {
            {u"section"_s, u"Section"_s, u"#"_s, true, {}},
            {u"subsection"_s, u"Subsection"_s, u"##"_s, true, {}},
            {u"subsubsection"_s, u"Subsubsection"_s, u"###"_s, true, {}},
            {u"quote"_s, u"Quotation"_s, u">"_s, true, {}},
        },
        {
            {u"textbf"_s, u"Bold"_s, u"**"_s, u"**"_s, {}},
            {u"emph"_s, u"Emphasis"_s, u"//"_s, u"//"_s, {}},
        },
        {
            {u"asterism"_s, u"Three asterisks"_s, u"* * *"_s},
        },
    };
    return styles;
}

/// The rules of all formats with pages, without those of which LaTeX has no use: its fonts are its own, and its base
/// packages know no other language.
const QList<styled::ChoiceRule> &rules()
{
    static const QList<styled::ChoiceRule> rules = [] {
        QList<styled::ChoiceRule> kept = styled::pageChoices();
        kept.removeIf(
            [](const styled::ChoiceRule &rule) { return rule.key == u"font-name" || rule.key == u"language"; });
        return kept;
    }();
    return rules;
}

} // namespace

LatexPlugin::LatexPlugin()
{
    styled::addMissingStyles(m_settings, defaultStyles());
}

QString LatexPlugin::name() const
{
    return u"latex"_s;
}

QString LatexPlugin::displayName() const
{
    return u"LaTeX"_s;
}

QString LatexPlugin::pathExtension() const
{
    return u"tex"_s;
}

QList<ExportPlugin::Choice> LatexPlugin::choices() const
{
    return styled::choicesOf(rules());
}

KZExportSettings &LatexPlugin::settings()
{
    return m_settings;
}

void LatexPlugin::setChoice(const QString &key, const QString &value)
{
    styled::storeChoice(m_settings, rules(), key, value);
}

QByteArray LatexPlugin::exportedData(const ExportDocument &document, const platform::AttributedString &text) const
{
    platform::AttributedString corrected = text;
    styled::correctTypography(corrected, m_settings);
    QString content;
    for (const styled::Paragraph &paragraph :
         styled::paragraphs(corrected, styled::stylesIn(m_settings, defaultStyles()))) {
        content += latex::block(paragraph) + u"\n\n"_s;
    }
    return latex::document(document.name(), styled::pageIn(m_settings), content).toUtf8();
}

platform::Bundle LatexPlugin::bundle() const
{
    return platform::Bundle::bundleWithIdentifier(u"org.orvane.latex"_s);
}
