#pragma once

#include <QtCore/QDebug>
#include <QtCore/QString>

namespace platform {

/// Why a domain cannot be read or saved. Thrown inside the library alone: `UserDefaults` hands it to its callers as a
/// value.
struct DefaultsError {
    QString description; ///< one sentence that names the file and says what to do
};

/// The text in quotation marks, with control characters escaped.
inline QString quoted(const QString &text)
{
    QString shown;
    QDebug(&shown).nospace() << text;
    return shown;
}

} // namespace platform
