#include <OrvaneExportKit/windowing/UiLoader.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QList>
#include <QtUiTools/QUiLoader>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

struct WidgetClass {
    QString name;
    WidgetClassRegistration::Factory factory;

    friend bool operator==(const WidgetClass &, const WidgetClass &) = default;
};

/// All registered classes, the latest last. A function, because libraries register theirs while they are being loaded.
QList<WidgetClass> &registeredClasses()
{
    static QList<WidgetClass> classes;
    return classes;
}

/// While the object lives, Qt finds no libraries to load.
class NoLibraryPaths
{
public:
    NoLibraryPaths() { QCoreApplication::setLibraryPaths({}); }
    NoLibraryPaths(const NoLibraryPaths &) = delete;
    NoLibraryPaths &operator=(const NoLibraryPaths &) = delete;
    ~NoLibraryPaths() { QCoreApplication::setLibraryPaths(m_paths); }

private:
    QStringList m_paths = QCoreApplication::libraryPaths();
};

/// Knows Qt's own widgets and the registered ones, and keeps the names of all others that a form asks for.
class FormLoader final : public QUiLoader
{
public:
    const QStringList &unknownClasses() const { return m_unknownClasses; }

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        const QList<WidgetClass> &classes = registeredClasses();
        const auto found = std::find_if(classes.rbegin(), classes.rend(),
                                        [&className](const WidgetClass &known) { return known.name == className; });
        if (found != classes.rend()) {
            QWidget *widget = found->factory(parent);
            widget->setObjectName(name);
            return widget;
        }
        if (m_classesOfQt.contains(className)) {
            return QUiLoader::createWidget(className, parent, name);
        }
        m_unknownClasses.append(className);
        return QUiLoader::createWidget(u"QWidget"_s, parent, name);
    }

private:
    QStringList m_classesOfQt = availableWidgets();
    QStringList m_unknownClasses;
};

/// A `QUiLoader` runs all libraries of Qt Designer that it finds while it is made. Classes come from the registry;
/// those libraries have no place in a running application.
std::unique_ptr<FormLoader> makeLoader()
{
    const NoLibraryPaths none;
    return std::make_unique<FormLoader>();
}

/// Tells the widgets that want to know it that they have been loaded.
void awaken(const QWidget &form)
{
    for (QWidget *widget : form.findChildren<QWidget *>()) {
        if (widget->metaObject()->indexOfMethod("awakeFromNib()") >= 0) {
            QMetaObject::invokeMethod(widget, "awakeFromNib", Qt::DirectConnection);
        }
    }
}

platform::InvalidArgumentException interfaceFileError(const QString &file, const QString &problem)
{
    return platform::InvalidArgumentException(u"UiLoader::load: %1: %2"_s.arg(file, problem).toStdString());
}

} // namespace

WidgetClassRegistration::WidgetClassRegistration(const QString &className, Factory factory)
    : m_className(className), m_factory(factory)
{
    registeredClasses().append({m_className, m_factory});
}

WidgetClassRegistration::~WidgetClassRegistration()
{
    QList<WidgetClass> &classes = registeredClasses();
    classes.removeAt(classes.lastIndexOf({m_className, m_factory}));
}

std::unique_ptr<QWidget> UiLoader::loadForm(const platform::Bundle &bundle, const QString &name,
                                            const QMetaObject &type)
{
    const QString path = bundle.pathForResource(name, u"ui"_s);
    if (path.isEmpty()) {
        throw interfaceFileError(name + u".ui"_s, u"the bundle \"%1\" has no such file"_s.arg(bundle.identifier()));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw interfaceFileError(path, file.errorString());
    }
    const std::unique_ptr<FormLoader> loader = makeLoader();
    std::unique_ptr<QWidget> form(loader->load(&file));
    if (form == nullptr) {
        throw interfaceFileError(path, loader->errorString());
    }
    if (!loader->unknownClasses().isEmpty()) {
        throw interfaceFileError(path, u"no widget class %1 is known"_s.arg(loader->unknownClasses().join(u", "_s)));
    }
    if (!form->metaObject()->inherits(&type)) {
        throw interfaceFileError(path, u"the form is no %1"_s.arg(QString::fromLatin1(type.className())));
    }
    awaken(*form);
    return form;
}

void UiLoader::throwMissingOutlet(const QWidget &form, const QString &objectName, const QMetaObject &type)
{
    throw platform::InvalidArgumentException(
        u"UiLoader::outlet: the form %1 has no %2 with the name %3"_s
            .arg(form.objectName(), QString::fromLatin1(type.className()), objectName)
            .toStdString());
}

} // namespace windowing
