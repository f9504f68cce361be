#pragma once

#include <QtCore/QStringView>

namespace host {

/// The number of words: runs without white space that hold a letter or a digit. Marks that stand alone are none.
///
///     wordCount(u"## The key * * *")   // 2
qsizetype wordCount(QStringView text);

} // namespace host
