#include "HtmlPlugin.h"

#include "HtmlPage.h"

#include <QtCore/QUrl>

using namespace Qt::Literals::StringLiterals;

namespace {

const platform::BundleRegistration bundleRegistration(u"org.orvane.html"_s, u":/org.orvane.html"_s);

const QString indexName = u"index.html"_s;

const styled::Styles &defaultStyles()
{
    static const styled::Styles styles{
        {
            {u"h1"_s, u"Heading 1"_s, u"#"_s, true, {}},
            {u"h2"_s, u"Heading 2"_s, u"##"_s, true, {}},
            {u"h3"_s, u"Heading 3"_s, u"###"_s, true, {}},
            {u"blockquote"_s, u"Quotation"_s, u">"_s, true, {}},
        },
        {
            {u"strong"_s, u"Strong"_s, u"**"_s, u"**"_s, {}},
            {u"em"_s, u"Emphasis"_s, u"//"_s, u"//"_s, {}},
        },
        {
            {u"hr"_s, u"Rule"_s, u"* * *"_s},
        },
    };
    return styles;
}

QString titleOf(const ExportDocument &document)
{
    return document.name().trimmed().isEmpty() ? u"Untitled"_s : document.name();
}

} // namespace

HtmlPlugin::HtmlPlugin()
{
    styled::addMissingStyles(m_settings, defaultStyles());
}

QString HtmlPlugin::name() const
{
    return u"html"_s;
}

QString HtmlPlugin::displayName() const
{
    return bundle().localizedStringForKey(u"Web Pages (HTML)"_s);
}

QString HtmlPlugin::pathExtension() const
{
    return u"html"_s;
}

QList<ExportPlugin::Choice> HtmlPlugin::choices() const
{
    return styled::choicesOf(styled::pageChoices());
}

KZExportSettings &HtmlPlugin::settings()
{
    return m_settings;
}

void HtmlPlugin::setChoice(const QString &key, const QString &value)
{
    styled::storeChoice(m_settings, styled::pageChoices(), key, value);
}

QByteArray HtmlPlugin::exportedData(const ExportDocument &document, const platform::AttributedString &text) const
{
    platform::AttributedString corrected = text;
    styled::correctTypography(corrected, m_settings);
    QString content;
    for (const styled::Paragraph &paragraph :
         styled::paragraphs(corrected, styled::stylesIn(m_settings, defaultStyles()))) {
        content += html::element(paragraph) + u'\n';
    }
    return html::page(titleOf(document), styled::languageIn(m_settings), styled::pageIn(m_settings), content).toUtf8();
}

QStringList HtmlPlugin::additionalFileNames() const
{
    return {indexName};
}

QByteArray HtmlPlugin::additionalFileData(const QString & /*fileName*/, const QString &title,
                                          const QList<ExportedFile> &files) const
{
    QString content = u"<h1>%1</h1>\n<ol>\n"_s.arg(html::escaped(title));
    for (const ExportedFile &file : files) {
        content += u"<li><a href=\"%1\">%2</a></li>\n"_s.arg(
            QString::fromLatin1(QUrl::toPercentEncoding(file.fileName)), html::escaped(titleOf(*file.document)));
    }
    content += u"</ol>\n"_s;
    return html::page(title, styled::languageIn(m_settings), styled::pageIn(m_settings), content).toUtf8();
}

platform::Bundle HtmlPlugin::bundle() const
{
    return platform::Bundle::bundleWithIdentifier(u"org.orvane.html"_s);
}
