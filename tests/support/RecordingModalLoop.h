#pragma once

#include <OrvaneExportKit/windowing/ModalLoop.h>

#include <QtCore/QStringList>

#include <utility>

namespace support {

/// The application's modal loop for as long as the object lives: does all that the kit's own does, and writes down the
/// calls in their order, together with the hiding of sheets.
class RecordingModalLoop final : public windowing::ModalLoop
{
public:
    RecordingModalLoop() { setModalLoop(this); }
    ~RecordingModalLoop() override { setModalLoop(nullptr); }

    /// What has been called since the last time.
    QStringList takeCalls() { return std::exchange(m_calls, {}); }

    QWidget *windowOfSheet() const { return m_windowOfSheet; }

    void beginSheet(QDialog *sheet, QWidget *window, const SheetDidEnd &didEnd) override
    {
        m_calls.append(QStringLiteral("beginSheet"));
        m_windowOfSheet = window;
        sheet->installEventFilter(&m_hideRecorder);
        ModalLoop::beginSheet(sheet, window, didEnd);
    }

    void endSheet(QDialog *sheet, qint32 returnCode) override
    {
        m_calls.append(QStringLiteral("endSheet %1").arg(returnCode));
        ModalLoop::endSheet(sheet, returnCode);
    }

    qint64 runModalForWindow(QDialog *window) override
    {
        m_calls.append(QStringLiteral("runModalForWindow"));
        const qint64 code = ModalLoop::runModalForWindow(window);
        m_calls.append(QStringLiteral("runModalForWindow returns %1").arg(code));
        return code;
    }

    void stopModalWithCode(qint64 code) override
    {
        m_calls.append(code == stopped ? QStringLiteral("stopModal") : QStringLiteral("stopModal %1").arg(code));
        ModalLoop::stopModalWithCode(code);
    }

    std::unique_ptr<windowing::ModalSession> beginModalSessionForWindow(QDialog *window) override
    {
        m_calls.append(QStringLiteral("beginModalSession"));
        return std::make_unique<Session>(*this, window);
    }

private:
    class HideRecorder final : public QObject
    {
    public:
        explicit HideRecorder(QStringList &calls) : m_calls(calls) {}

        bool eventFilter(QObject * /*sheet*/, QEvent *event) override
        {
            if (event->type() == QEvent::Hide) {
                m_calls.append(QStringLiteral("orderOut"));
            }
            return false;
        }

    private:
        QStringList &m_calls;
    };

    class Session final : public windowing::ModalSession
    {
    public:
        Session(RecordingModalLoop &modalLoop, QDialog *window) : ModalSession(modalLoop, window), m_recorder(modalLoop)
        {
        }

        void run() override
        {
            m_recorder.m_calls.append(QStringLiteral("runModalSession"));
            ModalSession::run();
        }

        void end() override
        {
            m_recorder.m_calls.append(QStringLiteral("endModalSession"));
            ModalSession::end();
        }

    private:
        RecordingModalLoop &m_recorder;
    };

    QStringList m_calls;
    HideRecorder m_hideRecorder{m_calls};
    QWidget *m_windowOfSheet = nullptr;
};

} // namespace support
