#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace platform {

/// What a notification center tells its observers.
struct Notification {
    QString name;          ///< what has happened, as observers ask for it
    const QObject *object; ///< who posted it; null for nobody in particular
};

/// An observer of a notification center for as long as the object lives. It can be moved, and outlive the center.
class ORVANE_CORE_EXPORT Observation
{
public:
    /// Observes nothing.
    Observation() = default;

private:
    friend class NotificationCenter;
    struct Observer;
    explicit Observation(std::shared_ptr<Observer> observer) : m_observer(std::move(observer)) {}

    std::shared_ptr<Observer> m_observer;
};

/// Passes notifications from those who post them to those who observe them, without the two knowing each other.
///
///     const platform::Observation observation = platform::NotificationCenter::defaultCenter().addObserver(
///         KZAbortExportNotification, progressSheet, [&](const platform::Notification &) { stop(); });
///
/// For use on the application's main thread. Nothing in it is locked: threads that use it at once damage it.
class ORVANE_CORE_EXPORT NotificationCenter
{
public:
    /// What an observer does with a notification.
    using Handler = std::function<void(const Notification &)>;

    /// The one of the application.
    static NotificationCenter &defaultCenter();

    NotificationCenter() = default;
    NotificationCenter(const NotificationCenter &) = delete;
    NotificationCenter &operator=(const NotificationCenter &) = delete;

    /// Calls `handler` for every notification of this name that `object` posts, or that anyone posts where `object` is
    /// null, until the result is destroyed. A handler must not throw: it may run inside the delivery of an event.
    [[nodiscard]] Observation addObserver(const QString &name, const QObject *object, Handler handler);

    /// Calls the observers, in the order in which they were added, and returns when all have been called. An observer
    /// that is added meanwhile waits for the next notification; one that is removed meanwhile is called no more.
    void postNotificationName(const QString &name, const QObject *object) const;

private:
    std::vector<std::weak_ptr<Observation::Observer>> m_observers;
};

} // namespace platform
