#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/AttributedString.h>

#include <QtWidgets/QLineEdit>

namespace windowing {

/// A line of text that may carry attributes: fonts, colours, lines (`windowing/TextAttributes.h`).
///
///     windowing::TextField field;
///     field.setEditable(false);
///     field.setAttributedStringValue(platform::AttributedString(u"red"_s, {{foregroundColorAttributeName,
///     QColor(Qt::red)}}));
///
/// Attributes show in a field that is not editable; text that is too long for it ends in an ellipsis there. An editable
/// field is a plain `QLineEdit`, in its font and bezel alike, and text that the user has changed has the attributes of
/// plain text.
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT TextField : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(bool editable READ isEditable WRITE setEditable DESIGNABLE true)
    Q_PROPERTY(windowing::TextField::BezelStyle bezelStyle READ bezelStyle WRITE setBezelStyle DESIGNABLE true)

public:
    /// The frame around the field.
    enum class BezelStyle {
        Square = 0,  ///< the frame that the style draws around line edits
        Rounded = 1, ///< a frame with round ends
    };
    Q_ENUM(BezelStyle)

    /// An empty field, editable, with a square bezel.
    explicit TextField(QWidget *parent = nullptr);

    /// A number by which a program tells its fields apart; archives keep it.
    qint64 tag() const { return m_tag; }
    void setTag(qint64 tag) { m_tag = tag; }

    /// Whether the user can change the text: the opposite of `readOnly`.
    bool isEditable() const { return !isReadOnly(); }
    void setEditable(bool editable) { setReadOnly(!editable); }

    /// The frame around the field, `Square` at first.
    BezelStyle bezelStyle() const { return m_bezelStyle; }
    void setBezelStyle(BezelStyle style);

    /// The text with its attributes; text that came as a plain string has those of plain text.
    platform::AttributedString attributedStringValue() const;
    void setAttributedStringValue(const platform::AttributedString &value);

    /// The text without attributes, the same as `text`.
    QString stringValue() const { return text(); }

    /// Shows a plain string, drawn in the field's font and colour, and with its alignment.
    void setStringValue(const QString &string);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QVariantMap plainTextAttributes() const;
    void drawBezel(QPainter &painter) const;
    void drawText(QPainter &painter) const;

    platform::AttributedString m_value;
    qint64 m_tag = 0;
    BezelStyle m_bezelStyle = BezelStyle::Square;
};

} // namespace windowing
