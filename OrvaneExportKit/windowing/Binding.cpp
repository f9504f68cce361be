#include <OrvaneExportKit/windowing/Binding.h>

#include <OrvaneExportKit/platform/GeometryStrings.h>
#include <OrvaneExportKit/platform/ScalarValues.h>
#include <OrvaneExportKit/platform/ValueTransformer.h>
#include <OrvaneExportKit/windowing/ControlValue.h>
#include <OrvaneExportKit/windowing/EventGuard.h>

#include <QtCore/QByteArrayView>
#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtCore/QLocale>
#include <QtCore/QMetaProperty>
#include <QtCore/QScopedValueRollback>
#include <QtCore/QSizeF>
#include <QtWidgets/QComboBox>

#include <array>
#include <charconv>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using platform::InvalidArgumentException;

namespace windowing {

namespace {

bool isText(QMetaType type)
{
    return type == QMetaType::fromType<QString>();
}

bool isReal(QMetaType type)
{
    return type == QMetaType::fromType<double>() || type == QMetaType::fromType<float>();
}

bool isNumber(QMetaType type)
{
    switch (type.id()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
        return true;
    default:
        return isReal(type);
    }
}

std::shared_ptr<platform::ValueTransformer> transformerNamed(const QString &name)
{
    auto transformer = platform::valueTransformerForName(name);
    if (transformer == nullptr) {
        throw InvalidArgumentException(u"no value transformer is registered as \"%1\""_s.arg(name).toStdString());
    }
    return transformer;
}

/// The number with the shortest decimal text that stands for the float: 2.54 and not 2.5399999618530273.
double shortestDouble(float number)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.begin(), text.end(), number).ptr;
    return QByteArrayView(text.data(), end).toDouble();
}

QString numberText(const QVariant &number, QLocale locale)
{
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    if (!isReal(number.metaType())) {
        return locale.toString(number.toLongLong());
    }
    const bool isFloat = number.metaType() == QMetaType::fromType<float>();
    const double value = isFloat ? shortestDouble(number.toFloat()) : number.toDouble();
    return locale.toString(value, 'g', QLocale::FloatingPointShortest);
}

/// The number that a text is in a locale: of the given type, or a double where a whole number has got a fraction.
QVariant numberFromText(const QString &text, const QLocale &locale, QMetaType type)
{
    bool isNumber = false;
    const double number = locale.toDouble(text.trimmed(), &isNumber);
    if (!isNumber) {
        throw InvalidArgumentException(u"\"%1\" is no number"_s.arg(text).toStdString());
    }
    QVariant converted = number;
    converted.convert(type);
    return isReal(type) || converted.toDouble() == number ? converted : QVariant(number);
}

/// Whether settings can keep what a control with this type shows. What may be anything is looked at when it is saved.
bool isSavable(QMetaType type)
{
    if (!type.isValid() || isNumber(type)) {
        return true;
    }
    switch (type.id()) {
    case QMetaType::QVariant:
    case QMetaType::Bool:
    case QMetaType::QString:
    case QMetaType::QByteArray:
    case QMetaType::QDate:
    case QMetaType::QDateTime:
    case QMetaType::QVariantList:
    case QMetaType::QVariantMap:
    case QMetaType::QStringList:
    case QMetaType::QSizeF:
        return true;
    default:
        return false;
    }
}

/// Whether the key path ends at settings, or in a dictionary of theirs.
bool leadsToSettings(QObject *controller, const QString &keyPath)
{
    return qobject_cast<platform::KeyValueCoding *>(platform::keyPathSteps(controller, keyPath).constLast().object) !=
           nullptr;
}

/// A value as settings keep it, in the types of property lists.
QVariant saved(const QVariant &value)
{
    switch (value.metaType().id()) {
    case QMetaType::QSizeF:
        return platform::stringFromSize(value.toSizeF());
    case QMetaType::QDate:
        return QDateTime(value.toDate(), QTime(0, 0), Qt::UTC);
    case QMetaType::QStringList:
        return value.toList();
    default:
        return value;
    }
}

