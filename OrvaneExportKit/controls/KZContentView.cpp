#include <OrvaneExportKit/controls/KZContentView.h>

#include <OrvaneExportKit/windowing/EventGuard.h>
#include <OrvaneExportKit/windowing/UiLoader.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtGui/QFocusEvent>

namespace {

const auto registration = windowing::WidgetClassRegistration::of<KZContentView>();

/// Lets an editor end its edit as it does when the user moves on.
void endEdit(QWidget *editor)
{
    if (editor == nullptr) {
        return;
    }
    if (editor->hasFocus()) {
        editor->clearFocus();
        return;
    }
    // In a window that is not active, the editor will have the focus again, and nobody tells it that it loses that.
    QFocusEvent focusOut(QEvent::FocusOut, Qt::OtherFocusReason);
    QCoreApplication::sendEvent(editor, &focusOut);
}

void makeFirstResponder(QWidget *window)
{
    endEdit(window->focusWidget());
    window->setFocus(Qt::OtherFocusReason);
}

} // namespace

KZContentView::KZContentView(QWidget *parent) : QWidget(parent)
{
}

KZContentView::~KZContentView()
{
    // No more than that: the window may be about to go, too.
    windowing::guardedAction(*this, [this] { endEdit(focusWidget()); });
}

void KZContentView::removeFromSuperview()
{
    makeFirstResponder(window());
    setParent(nullptr);
}

bool KZContentView::event(QEvent *event)
{
    if (event->type() == QEvent::ParentAboutToChange) {
        windowing::guardedAction(*this, [this] { makeFirstResponder(window()); });
    }
    return QWidget::event(event);
}
