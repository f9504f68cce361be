#include <OrvaneExportKit/windowing/FontPanel.h>

#include <OrvaneExportKit/windowing/EventGuard.h>
#include <OrvaneExportKit/windowing/Font.h>
#include <OrvaneExportKit/windowing/MainWindow.h>
#include <OrvaneExportKit/windowing/MessageLabel.h>
#include <OrvaneExportKit/windowing/TextAttributes.h>
#include <OrvaneExportKit/windowing/TextField.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QMetaMethod>
#include <QtCore/QSignalBlocker>
#include <QtGui/QFontDatabase>
#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtGui/QShortcut>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

constexpr double smallestSize = 1.0;
constexpr double largestSize = 999.0;
constexpr int sampleHeight = 64;

QPointer<FontPanel> &sharedPanel()
{
    static QPointer<FontPanel> panel;
    return panel;
}

/// A patch of the colour, over a pattern that shows through where the colour does.
QIcon colorPatch(const QColor &color, const QWidget &widget)
{
    const int extent = widget.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &widget);
    QPixmap patch(QSize(extent, extent) * widget.devicePixelRatioF());
    patch.setDevicePixelRatio(widget.devicePixelRatioF());
    patch.fill(Qt::white);
    QPainter painter(&patch);
    const QRect area(0, 0, extent, extent);
    if (color.alpha() < 255) {
        painter.fillRect(area, QBrush(Qt::gray, Qt::Dense4Pattern));
    }
    painter.fillRect(area, color);
    painter.setPen(widget.palette().color(QPalette::Mid));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
    return patch;
}

} // namespace

FontPanel &FontPanel::sharedFontPanel()
{
    QPointer<FontPanel> &panel = sharedPanel();
    if (panel == nullptr) {
        panel = new FontPanel; // belongs to the application, or to the modal window that it was opened over
        qAddPostRoutine([] { delete sharedPanel(); });
    }
    return *panel;
}

bool FontPanel::sharedFontPanelExists()
{
    return sharedPanel() != nullptr;
}

FontPanel::FontPanel()
    : QDialog(nullptr, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      m_form(new QFormLayout),
      m_sample(new TextField(this)),
      m_missingNote(new MessageLabel(this)),
      m_family(new QFontComboBox(this)),
      m_style(new QComboBox(this)),
      m_size(new QDoubleSpinBox(this)),
      m_underline(new QCheckBox(this)),
      m_strikethrough(new QCheckBox(this)),
      m_textColor{new QCheckBox(this), new QPushButton(this), {}},
      m_background{new QCheckBox(this), new QPushButton(this), {}},
      m_undo(new QPushButton(this))
{
    setAttribute(Qt::WA_QuitOnClose, false);
    m_sample->setEditable(false);
    m_sample->setFocusPolicy(Qt::NoFocus);
    m_sample->setAlignment(Qt::AlignCenter);
    m_sample->setFixedHeight(sampleHeight);
    m_size->setRange(smallestSize, largestSize);
    m_size->setDecimals(1);
    m_size->setKeyboardTracking(false);
    m_missingNote->setWordWrap(true);
    m_undo->setAutoDefault(false);
    layOut();
    setTexts();
    setSelectedFont(Font::userFontOfSize(12.0));
    setSelectedAttributes({});

    connectControls();
    rememberFocus(QApplication::focusWidget());
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget * /*old*/, QWidget *now) { guardedDisplay(*this, [this, now] { rememberFocus(now); }); });
}

/// What the user changes goes to other objects, which may refuse it.
void FontPanel::connectControls()
{
    const auto onChange = [this](auto *control, auto changed, const auto &work) {
        connect(control, changed, this, [this, work] { guardedAction(*this, work); });
    };
    onChange(m_family, &QComboBox::activated, [this] {
        m_missingFont.reset();
        showStyles(m_shownFont);
        fontChanged(FontChange::FamilyAndStyle);
    });
    onChange(m_style, &QComboBox::activated, [this] { fontChanged(FontChange::FamilyAndStyle); });
    onChange(m_size, &QDoubleSpinBox::valueChanged, [this] { fontChanged(FontChange::Size); });
    onChange(m_underline, &QCheckBox::toggled, [this] { lineChanged(underlineStyleAttributeName, *m_underline); });
    onChange(m_strikethrough, &QCheckBox::toggled,
             [this] { lineChanged(strikethroughStyleAttributeName, *m_strikethrough); });
    onChange(m_textColor.isSet, &QCheckBox::toggled, [this] { textColorChanged(); });
    onChange(m_background.isSet, &QCheckBox::toggled, [this] { backgroundColorChanged(); });
    onChange(m_textColor.button, &QPushButton::clicked,
             [this] { chooseColor(m_textColor, &FontPanel::textColorChanged); });
    onChange(m_background.button, &QPushButton::clicked,
             [this] { chooseColor(m_background, &FontPanel::backgroundColorChanged); });
    onChange(m_undo, &QPushButton::clicked, [this] { undo(); });
    onChange(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, [this] { undo(); });
}