/// A value as one of the type that a control takes; the type's own first value where there is none or no way to it.
QVariant converted(const QVariant &value, QMetaType type, const QLocale &locale)
{
    if (!type.isValid() || type == value.metaType() || type == QMetaType::fromType<QVariant>()) {
        return value;
    }
    const bool isFromText = isText(value.metaType());
    if (type == QMetaType::fromType<QSizeF>() && isFromText) {
        return platform::sizeFromString(value.toString()).value_or(QSizeF(0.0, 0.0));
    }
    if (type == QMetaType::fromType<QDate>() && value.metaType() == QMetaType::fromType<QDateTime>()) {
        return value.toDateTime().toUTC().date();
    }
    if (isText(type) && isNumber(value.metaType())) {
        return numberText(value, locale);
    }
    if (type == QMetaType::fromType<bool>()) {
        return platform::boolValue(value);
    }
    if (isNumber(type) && !isReal(type)) {
        return platform::intValue(value);
    }
    if (isReal(type) && isFromText) {
        return platform::floatValue(value);
    }
    QVariant result = value;
    return result.convert(type) ? result : QVariant(type);
}

/// Where a control can show a text in place of nothing by itself. An editable combo box does not, though it has one.
bool hasPlaceholderText(const QWidget &control, const QString &name)
{
    const QMetaObject &type = *control.metaObject();
    const bool isItsText = QLatin1String(type.userProperty().name()) == name || name == u"plainText";
    return isItsText && type.indexOfProperty("placeholderText") >= 0 &&
           qobject_cast<const QComboBox *>(&control) == nullptr;
}

// By the names of the classes, which outlive the libraries that their meta-objects are in.
QHash<QByteArray, QStringList> &bindingsByClass()
{
    static QHash<QByteArray, QStringList> bindings;
    return bindings;
}

} // namespace

Binding::Binding(QWidget *control, const QString &name, QObject *controller, const QString &keyPath,
                 const BindingOptions &options)
    : QObject(control),
      m_name(name),
      m_controller(controller),
      m_keyPath(keyPath),
      m_options(options),
      m_value(ControlValue::of(*control, name))
{
    const bool isShownOnly = !m_options.valueTransformerName.isEmpty() &&
                             !transformerNamed(m_options.valueTransformerName)->allowsReverseTransformation();
    const QVariant stored = platform::valueForKeyPath(controller, keyPath);
    const bool isStoredAsShown = !isShownOnly && m_options.valueTransformerName.isEmpty() && m_value->canBeEdited();
    if (isStoredAsShown && !isSavable(m_value->type()) && leadsToSettings(controller, keyPath)) {
        throw InvalidArgumentException(
            u"%1 has a value \"%2\" of the type %3, which settings cannot save; bind it through a value transformer"_s
                .arg(QString::fromLatin1(control->metaObject()->className()), name,
                     QString::fromLatin1(m_value->type().name()))
                .toStdString());
    }
    for (Binding *earlier : control->findChildren<Binding *>(Qt::FindDirectChildrenOnly)) {
        if (earlier != this && earlier->m_name == name) {
            delete earlier;
        }
    }
    if (m_options.nullPlaceholder.isValid() && hasPlaceholderText(*control, name)) {
        control->setProperty("placeholderText", m_options.nullPlaceholder);
    }
    observe();
    show(stored);
    if (!isShownOnly) {
        m_value->followEdits(*this);
    }
}

Binding::~Binding() = default;

void Binding::refresh()
{
    QVariant stored;
    try {
        stored = platform::valueForKeyPath(m_controller, m_keyPath);
    } catch (const platform::Exception &) { // then there is nothing to show
    }
    show(stored);
}

void Binding::commit()
{
    const QVariant shown = m_value->value();
    if (m_isBusy || m_controller == nullptr || !shown.isValid() || shown == m_lastValue) {
        return;
    }
    try {
        const QScopedValueRollback busy(m_isBusy, true);
        m_changesWhileBusy = 0;
        platform::setValueForKeyPath(m_controller, storedValue(shown), m_keyPath);
        m_lastValue = shown;
    } catch (const platform::Exception &) {
        refresh(); // the value is refused
        return;
    } catch (...) {
        refresh();
        throw;
    }
    if (m_changesWhileBusy > 1) {
        refresh(); // the value has been corrected by somebody who was told of it
    }
}

void Binding::commitEdit()
{
    guardedAction(*parent(), [this] { commit(); });
}

