#include <OrvaneExportKit/windowing/FontPanel.h>

#include <OrvaneExportKit/windowing/EventGuard.h>
#include <OrvaneExportKit/windowing/Font.h>
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
      m_family(new QFontComboBox(this)),
      m_style(new QComboBox(this)),
      m_size(new QDoubleSpinBox(this)),
      m_underline(new QCheckBox(this)),
      m_strikethrough(new QCheckBox(this)),
      m_textColor{new QCheckBox(this), new QPushButton(this), {}},
      m_background{new QCheckBox(this), new QPushButton(this), {}}
{
    setAttribute(Qt::WA_QuitOnClose, false);
    m_sample->setEditable(false);
    m_sample->setFocusPolicy(Qt::NoFocus);
    m_sample->setAlignment(Qt::AlignCenter);
    m_sample->setFixedHeight(sampleHeight);
    m_size->setRange(smallestSize, largestSize);
    m_size->setDecimals(1);
    m_size->setKeyboardTracking(false);
    layOut();
    setTexts();
    setSelectedFont(Font::userFontOfSize(12.0));
    setSelectedAttributes({});

    connectControls();
    rememberFocus(QApplication::focusWidget());
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget * /*old*/, QWidget *now) { rememberFocus(now); });
}

/// What the user changes goes to other objects, which may refuse it.
void FontPanel::connectControls()
{
    const auto onChange = [this](auto *control, auto changed, const auto &work) {
        connect(control, changed, this, [this, work] { guardedAction(*this, work); });
    };
    onChange(m_family, &QComboBox::activated, [this] {
        showStyles(m_family->currentFont());
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
    layout->addLayout(m_form);
    layout->addStretch();
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
}

void FontPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
    }
    QDialog::changeEvent(event);
}

void FontPanel::orderFront()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (modal != nullptr && modal != parentWidget() && !isAncestorOf(modal)) {
        setParent(modal, windowFlags());
    }
    show();
    raise();
    activateWindow();
}

/// A control outside the panel and outside the dialogs that the panel opens.
void FontPanel::rememberFocus(QWidget *widget)
{
    for (const QWidget *outer = widget; outer != nullptr; outer = outer->parentWidget()) {
        if (outer == this) {
            return;
        }
    }
    if (widget != nullptr) {
        m_lastFocused = widget;
    }
}

QFont FontPanel::selectedFont() const
{
    QFont font = m_style->currentIndex() < 0
                     ? QFont(m_family->currentFont().family())
                     : QFontDatabase::font(m_family->currentFont().family(), m_style->currentText(), 1);
    font.setPointSizeF(m_size->value());
    return font;
}

void FontPanel::setSelectedFont(const QFont &font)
{
    const QSignalBlocker sizeBlocker(m_size);
    const QSignalBlocker familyBlocker(m_family);
    m_family->setCurrentFont(font);
    m_size->setValue(Font::pointSize(font));
    showStyles(font);
    m_fontChange = FontChange::Everything;
    showSample();
}

void FontPanel::setSelectedAttributes(const QVariantMap &attributes)
{
    const QSignalBlocker underlineBlocker(m_underline);
    const QSignalBlocker strikethroughBlocker(m_strikethrough);
    m_underline->setChecked(attributes.value(underlineStyleAttributeName).toInt() != 0);
    m_strikethrough->setChecked(attributes.value(strikethroughStyleAttributeName).toInt() != 0);
    m_textColor.color = palette().color(QPalette::Text);
    m_background.color = palette().color(QPalette::Base);
    showColor(m_textColor, attributes.value(foregroundColorAttributeName));
    showColor(m_background, attributes.value(backgroundColorAttributeName));
    m_attributeChange = {};
    showSample();
}

/// Lists the styles of the font's family and selects the one of the font.
void FontPanel::showStyles(const QFont &font)
{
    const QSignalBlocker blocker(m_style);
    const QStringList styles = QFontDatabase::styles(m_family->currentFont().family());
    m_style->clear();
    m_style->addItems(styles);
    const QString name = Font::fontName(font);
    for (qsizetype i = 0; i < styles.size(); ++i) {
        if (Font::fontName(QFontDatabase::font(font.family(), styles[i], 1)) == name) {
            m_style->setCurrentIndex(static_cast<int>(i));
        }
    }
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
    m_fontChange = change;
    showSample();
    sendToLastFocused("changeFont");
}

void FontPanel::attributeChanged(const QString &name, const QVariant &value)
{
    m_attributeChange = {name, value};
    showSample();
    sendToLastFocused("changeAttributes");
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
    if (!m_background.isSet->isChecked()) {
        attributeChanged(backgroundColorAttributeName, {});
        return;
    }
    showSample();
    sendToLastFocused("changeDocumentBackgroundColor");
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
