#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QObject>

class KZFontNameTextField;

namespace windowing {

class FontPanel;

/// A target for the font changes of a font name field: it stores name and size in what the field's `selectedFontName`
/// and `selectedFontSize` are bound to, and shows them in the field.
///
/// A field that an interface file makes has one, so that a panel needs no code for its fonts; in a field of your own:
///
///     new windowing::FontTarget(fontField);
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT FontTarget : public QObject
{
    Q_OBJECT

public:
    /// Makes itself the field's target, with the action `takeFont`. The field owns it.
    explicit FontTarget(KZFontNameTextField *field);

    /// Stores and shows the name and the size of the font as the panel converts it. Throws what the model throws; the
    /// field then shows what is stored.
    Q_INVOKABLE void takeFont(windowing::FontPanel *sender);

private:
    void store(const QString &name, const QVariant &value);

    KZFontNameTextField *m_field;
};

} // namespace windowing
