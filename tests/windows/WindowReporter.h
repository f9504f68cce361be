#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QObject>

/// Writes one JSON object to the standard output, on a line of its own.
void report(const QJsonObject &message);

/// Reports every named window of the application when it is shown: its name, its number on the screen, and of each
/// named widget in it where it is in the window, in pixels of the screen, and what a screen reader reads out as its
/// value.
class WindowReporter final : public QObject
{
public:
    WindowReporter();

    bool eventFilter(QObject *receiver, QEvent *event) override;
};
