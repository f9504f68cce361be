#include <OrvaneExportKit/windowing/TokenField.h>

#include <OrvaneExportKit/windowing/Binding.h>
#include <OrvaneExportKit/windowing/TokenEditor.h>
#include <OrvaneExportKit/windowing/TokenFieldAccessibility.h>
#include <OrvaneExportKit/windowing/UiLoader.h>

#include <QtCore/QEvent>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionFrame>
#include <QtWidgets/QStylePainter>

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

TokenField::TokenField(QWidget *parent) : QWidget(parent), m_editor(new TokenEditor(*this))
{
    installTokenFieldAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(m_editor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(m_editor, &TokenEditor::editingFinished, this, &TokenField::editingFinished);
    connect(m_editor, &TokenEditor::focusChanged, this, qOverload<>(&QWidget::update));
    connect(m_editor, &QTextEdit::textChanged, this, [this] {
        const QStringList newValue = value();
        if (newValue != m_lastValue) {
            m_lastValue = newValue;
            Q_EMIT valueChanged();
        }
    });
}

TokenField::~TokenField()
{
    delete m_editor; // it asks for the delegate as long as it lives
}

QStringList TokenField::value() const
{
    QStringList value;
    for (const TokenPiece &piece : m_editor->pieces()) {
        value.append(piece.text);
    }
    return value;
}

void TokenField::setValue(const QStringList &value)
{
    if (value != m_lastValue) {
        showValue(value);
    }
}

QString TokenField::displayText() const
{
    return m_editor->displayText(m_editor->pieces());
}

void TokenField::setDelegate(TokenFieldDelegate *delegate)
{
    m_delegate = delegate;
    showValue(m_lastValue);
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
    layOutEditor();
}

void TokenField::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_editor->adoptFont();
        layOutEditor();
        updateGeometry();
    }
    QWidget::changeEvent(event);
}

void TokenField::showValue(const QStringList &value)
{
    QList<TokenPiece> pieces;
    for (const QString &element : value) {
        pieces.append({element, m_editor->isKnownToken(element)});
    }
    m_editor->setPieces(pieces);
}

void TokenField::layOutEditor()
{
    const QStyleOptionFrame option = frameOption(*this, false, false);
    const QRect contents = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const int height = m_editor->lineHeight();
    m_editor->setGeometry(contents.left(), contents.center().y() - (height - 1) / 2, contents.width(), height);
}

QSize TokenField::sizeForWidth(int width) const
{
    const QStyleOptionFrame option = frameOption(*this, false, false);
    return style()->sizeFromContents(QStyle::CT_LineEdit, &option, {width, m_editor->lineHeight()}, this);
}

} // namespace windowing
