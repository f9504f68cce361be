#include <OrvaneExportKit/windowing/Binding.h>

#include <OrvaneExportKit/platform/ScalarValues.h>
#include <OrvaneExportKit/platform/ValueTransformer.h>
#include <OrvaneExportKit/windowing/ControlValue.h>

#include <QtCore/QByteArrayView>
#include <QtCore/QHash>
#include <QtCore/QLocale>
#include <QtCore/QMetaProperty>
#include <QtCore/QRegularExpression>
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

QString sizeText(QSizeF size)
{
    return u"{%1, %2}"_s.arg(QString::number(size.width(), 'g', QLocale::FloatingPointShortest),
                             QString::number(size.height(), 'g', QLocale::FloatingPointShortest));
}

/// The size that a text "{width, height}" stands for; an empty one for other texts.
QSizeF sizeFromText(const QString &text)
{
    static const QRegularExpression pattern(uR"(^\s*\{\s*([^,\s]+)\s*,\s*([^,\s]+)\s*\}\s*$)"_s);
    const QRegularExpressionMatch match = pattern.match(text);
    return match.hasMatch() ? QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble()) : QSizeF(0.0, 0.0);
}

/// A value as one of the type that a control takes; the type's own first value where there is none or no way to it.
QVariant converted(const QVariant &value, QMetaType type, const QLocale &locale)
{
    if (!type.isValid() || type == value.metaType() || type == QMetaType::fromType<QVariant>()) {
        return value;
    }
    const bool isFromText = isText(value.metaType());
    if (type == QMetaType::fromType<QSizeF>() && isFromText) {
        return sizeFromText(value.toString());
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
    }
    if (m_changesWhileBusy > 1) {
        refresh(); // the value has been corrected by somebody who was told of it
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
    try {
        observe();                          // another object may stand on the way now
    } catch (const platform::Exception &) { // the path leads nowhere until it changes again
    }
    refresh();
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
    if (value.metaType() == QMetaType::fromType<QSizeF>()) {
        return sizeText(value.toSizeF());
    }
    return value.metaType() == QMetaType::fromType<QStringList>() ? QVariant(value.toList()) : value;
}

std::optional<BindingInfo> infoForBinding(const QWidget *control, const QString &name)
{
    for (const Binding *binding : control->findChildren<const Binding *>(Qt::FindDirectChildrenOnly)) {
        if (binding->name() == name) {
            return binding->info();
        }
    }
    return std::nullopt;
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
