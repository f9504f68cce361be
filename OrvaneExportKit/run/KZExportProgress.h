#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/windowing/ModalLoop.h>
#include <OrvaneExportKit/windowing/Panel.h>
#include <OrvaneExportKit/windowing/ProgressIndicator.h>

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtWidgets/QLabel>

#include <memory>

/// A sheet on the document window that shows how far an export has come and lets the user stop it, from the interface
/// file "ExportProgress" of the kit's bundle.
///
/// The export runs on the main thread, in its caller. `setDocumentName`, `appendToDocumentName` and
/// `incrementToNextStep` each let the application handle its pending events once, as long as the sheet is shown; a
/// click on the abort button (or Escape, or closing the sheet) is told in one of them, by the notification
/// `KZAbortExportNotification` with the progress object as its object. The sheet stays until `hideSheet`.
///
///     KZExportProgress progress(documentWindow, static_cast<qint32>(documents.size()));
///     const platform::AbortFlag abort(progress);
///     progress.showSheet();
///     for (qsizetype i = 0; i < documents.size() && !abort.isSet(); ++i) {
///         progress.setDocumentName(documents[i]->name());
///         write(*documents[i]);
///         progress.incrementToNextStep();
///     }
///     progress.hideSheet();
///
/// Whoever handles the notification may take steps, hide the sheet, and destroy the object.
class ORVANE_KIT_EXPORT KZExportProgress : public QObject
{
    Q_OBJECT

public:
    /// A sheet for `window`, or one that stands by itself where that is null, for a run of `steps` steps, 0 or more.
    /// It is not shown yet. Throws `platform::InvalidArgumentException` when the kit's bundle has been replaced by one
    /// whose interface file is missing or lacks something.
    KZExportProgress(QWidget *window, qint32 steps);
    ~KZExportProgress() override;

    /// The same, owned by the caller.
    static std::unique_ptr<KZExportProgress> initWithWindow(QWidget *window, qint32 steps);

    /// Posts the notification. Neither hides the sheet nor changes anything. Throws what an observer throws; what one
    /// throws after a click on the button goes to `platform::alertError`.
    void abortExport(const QObject *sender);

    /// Shows the sheet and returns at once. Until `hideSheet`, no other window of the application takes input.
    void showSheet();

    /// Hides the sheet, which can be shown again. Does nothing when it is not shown.
    void hideSheet();

    /// Shows that this document is being processed, in the user's language: "Processing document: Chapter 1".
    void setDocumentName(const QString &name);

    /// Adds text to the message line, directly behind what is there.
    void appendToDocumentName(const QString &text);

    /// Begins to count again from 0.
    void resetProgressBar();

    /// Advances the bar by one step and redraws it. Does nothing at all when the last step has been taken.
    void incrementToNextStep();

    /// The sheet itself, which the object owns.
    windowing::Panel *progressPanel() const { return m_progressPanel.get(); }

    /// The steps that have been taken.
    quint32 currentStep() const { return m_currentStep; }

    /// The steps of the whole run.
    quint32 maxSteps() const { return m_maxSteps; }

private:
    void setMessage(const QString &message);
    void runSession();

    std::unique_ptr<windowing::Panel> m_progressPanel;
    QLabel *m_messageTextField;
    windowing::ProgressIndicator *m_progressBar;
    quint32 m_currentStep = 0;
    quint32 m_maxSteps;
    std::unique_ptr<windowing::ModalSession> m_session;
    QPointer<QWidget> m_theWindow;
};
