#include <OrvaneExportKit/windowing/TokenFieldAccessibility.h>

#include <OrvaneExportKit/windowing/TokenEditor.h>
#include <OrvaneExportKit/windowing/TokenField.h>

#include <QtGui/QAccessible>
#include <QtWidgets/QAccessibleWidget>

#include <algorithm>

namespace windowing {

namespace {

/// What screen readers are told of the editor and of the field around it alike.
QAccessible::State withStateOfText(QAccessible::State state, const TokenEditor &editor)
{
    state.editable = !editor.isReadOnly();
    state.readOnly = editor.isReadOnly();
    state.supportsAutoCompletion = true;
    return state;
}

/// The text of a token field for screen readers. It holds the display strings, so its offsets are not the positions in
/// the document, where a token is one character.
class AccessibleTokenEditor final : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit AccessibleTokenEditor(TokenEditor &editor)
        : QAccessibleWidget(&editor, QAccessible::EditableText), m_editor(editor)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface *>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value) {
            return m_editor.displayText();
        }
        const QAccessibleInterface *field = QAccessible::queryAccessibleInterface(m_editor.parentWidget());
        return field != nullptr ? field->text(kind) : QString(); // the label and the help belong to the field
    }

    QAccessible::State state() const override { return withStateOfText(QAccessibleWidget::state(), m_editor); }

    void selection(int selectionIndex, int *startOffset, int *endOffset) const override
    {
        const QTextCursor cursor = m_editor.textCursor();
        *startOffset = selectionIndex == 0 ? offset(cursor.selectionStart()) : 0;
        *endOffset = selectionIndex == 0 ? offset(cursor.selectionEnd()) : 0;
    }

    int selectionCount() const override { return m_editor.textCursor().hasSelection() ? 1 : 0; }

    void addSelection(int startOffset, int endOffset) override { setSelection(0, startOffset, endOffset); }

    void removeSelection(int /*selectionIndex*/) override
    {
        QTextCursor cursor = m_editor.textCursor();
        cursor.clearSelection();
        m_editor.setTextCursor(cursor);
    }

    void setSelection(int /*selectionIndex*/, int startOffset, int endOffset) override
    {
        QTextCursor cursor = m_editor.textCursor();
        cursor.setPosition(position(startOffset));
        cursor.setPosition(position(endOffset), QTextCursor::KeepAnchor);
        m_editor.setTextCursor(cursor);
    }

    int cursorPosition() const override { return offset(m_editor.textCursor().position()); }
    void setCursorPosition(int offset) override { setSelection(0, offset, offset); }

    QString text(int startOffset, int endOffset) const override
    {
        return text(QAccessible::Value).mid(startOffset, endOffset - startOffset);
    }

    int characterCount() const override { return static_cast<int>(text(QAccessible::Value).size()); }

    QRect characterRect(int offset) const override
    {
        const int start = position(offset);
        const QRect place = cursorRect(start) | cursorRect(start + 1);
        return {m_editor.viewport()->mapToGlobal(place.topLeft()), place.size()};
    }

    int offsetAtPoint(const QPoint &point) const override
    {
        return offset(m_editor.cursorForPosition(m_editor.viewport()->mapFromGlobal(point)).position());
    }

    void scrollToSubstring(int startIndex, int /*endIndex*/) override { setCursorPosition(startIndex); }

    QString attributes(int /*offset*/, int *startOffset, int *endOffset) const override
    {
        *startOffset = 0;
        *endOffset = characterCount();
        return {};
    }

private:
    QRect cursorRect(int position) const
    {
        QTextCursor cursor = m_editor.textCursor();
        cursor.setPosition(std::min(position, m_editor.document()->characterCount() - 1));
        return m_editor.cursorRect(cursor);
    }

    /// Where a position in the document is in the text with the display strings.
    int offset(int position) const
    {
        const auto before = tokenPieces(*m_editor.document(), 0, position);
        return static_cast<int>(m_editor.vocabulary().displayText(before).size());
    }

    /// The last position that is not behind the offset: inside of a token, the one before it.
    int position(int offset) const
    {
        qsizetype position = 0;
        qsizetype left = std::max(offset, 0);
        for (const TokenPiece &piece : m_editor.pieces()) {
            const qsizetype shown = piece.isToken ? m_editor.vocabulary().displayString(piece.text).size() : 1;
            const qsizetype length = piece.isToken ? 1 : piece.text.size();
            const qsizetype passed = std::min(length, shown == 0 ? length : left / shown);
            position += passed;
            left -= passed * shown;
            if (passed < length) {
                break;
            }
        }
        return static_cast<int>(position);
    }

    TokenEditor &m_editor;
};

/// The field around the editor: as with a combo box, a text to edit and a button with a choice of what to put into it.
class AccessibleTokenField final : public QAccessibleWidget
{
public:
    AccessibleTokenField(TokenField &field, TokenEditor &editor)
        : QAccessibleWidget(&field, QAccessible::ComboBox), m_editor(editor)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface) {
            QAccessibleInterface *text = QAccessible::queryAccessibleInterface(&m_editor);
            return text != nullptr ? text->interface_cast(type) : nullptr;
        }
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_editor.displayText() : QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override { return withStateOfText(QAccessibleWidget::state(), m_editor); }

private:
    TokenEditor &m_editor;
};

QAccessibleInterface *accessibleTokenField(const QString & /*className*/, QObject *object)
{
    if (auto *editor = qobject_cast<TokenEditor *>(object)) {
        return new AccessibleTokenEditor(*editor);
    }
    if (auto *field = qobject_cast<TokenField *>(object)) {
        auto *editor = field->findChild<TokenEditor *>(QString(), Qt::FindDirectChildrenOnly);
        return editor != nullptr ? new AccessibleTokenField(*field, *editor) : nullptr;
    }
    return nullptr;
}

} // namespace

void installTokenFieldAccessibility()
{
    QAccessible::installFactory(accessibleTokenField); // the same one is installed only once
}

} // namespace windowing
