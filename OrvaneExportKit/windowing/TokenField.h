#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/windowing/TokenFieldDelegate.h>

#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

namespace windowing {

class TokenEditor;

/// A one-line field whose value is made of tokens and of text between them, such as a pattern for file names.
///
/// A token is shown as a rounded chip with its display string. The user types the first letters of one and takes it
/// from the list that opens: with Tab (the highlighted one, or the first), with Return (the highlighted one), or with a
/// click; Down opens the list, with all tokens where nothing has been typed. Nothing is highlighted before the user
/// does it, so Return never puts something else in the place of what was typed. A display string typed in full becomes
/// a token on Return. Chips are moved over, selected, deleted, dragged, copied, undone and redone like one character of
/// the text; copied into another program they are their display strings. A screen reader reads the display strings.
///
///     tokenField->setDelegate(delegate);                    // "<1>" is Number, "<2>" is Name
///     tokenField->setValue({u"<2>"_s, u", "_s, u"<1>"_s});  // shows (Name), (Number)
///
/// `value` is what `filenamesFromComponents` takes. A panel binds it, and `delegate`, to key paths of its controller.
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

    /// The represented objects of the tokens and the texts between them, in their order.
    QStringList value() const;

    /// Replaces the value. Elements that the delegate shows or completes as tokens become tokens, all others text.
    /// Nothing can be undone after that; a value that the field has already changes nothing.
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
    void editingFinished(); ///< the user has pressed Return, or the focus has left the field

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    friend class TokenEditor;

    void showValue(const QStringList &value);
    void layOutEditor();
    QSize sizeForWidth(int width) const;

    QPointer<TokenFieldDelegate> m_delegate;
    TokenEditor *m_editor;
    QStringList m_lastValue;
};

} // namespace windowing
