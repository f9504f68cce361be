#include <OrvaneExportKit/windowing/TokenEditor.h>

#include <OrvaneExportKit/windowing/CompletionList.h>
#include <OrvaneExportKit/windowing/EventGuard.h>
#include <OrvaneExportKit/windowing/TokenChip.h>
#include <OrvaneExportKit/windowing/TokenField.h>
#include <OrvaneExportKit/windowing/TokenMenus.h>
#include <OrvaneExportKit/windowing/TokenMimeData.h>

#include <QtCore/QMimeData>
#include <QtCore/QSignalBlocker>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QFontMetricsF>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

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

bool isUndoOrRedo(const QKeyEvent &event)
{
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
}

bool continuesWord(const QString &text, qsizetype position)
{
    return position > 0 && position < text.size() && text[position - 1].isLetterOrNumber() &&
           text[position].isLetterOrNumber();
}

/// Where the completion stands that is highlighted when a list opens: the one that the delegate says, or the one that
/// has been typed in full already, or the first one.
int firstHighlight(const QStringList &completions, int ofDelegate, const QString &typed)
{
    if (ofDelegate >= 0 && ofDelegate < completions.size()) {
        return ofDelegate;
    }
    return static_cast<int>(std::max<qsizetype>(completions.indexOf(typed), 0));
}

} // namespace

TokenEditor::TokenEditor(TokenField &field)
    : QTextEdit(&field), m_vocabulary(field), m_list(new CompletionList(this)), m_chip(new TokenChip(*this))
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
    for (const int type : {tokenObjectType, heldCharacterObjectType}) {
        document()->documentLayout()->registerHandler(type, m_chip);
    }
    adoptFont();
    // The field shows its one line and nothing above or below it.
    connect(verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
            [this] { verticalScrollBar()->setValue(0); });
    // Chips reach below the line where there is nothing but chips.
    connect(this, &QTextEdit::selectionChanged, viewport(), qOverload<>(&QWidget::update));
    connect(m_list, &CompletionList::picked, this,
            [this](const QString &displayString) { guardedAction(*parent(), [&] { takeCompletion(displayString); }); });
    connect(this, &QTextEdit::textChanged, this, &TokenEditor::takeChange);
}

void TokenEditor::setPieces(const QList<TokenPiece> &pieces)
{
    hideCompletions();
    m_typedEnd = {};
    const QSignalBlocker blocker(this);
    setUndoRedoEnabled(false);
    QTextCursor cursor(document());
    cursor.select(QTextCursor::Document);
    insertPieces(cursor, pieces);
    setTextCursor(cursor);
    setUndoRedoEnabled(true);
    document()->setModified(false);
    m_pieces = tokenPieces(*document());
}

void TokenEditor::insertTyped(const QString &displayString)
{
    QTextCursor cursor = textCursor();
    insertPieces(cursor, {m_vocabulary.pieceForTyped(displayString)});
    setTextCursor(cursor);
    ensureCursorVisible();
    m_typedEnd = {};
}

void TokenEditor::undoStep()
{
    hideCompletions();
    m_typedEnd = {}; // what has been a token is to stay text
    undo();
}