void Binding::storeUntransformed(const QVariant &value)
{
    m_changesWhileBusy = 0;
    if (m_controller != nullptr) {
        const QScopedValueRollback busy(m_isBusy, true); // the control waits until everybody else has been told
        platform::setValueForKeyPath(m_controller, value, m_keyPath);
    }
    {
        const QScopedValueRollback busy(m_isBusy, true);
        m_value->setValue(value);
        m_lastValue = m_value->value();
    }
    if (m_changesWhileBusy > 1) {
        refresh();
    }
}

void Binding::observe()
{
    for (const QMetaObject::Connection &connection : std::as_const(m_connections)) {
        disconnect(connection);
    }
    m_connections.clear();
    const QMetaMethod changed = staticMetaObject.method(staticMetaObject.indexOfMethod("keyPathChanged()"));
    for (const platform::KeyPathStep &step : platform::keyPathSteps(m_controller, m_keyPath)) {
        if (auto *coding = qobject_cast<platform::KeyValueCoding *>(step.object)) {
            m_connections.append(connect(coding, &platform::KeyValueCoding::didChangeValueForKey, this,
                                         [this, key = step.key](const QString &changedKey) {
                                             if (changedKey == key) {
                                                 keyPathChanged();
                                             }
                                         }));
            continue;
        }
        const QMetaObject &type = *step.object->metaObject();
        const QMetaProperty property = type.property(type.indexOfProperty(step.key.toUtf8()));
        if (property.hasNotifySignal()) {
            m_connections.append(connect(step.object, property.notifySignal(), this, changed));
        }
    }
}

void Binding::keyPathChanged()
{
    if (m_isBusy) {
        ++m_changesWhileBusy;
        return;
    }
    guardedDisplay(*parent(), [this] {
        try {
            observe();                          // another object may stand on the way now
        } catch (const platform::Exception &) { // the path leads nowhere until it changes again
        }
        refresh();
    });
}

void Binding::show(const QVariant &stored)
{
    const QScopedValueRollback busy(m_isBusy, true);
    QVariant shown(m_value->type());
    try {
        shown = shownValue(stored);
    } catch (const platform::Exception &) { // a value that this control cannot show
    }
    m_value->setValue(shown);
    m_lastValue = m_value->value();
}

QVariant Binding::shownValue(const QVariant &stored)
{
    const auto *control = static_cast<const QWidget *>(parent());
    QVariant shown = stored;
    if (!m_options.valueTransformerName.isEmpty()) {
        shown = transformerNamed(m_options.valueTransformerName)->transformedValue(stored);
    }
    if (shown.isNull() && !hasPlaceholderText(*control, m_name)) {
        shown = m_options.nullPlaceholder;
    }
    const bool isNumberAsText = isText(m_value->type()) && isNumber(shown.metaType());
    m_shownNumber = isNumberAsText ? shown.metaType() : QMetaType();
    return converted(shown, m_value->type(), control->locale());
}

QVariant Binding::storedValue(const QVariant &shown) const
{
    QVariant value = shown;
    if (m_shownNumber.isValid()) {
        value = numberFromText(shown.toString(), static_cast<const QWidget *>(parent())->locale(), m_shownNumber);
    }
    if (!m_options.valueTransformerName.isEmpty()) {
        value = transformerNamed(m_options.valueTransformerName)->reverseTransformedValue(value);
    }
    return saved(value);
}

Binding *bindingOf(const QWidget *control, const QString &name)
{
    for (Binding *binding : control->findChildren<Binding *>(Qt::FindDirectChildrenOnly)) {
        if (binding->name() == name) {
            return binding;
        }
    }
    return nullptr;
}

std::optional<BindingInfo> infoForBinding(const QWidget *control, const QString &name)
{
    const Binding *binding = bindingOf(control, name);
    return binding != nullptr ? std::optional(binding->info()) : std::nullopt;
}

void exposeBinding(const QMetaObject &controlClass, const QString &name)
{
    QStringList &names = bindingsByClass()[controlClass.className()];
    if (!names.contains(name)) {
        names.append(name);
    }
}

QStringList exposedBindings(const QMetaObject &controlClass)
{
    QStringList names;
    for (const QMetaObject *type = &controlClass; type != nullptr; type = type->superClass()) {
        names = bindingsByClass().value(type->className()) + names;
    }
    return names;
}

} // namespace windowing
