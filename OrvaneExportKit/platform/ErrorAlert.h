#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QString>

/// \file
/// For use on the application's main thread.

namespace platform {

/// How an error that the kit cannot hand back as a result reaches the user: one in the saved settings, and one in what
/// a control does when it is painted, clicked or told of a change, where no call of the program could throw it. Of
/// these, each is told once, when the event loop is back, and in painting not again before the control shows something
/// else.
///
/// A host with windows sets an object that shows a modal alert. A test, a command-line program or an author sets one
/// that receives the errors as values. Without any, nothing is shown, and `lastError` still names the last one.
class ORVANE_CORE_EXPORT ErrorAlert
{
public:
    ErrorAlert() = default;
    ErrorAlert(const ErrorAlert &) = delete;
    ErrorAlert &operator=(const ErrorAlert &) = delete;
    virtual ~ErrorAlert();

    /// Shows the error, one sentence, and returns when the user has taken note of it.
    virtual void runModal(const QString &errorDescription) = 0;
};

/// Sets the alert that errors are shown through; null for none. The caller keeps ownership and unsets it before
/// destroying it. Returns the alert set before.
ORVANE_CORE_EXPORT ErrorAlert *setErrorAlert(ErrorAlert *alert);

/// Keeps the error as the last one and shows it through the alert, if one is set.
ORVANE_CORE_EXPORT void alertError(const QString &errorDescription);

/// What the last error said; empty before the first one.
ORVANE_CORE_EXPORT QString lastError();

} // namespace platform