/// A dialog that goes while it has the focus moves the focus once more, when it is a font panel no longer.
FontPanel::~FontPanel()
{
    disconnect(qApp, nullptr, this, nullptr);
}

void FontPanel::layOut()
{
    for (QWidget *field :
         {static_cast<QWidget *>(m_family), static_cast<QWidget *>(m_style), static_cast<QWidget *>(m_size)}) {
        auto *label = new QLabel(this);
        label->setBuddy(field);
        m_form->addRow(label, field);
    }
    for (QCheckBox *box : {m_underline, m_strikethrough}) {
        m_form->addRow(nullptr, box);
    }
    for (const ColorChoice *choice : {&m_textColor, &m_background}) {
        choice->button->setAutoDefault(false);
        choice->isSet->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding); // centred beside the button
        m_form->addRow(choice->isSet, choice->button);
    }
    auto *layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    layout->addWidget(m_sample);
    layout->addWidget(m_missingNote);
    layout->addLayout(m_form);
    layout->addStretch();
    layout->addWidget(m_undo, 0, Qt::AlignTrailing);
}

void FontPanel::setTexts()
{
    const auto setLabel = [this](QWidget *field, const QString &text) {
        auto *label = qobject_cast<QLabel *>(m_form->labelForField(field));
        label->setText(text);
    };
    setWindowTitle(tr("Fonts"));
    m_sample->setAccessibleName(tr("Sample"));
    setLabel(m_family, tr("&Family:"));
    setLabel(m_style, tr("&Style:"));
    setLabel(m_size, tr("Si&ze:"));
    m_size->setSuffix(tr(" pt"));
    m_underline->setText(tr("&Underline"));
    m_strikethrough->setText(tr("Stri&kethrough"));
    m_textColor.isSet->setText(tr("&Text color:"));
    m_textColor.button->setAccessibleName(tr("Choose the text color"));
    m_background.isSet->setText(tr("&Background:"));
    m_background.button->setAccessibleName(tr("Choose the background color"));
    m_undo->setText(tr("U&ndo"));
    m_undo->setToolTip(tr("Takes back the last change"));
    showMissingFont();
}

void FontPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        guardedDisplay(*this, [this] { setTexts(); });
    }
    QDialog::changeEvent(event);
}

void FontPanel::orderFront()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (modal != nullptr && modal != parentWidget() && !isAncestorOf(modal)) {
        setParent(modal, windowFlags());
    }
    rememberFocus(QApplication::focusWidget());
    stayAboveWindow();
    show();
    raise();
    activateWindow();
}

/// Keeps the panel above the window that it serves, where it is no part of a modal one.
void FontPanel::stayAboveWindow()
{
    const QWidget *served = m_lastFocused != nullptr ? m_lastFocused->window() : mainWindow();
    if (parentWidget() != nullptr || served == nullptr || served == this) {
        return;
    }
    winId(); // makes the window handle
    if (windowHandle()->transientParent() != served->windowHandle()) {
        hide(); // window managers look at it when a window is shown
        windowHandle()->setTransientParent(served->windowHandle());
    }
}

/// A control outside the panel and outside the dialogs that the panel opens. A modal window that the panel is not part
/// of, such as an alert, only interrupts.
void FontPanel::rememberFocus(QWidget *widget)
{
    if (widget == nullptr || widget == m_lastFocused) {
        return;
    }
    for (const QWidget *outer = widget; outer != nullptr; outer = outer->parentWidget()) {
        if (outer == this) {
            return;
        }
    }
    const QWidget *window = widget->window();
    if (isVisible() && window->isModal() && !window->isAncestorOf(this)) {
        return;
    }
    m_lastFocused = widget;
    forgetChanges();
}