void TokenEditor::redoStep()
{
    hideCompletions();
    m_typedEnd = {};
    redo();
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

int TokenEditor::lineHeight() const
{
    return static_cast<int>(std::ceil(fixedLineHeight(font()) + 2.0 * document()->documentMargin()));
}

QPalette::ColorGroup TokenEditor::selectionColors() const
{
    if (!isEnabled()) {
        return QPalette::Disabled;
    }
    return m_hasKeyboard ? QPalette::Active : QPalette::Inactive;
}

bool TokenEditor::event(QEvent *event)
{
    bool isHandled = true;
    guardedAction(*parent(), [&] { isHandled = QTextEdit::event(event); });
    return isHandled;
}

bool TokenEditor::viewportEvent(QEvent *event)
{
    bool isHandled = true;
    guardedAction(*parent(), [&] { isHandled = QTextEdit::viewportEvent(event); });
    return isHandled;
}

bool TokenEditor::focusNextPrevChild(bool next)
{
    if (next && m_list->isVisible()) {
        takeCompletion(m_list->highlightedString());
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
        const bool madeTokens = finishEdit();
        event->setAccepted(madeTokens); // else the default button of a dialog has its turn
        return;
    }
    if (isUndoOrRedo(*event) && !isReadOnly()) {
        event->matches(QKeySequence::Undo) ? undoStep() : redoStep();
        return;
    }
    const bool asksForList =
        event->key() == Qt::Key_Down || (event->key() == Qt::Key_Space && event->modifiers() == Qt::ControlModifier);
    if (asksForList && !isReadOnly()) {
        const Completion typed = completion();
        showCompletions(typed.strings.isEmpty() ? allTokens() : typed);
        return;
    }
    const int revision = document()->revision();
    QTextEdit::keyPressEvent(event);
    const bool hasTyped = document()->revision() != revision && !event->matches(QKeySequence::Paste);
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
    if (isReturn(event)) {
        takeCompletion(m_list->highlightedString());
        return true;
    }
    return false;
}

void TokenEditor::inputMethodEvent(QInputMethodEvent *event)
{
    QInputMethodEvent line(event->preeditString(), event->attributes());
    line.setCommitString(oneLine(event->commitString()), event->replacementStart(), event->replacementLength());
    QTextEdit::inputMethodEvent(&line);
    event->setAccepted(line.isAccepted());
    if (!event->preeditString().isEmpty()) {
        hideCompletions(); // it is the input method's turn to offer something
    } else if (!event->commitString().isEmpty()) {
        completeTyped();
    }
}

void TokenEditor::focusInEvent(QFocusEvent *event)
{
    m_hasKeyboard = true;
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
    m_hasKeyboard = false;
    QTextEdit::focusOutEvent(event);
    hideCompletions();
    if (event->reason() != Qt::PopupFocusReason) {
        if (event->reason() != Qt::ActiveWindowFocusReason) {
            clearSelection(); // as line edits do
        }
        finishEdit();
    }
    Q_EMIT focusChanged();
}

void TokenEditor::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Mouse) {
        const int token = tokenAt(event->pos());
        const QTextCursor cursor = textCursor();
        if (token >= 0 && (token < cursor.selectionStart() || token >= cursor.selectionEnd())) {
            selectToken(token);
        }
    }
    openMenu(contextMenu(*this), event->globalPos());
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

