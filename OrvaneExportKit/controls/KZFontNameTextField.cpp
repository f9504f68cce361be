#include <OrvaneExportKit/controls/KZFontNameTextField.h>

#include <OrvaneExportKit/platform/ArchivedClass.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/windowing/ArchivedViews.h>
#include <OrvaneExportKit/windowing/Binding.h>
#include <OrvaneExportKit/windowing/EventGuard.h>
#include <OrvaneExportKit/windowing/Font.h>
#include <OrvaneExportKit/windowing/FontPanel.h>
#include <OrvaneExportKit/windowing/Frames.h>
#include <OrvaneExportKit/windowing/TextAttributes.h>

#include <QtGui/QHelpEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QToolTip>

#include <array>
#include <charconv>
#include <limits>

using namespace Qt::Literals::StringLiterals;
using windowing::guardedAction;
using windowing::guardedDisplay;

namespace {

const bool exposed = [] {
    for (const QString &name : {u"selectedFontAttributes"_s, u"selectedFontName"_s, u"selectedFontSize"_s}) {
        windowing::exposeBinding(KZFontNameTextField::staticMetaObject, name);
    }
    return true;
}();

constexpr float firstSize = 10.0F;

/// A size without decimals. `std::to_chars` rounds a half to even, where `QString::asprintf` rounds it up.
QString wholePoints(double size)
{
    constexpr std::size_t longest = std::numeric_limits<double>::max_exponent10 + 3;
    std::array<char, longest> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), size, std::chars_format::fixed, 0);
    return QString::fromLatin1(digits.data(), end.ptr - digits.data());
}

QString shownText(const QString &name, double size)
{
    return u"%1, %2pt"_s.arg(name.isNull() ? u"(null)"_s : name, wholePoints(size));
}

template <typename Value>
QVariant requireOrNothing(const QVariant &object, const char *field)
{
    if (object.isValid() && object.metaType() != QMetaType::fromType<Value>()) {
        throw platform::ArchiveException(std::string("KZFontNameTextField: `") + field + "` is of another type");
    }
    return object;
}

QVariant nameOrNothing(const QString &name)
{
    return name.isNull() ? QVariant() : QVariant(name);
}

void registerClass()
{
    if (qobject_cast<QApplication *>(QCoreApplication::instance()) == nullptr) {
        return;
    }
    static const platform::ArchivedClassRegistration fontField(
        {{u"KZFontNameTextField"_s, u"NSTextField"_s, u"NSControl"_s, u"NSView"_s, u"NSResponder"_s, u"NSObject"_s},
         QMetaType::fromType<KZFontNameTextField *>(),
         [](const QVariant &field, platform::Coder &coder) {
             field.value<KZFontNameTextField *>()->encodeWithCoder(coder);
         },
         {}});
}
Q_COREAPP_STARTUP_FUNCTION(registerClass)

} // namespace

KZFontNameTextField::KZFontNameTextField(QWidget *parent)
    : TextField(parent), m_missingWord(new QLabel(this)), m_panelButton(new QToolButton(this))
{
    m_missingWord->setObjectName(u"missingWord"_s);
    m_missingWord->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_missingWord->setAlignment(Qt::AlignCenter);
    m_missingWord->hide();
    m_panelButton->setObjectName(u"fontPanelButton"_s);
    m_panelButton->setText(u"\u2026"_s);
    m_panelButton->setAutoRaise(true);
    m_panelButton->setFocusPolicy(Qt::NoFocus); // the space key opens the panel
    m_panelButton->setCursor(Qt::ArrowCursor);
    connect(m_panelButton, &QToolButton::clicked, this, [this] { guardedAction(*this, [this] { openFontPanel(); }); });
    setTexts();
    setSelectedFontAttributes({});
    setSelectedFontName(windowing::Font::fontName(windowing::Font::userFontOfSize(double(firstSize))));
    setSelectedFontSize(firstSize);
    setEditable(false);
    setBezelStyle(BezelStyle::Rounded);
    setAlignment(Qt::AlignCenter);
}

std::unique_ptr<KZFontNameTextField> KZFontNameTextField::initWithFrame(const QRectF &frame)
{
    auto field = std::make_unique<KZFontNameTextField>();
    windowing::setFrame(*field, frame);
    return field;
}