QFont FontPanel::selectedFont() const
{
    QFont font = m_missingFont ? *m_missingFont
                 : m_style->currentIndex() < 0
                     ? QFont(m_family->currentFont().family())
                     : QFontDatabase::font(m_family->currentFont().family(), m_style->currentText(), 1);
    font.setPointSizeF(m_size->value());
    return font;
}

void FontPanel::setSelectedFont(const QFont &font)
{
    showFont(font);
    m_fontChange = FontChange::Everything;
    forgetChanges();
}

void FontPanel::showFont(const QFont &font)
{
    const QSignalBlocker sizeBlocker(m_size);
    m_size->setValue(Font::pointSize(font));
    m_missingFont = Font::isInstalled(font) ? std::nullopt : std::optional(font);
    if (m_missingFont) {
        m_family->setCurrentIndex(-1);
        m_family->setEditText(font.family());
    } else {
        m_family->setCurrentFont(font);
    }
    showStyles(font);
    showMissingFont();
    m_shownFont = selectedFont();
    showSample();
}

void FontPanel::showMissingFont()
{
    m_missingNote->setVisible(m_missingFont.has_value());
    if (m_missingFont) {
        m_missingNote->setText(
            tr("The font “%1” is not installed. Another one stands in for it here.").arg(m_missingFont->family()));
    }
}

void FontPanel::setSelectedAttributes(const QVariantMap &attributes)
{
    showAttributes(attributes);
    m_attributeChange = {};
    forgetChanges();
}

void FontPanel::showAttributes(const QVariantMap &attributes)
{
    const QSignalBlocker underlineBlocker(m_underline);
    const QSignalBlocker strikethroughBlocker(m_strikethrough);
    m_underline->setChecked(attributes.value(underlineStyleAttributeName).toInt() != 0);
    m_strikethrough->setChecked(attributes.value(strikethroughStyleAttributeName).toInt() != 0);
    m_textColor.color = palette().color(QPalette::Text);
    m_background.color = palette().color(QPalette::Base);
    showColor(m_textColor, attributes.value(foregroundColorAttributeName));
    showColor(m_background, attributes.value(backgroundColorAttributeName));
    m_shownAttributes = attributes;
    showSample();
}

/// Lists the styles of the family and selects the one that the font has, or the closest one.
void FontPanel::showStyles(const QFont &font)
{
    const QSignalBlocker blocker(m_style);
    m_style->clear();
    m_style->setEnabled(!m_missingFont);
    if (m_missingFont) {
        return;
    }
    const QString family = m_family->currentFont().family();
    const QStringList styles = QFontDatabase::styles(family);
    m_style->addItems(styles);
    const QString name = Font::fontName(font);
    const auto same = std::find_if(styles.begin(), styles.end(), [&](const QString &style) {
        return Font::fontName(QFontDatabase::font(family, style, 1)) == name;
    });
    m_style->setCurrentText(same != styles.end() ? *same : Font::closestStyle(family, font));
}

void FontPanel::showSample()
{
    QVariantMap attributes{{fontAttributeName, selectedFont()}};
    if (m_underline->isChecked()) {
        attributes.insert(underlineStyleAttributeName, 1);
    }
    if (m_strikethrough->isChecked()) {
        attributes.insert(strikethroughStyleAttributeName, 1);
    }
    if (m_textColor.isSet->isChecked()) {
        attributes.insert(foregroundColorAttributeName, m_textColor.color);
    }
    if (m_background.isSet->isChecked()) {
        attributes.insert(backgroundColorAttributeName, m_background.color);
    }
    m_sample->setAttributedStringValue(platform::AttributedString(Font::displayName(selectedFont()), attributes));
}

/// Shows a colour in a choice, or that there is none.
void FontPanel::showColor(ColorChoice &choice, const QVariant &color)
{
    const QSignalBlocker blocker(choice.isSet);
    const bool isColor = color.metaType() == QMetaType::fromType<QColor>() && color.value<QColor>().isValid();
    if (isColor) {
        choice.color = color.value<QColor>();
    }
    choice.isSet->setChecked(isColor);
    showButtonColor(choice);
}

