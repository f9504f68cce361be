#include <OrvaneExportKit/windowing/ModalLoop.h>

#include <OrvaneExportKit/windowing/EventGuard.h>

#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <utility>

namespace windowing {

namespace {

ModalLoop *currentModalLoop = nullptr;

bool isInput(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::NativeGesture:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

/// Whether an object is the dialog, one of its parts, or a menu or window that was opened from it.
bool belongsTo(const QObject *object, const QWidget *dialog)
{
    if (const auto *window = qobject_cast<const QWindow *>(object)) {
        while (window != nullptr && window != dialog->windowHandle()) {
            window = window->parent(QWindow::IncludeTransients);
        }
        return window != nullptr;
    }
    while (object != nullptr && object != dialog) {
        object = object->parent();
    }
    return object != nullptr;
}

/// Puts a sheet over the middle of a window, as far as the screen lets it.
void placeOver(const QWidget &window, QDialog *sheet)
{
    const QSize frame =
        window.frameGeometry().size() - window.size(); // the sheet's own is not known before it is shown
    QRect place(QPoint(), sheet->size() + frame);
    place.moveCenter(window.frameGeometry().center());
    const QRect screen = window.screen()->availableGeometry();
    place.moveRight(std::min(place.right(), screen.right()));
    place.moveBottom(std::min(place.bottom(), screen.bottom()));
    place.moveLeft(std::max(place.left(), screen.left()));
    place.moveTop(std::max(place.top(), screen.top()));
    sheet->move(place.topLeft());
}

} // namespace

ModalSession::ModalSession(ModalLoop &modalLoop, QDialog *window)
    : m_modalLoop(&modalLoop), m_window(window), m_code(ModalLoop::stopped)
{
    modalLoop.add(this);
}

ModalSession::~ModalSession()
{
    ModalSession::end();
}

void ModalSession::run()
{
    if (!isOpen()) {
        return;
    }
    const QPointer<QDialog> window = m_window; // the session itself may be destroyed in the pass
    QCoreApplication::processEvents();
    if (window != nullptr) {
        // Some platforms put repainting off for some milliseconds, until long after this pass.
        QEvent update(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(window, &update);
    }
}

void ModalSession::end()
{
    if (isOpen()) {
        m_modalLoop->remove(this);
    }
}

bool ModalSession::isOpen() const
{
    return m_modalLoop != nullptr && m_modalLoop->m_sessions.contains(this);
}

ModalLoop &ModalLoop::modalLoop()
{
    static ModalLoop kitsLoop;
    return currentModalLoop != nullptr ? *currentModalLoop : kitsLoop;
}

ModalLoop *ModalLoop::setModalLoop(ModalLoop *modalLoop)
{
    return std::exchange(currentModalLoop, modalLoop);
}

void ModalLoop::beginSheet(QDialog *sheet, QWidget *window, const SheetDidEnd &didEnd)
{
    const auto connections = std::make_shared<QObject>();
    connect(sheet, &QObject::destroyed, connections.get(), [this, sheet] { m_sheets.remove(sheet); });
    if (window != nullptr) {
        connect(window, &QObject::destroyed, connections.get(),
                [this, sheet] { guardedAction(*this, [this, sheet] { endSheet(sheet, 0); }); });
    }
    m_sheets.insert(sheet, {didEnd, connections});

    sheet->setWindowFlags((sheet->windowFlags() & ~Qt::WindowType_Mask) | Qt::Sheet);
    sheet->setWindowModality(window != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
    sheet->winId(); // makes the window handle
    sheet->windowHandle()->setTransientParent(window != nullptr ? window->window()->windowHandle() : nullptr);
    if (window != nullptr) {
        placeOver(*window->window(), sheet);
    }
    sheet->show();
}

void ModalLoop::endSheet(QDialog *sheet, qint32 returnCode)
{
    const Sheet ended = m_sheets.take(sheet);
    if (ended.didEnd) {
        ended.didEnd(returnCode);
    }
}

qint64 ModalLoop::runModalForWindow(QDialog *window)
{
    if (!window->isVisible()) {
        window->setWindowModality(Qt::ApplicationModal);
        window->show();
    }
    QEventLoop eventLoop;
    ModalSession session(*this, window);
    session.m_eventLoop = &eventLoop;
    eventLoop.exec(QEventLoop::DialogExec); // its own result may be the exit code of an application that quits
    return session.m_code;
}

void ModalLoop::stopModalWithCode(qint64 code)
{
    if (!m_sessions.isEmpty() && m_sessions.last()->m_eventLoop != nullptr) {
        m_sessions.last()->m_code = code;
        m_sessions.last()->m_eventLoop->quit();
    }
}

std::unique_ptr<ModalSession> ModalLoop::beginModalSessionForWindow(QDialog *window)
{
    return std::make_unique<ModalSession>(*this, window);
}

bool ModalLoop::eventFilter(QObject *receiver, QEvent *event)
{
    if (event->type() == QEvent::Hide && !event->spontaneous()) {
        for (const ModalSession *session : std::as_const(m_sessions)) {
            if (session->m_window == receiver && session->m_eventLoop != nullptr) {
                session->m_eventLoop->quit();
            }
        }
    }
    if (event->type() == QEvent::Quit && receiver == QCoreApplication::instance()) {
        event->ignore();
        guardedAction(*this, [this] { holdBackQuit(); });
        return true;
    }
    const auto *closed = event->type() == QEvent::Close ? qobject_cast<QWindow *>(receiver) : nullptr;
    if (closed != nullptr && closed == m_askedWindow) {
        m_askedWindow = nullptr;
        event->ignore();
        return true;
    }
    if (!isInput(*event) && closed == nullptr) {
        return false;
    }
    QDialog *window = modalWindow();
    const QWidget *latest = QApplication::activeModalWidget();
    if (window == nullptr || belongsTo(receiver, window) || (latest != nullptr && belongsTo(receiver, latest))) {
        return false;
    }
    if (closed != nullptr && !isClosedByUser(static_cast<QWindow *>(receiver))) {
        return false;
    }
    if (event->type() == QEvent::MouseButtonPress) {
        window->raise();
        window->activateWindow();
    }
    event->ignore();
    return true;
}

/// Whether the user closes a window that is told to close, and not the program. Qt sends the same event for both; but a
/// window that is in its `close` does not begin another one.
bool ModalLoop::isClosedByUser(QWindow *window)
{
    m_askedWindow = window;
    window->close();
    return std::exchange(m_askedWindow, nullptr) == nullptr;
}

/// Asks all modal windows to cancel, the innermost first. The application quits when the last of them has ended.
void ModalLoop::holdBackQuit()
{
    m_quitsAfterwards = true;
    const QList<ModalSession *> sessions = m_sessions;
    for (auto session = sessions.rbegin(); session != sessions.rend(); ++session) {
        if (m_sessions.contains(*session) && (*session)->m_window != nullptr) {
            (*session)->m_window->close();
        }
    }
}

void ModalLoop::add(ModalSession *session)
{
    if (m_sessions.isEmpty()) {
        QCoreApplication::instance()->installEventFilter(this);
    }
    m_sessions.append(session);
}

void ModalLoop::remove(ModalSession *session)
{
    m_sessions.removeOne(session);
    if (m_sessions.isEmpty() && QCoreApplication::instance() != nullptr) {
        QCoreApplication::instance()->removeEventFilter(this);
        if (std::exchange(m_quitsAfterwards, false)) {
            QMetaObject::invokeMethod(QCoreApplication::instance(), "quit", Qt::QueuedConnection);
        }
    }
}

/// The window of the innermost session that can take input.
QDialog *ModalLoop::modalWindow() const
{
    const auto found = std::find_if(m_sessions.rbegin(), m_sessions.rend(), [](const ModalSession *session) {
        return session->m_window != nullptr && session->m_window->isVisible();
    });
    return found == m_sessions.rend() ? nullptr : (*found)->m_window.data();
}

} // namespace windowing
