#pragma once

#include <QtCore/QObject>

/// \file
/// What Qt's event loop calls (events, slots, timers, what layouts and views ask for) must let no exception out: Qt
/// would end the program. Each such function of the kit does its work inside one of these guards, as the outermost
/// thing that it does. An operation that programs call too throws, and the guard is in the slot or event that calls it.
///
/// A guard gives an error to `platform::alertError` when the event loop is back, and never from inside the event. For
/// use on the application's main thread.

namespace windowing {

/// How often an error of one object is told that comes again and again with the same text.
enum class ErrorTelling {
    EachTime,       ///< unless the user has not answered the one before
    OnceUntilChange ///< not again before `forgetToldErrors`
};

/// Tells the exception that is being handled; `receiver` is the object that was at work. To be called in a handler.
void tellCurrentException(const QObject &receiver, ErrorTelling telling) noexcept;

/// Lets errors in showing the object be told again: it shows something else now.
void forgetToldErrors(const QObject &receiver) noexcept;

/// Does what the user has asked for with a key, a click or the end of an edit. An error is told each time. Answers
/// whether there was none.
///
///     connect(button, &QPushButton::clicked, this, [this] { guardedAction(*this, [this] { addRow(); }); });
template <typename Work>
bool guardedAction(const QObject &receiver, const Work &work) noexcept
{
    try {
        work();
        return true;
    } catch (...) {
        tellCurrentException(receiver, ErrorTelling::EachTime);
        return false;
    }
}

/// Does what happens without the user and as often as the event loop likes: painting, taking over a value that has
/// changed. The same error is told once until `forgetToldErrors`. Answers whether there was none.
///
///     void Chip::paintEvent(QPaintEvent *) { guardedDisplay(*this, [this] { draw(); }); }
template <typename Work>
bool guardedDisplay(const QObject &receiver, const Work &work) noexcept
{
    try {
        work();
        return true;
    } catch (...) {
        tellCurrentException(receiver, ErrorTelling::OnceUntilChange);
        return false;
    }
}

/// The same for a value that is asked for; `fallback` where there is an error.
///
///     return guardedValue(*this, object, [&] { return delegate->displayStringForRepresentedObject(this, object); });
template <typename Value, typename Work>
Value guardedValue(const QObject &receiver, Value fallback, const Work &work) noexcept
{
    try {
        return work();
    } catch (...) {
        tellCurrentException(receiver, ErrorTelling::OnceUntilChange);
        return fallback;
    }
}

} // namespace windowing
