#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QString>
#include <QtCore/QStringView>

namespace platform {

/// A text from outside, such as a name, on one line that a terminal or a log shows as it is: what would move the
/// cursor, change the colours or turn the direction of reading is written as an escape. That are the control characters
/// (U+0000 to U+001F, U+007F to U+009F), as `\x1b`; and the characters that control the direction (U+061C, U+200E,
/// U+200F, U+202A to U+202E, U+2066 to U+2069) or separate lines and paragraphs (U+2028, U+2029), as `\u202e`.
///
/// All else stays, backslashes as well: the result is for eyes, and not to be read back. Linear; any thread.
///
///     printableText(u"Tide\nEbb");   // "Tide\\x0aEbb"
ORVANE_CORE_EXPORT QString printableText(QStringView text);

} // namespace platform