std::unique_ptr<KZFontNameTextField> KZFontNameTextField::initWithCoder(platform::Coder &coder)
{
    auto field = std::make_unique<KZFontNameTextField>();
    field->m_selectedFontName = QString();
    field->m_selectedFontSize = 0.0F;
    windowing::decodeTextField(*field, coder);
    const bool hasKeys = coder.allowsKeyedCoding();
    const auto decode = [&coder, hasKeys](const QString &key) {
        return hasKeys ? coder.decodeObjectForKey(key) : coder.decodeObject();
    };
    field->setSelectedFontAttributes(
        requireOrNothing<QVariantMap>(decode(u"selectedFontAttributes"_s), "selectedFontAttributes"));
    field->setSelectedFontName(requireOrNothing<QString>(decode(u"selectedFontName"_s), "selectedFontName").toString());
    if (hasKeys) {
        field->setSelectedFontSize(coder.decodeFloatForKey(u"selectedFontSize"_s));
    } else {
        // The text keeps the size that it has: archives without keys have always been read so.
        coder.decodeValueOfObjCType("f", &field->m_selectedFontSize);
    }
    return field;
}

void KZFontNameTextField::encodeWithCoder(platform::Coder &coder) const
{
    windowing::encodeTextField(*this, coder);
    if (coder.allowsKeyedCoding()) {
        coder.encodeObject(m_selectedFontAttributes, u"selectedFontAttributes"_s);
        coder.encodeObject(nameOrNothing(m_selectedFontName), u"selectedFontName"_s);
        coder.encodeFloat(m_selectedFontSize, u"selectedFontSize"_s);
        return;
    }
    coder.encodeObject(m_selectedFontAttributes);
    coder.encodeObject(nameOrNothing(m_selectedFontName));
    coder.encodeValueOfObjCType("f", &m_selectedFontSize);
}

void KZFontNameTextField::setSelectedFontAttributes(const QVariant &attributes)
{
    m_selectedFontAttributes = attributes;
    setFontNameWithFont({});
}

void KZFontNameTextField::setSelectedFontName(const QString &name)
{
    m_selectedFontName = name;
    setFontNameWithFont({});
}

void KZFontNameTextField::setSelectedFontSize(float size)
{
    m_selectedFontSize = size;
    setFontNameWithFont({});
}

void KZFontNameTextField::setFontNameWithFont(const std::optional<QFont> &font)
{
    platform::AttributedString text = attributedStringValue();
    text.setAttributes(m_fieldAttributes.value_or(QVariantMap()), {0, text.length()});
    const QString string = font ? shownText(windowing::Font::displayName(*font), windowing::Font::pointSize(*font))
                                : shownText(m_selectedFontName, double(m_selectedFontSize));
    text.replaceCharacters({0, text.length()}, string);
    text.addAttributes(attributesOrNone(), {0, text.length()});
    setAttributedStringValue(text);
    const QFont shown = font.value_or(windowing::Font::fontWithName(m_selectedFontName, double(firstSize)));
    m_isMissing = (font || !m_selectedFontName.isEmpty()) && !windowing::Font::isInstalled(shown);
    layOutParts();
}

void KZFontNameTextField::setTexts()
{
    m_panelButton->setAccessibleName(tr("Choose a font"));
    m_panelButton->setToolTip(m_panelButton->accessibleName());
    m_missingWord->setText(tr("not installed"));
    layOutParts();
}

/// Puts button and word behind the text, inside the frame. The word gives way where it leaves the text no room.
void KZFontNameTextField::layOutParts()
{
    constexpr int frame = 3;
    constexpr int fewestLetters = 8;
    const QRect inside = rect().adjusted(frame, frame, -frame, -frame);
    const int buttonWidth = m_panelButton->sizeHint().width();
    const int wordWidth = m_missingWord->sizeHint().width() + 4 * frame;
    const int room = inside.width() - buttonWidth - fewestLetters * fontMetrics().averageCharWidth();
    const bool hasWord = m_isMissing && wordWidth <= room;
    const QRect button(inside.right() + 1 - buttonWidth, inside.top(), buttonWidth, inside.height());
    const QRect word(button.left() - wordWidth, inside.top(), wordWidth, inside.height());
    m_panelButton->setGeometry(QStyle::visualRect(layoutDirection(), rect(), button));
    m_missingWord->setGeometry(QStyle::visualRect(layoutDirection(), rect(), word));
    m_missingWord->setVisible(hasWord);
    const int taken = buttonWidth + (hasWord ? wordWidth : 0);
    isRightToLeft() ? setTextMargins(taken, 0, 0, 0) : setTextMargins(0, 0, taken, 0);
}

