#include <OrvaneExportKit/windowing/TokenEditor.h>

#include <OrvaneExportKit/windowing/CompletionList.h>
#include <OrvaneExportKit/windowing/TokenChip.h>
#include <OrvaneExportKit/windowing/TokenField.h>

#include <QtCore/QDataStream>
#include <QtCore/QMimeData>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QFontMetricsF>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

/// How copied tokens travel from one field to another.
QString piecesFormat()
{
    return u"application/x-orvane-token-pieces"_s;
}

QByteArray dataOfPieces(const QList<TokenPiece> &pieces)
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    for (const TokenPiece &piece : pieces) {
        stream << piece.isToken << piece.text;
    }
    return data;
}

/// The text in one line, without the characters that stand for tokens.
QString oneLine(QString text)
{
    text.remove(QChar::ObjectReplacementCharacter);
    text.replace("\r\n"_L1, " "_L1);
    for (QChar &character : text) {
        if (character == u'\n' || character == u'\r' || character == QChar::ParagraphSeparator ||
            character == QChar::LineSeparator) {
            character = u' ';
        }
    }
    return text;
}

QList<TokenPiece> piecesOfData(const QByteArray &data)
{
    QList<TokenPiece> pieces;
    QDataStream stream(data);
    stream.setVersion(QDataStream::Qt_6_4);
    while (!stream.atEnd()) {
        TokenPiece piece{};
        stream >> piece.isToken >> piece.text;
        if (stream.status() != QDataStream::Ok) {
            return {};
        }
        piece.text = piece.isToken ? piece.text : oneLine(piece.text);
        pieces.append(piece);
    }
    return pieces;
}

/// A height that keeps the baseline where it is, whether there are chips, letters of other fonts or nothing in the
/// line: documents put it at four fifths of a fixed line height.
double fixedLineHeight(const QFont &font)
{
    const QFontMetricsF metrics(font);
    return std::ceil(std::max(metrics.ascent() / 0.8, metrics.descent() / 0.2));
}

