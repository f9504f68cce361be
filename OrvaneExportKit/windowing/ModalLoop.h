#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QEventLoop>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QDialog>

#include <functional>
#include <memory>

namespace windowing {

class ModalLoop;

/// A time in which one window takes all input of the application, while the caller works and looks after events now
/// and then. The other windows repaint, and a click into one of them brings the modal window to the front.
///
/// Sessions and blocking loops can lie inside each other: the innermost one whose window is visible takes the input.
/// Modal dialogs that are opened meanwhile, such as message boxes, take input too. A window that is destroyed takes
/// none any more.
///
/// The user cannot close the other windows meanwhile; the program can. An application that is told to quit asks the
/// modal windows to close, which is to cancel for a `Panel`, and quits when the last session has ended.
///
///     const auto session = windowing::ModalLoop::modalLoop().beginModalSessionForWindow(panel);
///     for (const auto &step : steps) { work(step); session->run(); }
///     session->end();
class ORVANE_KIT_EXPORT ModalSession
{
public:
    /// Begins the session.
    ModalSession(ModalLoop &modalLoop, QDialog *window);
    ModalSession(const ModalSession &) = delete;
    ModalSession &operator=(const ModalSession &) = delete;
    /// Ends the session if it is open.
    virtual ~ModalSession();

    /// Makes one pass of the pending events, waits for none, and redraws what has changed in the window. Does nothing
    /// once the session has ended. What is called in the pass may itself run the session, end it and destroy it.
    virtual void run();

    /// Lets the other windows take input again.
    virtual void end();

    /// Whether the session has not ended.
    bool isOpen() const;

private:
    friend class ModalLoop;

    QPointer<ModalLoop> m_modalLoop;
    QPointer<QDialog> m_window;
    QEventLoop *m_eventLoop = nullptr; ///< the one that blocks the caller; null where the caller runs the session
    qint64 m_code;
};

/// How the application shows sheets and runs modal windows. There is one; a test, or a host with sheets of its own, can
/// set another.
///
/// A question that blocks the caller until it is answered:
///
///     ModalLoop &modalLoop = ModalLoop::modalLoop();
///     modalLoop.beginSheet(panel, documentWindow, [&](qint32 code) { modalLoop.stopModalWithCode(code); });
///     const qint64 answer = modalLoop.runModalForWindow(panel); // until something calls endSheet(panel, code)
///     panel->hide();
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT ModalLoop : public QObject
{
    Q_OBJECT

public:
    /// What is called when a sheet has ended, with the code that it ended with.
    using SheetDidEnd = std::function<void(qint32 returnCode)>;

    /// The result of a loop that was stopped without an answer.
    static constexpr qint64 stopped = -1000;

    ModalLoop() = default;

    /// The application's one.
    static ModalLoop &modalLoop();

    /// Sets the application's one; null for the kit's own. The caller keeps ownership and sets another one before it is
    /// destroyed. Returns the one that was set before, or null.
    static ModalLoop *setModalLoop(ModalLoop *modalLoop);

    /// Shows `sheet` in front of `window`, which takes no input until the sheet is hidden; without a window it stands
    /// by itself, in front of the whole application. `didEnd` is called when the sheet ends: by `endSheet`, or with the
    /// code 0 when the window is destroyed, and not when the sheet is. It is then for the caller to hide the sheet.
    virtual void beginSheet(QDialog *sheet, QWidget *window, const SheetDidEnd &didEnd);

    /// Ends a sheet with a code. Does nothing for one that has not begun.
    virtual void endSheet(QDialog *sheet, qint32 returnCode);

    /// Shows the window unless it is visible, and handles events until `stopModalWithCode` is called; returns the code.
    /// Meanwhile no other window of the application takes input. The result is `stopped` when the window is hidden or
    /// destroyed, or the application quits, without a code.
    virtual qint64 runModalForWindow(QDialog *window);

    /// Ends the innermost `runModalForWindow`, unless a session inside it is open: that ends by its own `end`.
    virtual void stopModalWithCode(qint64 code);
    void stopModal() { stopModalWithCode(stopped); } ///< the same with the code `stopped`

    /// Begins a session for a window that is shown.
    virtual std::unique_ptr<ModalSession> beginModalSessionForWindow(QDialog *window);

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    friend class ModalSession;

    struct Sheet {
        SheetDidEnd didEnd;
        std::shared_ptr<QObject> connections; ///< those that are to end with the sheet
    };

    void add(ModalSession *session);
    void remove(ModalSession *session);
    QDialog *modalWindow() const;
    bool isClosedByUser(QWindow *window);
    void holdBackQuit();

    QHash<const QDialog *, Sheet> m_sheets;
    QList<ModalSession *> m_sessions;       ///< the innermost last
    const QWindow *m_askedWindow = nullptr; ///< the one that is asked who closes it
    bool m_quitsAfterwards = false;
};

} // namespace windowing
