#include <OrvaneExportKit/windowing/ControlValue.h>

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/windowing/Binding.h>

#include <QtCore/QEvent>
#include <QtCore/QMetaProperty>
#include <QtGui/QFocusEvent>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTextEdit>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

/// Commits a binding when the focus leaves a text editor that has no signal for it.
class FocusOutFilter final : public QObject
{
public:
    explicit FocusOutFilter(Binding &binding) : QObject(&binding), m_binding(binding) {}

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // An editor that is being deleted loses the focus when it is no more than a plain widget.
        const bool isEditor = qobject_cast<QAbstractScrollArea *>(watched) != nullptr;
        if (isEditor && event->type() == QEvent::FocusOut &&
            static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason) {
            m_binding.commitEdit();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    Binding &m_binding;
};

/// Commits a binding when something has been dropped on the widget that a text is typed in. A drop is an edit that ends
/// at once, also where the focus is elsewhere and will not leave.
class DropFilter final : public QObject
{
public:
    DropFilter(QWidget &receiver, Binding &binding) : QObject(&binding), m_binding(binding)
    {
        receiver.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Drop) {
            QMetaObject::invokeMethod(&m_binding, "commitEdit", Qt::QueuedConnection); // when it has been taken
        }
        return QObject::eventFilter(watched, event);
    }

private:
    Binding &m_binding;
};

/// A Qt property.
class PropertyValue : public ControlValue
{
public:
    PropertyValue(QWidget &control, const QMetaProperty &property) : m_control(control), m_property(property) {}

    QMetaType type() const override { return m_property.metaType(); }
    QVariant value() const override { return m_property.read(&m_control); }
    void setValue(const QVariant &value) override { m_property.write(&m_control, value); }

    void followEdits(Binding &binding) override
    {
        if (isTextOfEditor()) {
            m_control.installEventFilter(new FocusOutFilter(binding));
            new DropFilter(*static_cast<QAbstractScrollArea &>(m_control).viewport(), binding);
            return;
        }
        if (isTextOfField()) {
            new DropFilter(m_control, binding);
        }
        if (changed().isValid()) {
            const QMetaObject &receiver = Binding::staticMetaObject;
            QObject::connect(&m_control, changed(), &binding, receiver.method(receiver.indexOfMethod("commitEdit()")));
        }
    }

    bool canBeEdited() const override { return isTextOfEditor() || changed().isValid(); }

private:
    QMetaMethod changed() const { return isTextOfField() ? editingFinished() : m_property.notifySignal(); }

    QMetaMethod editingFinished() const
    {
        const QMetaObject &type = *m_control.metaObject();
        return type.method(type.indexOfSignal("editingFinished()"));
    }

    /// Fields that tell when an edit ends. Spin boxes do too, but they have a say in it with their `keyboardTracking`.
    bool isTextOfField() const
    {
        return m_property.isUser() && editingFinished().isValid() &&
               qobject_cast<QAbstractSpinBox *>(&m_control) == nullptr;
    }

    bool isTextOfEditor() const
    {
        const bool isEditor =
            qobject_cast<QPlainTextEdit *>(&m_control) != nullptr || qobject_cast<QTextEdit *>(&m_control) != nullptr;
        return isEditor && m_property.notifySignal().name() == "textChanged";
    }

    QWidget &m_control;
    QMetaProperty m_property;
};

/// Makes a button checked or not, also one of an exclusive group, which Qt does not let go by itself.
void setChecked(QAbstractButton &button, bool checked)
{
    QButtonGroup *group = button.group();
    const bool isAutoExclusive = button.autoExclusive();
    const bool isInExclusiveGroup = group != nullptr && group->exclusive();
    if (!checked) {
        button.setAutoExclusive(false);
        if (isInExclusiveGroup) {
            group->setExclusive(false);
        }
    }
    button.setChecked(checked);
    if (!checked) {
        button.setAutoExclusive(isAutoExclusive);
        if (isInExclusiveGroup) {
            group->setExclusive(true);
        }
    }
}

/// Whether a button is checked.
class CheckedValue final : public PropertyValue
{
public:
    CheckedValue(QAbstractButton &button, const QMetaProperty &property)
        : PropertyValue(button, property), m_button(button)
    {
    }

    void setValue(const QVariant &value) override { setChecked(m_button, value.toBool()); }

private:
    QAbstractButton &m_button;
};

