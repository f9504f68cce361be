#pragma once

#include <QtCore/QStringList>
#include <QtCore/QStringListModel>
#include <QtWidgets/QListView>

namespace windowing {

/// A list that hangs below an editor while the user types. It takes neither the focus nor a key: input
/// methods and the keyboard stay with the editor, which moves the highlight.
class CompletionList final : public QListView
{
    Q_OBJECT

public:
    explicit CompletionList(QWidget *editor);

    /// Shows the strings below (or, where there is no room, above) a rectangle of the screen, from where lines start in
    /// it, with one of them highlighted.
    void showStrings(const QStringList &strings, int highlighted, const QRect &place);

    /// Moves the highlight by some rows, around the ends.
    void moveHighlight(int rows);

    QString highlightedString() const;

Q_SIGNALS:
    void picked(const QString &string); ///< clicked by the user

private:
    QStringListModel m_strings;
};

} // namespace windowing
