#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Coder.h>

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

/// The frame and whether the view is hidden: `NSvFlags`, and `NSFrame` or, at the origin, `NSFrameSize`.
ORVANE_KIT_EXPORT void encodeView(const QWidget &view, platform::Coder &coder);
ORVANE_KIT_EXPORT void decodeView(QWidget &view, platform::Coder &coder);

/// A view; then `NSEnabled`, `NSTag` and the cell `NSCell`, with the text, font, alignment, bezel and whether the text
/// is editable. A keyed archive keeps the attributes of the text, the other one only its characters.
ORVANE_KIT_EXPORT void encodeTextField(const TextField &field, platform::Coder &coder);
ORVANE_KIT_EXPORT void decodeTextField(TextField &field, platform::Coder &coder);

} // namespace windowing
