#include <OrvaneExportKit/windowing/TokenFieldAccessibility.h>

#include <OrvaneExportKit/windowing/TokenEditor.h>
#include <OrvaneExportKit/windowing/TokenField.h>

#include <QtGui/QAccessible>
#include <QtWidgets/QAccessibleWidget>

#include <algorithm>

namespace windowing {

namespace {

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
            return m_editor.displayText(m_editor.pieces());
        }
        const QAccessibleInterface *field = QAccessible::queryAccessibleInterface(m_editor.parentWidget());
        return field != nullptr ? field->text(kind) : QString(); // the label and the help belong to the field
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = !m_editor.isReadOnly();
        state.readOnly = m_editor.isReadOnly();
        state.supportsAutoCompletion = true;
        return state;
    }

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
        QTextCursor cursor = m_editor.textCursor();
        cursor.setPosition(position(offset));
        const QRect place = m_editor.cursorRect(cursor);
        return {m_editor.viewport()->mapToGlobal(place.topLeft()), place.size()};
    }

    int offsetAtPoint(const QPoint &point) const override
    {
        return offset(m_editor.cursorForPosition(m_editor.viewport()->mapFromGlobal(point)).position());
    }

    void scrollToSubstring(int startIndex, int /*endIndex*/) override { setCursorPosition(startIndex); }

    QString attributes(int offset, int *startOffset, int *endOffset) const override
    {
        *startOffset = offset;
        *endOffset = characterCount();
        return {};
    }

private:
    /// Where a position in the document is in the text with the display strings.
    int offset(int position) const
    {
        return static_cast<int>(m_editor.displayText(tokenPieces(*m_editor.document(), 0, position)).size());
    }

    /// The last position that is not behind the offset: inside of a token, the one before it.
    int position(int offset) const
    {
        int position = 0;
        const int last = m_editor.document()->characterCount() - 1;
        while (position < last && this->offset(position + 1) <= offset) {
            ++position;
        }
        return position;
    }

    TokenEditor &m_editor;
};

QAccessibleInterface *accessibleTokenEditor(const QString & /*className*/, QObject *object)
{
    auto *editor = qobject_cast<TokenEditor *>(object);
    return editor != nullptr ? new AccessibleTokenEditor(*editor) : nullptr;
}

} // namespace

void installTokenFieldAccessibility()
{
    QAccessible::installFactory(accessibleTokenEditor); // the same one is installed only once
}

} // namespace windowing
