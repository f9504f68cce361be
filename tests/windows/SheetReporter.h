#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QObject>

/// Writes one JSON object to the standard output, on a line of its own.
void report(const QJsonObject &message);

/// Reports every sheet of the application when it is shown: its name, its window, and where in the window its buttons
/// are, in pixels of the screen.
class SheetReporter final : public QObject
{
public:
    SheetReporter();

    bool eventFilter(QObject *receiver, QEvent *event) override;
};
