#pragma once

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Range.h>

#include <QtCore/QDebug>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <ostream>

/// \file
/// How GoogleTest writes the kit's and Qt's types into a failure: readable text in place of bytes. It finds `PrintTo`
/// by argument-dependent look-up, so each stands in the namespace of its type.

namespace support {

template <typename Value>
void printByDebug(const Value &value, std::ostream *out)
{
    QString text;
    QDebug(&text).nospace() << value;
    *out << text.toStdString();
}

} // namespace support

inline void PrintTo(const QString &text, std::ostream *out)
{
    support::printByDebug(text, out);
}

inline void PrintTo(const QVariant &value, std::ostream *out)
{
    support::printByDebug(value, out);
}

inline void PrintTo(const QVariantMap &map, std::ostream *out)
{
    support::printByDebug(map, out);
}

namespace platform {

inline void PrintTo(const Range &range, std::ostream *out)
{
    *out << '(' << range.location << ", " << range.length << ')';
}

inline void PrintTo(const AttributedString &text, std::ostream *out)
{
    support::printByDebug(text.string(), out);
    Range run;
    for (std::size_t index = 0; index < text.length(); index = run.end()) {
        const QVariantMap attributes = text.attributesAtIndex(index, &run);
        *out << ' ';
        PrintTo(run, out);
        *out << ' ';
        support::printByDebug(attributes, out);
    }
}

} // namespace platform