void TokenEditor::mouseMoveEvent(QMouseEvent *event)
{
    const int revision = document()->revision();
    QTextEdit::mouseMoveEvent(event); // returns when a drag has ended
    if (document()->revision() != revision && document()->isModified()) {
        finishEdit(); // what was dragged away is no longer a part of the value
    }
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

void TokenEditor::dropEvent(QDropEvent *event)
{
    const int revision = document()->revision();
    QTextEdit::dropEvent(event);
    if (document()->revision() == revision) {
        return;
    }
    makeTokens();
    const QList<TokenPiece> dropped = m_pieces;
    Q_EMIT editingFinished();
    if (m_pieces != dropped) {
        // It has not been taken, so it is to stay where it came from.
        event->setDropAction(Qt::IgnoreAction);
        event->ignore();
    }
}

void TokenEditor::paintEvent(QPaintEvent *event)
{
    QTextEdit::paintEvent(event);
    QPainter painter(viewport());
    m_chip->drawSelection(painter);
}

void TokenEditor::wheelEvent(QWheelEvent *event)
{
    event->ignore(); // what the field stands in scrolls
}

QMimeData *TokenEditor::createMimeDataFromSelection() const
{
    const QTextCursor cursor = textCursor();
    const auto pieces = tokenPieces(*document(), cursor.selectionStart(), cursor.selectionEnd());
    return mimeDataOfPieces(pieces, m_vocabulary.displayText(pieces)).release();
}

bool TokenEditor::canInsertFromMimeData(const QMimeData *source) const
{
    return piecesOfMimeData(*source).has_value() || !source->text().isEmpty();
}

void TokenEditor::insertFromMimeData(const QMimeData *source)
{
    hideCompletions();
    QStringList value;
    if (const auto pieces = piecesOfMimeData(*source)) {
        for (const TokenPiece &piece : *pieces) {
            value.append(piece.text);
        }
    } else {
        value.append(oneLine(source->text()));
    }
    QTextCursor cursor = textCursor();
    insertPieces(cursor, m_vocabulary.piecesForValue(value));
    setTextCursor(cursor);
    ensureCursorVisible();
    rememberTyped();
}

/// The text from one position up to another, in which each token is one character.
QString TokenEditor::textBetween(int start, int end) const
{
    return document()->firstBlock().text().sliced(start, end - start);
}

/// Where words start between the last token and a position, as far back as one would type a display string.
QList<int> TokenEditor::wordStarts(int end) const
{
    constexpr int longestTyped = 64;
    QList<int> starts;
    const QString text = document()->firstBlock().text();
    for (int position = end - 1; position >= std::max(0, end - longestTyped); --position) {
        if (text[position] == QChar::ObjectReplacementCharacter) {
            break;
        }
        if (!text[position].isSpace() && !text[position].isLowSurrogate() && !continuesWord(text, position)) {
            starts.prepend(position);
        }
    }
    return starts;
}

QStringList TokenEditor::completionsFor(const QString &substring, qint32 *highlighted) const
{
    const auto before = tokenPieces(*document(), 0, textCursor().position());
    const auto tokens =
        std::count_if(before.begin(), before.end(), [](const TokenPiece &piece) { return piece.isToken; });
    return m_vocabulary.completions(substring, tokens, highlighted);
}

TokenEditor::Completion TokenEditor::completion() const
{
    const int end = textCursor().position();
    if (!textCursor().hasSelection()) {
        for (const int start : wordStarts(end)) {
            const QString typed = textBetween(start, end);
            qint32 highlighted = -1;
            const QStringList strings = completionsFor(typed, &highlighted);
            if (!strings.isEmpty()) {
                return {start, strings, firstHighlight(strings, highlighted, typed)};
            }
        }
    }
    return {end, {}, -1};
}

TokenEditor::Completion TokenEditor::allTokens() const
{
    qint32 highlighted = -1;
    const QStringList strings = completionsFor({}, &highlighted);
    return {textCursor().position(), strings, firstHighlight(strings, highlighted, {})};
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
    QRect place(parentWidget()->mapToGlobal(QPoint(0, 0)), parentWidget()->size());
    isRightToLeft() ? place.setRight(x) : place.setLeft(x);
    m_list->showStrings(completion.strings, completion.highlighted, place);
}

void TokenEditor::completeTyped()
{
    rememberTyped();
    showCompletions(completion());
}

void TokenEditor::hideCompletions()
{
    m_list->hide();
}

void TokenEditor::takeCompletion(const QString &displayString)
{
    hideCompletions();
    QTextCursor cursor = textCursor();
    cursor.setPosition(m_completionStart, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    insertTyped(displayString);
}

void TokenEditor::takeChange()
{
    const QList<TokenPiece> pieces = tokenPieces(*document());
    if (pieces != m_pieces) { // not only the font
        m_pieces = pieces;
        guardedAction(*parent(), [this] { Q_EMIT edited(); });
    }
}

void TokenEditor::rememberTyped()
{
    m_typedEnd = textCursor();
    m_typedEnd.clearSelection();
}

/// Ends the edit. Answers whether it has made tokens of text.
bool TokenEditor::finishEdit()
{
    hideCompletions();
    const bool hasMadeTokens = makeTokens();
    Q_EMIT editingFinished();
    return hasMadeTokens;
}

/// Makes tokens of the text that stands for some, if it has been edited, and answers whether there was any.
bool TokenEditor::makeTokens()
{
    if (!document()->isModified()) {
        return false;
    }
    const QList<TokenPiece> before = m_pieces;
    QTextCursor step(document());
    step.beginEditBlock();
    makeTokenOfTypedText();
    makeTokensOfObjects();
    step.endEditBlock();
    m_typedEnd = {};
    document()->setModified(false);
    return m_pieces != before;
}

/// Makes a token of the display string that was typed last.
void TokenEditor::makeTokenOfTypedText()
{
    if (m_typedEnd.isNull()) {
        return;
    }
    const int end = m_typedEnd.position();
    if (continuesWord(document()->firstBlock().text(), end)) {
        return;
    }
    for (const int start : wordStarts(end)) {
        const QString typed = textBetween(start, end);
        if (m_vocabulary.isDisplayString(typed)) {
            replaceWithPiece(*document(), start, end, m_vocabulary.pieceForTyped(typed));
            return;
        }
    }
}

/// Makes tokens of represented objects that stand in the text: they act as tokens anyway.
void TokenEditor::makeTokensOfObjects()
{
    const auto occurrences = m_vocabulary.occurrences(document()->firstBlock().text());
    for (auto occurrence = occurrences.rbegin(); occurrence != occurrences.rend(); ++occurrence) {
        const int start = static_cast<int>(occurrence->position);
        const int end = start + static_cast<int>(occurrence->object.size());
        replaceWithPiece(*document(), start, end, {occurrence->object, true});
    }
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

void TokenEditor::clearSelection()
{
    QTextCursor cursor = textCursor();
    cursor.clearSelection();
    setTextCursor(cursor);
}

} // namespace windowing
