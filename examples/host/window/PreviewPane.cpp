#include "PreviewPane.h"

#include "ExportFiles.h"
#include "HostError.h"
#include "Messages.h"

#include <QtCore/QLocale>
#include <QtGui/QFontDatabase>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

constexpr int millisecondsOfPause = 150;

/// A text of this length, in UTF-16 code units, is laid out before anybody has to wait for it.
constexpr qsizetype longestPreview = 200'000;

bool isWebFormat(const ExportPlugin *plugin)
{
    return plugin != nullptr && plugin->pathExtension() == u"html";
}

} // namespace

PreviewPane::PreviewPane(const QList<ExportPlugin *> &plugins, QWidget *parent)
    : QWidget(parent),
      m_plugins(plugins),
      m_formats(new QComboBox),
      m_note(new windowing::MessageLabel),
      m_source(new QCheckBox(tr("Sou&rce"))),
      m_page(new QTextBrowser),
      m_text(new QPlainTextEdit)
{
    auto *label = new QLabel(tr("Preview &as:"));
    label->setBuddy(m_formats);
    m_formats->setObjectName(u"previewFormat"_s);
    for (const ExportPlugin *plugin : m_plugins) {
        m_formats->addItem(plugin->displayName(), plugin->name());
    }
    m_note->setWordWrap(true);
    m_source->setObjectName(u"previewSource"_s);
    m_page->setObjectName(u"previewPage"_s);
    m_page->setAccessibleName(tr("Preview of the page"));
    m_page->setOpenLinks(false);
    m_text->setObjectName(u"preview"_s);
    m_text->setAccessibleName(tr("Preview of the file"));
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_pause.setSingleShot(true);
    m_pause.setInterval(millisecondsOfPause);

    auto *formatLayout = new QHBoxLayout;
    formatLayout->addWidget(label);
    formatLayout->addWidget(m_formats, 1);
    formatLayout->addWidget(m_source);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(formatLayout);
    layout->addWidget(m_note);
    layout->addWidget(m_page);
    layout->addWidget(m_text);

    connect(&m_pause, &QTimer::timeout, this, &PreviewPane::refresh);
    connect(m_source, &QCheckBox::toggled, this, &PreviewPane::refresh);
    connect(m_formats, &QComboBox::currentIndexChanged, this, [this] {
        m_pause.start();
        Q_EMIT pluginChanged();
    });
    for (ExportPlugin *plugin : m_plugins) {
        connect(&plugin->settings(), &KZExportSettings::didChangeValueForKey, &m_pause, qOverload<>(&QTimer::start));
    }
    refresh();
}

ExportPlugin *PreviewPane::plugin() const
{
    return m_plugins.value(m_formats->currentIndex());
}

void PreviewPane::setPlugin(const QString &name)
{
    const int index = m_formats->findData(name);
    if (index >= 0) {
        m_formats->setCurrentIndex(index);
    }
}

void PreviewPane::showDocument(const ManuscriptDocument *document)
{
    m_document = document;
    m_pause.start();
}

void PreviewPane::focusFile()
{
    (showsPage() ? static_cast<QWidget *>(m_page) : m_text)->setFocus(Qt::ShortcutFocusReason);
}

bool PreviewPane::showsPage() const
{
    return isWebFormat(plugin()) && !m_source->isChecked();
}

void PreviewPane::refresh()
{
    m_source->setVisible(isWebFormat(plugin()));
    m_page->setVisible(showsPage());
    m_text->setVisible(!showsPage());
    if (m_document == nullptr) {
        showFile({});
        return;
    }
    if (plugin() == nullptr) {
        showNote(tr("There is no plug-in for a preview."));
        return;
    }
    try {
        showFile(exportedDocument(*m_document, *plugin()));
    } catch (const HostError &error) {
        showFile({});
        showNote(sentence(error.message()));
    }
}

void PreviewPane::showFile(const QByteArray &content)
{
    const QString text = QString::fromUtf8(content);
    const QString beginning = text.first(qMin(text.size(), longestPreview));
    QScrollBar &scrollBar = *(showsPage() ? m_page->verticalScrollBar() : m_text->verticalScrollBar());
    const int scrolled = scrollBar.value();
    if (showsPage()) {
        m_page->setHtml(beginning);
    } else {
        m_text->setPlainText(beginning);
    }
    scrollBar.setValue(scrolled);
    showNote(text.size() > longestPreview
                 ? tr("The preview ends after %1 characters.").arg(QLocale().toString(longestPreview))
                 : QString());
}

void PreviewPane::showNote(const QString &note)
{
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
}

} // namespace host
