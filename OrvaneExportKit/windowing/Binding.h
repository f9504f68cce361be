#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyPaths.h>

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

#include <memory>
#include <optional>

namespace windowing {

class ControlValue;

/// What a binding does beside copying a value.
struct BindingOptions {
    /// The name of the value transformer between the stored and the shown value; empty for none. It is looked up at
    /// every use, so that the one registered last is in force.
    QString valueTransformerName = {};

    /// What the control shows for a stored value that is missing. Fields with a place-holder text show it as that.
    QVariant nullPlaceholder = {};
};

/// What a value of a control is bound to.
struct BindingInfo {
    QObject *observedObject; ///< the controller; null when it is gone
    QString observedKeyPath; ///< from the controller on
    BindingOptions options;  ///< as they were given
};

/// Ties one value of a control to a key path of a controller: the control shows the value and follows its changes, and
/// what the user enters is stored.
///
///     new windowing::Binding(topMarginField, u"value"_s, controller, u"settings.margin.top"_s,
///                            {.valueTransformerName = u"KZMeasurementUnitTransformer"_s});
///
/// The name is that of a Qt property of the control, or one of these:
/// - `currentData` of a combo box: the data of the chosen entry. In an interface file, the string-list property
///   `itemData` of the combo box gives the entries their data.
/// - `selectedTag` of a radio button or another button of a group: the property `tag` of the one button that is
///   checked. The buttons share one key path.
///
/// Changes are followed of settings objects (`didChangeValueForKey`) and of Qt properties with a NOTIFY signal, also
/// when an object on the way is exchanged. What the user changes is stored when the edit ends where text is typed (line
/// edits, text edits, token fields, combo boxes: on Return, when the focus leaves, and when something has been dropped
/// on them, whether they have the focus or not), and at once elsewhere, by the property's NOTIFY signal; a spin box
/// says with `keyboardTracking` which of the two it does. A property without that signal is shown only, as is one
/// behind a transformer without a way back. Storing does not come back to the control as a change, unless somebody who
/// was told of it stores another value at once, and an edit that ends with the text that was shown stores nothing.
///
/// A number shown in a text field is written as the field's locale does, and typed text is read back so; text that is
/// no number is then refused, and the field shows the stored value again. So it does where the transformer or the
/// controller refuses a value. A `QSizeF` is stored as the string "{width, height}", a string list as a list, a `QDate`
/// as the date-time at which that day begins in UTC.
///
/// What the program calls throws what the model throws. What the event loop calls, an edit that ends or a change that
/// the model tells of, throws nothing: an error goes to `platform::alertError`, and the control shows the stored value.
///
/// The binding belongs to the control. For use on the application's main thread.
class ORVANE_KIT_EXPORT Binding : public QObject
{
    Q_OBJECT

public:
    /// Binds, in place of an earlier binding of the same name, and shows the value.
    /// Throws `platform::InvalidArgumentException`, and leaves an earlier binding as it is, when the control has no
    /// such value, the key path does not exist, no transformer has the name, or the value has a type that settings
    /// cannot save, such as `QTime`, and would be stored there without a transformer.
    Binding(QWidget *control, const QString &name, QObject *controller, const QString &keyPath,
            const BindingOptions &options = {});
    ~Binding() override;

    /// What the binding was made with.
    QString name() const { return m_name; }
    BindingInfo info() const { return {m_controller, m_keyPath, m_options}; }

    /// Shows the stored value again, for changes that nobody was told of.
    void refresh();

    /// Stores what the control shows, unless that is what was shown or stored last. Throws what the model throws beside
    /// a `platform::Exception`, by which it refuses the value.
    void commit();

    /// The same at the end of an edit by the user: throws nothing, and gives the error to `platform::alertError`.
    Q_INVOKABLE void commitEdit();

    /// Stores a value as it is, past the transformer, and shows it then: whoever is told of the change by the model
    /// finds the new value there while the control still shows the old one. Throws what the model throws, and leaves
    /// the control alone then.
    void storeUntransformed(const QVariant &value);

private:
    void observe();
    Q_INVOKABLE void keyPathChanged();
    void show(const QVariant &stored);
    QVariant shownValue(const QVariant &stored);
    QVariant storedValue(const QVariant &shown) const;

    QString m_name;
    QPointer<QObject> m_controller;
    QString m_keyPath;
    BindingOptions m_options;
    std::unique_ptr<ControlValue> m_value;
    QList<QMetaObject::Connection> m_connections;
    QVariant m_lastValue;
    QMetaType m_shownNumber; ///< the type of the number that a text field shows; invalid when it shows a text
    bool m_isBusy = false;   ///< what happens now comes from this binding
    int m_changesWhileBusy = 0;
};

/// The binding of a value of a control, which the control owns, or null.
ORVANE_KIT_EXPORT Binding *bindingOf(const QWidget *control, const QString &name);

/// What a value of a control is bound to, or nothing.
///
///     if (const auto info = windowing::infoForBinding(field, u"selectedFontAttributes"_s)) {
///         platform::setValueForKeyPath(info->observedObject, attributes, info->observedKeyPath);
///     }
ORVANE_KIT_EXPORT std::optional<BindingInfo> infoForBinding(const QWidget *control, const QString &name);

/// Makes known that a class of controls has a value of this name that is worth binding, for tools and panels that list
/// them. A class does it once, when its library is loaded:
///
///     const bool exposed = [] {
///         windowing::exposeBinding(KZPageView::staticMetaObject, u"paperSize"_s);
///         return true;
///     }();
ORVANE_KIT_EXPORT void exposeBinding(const QMetaObject &controlClass, const QString &name);

/// The values that a class and its base classes have exposed, those of the base classes first, each in their order.
ORVANE_KIT_EXPORT QStringList exposedBindings(const QMetaObject &controlClass);

} // namespace windowing