void KZFontNameTextField::awakeFromNib()
{
    const platform::AttributedString remembered = attributedStringValue();
    setStringValue(u" "_s); // makes the field show which attributes it gives to text
    m_fieldAttributes = attributedStringValue().attributesAtIndex(0);
    setAttributedStringValue(remembered);
}

void KZFontNameTextField::changeFont(windowing::FontPanel *sender)
{
    if (m_target == nullptr) {
        return;
    }
    if (!QMetaObject::invokeMethod(m_target, m_action.constData(), Qt::DirectConnection,
                                   Q_ARG(windowing::FontPanel *, sender))) {
        throw platform::UnrecognisedOperationException(std::string("changeFont: ") +
                                                       m_target->metaObject()->className() + " has no function `" +
                                                       m_action.toStdString() + "` for a windowing::FontPanel *");
    }
}

void KZFontNameTextField::changeAttributes(windowing::FontPanel *sender)
{
    takeAttributes(sender->convertAttributes(attributesOrNone()));
}

void KZFontNameTextField::changeDocumentBackgroundColor(windowing::FontPanel *sender)
{
    const QColor color = sender->color();
    if (!color.isValid()) {
        throw platform::InvalidArgumentException("changeDocumentBackgroundColor: the sender has no colour");
    }
    QVariantMap attributes = attributesOrNone();
    attributes.insert(windowing::backgroundColorAttributeName, color);
    takeAttributes(attributes);
}

/// The model comes first: who observes it sees the new value while the field still shows the old one.
void KZFontNameTextField::takeAttributes(const QVariantMap &attributes)
{
    if (windowing::Binding *binding = windowing::bindingOf(this, u"selectedFontAttributes"_s)) {
        binding->storeUntransformed(attributes);
    } else {
        setSelectedFontAttributes(attributes);
    }
}

void KZFontNameTextField::showInFontPanel() const
{
    windowing::FontPanel &panel = windowing::FontPanel::sharedFontPanel();
    panel.setSelectedFont(windowing::Font::fontWithName(m_selectedFontName, double(m_selectedFontSize)));
    panel.setSelectedAttributes(attributesOrNone());
}

void KZFontNameTextField::openFontPanel()
{
    setFocus();
    showInFontPanel();
    windowing::FontPanel::sharedFontPanel().orderFront();
}

void KZFontNameTextField::showHelp(const QHelpEvent &help)
{
    const QString hint = tr("Double-click or press Space to choose a font");
    const QString missing = m_isMissing ? tr("This font is not installed.") + u'\n' : QString();
    QToolTip::showText(help.globalPos(), text() + u'\n' + missing + hint, this);
}

bool KZFontNameTextField::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        guardedDisplay(*this, [this, event] { showHelp(*static_cast<const QHelpEvent *>(event)); });
        return true;
    }
    return TextField::event(event);
}

void KZFontNameTextField::changeEvent(QEvent *event)
{
    TextField::changeEvent(event);
    guardedDisplay(*this, [this, event] { followChange(*event); });
}

void KZFontNameTextField::followChange(const QEvent &event)
{
    const bool changesLook = event.type() == QEvent::PaletteChange || event.type() == QEvent::FontChange;
    if (changesLook && m_fieldAttributes) {
        awakeFromNib();
        setFontNameWithFont({});
    }
    if (event.type() == QEvent::LanguageChange) {
        setTexts();
    }
    layOutParts();
}

void KZFontNameTextField::resizeEvent(QResizeEvent *event)
{
    TextField::resizeEvent(event);
    guardedDisplay(*this, [this] { layOutParts(); });
}

/// Nothing is selected, whatever brings the focus: that would cover the chosen attributes.
void KZFontNameTextField::focusInEvent(QFocusEvent * /*event*/)
{
    QFocusEvent plain(QEvent::FocusIn, Qt::OtherFocusReason);
    TextField::focusInEvent(&plain);
    if (windowing::FontPanel::sharedFontPanelExists()) {
        guardedAction(*this, [this] { showInFontPanel(); });
    }
}

void KZFontNameTextField::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier) {
        guardedAction(*this, [this] { openFontPanel(); });
        return;
    }
    TextField::keyPressEvent(event);
}

void KZFontNameTextField::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        guardedAction(*this, [this] { openFontPanel(); });
        return;
    }
    TextField::mouseDoubleClickEvent(event);
}
