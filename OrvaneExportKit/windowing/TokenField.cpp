#include <OrvaneExportKit/windowing/TokenField.h>

#include <OrvaneExportKit/windowing/Binding.h>
#include <OrvaneExportKit/windowing/EventGuard.h>
#include <OrvaneExportKit/windowing/TokenEditor.h>
#include <OrvaneExportKit/windowing/TokenFieldAccessibility.h>
#include <OrvaneExportKit/windowing/TokenMenus.h>
#include <OrvaneExportKit/windowing/UiLoader.h>

#include <QtCore/QEvent>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionFrame>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QToolButton>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

const auto registration = WidgetClassRegistration::of<TokenField>();

const bool exposed = [] {
    exposeBinding(TokenField::staticMetaObject, u"value"_s);
    return true;
}();

/// The frame of a line edit, which the field wears.
QStyleOptionFrame frameOption(const QWidget &field, bool hasFocus, bool isReadOnly)
{
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
    option.state |= QStyle::State_Sunken;
    option.state.setFlag(QStyle::State_HasFocus, hasFocus);
    option.state.setFlag(QStyle::State_ReadOnly, isReadOnly);
    return option;
}

} // namespace

TokenField::TokenField(QWidget *parent)
    : QWidget(parent), m_editor(new TokenEditor(*this)), m_tokenButton(new QToolButton(this))
{
    installTokenFieldAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(m_editor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_tokenButton->setFocusPolicy(Qt::NoFocus);
    m_tokenButton->setCursor(Qt::ArrowCursor);
    m_tokenButton->setArrowType(Qt::DownArrow);
    m_tokenButton->setAutoRaise(true);
    setTexts();
    updateButton();
    connect(m_tokenButton, &QToolButton::clicked, this, [this] { guardedAction(*this, [this] { openTokenMenu(); }); });
    connect(m_editor, &TokenEditor::editingFinished, this, &TokenField::editingFinished);
    connect(m_editor, &TokenEditor::focusChanged, this, qOverload<>(&QWidget::update));
    connect(m_editor, &TokenEditor::edited, this, &TokenField::takeEdit);
}

TokenField::~TokenField()
{
    delete m_editor; // it asks for the delegate as long as it lives
}

QStringList TokenField::value() const
{
    return m_value;
}

void TokenField::setValue(const QStringList &value)
{
    if (value != m_value) {
        m_value = value;
        showValue();
        Q_EMIT valueChanged();
    }
}

QString TokenField::displayText() const
{
    return m_editor->displayText();
}

void TokenField::setDelegate(TokenFieldDelegate *delegate)
{
    if (m_delegate != nullptr) {
        disconnect(m_delegate, &QObject::destroyed, this, nullptr);
    }
    m_delegate = delegate;
    if (m_delegate != nullptr) {
        connect(m_delegate, &QObject::destroyed, this, [this] { setDelegate(nullptr); });
    }
    m_editor->vocabulary().forgetError();
    updateButton();
    showValue();
}

QString TokenField::placeholderText() const
{
    return m_editor->placeholderText();
}

void TokenField::setPlaceholderText(const QString &text)
{
    m_editor->setPlaceholderText(text);
}

bool TokenField::isReadOnly() const
{
    return m_editor->isReadOnly();
}

void TokenField::setReadOnly(bool readOnly)
{
    m_editor->setReadOnly(readOnly);
    updateButton();
}

QSize TokenField::sizeHint() const
{
    constexpr int letters = 24;
    return sizeForWidth(letters * fontMetrics().averageCharWidth());
}

QSize TokenField::minimumSizeHint() const
{
    return sizeForWidth(fontMetrics().maxWidth());
}

void TokenField::paintEvent(QPaintEvent * /*event*/)
{
    QStylePainter painter(this);
    painter.drawPrimitive(QStyle::PE_PanelLineEdit, frameOption(*this, m_editor->hasFocus(), isReadOnly()));
}

void TokenField::resizeEvent(QResizeEvent * /*event*/)
{
    layOutParts();
}

void TokenField::changeEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
        m_editor->adoptFont();
        layOutParts();
        updateGeometry();
        break;
    case QEvent::LayoutDirectionChange:
        layOutParts();
        break;
    case QEvent::LanguageChange:
        setTexts();
        break;
    default:
        break;
    }
    QWidget::changeEvent(event);
}

void TokenField::showValue()
{
    m_editor->setPieces(m_editor->vocabulary().piecesForValue(m_value));
}

/// Takes over what the user has changed.
void TokenField::takeEdit()
{
    m_value.clear();
    for (const TokenPiece &piece : m_editor->pieces()) {
        m_value.append(piece.text);
    }
    Q_EMIT valueChanged();
}

void TokenField::openTokenMenu()
{
    m_editor->setFocus(Qt::OtherFocusReason);
    auto menu = tokenMenu(*m_editor);
    QPoint place = m_tokenButton->mapToGlobal(m_tokenButton->rect().bottomRight() + QPoint(1, 1));
    place.rx() -= isRightToLeft() ? m_tokenButton->width() : menu->sizeHint().width();
    openMenu(std::move(menu), place);
}

void TokenField::setTexts()
{
    m_tokenButton->setAccessibleName(TokenEditor::tr("Insert a token"));
    m_tokenButton->setToolTip(TokenEditor::tr("Insert a token"));
}

/// The button is there where tokens can be inserted.
void TokenField::updateButton()
{
    m_tokenButton->setVisible(m_delegate != nullptr && !isReadOnly());
    layOutParts();
}

void TokenField::layOutParts()
{
    const QStyleOptionFrame option = frameOption(*this, false, false);
    const QRect contents = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const int height = m_editor->lineHeight();
    const int buttonWidth = m_tokenButton->isHidden() ? 0 : height;
    const auto place = [&](int left, int width) {
        const QRect logical(contents.left() + left, contents.center().y() - (height - 1) / 2, width, height);
        return QStyle::visualRect(layoutDirection(), contents, logical);
    };
    const int textWidth = contents.width() - buttonWidth;
    m_editor->setGeometry(place(0, textWidth));
    m_tokenButton->setGeometry(place(textWidth, buttonWidth));
}

QSize TokenField::sizeForWidth(int width) const
{
    const QStyleOptionFrame option = frameOption(*this, false, false);
    const int height = m_editor->lineHeight(); // and as wide is the button
    return style()->sizeFromContents(QStyle::CT_LineEdit, &option, {width + height, height}, this);
}

} // namespace windowing