bool isReturn(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

TokenEditor::TokenEditor(TokenField &field)
    : QTextEdit(&field), m_field(field), m_list(new CompletionList(this)), m_chip(new TokenChip(*this))
{
    setFrameShape(NoFrame);
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setLineWrapMode(NoWrap);
    setWordWrapMode(QTextOption::NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(2.0);
    document()->documentLayout()->registerHandler(tokenObjectType, m_chip);
    adoptFont();
    // The field shows its one line and nothing above or below it.
    connect(verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
            [this] { verticalScrollBar()->setValue(0); });
    // Chips reach below the line where there is nothing but chips.
    connect(this, &QTextEdit::selectionChanged, viewport(), qOverload<>(&QWidget::update));
    connect(m_list, &CompletionList::picked, this, &TokenEditor::takeCompletion);
}

void TokenEditor::setPieces(const QList<TokenPiece> &pieces)
{
    hideCompletions();
    setUndoRedoEnabled(false);
    QTextCursor cursor(document());
    cursor.select(QTextCursor::Document);
    insertPieces(cursor, pieces);
    setTextCursor(cursor);
    setUndoRedoEnabled(true);
}

void TokenEditor::adoptFont()
{
    QTextBlockFormat format;
    format.setLineHeight(fixedLineHeight(font()), QTextBlockFormat::FixedHeight);
    setUndoRedoEnabled(false);
    QTextCursor(document()).mergeBlockFormat(format);
    setUndoRedoEnabled(true);
    document()->markContentsDirty(0, document()->characterCount());
}

QString TokenEditor::displayString(const QString &representedObject) const
{
    const TokenFieldDelegate *delegate = m_field.delegate();
    return delegate != nullptr ? delegate->displayStringForRepresentedObject(&m_field, representedObject)
                               : representedObject;
}

QString TokenEditor::displayText(const QList<TokenPiece> &pieces) const
{
    QString text;
    for (const TokenPiece &piece : pieces) {
        text += piece.isToken ? displayString(piece.text) : piece.text;
    }
    return text;
}

bool TokenEditor::isKnownToken(const QString &representedObject) const
{
    const QString shown = displayString(representedObject);
    return shown != representedObject || completionsFor(shown).contains(shown);
}

int TokenEditor::lineHeight() const
{
    return static_cast<int>(std::ceil(fixedLineHeight(font()) + 2.0 * document()->documentMargin()));
}

bool TokenEditor::focusNextPrevChild(bool next)
{
    if (next && m_list->isVisible()) {
        const QString highlighted = m_list->highlightedString();
        takeCompletion(highlighted.isNull() ? m_list->firstString() : highlighted);
        return true;
    }
    return QTextEdit::focusNextPrevChild(next);
}

void TokenEditor::keyPressEvent(QKeyEvent *event)
{
    if (m_list->isVisible() && handleKeyOfList(*event)) {
        return;
    }
    if (isReturn(*event)) {
        const bool madeToken = makeTokenOfTypedText();
        hideCompletions();
        Q_EMIT editingFinished();
        event->setAccepted(madeToken); // else the default button of a dialog has its turn
        return;
    }
    const bool asksForList =
        event->key() == Qt::Key_Down || (event->key() == Qt::Key_Space && event->modifiers() == Qt::ControlModifier);
    if (asksForList && !isReadOnly()) {
        const Completion typed = completion();
        showCompletions(typed.strings.isEmpty() ? Completion{textCursor().position(), completionsFor({}), -1} : typed);
        return;
    }
    const int revision = document()->revision();
    QTextEdit::keyPressEvent(event);
    const bool hasTyped = document()->revision() != revision && !event->matches(QKeySequence::Undo) &&
                          !event->matches(QKeySequence::Redo) && !event->matches(QKeySequence::Paste);
    hasTyped ? completeTyped() : hideCompletions();
}

/// Whether the key was meant for the open list.
bool TokenEditor::handleKeyOfList(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Down:
        m_list->moveHighlight(1);
        return true;
    case Qt::Key_Up:
        m_list->moveHighlight(-1);
        return true;
    case Qt::Key_Escape:
        hideCompletions();
        return true;
    default:
        break;
    }
    const QString highlighted = m_list->highlightedString();
    if (isReturn(event) && !highlighted.isNull()) {
        takeCompletion(highlighted);
        return true;
    }
    return false;
}

void TokenEditor::inputMethodEvent(QInputMethodEvent *event)
{
    QTextEdit::inputMethodEvent(event);
    if (!event->preeditString().isEmpty()) {
        hideCompletions(); // it is the input method's turn to offer something
    } else if (!event->commitString().isEmpty()) {
        completeTyped();
    }
}

void TokenEditor::focusInEvent(QFocusEvent *event)
{
    QTextEdit::focusInEvent(event);
    const bool isByKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
                         event->reason() == Qt::ShortcutFocusReason;
    if (isByKey) {
        selectAll();
    }
    Q_EMIT focusChanged();
}

void TokenEditor::focusOutEvent(QFocusEvent *event)
{
    QTextEdit::focusOutEvent(event);
    hideCompletions();
    if (event->reason() != Qt::PopupFocusReason) {
        Q_EMIT editingFinished();
    }
    Q_EMIT focusChanged();
}

void TokenEditor::mousePressEvent(QMouseEvent *event)
{
    hideCompletions();
    const bool isPlainClick = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    m_pressedToken = isPlainClick ? tokenAt(event->pos()) : -1;
    const QTextCursor cursor = textCursor();
    const bool isSelected = m_pressedToken >= cursor.selectionStart() && m_pressedToken < cursor.selectionEnd();
    if (m_pressedToken >= 0 && !isSelected) {
        selectToken(m_pressedToken); // a drag may begin here
    }
    QTextEdit::mousePressEvent(event);
}

void TokenEditor::mouseReleaseEvent(QMouseEvent *event)
{
    QTextEdit::mouseReleaseEvent(event);
    if (m_pressedToken >= 0 && !textCursor().hasSelection() && tokenAt(event->pos()) == m_pressedToken) {
        selectToken(m_pressedToken);
    }
}

void TokenEditor::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int token = tokenAt(event->pos());
    if (token >= 0) {
        selectToken(token);
    } else {
        QTextEdit::mouseDoubleClickEvent(event);
    }
}

void TokenEditor::paintEvent(QPaintEvent *event)
{
    QTextEdit::paintEvent(event);
    QPainter painter(viewport());
    m_chip->drawSelectedChips(painter);
}

void TokenEditor::wheelEvent(QWheelEvent *event)
{
    event->ignore(); // what the field stands in scrolls
}

QMimeData *TokenEditor::createMimeDataFromSelection() const
{
    const QTextCursor cursor = textCursor();
    const auto pieces = tokenPieces(*document(), cursor.selectionStart(), cursor.selectionEnd());
    auto data = std::make_unique<QMimeData>();
    data->setText(displayText(pieces));
    data->setData(piecesFormat(), dataOfPieces(pieces));
    return data.release();
}

bool TokenEditor::canInsertFromMimeData(const QMimeData *source) const
{
    return source->hasText() || source->hasFormat(piecesFormat());
}

