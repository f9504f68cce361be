#include <OrvaneExportKit/windowing/TokenMenus.h>

#include <OrvaneExportKit/windowing/EventGuard.h>
#include <OrvaneExportKit/windowing/TokenEditor.h>

#include <QtGui/QAction>
#include <QtGui/QKeySequence>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

/// A text of a menu is no more than that: it has no mnemonic.
QString withoutMnemonic(QString text)
{
    return text.replace("&"_L1, "&&"_L1);
}

void addTokens(QMenu &menu, TokenEditor &editor)
{
    const QStringList displayStrings = editor.vocabulary().displayStrings();
    for (const QString &displayString : displayStrings) {
        menu.addAction(withoutMnemonic(displayString), &editor,
                       [&editor, displayString] { guardedAction(editor, [&] { editor.insertTyped(displayString); }); });
    }
    if (displayStrings.isEmpty()) {
        menu.addAction(TokenEditor::tr("No Tokens"))->setEnabled(false);
    }
}

/// Adds an entry that a key has as well, which the editor handles by itself.
template <typename Step>
void addEntry(QMenu &menu, TokenEditor &editor, const QString &text, QKeySequence::StandardKey key, bool isEnabled,
              const Step &step)
{
    const QString keys = QKeySequence(key).toString(QKeySequence::NativeText);
    QAction *action = menu.addAction(keys.isEmpty() ? text : text + u'\t' + keys, &editor,
                                     [&editor, step] { guardedAction(editor, [&] { std::invoke(step, editor); }); });
    action->setEnabled(isEnabled);
}

bool isAllSelected(const QTextCursor &cursor)
{
    return cursor.selectionEnd() - cursor.selectionStart() == cursor.document()->characterCount() - 1;
}

} // namespace

std::unique_ptr<QMenu> tokenMenu(TokenEditor &editor)
{
    auto menu = std::make_unique<QMenu>(&editor);
    addTokens(*menu, editor);
    return menu;
}

std::unique_ptr<QMenu> contextMenu(TokenEditor &editor)
{
    const bool isEditable = !editor.isReadOnly();
    const bool hasSelection = editor.textCursor().hasSelection();
    auto menu = std::make_unique<QMenu>(&editor);
    if (isEditable) {
        addEntry(*menu, editor, TokenEditor::tr("&Undo"), QKeySequence::Undo, editor.document()->isUndoAvailable(),
                 &TokenEditor::undoStep);
        addEntry(*menu, editor, TokenEditor::tr("&Redo"), QKeySequence::Redo, editor.document()->isRedoAvailable(),
                 &TokenEditor::redoStep);
        menu->addSeparator();
        addEntry(*menu, editor, TokenEditor::tr("Cu&t"), QKeySequence::Cut, hasSelection, &QTextEdit::cut);
    }
    addEntry(*menu, editor, TokenEditor::tr("&Copy"), QKeySequence::Copy, hasSelection, &QTextEdit::copy);
    if (isEditable) {
        addEntry(*menu, editor, TokenEditor::tr("&Paste"), QKeySequence::Paste, editor.canPaste(), &QTextEdit::paste);
        addEntry(*menu, editor, TokenEditor::tr("&Delete"), QKeySequence::UnknownKey, hasSelection,
                 [](TokenEditor &self) { self.textCursor().removeSelectedText(); });
    }
    menu->addSeparator();
    addEntry(*menu, editor, TokenEditor::tr("Select &All"), QKeySequence::SelectAll,
             !isAllSelected(editor.textCursor()), &QTextEdit::selectAll);
    if (isEditable && editor.vocabulary().hasDelegate()) {
        menu->addSeparator();
        addTokens(*menu->addMenu(TokenEditor::tr("&Insert Token")), editor);
    }
    return menu;
}

void openMenu(std::unique_ptr<QMenu> menu, QPoint place)
{
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setAttribute(Qt::WA_NoMouseReplay); // a click that closes it does nothing else
    menu.release()->popup(place);
}

} // namespace windowing
