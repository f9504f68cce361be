#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtWidgets/QLabel>

namespace windowing {

/// A label for texts whose length nobody knows, such as the names of files: it never makes its window wider.
///
/// With `wordWrap` it breaks lines, inside a word too where the word alone is wider than the label. Without, it is one
/// line and leaves out the middle of what is too long. The text is plain text.
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT MessageLabel : public QLabel
{
    Q_OBJECT

public:
    /// A label without text, of one line.
    explicit MessageLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawMessage();
};

} // namespace windowing