/// The tag of the one button of a group that is checked.
class SelectedTagValue final : public ControlValue
{
public:
    explicit SelectedTagValue(QAbstractButton &button) : m_button(button) {}

    QMetaType type() const override { return tag().metaType(); }
    QVariant value() const override { return m_button.isChecked() ? tag() : QVariant(); }
    void setValue(const QVariant &value) override { setChecked(m_button, value == tag()); }

    void followEdits(Binding &binding) override
    {
        QObject::connect(&m_button, &QAbstractButton::toggled, &binding, &Binding::commitEdit);
    }

private:
    QVariant tag() const { return m_button.property("tag"); }

    QAbstractButton &m_button;
};

/// What the chosen entry of a combo box is: its index, its text or its data. Only choices of the user are followed, so
/// that filling the combo box stores nothing.
class ComboBoxValue final : public ControlValue
{
public:
    enum class Kind { Index, Text, Data };

    ComboBoxValue(QComboBox &comboBox, Kind kind) : m_comboBox(comboBox), m_kind(kind)
    {
        const QVariantList itemData = comboBox.property("itemData").toList();
        for (int index = 0; index < itemData.size() && index < comboBox.count(); ++index) {
            comboBox.setItemData(index, itemData[index]);
        }
    }

    QMetaType type() const override
    {
        switch (m_kind) {
        case Kind::Index:
            return QMetaType::fromType<int>();
        case Kind::Text:
            return QMetaType::fromType<QString>();
        case Kind::Data:
            break;
        }
        return {};
    }

    QVariant value() const override
    {
        switch (m_kind) {
        case Kind::Index:
            return m_comboBox.currentIndex();
        case Kind::Text:
            return m_comboBox.currentText();
        case Kind::Data:
            break;
        }
        return m_comboBox.currentData();
    }

    void setValue(const QVariant &value) override
    {
        switch (m_kind) {
        case Kind::Index:
            m_comboBox.setCurrentIndex(value.toInt());
            break;
        case Kind::Text:
            m_comboBox.setCurrentIndex(
                m_comboBox.findText(value.toString(), Qt::MatchExactly | Qt::MatchCaseSensitive));
            if (m_comboBox.isEditable()) {
                m_comboBox.setEditText(value.toString());
            }
            break;
        case Kind::Data:
            m_comboBox.setCurrentIndex(m_comboBox.findData(value));
            break;
        }
    }

    void followEdits(Binding &binding) override
    {
        QObject::connect(&m_comboBox, &QComboBox::activated, &binding, &Binding::commitEdit);
        if (m_comboBox.isEditable()) {
            QObject::connect(m_comboBox.lineEdit(), &QLineEdit::editingFinished, &binding, &Binding::commitEdit);
            new DropFilter(*m_comboBox.lineEdit(), binding);
        }
    }

private:
    QComboBox &m_comboBox;
    Kind m_kind;
};

std::unique_ptr<ControlValue> comboBoxValue(QComboBox &comboBox, const QString &name)
{
    using Kind = ComboBoxValue::Kind;
    if (name == u"currentIndex") {
        return std::make_unique<ComboBoxValue>(comboBox, Kind::Index);
    }
    if (name == u"currentText") {
        return std::make_unique<ComboBoxValue>(comboBox, Kind::Text);
    }
    if (name == u"currentData") {
        return std::make_unique<ComboBoxValue>(comboBox, Kind::Data);
    }
    return nullptr;
}

} // namespace

ControlValue::~ControlValue() = default;
std::unique_ptr<ControlValue> ControlValue::of(QWidget &control, const QString &name)
{
    if (auto *comboBox = qobject_cast<QComboBox *>(&control)) {
        if (auto value = comboBoxValue(*comboBox, name)) {
            return value;
        }
    }
    const QMetaObject &type = *control.metaObject();
    const QMetaProperty property = type.property(type.indexOfProperty(name.toUtf8()));
    if (auto *button = qobject_cast<QAbstractButton *>(&control)) {
        if (name == u"selectedTag") {
            return std::make_unique<SelectedTagValue>(*button);
        }
        if (name == u"checked") {
            return std::make_unique<CheckedValue>(*button, property);
        }
    }
    if (!property.isValid() || !property.isWritable()) {
        throw platform::InvalidArgumentException(
            u"%1 has no value \"%2\" to bind"_s.arg(QString::fromLatin1(type.className()), name).toStdString());
    }
    return std::make_unique<PropertyValue>(control, property);
}

} // namespace windowing
