#include <OrvaneExportKit/platform/PrintableText.h>

namespace platform {

namespace {

bool controlsDirectionOrLine(QChar character)
{
    const char16_t unit = character.unicode();
    return unit == u'\u061C' || unit == u'\u200E' || unit == u'\u200F' || (unit >= u'\u2028' && unit <= u'\u202E') ||
           (unit >= u'\u2066' && unit <= u'\u2069');
}

QString hexadecimal(QChar character, int digits)
{
    return QString::number(character.unicode(), 16).rightJustified(digits, u'0');
}

} // namespace

QString printableText(QStringView text)
{
    QString printable;
    printable.reserve(text.size());
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Control) {
            printable += QLatin1String("\\x") + hexadecimal(character, 2);
        } else if (controlsDirectionOrLine(character)) {
            printable += QLatin1String("\\u") + hexadecimal(character, 4);
        } else {
            printable += character;
        }
    }
    return printable;
}

} // namespace platform
