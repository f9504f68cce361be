#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/Exceptions.h>

#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <memory>

namespace windowing {

/// Makes a widget class known to `UiLoader` for as long as the object lives, so that interface files can name it.
///
/// A static object beside the class does it when the library is loaded, and takes it back when it is unloaded:
///
///     const auto registration = windowing::WidgetClassRegistration::of<KZPageView>();
///
/// A later registration of the same name stands before the earlier ones until it ends. For use on the application's
/// main thread.
class ORVANE_KIT_EXPORT WidgetClassRegistration
{
public:
    /// Makes a widget, which its parent owns.
    using Factory = QWidget *(*)(QWidget *parent);

    /// `className` as interface files have it, with its namespace: "windowing::ProgressIndicator".
    WidgetClassRegistration(const QString &className, Factory factory);
    WidgetClassRegistration(const WidgetClassRegistration &) = delete;
    WidgetClassRegistration &operator=(const WidgetClassRegistration &) = delete;
    ~WidgetClassRegistration();

    /// Registers a class with `Q_OBJECT` and a constructor that takes the parent.
    template <typename Widget>
    static WidgetClassRegistration of()
    {
        return {QString::fromLatin1(Widget::staticMetaObject.className()), [](QWidget *parent) -> QWidget * {
                    return new Widget(parent);
                }};
    }

private:
    QString m_className;
    Factory m_factory;
};

/// Loads interface files made with Qt Designer from a bundle, and finds the objects in them.
///
/// Classes are Qt's own and those that are registered. No library is loaded for them, whatever the folders of Qt
/// Designer hold; to keep them out, a load empties Qt's library paths for a moment, in which another thread that needs
/// a Qt plug-in for the first time may miss it. For use on the application's main thread.
///
///     const auto panel = windowing::UiLoader::load<QDialog>(platform::Bundle::kitBundle(), u"ExistingFiles"_s);
///     auto *infoField = windowing::UiLoader::outlet<QLabel>(*panel, u"infoField"_s);
///     QObject::connect(windowing::UiLoader::outlet<QPushButton>(*panel, u"cancelButton"_s), &QPushButton::clicked,
///                      [&] { infoField->clear(); });
class ORVANE_KIT_EXPORT UiLoader
{
public:
    UiLoader() = delete;

    /// The form in the bundle's resource "name.ui", a `Form`, which the caller owns. Texts are in the user's language:
    /// their context in a `.ts` file is the class that the file gives its form. Widgets in the form that have a slot or
    /// invokable function `awakeFromNib()` get a call of it at the end.
    ///
    /// Throws `platform::InvalidArgumentException`, naming the file, when it is not there or cannot be read, when it
    /// holds something else than a `Form`, and when a class in it is neither one of Qt's nor registered.
    template <typename Form = QWidget>
    static std::unique_ptr<Form> load(const platform::Bundle &bundle, const QString &name)
    {
        return std::unique_ptr<Form>(static_cast<Form *>(loadForm(bundle, name, Form::staticMetaObject).release()));
    }

    /// The object of this name in a form, or the form itself. Throws `platform::InvalidArgumentException` when there is
    /// none of this name and type.
    template <typename Object>
    static Object *outlet(QWidget &form, const QString &objectName)
    {
        auto *object =
            form.objectName() == objectName ? qobject_cast<Object *>(&form) : form.findChild<Object *>(objectName);
        if (object == nullptr) {
            throwMissingOutlet(form, objectName, Object::staticMetaObject);
        }
        return object;
    }

private:
    static std::unique_ptr<QWidget> loadForm(const platform::Bundle &bundle, const QString &name,
                                             const QMetaObject &type);
    [[noreturn]] static void throwMissingOutlet(const QWidget &form, const QString &objectName,
                                                const QMetaObject &type);
};

} // namespace windowing
