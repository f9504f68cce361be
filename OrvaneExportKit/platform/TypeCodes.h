#pragma once

#include <OrvaneExportKit/platform/Exceptions.h>

#include <QtCore/qglobal.h>

#include <string>
#include <type_traits>

namespace platform {

/// Calls `use` with the `std::type_identity` of the type that a code of `Coder` stands for. Throws
/// `InvalidArgumentException` for any other code.
template <typename Use>
void withTypeOfCode(const char *operation, const char *code, const Use &use)
{
    switch (code[0] == '\0' || code[1] != '\0' ? '\0' : code[0]) {
    case 'c':
        return use(std::type_identity<qint8>());
    case 's':
        return use(std::type_identity<qint16>());
    case 'i':
        return use(std::type_identity<qint32>());
    case 'q':
        return use(std::type_identity<qint64>());
    case 'C':
        return use(std::type_identity<quint8>());
    case 'S':
        return use(std::type_identity<quint16>());
    case 'I':
        return use(std::type_identity<quint32>());
    case 'Q':
        return use(std::type_identity<quint64>());
    case 'f':
        return use(std::type_identity<float>());
    case 'd':
        return use(std::type_identity<double>());
    case 'B':
        return use(std::type_identity<bool>());
    default:
        throw InvalidArgumentException(std::string(operation) + ": `" + code + "` is no type code");
    }
}

} // namespace platform
