#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Coder.h>
#include <OrvaneExportKit/platform/KeyedObject.h>

#include <memory>

class QWidget;

/// \file
/// What every view and every text field writes into archives before its own values.
///
/// A keyed archive has the layout of other programs' interface archives. Their frames count y from the lower edge of
/// the surrounding view, ours from the upper one; the numbers are kept as they stand. Fields that have no counterpart
/// here are skipped.
///
/// An archive without keys holds of a view its frame (x, y, width, height, each "d") and whether it is hidden ("B"), of
/// a text field further whether it is enabled ("B"), its tag ("q"), its text (an object) and, each "i", whether it is
/// editable, the alignment with the numbers of `TextAlignment`, and the bezel style.
///
/// Reading throws `platform::ArchiveException` for a frame that is none or larger than a widget can be, and what the
/// coder throws.
///
/// For use on the application's main thread.

namespace windowing {

class TextField;

/// The view that a decoded object of a keyed archive stands for, as the `initWithCoder` of its class makes it; null for
/// anything but an object of that class, or of one derived from it. The caller owns the view. Archives make no views by
/// themselves: decoding leaves a `platform::KeyedObject`, so that a document cannot fill the program with widgets.
///
///     const QVariant object = KeyedUnarchiver::unarchiveObjectWithData(data);
///     std::unique_ptr<KZPageView> view = windowing::unarchivedView<KZPageView>(object);
///
/// Throws what `initWithCoder` throws.
template <typename View>
std::unique_ptr<View> unarchivedView(const QVariant &object)
{
    const auto keyedObject = object.value<platform::KeyedObject>();
    std::unique_ptr<View> view;
    if (keyedObject.classNames().contains(QLatin1StringView(View::staticMetaObject.className()))) {
        keyedObject.decodeFields([&view](platform::Coder &coder) { view = View::initWithCoder(coder); });
    }
    return view;
}

/// The frame and whether the view is hidden: `NSvFlags`, and `NSFrame` or, at the origin, `NSFrameSize`.
ORVANE_KIT_EXPORT void encodeView(const QWidget &view, platform::Coder &coder);
ORVANE_KIT_EXPORT void decodeView(QWidget &view, platform::Coder &coder);

/// A view; then `NSEnabled`, `NSTag` and the cell `NSCell`, with the text, font, alignment, bezel and whether the text
/// is editable. A keyed archive keeps the attributes of the text, the other one only its characters.
ORVANE_KIT_EXPORT void encodeTextField(const TextField &field, platform::Coder &coder);
ORVANE_KIT_EXPORT void decodeTextField(TextField &field, platform::Coder &coder);

} // namespace windowing
