#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtWidgets/QWidget>

/// A plain container for content that is put into a window and taken out again, such as a settings panel.
///
/// When it is taken out while the user is still typing in one of its fields, the edit ends first, and what was typed
/// reaches what the field is bound to. The window itself then has the keyboard focus, also when no edit was in
/// progress or another part of the window had the focus. That holds for `removeFromSuperview` and for every other new
/// parent; a content view that is deleted where it stands ends the edit of its own field only. An error at the end of
/// the edit goes to `platform::alertError`.
///
///     contentView->removeFromSuperview();
///     settings->writeSettingsToDefaults(); // with the text that was being typed
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT KZContentView : public QWidget
{
    Q_OBJECT

public:
    /// An empty view.
    explicit KZContentView(QWidget *parent = nullptr);
    ~KZContentView() override;

    /// Ends and commits an edit in progress anywhere in the window, gives the window the keyboard focus, and takes the
    /// view out of its parent, whether or not a field refuses its value. The view is hidden then, and the caller owns
    /// it.
    void removeFromSuperview();

protected:
    bool event(QEvent *event) override;
};
