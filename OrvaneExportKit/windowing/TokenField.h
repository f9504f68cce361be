#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/windowing/TokenFieldDelegate.h>

#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

class QToolButton;

namespace windowing {

class TokenEditor;
/// A one-line field whose value is made of tokens and of text between them, such as a pattern for file names.
///
/// A token is shown as a rounded chip with its display string. The user gets one
/// - by typing its first letters: Return and Tab take the highlighted one of the list that opens, which is the first
///   one unless the delegate or the user highlights another, as does a click; Escape closes the list and keeps the
///   text;
/// - from the list of all tokens, which Down opens where nothing has been typed;
/// - from the menu of the button at the end of the field, or from the context menu;
/// - by typing its display string in full, as words of their own, right before the edit ends;
/// - by typing, pasting or dropping its represented object, also inside of other text, for there it acts as the token.
///
/// Return reaches the default button of a dialog only when no list is open and it has made no token of text. Undoing
/// turns a token back into what was typed. Chips are moved over, selected, deleted, dragged, copied, undone and redone
/// like one character of the text; copied into another program they are their display strings. A screen reader reads
/// the display strings.
///
///     tokenField->setDelegate(delegate);                    // "<1>" is Number, "<2>" is Name
///     tokenField->setValue({u"<2>"_s, u", "_s, u"<1>"_s});  // shows (Name), (Number)
///
/// Only an object that the delegate maps back to itself is shown as a chip: one whose display string stands for it, and
/// is another text or among the completions of itself. All else is text and stored as itself, whichever way it came
/// in; a text that equals a display string stays text when it is set. Line feeds that are pasted, typed or dropped
/// become blanks; those of a value that is set stay, and show as signs.
///
/// An edit ends with Return, when the focus leaves, and when something has been dropped on the field, with or without
/// the focus, or dragged away from it.
///
/// The field asks its delegate while it is drawn. A delegate that throws shows the represented objects themselves, and
/// its first error goes to `platform::alertError`, once for each `setDelegate`; no operation of the field throws for
/// it.
///
/// `value` is what `filenamesFromComponents` takes. A panel binds it, and `delegate`, to key paths of its controller.
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT TokenField : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QStringList value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(windowing::TokenFieldDelegate *delegate READ delegate WRITE setDelegate DESIGNABLE false)
    Q_PROPERTY(QString placeholderText READ placeholderText WRITE setPlaceholderText)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)

public:
    /// An empty field without a delegate.
    explicit TokenField(QWidget *parent = nullptr);
    ~TokenField() override;

    /// What was set, until the user edits it; from then on the represented objects of the tokens and the texts between
    /// them, in their order.
    QStringList value() const;

    /// Replaces the value. Nothing can be undone after that; a value that the field has already changes nothing.
    void setValue(const QStringList &value);

    /// What the user reads: the display strings of the tokens, and the texts between them.
    QString displayText() const;

    /// Who tells tokens from text; null for nobody.
    TokenFieldDelegate *delegate() const { return m_delegate; }

    /// Whoever sets a delegate keeps it; without one, or when it is gone, all is text. The value is then shown anew.
    void setDelegate(TokenFieldDelegate *delegate);

    /// What an empty field shows.
    QString placeholderText() const;
    void setPlaceholderText(const QString &text);

    /// Whether the user can only read and copy.
    bool isReadOnly() const;
    void setReadOnly(bool readOnly);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void valueChanged();    ///< the value is another one than before, by the user or by `setValue`
    void editingFinished(); ///< an edit has ended; what was typed is a token where it stands for one

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    friend class TokenEditor;

    void showValue();
    void takeEdit();
    void openTokenMenu();
    void setTexts();
    void updateButton();
    void layOutParts();
    QSize sizeForWidth(int width) const;

    QPointer<TokenFieldDelegate> m_delegate;
    TokenEditor *m_editor;
    QToolButton *m_tokenButton;
    QStringList m_value;
};

} // namespace windowing
