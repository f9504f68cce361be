#include "Messages.h"

#include <OrvaneExportKit/platform/PrintableText.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

constexpr qsizetype longestList = 20;

} // namespace

QString sentence(const QString &message)
{
    const QString end = message.endsWith(u'.') || message.contains(u'\n') ? QString() : u"."_s;
    return message.left(1).toUpper() + message.sliced(1) + end;
}

QString printable(const QString &text)
{
    return platform::printableText(text);
}

QString quoted(const QString &text)
{
    return u'\'' + printable(text) + u'\'';
}

QString counted(qsizetype count, const QString &noun)
{
    return QString::number(count) + u' ' + noun + (count == 1 ? u""_s : u"s"_s);
}

QString listed(const QStringList &lines)
{
    QString list;
    for (const QString &line : lines.first(std::min(lines.size(), longestList))) {
        list += u"\n  "_s + line;
    }
    if (lines.size() > longestList) {
        list += u"\n  "_s + Texts::tr("... and %1 more").arg(lines.size() - longestList);
    }
    return list;
}

} // namespace host
