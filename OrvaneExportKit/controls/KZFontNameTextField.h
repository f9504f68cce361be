#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Coder.h>
#include <OrvaneExportKit/windowing/TextField.h>

#include <QtCore/QByteArray>
#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtCore/QVariant>

#include <memory>
#include <optional>

class QHelpEvent;
class QLabel;
class QToolButton;

namespace windowing {
class FontPanel;
}

/// A field of a settings panel that shows a font by name and size, as in "Palatino-Roman, 12pt", and lets the user
/// choose another in the font panel: the button in the field, a double click or the space key opens it. Where the font
/// is not installed, a word behind the text says so.
///
/// The text is drawn with the chosen attributes: colours, lines. Sizes are points, shown without decimals, a half
/// rounded to even: 12.5 shows 12. Without a name the text begins with "(null)".
///
/// What the user changes about the font goes to the field's target, which sets name and size; what the user changes
/// about attributes the field sets itself, and before that in what its `selectedFontAttributes` are bound to, past any
/// transformer.
///
/// `changeFont` and its neighbours throw where the program calls them. Changes in the font panel throw nothing: the
/// error goes to `platform::alertError`, and the field shows what its values are.
///
///     fontField->setTarget(this);
///     fontField->setAction("takeFont");
///     ...
///     Q_INVOKABLE void takeFont(windowing::FontPanel *sender);   // calls sender->convertFont(...)
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT KZFontNameTextField : public windowing::TextField
{
    Q_OBJECT
    Q_PROPERTY(QVariant selectedFontAttributes READ selectedFontAttributes WRITE setSelectedFontAttributes)
    Q_PROPERTY(QString selectedFontName READ selectedFontName WRITE setSelectedFontName DESIGNABLE true)
    Q_PROPERTY(double selectedFontSize READ selectedFontSize WRITE editSelectedFontSize DESIGNABLE true)

public:
    /// A field for the user's default font at 10 points, centred, in a rounded bezel, not editable.
    explicit KZFontNameTextField(QWidget *parent = nullptr);

    /// The same in a frame.
    static std::unique_ptr<KZFontNameTextField> initWithFrame(const QRectF &frame);

    /// The field that `encodeWithCoder` wrote. Throws what the coder throws, and `platform::ArchiveException` for a
    /// name or attributes of another type.
    static std::unique_ptr<KZFontNameTextField> initWithCoder(platform::Coder &coder);

    /// Writes the fields of a text field (see `windowing::encodeTextField`), then attributes, name and size:
    /// `selectedFontAttributes`, `selectedFontName`, `selectedFontSize`, as a keyed archive calls them, and in this
    /// order.
    ///
    /// A field from an archive without keys shows size 0 until one of its values is set.
    void encodeWithCoder(platform::Coder &coder) const;

    /// The chosen attributes, a `QVariantMap`; invalid for none.
    QVariant selectedFontAttributes() const { return m_selectedFontAttributes; }

    /// The name of the chosen font in documents, as `windowing::Font::fontName` gives it; null for none.
    QString selectedFontName() const { return m_selectedFontName; }

    /// The size of the chosen font in points; 0 for none.
    float selectedFontSize() const { return m_selectedFontSize; }

    /// Each of them shows the values anew, also when they are the same.
    void setSelectedFontAttributes(const QVariant &attributes);
    void setSelectedFontName(const QString &name);
    void setSelectedFontSize(float size);

    /// Shows the name for people and the size of a font, and leaves the values alone; without a font, shows the values.
    void setFontNameWithFont(const std::optional<QFont> &font);

    /// The attributes that the text has beneath the chosen ones; none in a field that no interface file made.
    std::optional<QVariantMap> fieldAttributes() const { return m_fieldAttributes; }

    /// Takes the attributes beneath from the field as it stands. To be called when an interface file has been loaded.
    Q_INVOKABLE void awakeFromNib();

    /// The object that takes font changes, and its slot or invokable function for them, which takes a
    /// `windowing::FontPanel *`.
    QObject *target() const { return m_target; }
    void setTarget(QObject *target) { m_target = target; }
    QByteArray action() const { return m_action; }
    void setAction(const QByteArray &function) { m_action = function; }

    /// Whether the field takes the focus, so that the font panel's changes come here: always. Nothing begins to be
    /// edited with it, and nothing is selected.
    bool becomeFirstResponder() const { return true; }

    /// Hands the change to the target; nothing happens without one. Throws `platform::UnrecognisedOperationException`
    /// when the target has no such function.
    Q_INVOKABLE void changeFont(windowing::FontPanel *sender);

    /// Sets the attributes as the panel converts them, first in what they are bound to, then here.
    Q_INVOKABLE void changeAttributes(windowing::FontPanel *sender);

    /// The same for the attributes with the panel's background colour. Throws `platform::InvalidArgumentException`, and
    /// changes nothing, when the panel has none.
    Q_INVOKABLE void changeDocumentBackgroundColor(windowing::FontPanel *sender);

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    // The property is double, since Qt Designer lists none that are float.
    void editSelectedFontSize(double size) { setSelectedFontSize(static_cast<float>(size)); }
    QVariantMap attributesOrNone() const { return m_selectedFontAttributes.toMap(); }
    void takeAttributes(const QVariantMap &attributes);
    void setTexts();
    void layOutParts();
    void followChange(const QEvent &event);
    void showHelp(const QHelpEvent &help);
    void showInFontPanel() const;
    void openFontPanel();

    std::optional<QVariantMap> m_fieldAttributes;
    QVariant m_selectedFontAttributes;
    QString m_selectedFontName;
    float m_selectedFontSize = 0.0F;
    QPointer<QObject> m_target;
    QByteArray m_action;
    bool m_isMissing = false; ///< the font that is shown is not installed
    QLabel *m_missingWord;
    QToolButton *m_panelButton;
};
