#include <OrvaneExportKit/run/KZExportProgress.h>

#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/NotificationCenter.h>
#include <OrvaneExportKit/settings/SettingsKeys.h>
#include <OrvaneExportKit/windowing/EventGuard.h>
#include <OrvaneExportKit/windowing/UiLoader.h>

#include <QtGui/QTextDocument>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>

using namespace Qt::Literals::StringLiterals;
using windowing::ModalLoop;
using windowing::Panel;
using windowing::UiLoader;

KZExportProgress::KZExportProgress(QWidget *window, qint32 steps)
    : m_progressPanel(UiLoader::load<Panel>(platform::Bundle::kitBundle(), u"ExportProgress"_s)),
      m_messageTextField(UiLoader::outlet<QLabel>(*m_progressPanel, u"messageTextField"_s)),
      m_progressBar(UiLoader::outlet<windowing::ProgressIndicator>(*m_progressPanel, u"progressBar"_s)),
      m_maxSteps(static_cast<quint32>(steps)),
      m_theWindow(window)
{
    auto *abortButton = UiLoader::outlet<QPushButton>(*m_progressPanel, u"abortButton"_s);
    connect(abortButton, &QPushButton::clicked, this, [this, abortButton] {
        // Whoever is told may destroy this object.
        windowing::guardedAction(*qApp, [this, abortButton] { abortExport(abortButton); });
    });
    connect(m_progressPanel.get(), &Panel::cancelRequested, abortButton, &QPushButton::click);
    abortButton->setFocus();
    resetProgressBar();
}

KZExportProgress::~KZExportProgress() = default;

std::unique_ptr<KZExportProgress> KZExportProgress::initWithWindow(QWidget *window, qint32 steps)
{
    return std::make_unique<KZExportProgress>(window, steps);
}

void KZExportProgress::abortExport(const QObject * /*sender*/)
{
    platform::NotificationCenter::defaultCenter().postNotificationName(KZAbortExportNotification, this);
}

void KZExportProgress::showSheet()
{
    ModalLoop &modalLoop = ModalLoop::modalLoop();
    modalLoop.beginSheet(m_progressPanel.get(), m_theWindow, {});
    m_session = modalLoop.beginModalSessionForWindow(m_progressPanel.get());
}

void KZExportProgress::hideSheet()
{
    if (m_session == nullptr || !m_session->isOpen()) {
        return;
    }
    ModalLoop &modalLoop = ModalLoop::modalLoop();
    modalLoop.stopModal();
    m_session->end();
    modalLoop.endSheet(m_progressPanel.get(), 0);
    m_progressPanel->hide();
}

void KZExportProgress::setDocumentName(const QString &name)
{
    const QString label = platform::Bundle::bundleWithIdentifier(bndlIdentifier).localizedStringForKey(u"ProcDoc"_s);
    setMessage(label + u": "_s + name);
}

void KZExportProgress::appendToDocumentName(const QString &text)
{
    setMessage(m_messageTextField->text() + text);
}

void KZExportProgress::resetProgressBar()
{
    m_currentStep = 0;
    m_progressBar->setMinValue(0);
    m_progressBar->setMaxValue(m_maxSteps);
    m_progressBar->setDoubleValue(m_currentStep);
}

void KZExportProgress::incrementToNextStep()
{
    if (m_currentStep >= m_maxSteps) {
        return;
    }
    ++m_currentStep;
    m_progressBar->setDoubleValue(m_currentStep);
    runSession();
}

void KZExportProgress::setMessage(const QString &message)
{
    m_messageTextField->setText(message);
    m_messageTextField->setToolTip(Qt::convertFromPlainText(message, Qt::WhiteSpaceNormal));
    runSession();
}

/// The last thing that its callers do, as this object may be destroyed in the pass.
void KZExportProgress::runSession()
{
    if (m_session != nullptr) {
        m_session->run();
    }
}