void FontPanel::showButtonColor(const ColorChoice &choice)
{
    choice.button->setIcon(colorPatch(choice.color, *choice.button));
    choice.button->setText(choice.color.name(QColor::HexRgb).toUpper());
}

QFont FontPanel::convertFont(const QFont &font) const
{
    QFont converted = m_fontChange == FontChange::Size ? font : selectedFont();
    converted.setPointSizeF(m_fontChange == FontChange::FamilyAndStyle ? Font::pointSize(font) : m_size->value());
    return converted;
}

QVariantMap FontPanel::convertAttributes(const QVariantMap &attributes) const
{
    QVariantMap converted = attributes;
    if (m_attributeChange.value.isValid()) {
        converted.insert(m_attributeChange.name, m_attributeChange.value);
    } else {
        converted.remove(m_attributeChange.name);
    }
    return converted;
}

QColor FontPanel::color() const
{
    return m_background.isSet->isChecked() ? m_background.color : QColor();
}

void FontPanel::fontChanged(FontChange change)
{
    m_changes.append({m_shownFont, {}});
    m_shownFont = selectedFont();
    m_fontChange = change;
    showMissingFont();
    showSample();
    m_undo->setEnabled(true);
    sendToLastFocused("changeFont");
}

void FontPanel::attributeChanged(const QString &name, const QVariant &value)
{
    m_changes.append({std::nullopt, {name, m_shownAttributes.value(name)}});
    m_undo->setEnabled(true);
    sendAttribute({name, value});
}

void FontPanel::sendAttribute(const AttributeChange &change)
{
    if (change.value.isValid()) {
        m_shownAttributes.insert(change.name, change.value);
    } else {
        m_shownAttributes.remove(change.name);
    }
    m_attributeChange = change;
    showSample();
    const bool isBackground = change.name == backgroundColorAttributeName && change.value.isValid();
    sendToLastFocused(isBackground ? "changeDocumentBackgroundColor" : "changeAttributes");
}

void FontPanel::undo()
{
    if (m_changes.isEmpty()) {
        return;
    }
    const Change last = m_changes.takeLast();
    m_undo->setEnabled(!m_changes.isEmpty());
    if (last.earlierFont) {
        showFont(*last.earlierFont);
        m_fontChange = FontChange::Everything;
        sendToLastFocused("changeFont");
        return;
    }
    QVariantMap attributes = m_shownAttributes;
    attributes.insert(last.earlierAttribute.name, last.earlierAttribute.value);
    showAttributes(attributes);
    sendAttribute(last.earlierAttribute);
}

void FontPanel::forgetChanges()
{
    m_changes.clear();
    m_undo->setEnabled(false);
}

void FontPanel::lineChanged(const QString &name, const QCheckBox &box)
{
    attributeChanged(name, box.isChecked() ? QVariant(1) : QVariant());
}

void FontPanel::textColorChanged()
{
    attributeChanged(foregroundColorAttributeName,
                     m_textColor.isSet->isChecked() ? QVariant(m_textColor.color) : QVariant());
}

void FontPanel::backgroundColorChanged()
{
    attributeChanged(backgroundColorAttributeName,
                     m_background.isSet->isChecked() ? QVariant(m_background.color) : QVariant());
}

/// Lets the user choose a colour, which then is set.
void FontPanel::chooseColor(ColorChoice &choice, void (FontPanel::*changed)())
{
    auto *dialog = new QColorDialog(choice.color, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QColorDialog::ShowAlphaChannel);
    dialog->setWindowTitle(choice.button->accessibleName());
    connect(dialog, &QColorDialog::colorSelected, this, [this, &choice, changed](const QColor &color) {
        guardedAction(*this, [this, &choice, &color, changed] {
            showColor(choice, color);
            (this->*changed)();
        });
    });
    dialog->open();
}

void FontPanel::sendToLastFocused(const char *function)
{
    const QByteArray signature = QByteArray(function) + "(windowing::FontPanel*)";
    for (QWidget *widget = m_lastFocused; widget != nullptr; widget = widget->parentWidget()) {
        const int index = widget->metaObject()->indexOfMethod(signature);
        if (index >= 0) {
            widget->metaObject()->method(index).invoke(widget, Q_ARG(windowing::FontPanel *, this));
            return;
        }
    }
}

} // namespace windowing
