#pragma once

#include <QtWidgets/QMenu>

#include <memory>

namespace windowing {

class TokenEditor;

/// A menu with every token, each of which it inserts where the cursor of the editor is.
std::unique_ptr<QMenu> tokenMenu(TokenEditor &editor);

/// The menu for what is selected in the editor.
std::unique_ptr<QMenu> contextMenu(TokenEditor &editor);

/// Opens a menu, which goes when it is closed.
void openMenu(std::unique_ptr<QMenu> menu, QPoint place);

} // namespace windowing