void TokenEditor::insertFromMimeData(const QMimeData *source)
{
    hideCompletions();
    QTextCursor cursor = textCursor();
    if (source->hasFormat(piecesFormat())) {
        insertPieces(cursor, piecesOfData(source->data(piecesFormat())));
    } else {
        insertPieces(cursor, {{oneLine(source->text()), false}});
    }
    setTextCursor(cursor);
    ensureCursorVisible();
}

QStringList TokenEditor::completionsFor(const QString &substring, qint32 *highlighted) const
{
    const TokenFieldDelegate *delegate = m_field.delegate();
    if (delegate == nullptr) {
        return {};
    }
    const auto before = tokenPieces(*document(), 0, textCursor().position());
    const auto tokens =
        std::count_if(before.begin(), before.end(), [](const TokenPiece &piece) { return piece.isToken; });
    qint32 unused = -1;
    return delegate->completionsForSubstring(&m_field, substring, static_cast<qint32>(tokens),
                                             highlighted != nullptr ? highlighted : &unused);
}

/// Where words start between the last token and the cursor, as far back as one would type a display string.
QList<int> TokenEditor::wordStarts() const
{
    constexpr int longestTyped = 64;
    QList<int> starts;
    const QString text = document()->firstBlock().text();
    const int end = textCursor().position();
    for (int position = end - 1; position >= std::max(0, end - longestTyped); --position) {
        if (isToken(*document(), position)) {
            break;
        }
        const bool continuesWord = position > 0 && text[position - 1].isLetterOrNumber();
        if (!text[position].isSpace() && !text[position].isLowSurrogate() && !continuesWord) {
            starts.prepend(position);
        }
    }
    return starts;
}

QString TokenEditor::textBeforeCursor(int start) const
{
    return document()->firstBlock().text().sliced(start, textCursor().position() - start);
}

TokenEditor::Completion TokenEditor::completion() const
{
    if (!textCursor().hasSelection()) {
        for (const int start : wordStarts()) {
            qint32 highlighted = -1;
            const QStringList strings = completionsFor(textBeforeCursor(start), &highlighted);
            if (!strings.isEmpty()) {
                return {start, strings, highlighted};
            }
        }
    }
    return {textCursor().position(), {}, -1};
}

void TokenEditor::showCompletions(const Completion &completion)
{
    if (completion.strings.isEmpty()) {
        hideCompletions();
        return;
    }
    m_completionStart = completion.start;
    QTextCursor start(document());
    start.setPosition(completion.start);
    const int x = viewport()->mapToGlobal(cursorRect(start).topLeft()).x();
    QRect place(m_field.mapToGlobal(QPoint(0, 0)), m_field.size());
    isRightToLeft() ? place.setRight(x) : place.setLeft(x);
    m_list->showStrings(completion.strings, completion.highlighted, place);
}

void TokenEditor::completeTyped()
{
    showCompletions(completion());
}

void TokenEditor::hideCompletions()
{
    m_list->hide();
}

void TokenEditor::takeCompletion(const QString &displayString)
{
    hideCompletions();
    replaceTyped(m_completionStart, displayString);
}

/// Whether the text before the cursor was a display string, and is a token now.
bool TokenEditor::makeTokenOfTypedText()
{
    const TokenFieldDelegate *delegate = m_field.delegate();
    if (delegate == nullptr || isReadOnly() || textCursor().hasSelection()) {
        return false;
    }
    for (const int start : wordStarts()) {
        const QString typed = textBeforeCursor(start);
        if (delegate->representedObjectForEditingString(&m_field, typed) != typed ||
            completionsFor(typed).contains(typed)) {
            replaceTyped(start, typed);
            return true;
        }
    }
    return false;
}

void TokenEditor::replaceTyped(int start, const QString &displayString)
{
    const QString object = m_field.delegate()->representedObjectForEditingString(&m_field, displayString);
    QTextCursor cursor = textCursor();
    cursor.setPosition(start, QTextCursor::KeepAnchor);
    insertPieces(cursor, {{object, true}});
    setTextCursor(cursor);
    ensureCursorVisible();
}

/// The position of the token under a point of the viewport, or -1.
int TokenEditor::tokenAt(QPoint point) const
{
    QTextCursor cursor = cursorForPosition(point);
    const int nearest = cursor.position();
    for (const int position : {nearest - 1, nearest}) {
        if (position < 0 || !isToken(*document(), position)) {
            continue;
        }
        cursor.setPosition(position);
        const int start = cursorRect(cursor).left();
        cursor.setPosition(position + 1);
        const int end = cursorRect(cursor).left();
        if (point.x() >= std::min(start, end) && point.x() <= std::max(start, end)) {
            return position;
        }
    }
    return -1;
}

void TokenEditor::selectToken(int position)
{
    QTextCursor cursor(document());
    cursor.setPosition(position);
    cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

} // namespace windowing
