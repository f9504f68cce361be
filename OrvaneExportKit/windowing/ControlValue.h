#pragma once

#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

#include <memory>

namespace windowing {

class Binding;

/// One value of a control that can be bound, however the control keeps it.
class ControlValue
{
public:
    /// Throws `platform::InvalidArgumentException` when the control has no such value.
    static std::unique_ptr<ControlValue> of(QWidget &control, const QString &name);

    ControlValue() = default;
    ControlValue(const ControlValue &) = delete;
    ControlValue &operator=(const ControlValue &) = delete;
    virtual ~ControlValue();

    /// The type that `setValue` takes; invalid where it takes any.
    virtual QMetaType type() const = 0;

    /// What the control shows; invalid where that is nothing to store.
    virtual QVariant value() const = 0;

    virtual void setValue(const QVariant &value) = 0;

    /// Lets the binding commit whenever the user has changed the value.
    virtual void followEdits(Binding &binding) = 0;

    /// Whether the user can change the value, as far as anybody is told of it.
    virtual bool canBeEdited() const { return true; }
};

} // namespace windowing
