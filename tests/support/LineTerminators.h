#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace support {

/// The six strings that end a line.
inline const QStringList lineTerminators{QStringLiteral("\n"),     QStringLiteral("\r"),     QStringLiteral("\r\n"),
                                         QStringLiteral("\u0085"), QStringLiteral("\u2028"), QStringLiteral("\u2029")};

} // namespace support
