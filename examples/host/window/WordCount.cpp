#include "WordCount.h"

namespace host {

qsizetype wordCount(QStringView text)
{
    qsizetype count = 0;
    bool isInWord = false;
    for (const QChar character : text) {
        if (character.isSpace()) {
            isInWord = false;
        } else if (!isInWord && (character.isLetterOrNumber() || character.isSurrogate())) {
            isInWord = true;
            ++count;
        }
    }
    return count;
}

} // namespace host
