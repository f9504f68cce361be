#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

/// \file
/// Property-list values as the user types and reads them. What is printed for a value gives that value again when it
/// is typed with the value's type.

namespace defaults {

enum class ValueType {
    String,
    Integer,
    Float,
    Boolean,
    Date,
    Data,
    PropertyList,
};

/// The type of this name. Throws a `ProgramError` when there is none.
ValueType valueType(const QString &name);

/// Throws a `ProgramError` when the text is no value of the type.
QVariant valueFromText(const QString &text, ValueType type);

/// Throws a `ProgramError` for the rare value that a binary file can hold and text cannot.
QString textFromValue(const QVariant &value);

} // namespace defaults
