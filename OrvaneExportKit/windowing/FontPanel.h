#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtWidgets/QDialog>

#include <optional>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFontComboBox;
class QFormLayout;
class QLabel;
class QPushButton;

namespace windowing {

class MessageLabel;
class TextField;

/// The panel in which users choose fonts, colours and lines of text. There is one for the whole application; it leaves
/// the other windows usable.
///
/// What the user changes goes to the control that had the focus last outside the panel, or to the first of its parents
/// that has the slot or invokable function for the change:
///
///     void changeFont(windowing::FontPanel *sender);                      // family, style, size
///     void changeAttributes(windowing::FontPanel *sender);                // text colour, lines, no background
///     void changeDocumentBackgroundColor(windowing::FontPanel *sender);   // a background colour
///
/// An error that such a function throws goes to `platform::alertError`. The user can take back the changes that were
/// made since another control had the focus or other values were shown.
///
/// The control then asks the panel to convert what it has:
///
///     void Editor::changeFont(windowing::FontPanel *sender) { setFont(sender->convertFont(font())); }
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT FontPanel : public QDialog
{
    Q_OBJECT

public:
    ~FontPanel() override;

    /// The one panel of the application, which makes it when it is first asked for. Do not keep the address: a panel
    /// that was opened over a modal window goes with that window, and the next call makes another.
    static FontPanel &sharedFontPanel();
    static bool sharedFontPanelExists();

    /// Shows the panel above the window of that control, where it stays, also above a modal one, which would keep it
    /// from the user otherwise.
    void orderFront();

    /// The font that the panel shows.
    QFont selectedFont() const;

    /// Shows a font, which is no change by the user. Of a family without a style of its name the closest one is shown;
    /// a font that is not installed is shown by its name, as one that is missing, and stays what `selectedFont`
    /// answers.
    void setSelectedFont(const QFont &font);

    /// Shows the colours and lines of attributes (`windowing/TextAttributes.h`), which is no change by the user.
    void setSelectedAttributes(const QVariantMap &attributes);

    /// The font with what the user changed last: family and style, or the size. With all of it when the user has
    /// changed nothing since `setSelectedFont`.
    QFont convertFont(const QFont &font) const;

    /// The attributes with what the user changed last: an attribute more, another value, or an attribute less. As they
    /// are when the user has changed nothing since `setSelectedAttributes`.
    QVariantMap convertAttributes(const QVariantMap &attributes) const;

    /// The background colour, or an invalid one for no background.
    QColor color() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    /// A colour that the user may leave out.
    struct ColorChoice {
        QCheckBox *isSet = nullptr;
        QPushButton *button = nullptr;
        QColor color;
    };

    enum class FontChange {
        Everything,
        FamilyAndStyle,
        Size,
    };

    struct AttributeChange {
        QString name;
        QVariant value; ///< invalid for an attribute that was taken away
    };

    /// What a change by the user replaced: a font or an attribute.
    struct Change {
        std::optional<QFont> earlierFont;
        AttributeChange earlierAttribute;
    };

    FontPanel();
    void layOut();
    void connectControls();
    void setTexts();
    void rememberFocus(QWidget *widget);
    void stayAboveWindow();

    void showFont(const QFont &font);
    void showMissingFont();
    void showAttributes(const QVariantMap &attributes);
    void showStyles(const QFont &font);
    void showSample();
    static void showColor(ColorChoice &choice, const QVariant &color);
    static void showButtonColor(const ColorChoice &choice);

    void fontChanged(FontChange change);
    void attributeChanged(const QString &name, const QVariant &value);
    void sendAttribute(const AttributeChange &change);
    void undo();
    void forgetChanges();
    void lineChanged(const QString &name, const QCheckBox &box);
    void textColorChanged();
    void backgroundColorChanged();
    void chooseColor(ColorChoice &choice, void (FontPanel::*changed)());
    void sendToLastFocused(const char *function);

    QPointer<QWidget> m_lastFocused;
    FontChange m_fontChange = FontChange::Everything;
    AttributeChange m_attributeChange;
    QFont m_shownFont;
    QVariantMap m_shownAttributes;
    std::optional<QFont> m_missingFont; ///< the one that is shown, where it is not installed
    QList<Change> m_changes;            ///< those that can be taken back, the latest last

    QFormLayout *m_form;
    TextField *m_sample;
    MessageLabel *m_missingNote;
    QFontComboBox *m_family;
    QComboBox *m_style;
    QDoubleSpinBox *m_size;
    QCheckBox *m_underline;
    QCheckBox *m_strikethrough;
    ColorChoice m_textColor;
    ColorChoice m_background;
    QPushButton *m_undo;
};

} // namespace windowing
