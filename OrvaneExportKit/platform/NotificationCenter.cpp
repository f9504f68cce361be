#include <OrvaneExportKit/platform/NotificationCenter.h>

#include <utility>

namespace platform {

struct Observation::Observer {
    QString name;
    const QObject *object;
    NotificationCenter::Handler handler;
};

NotificationCenter &NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

Observation NotificationCenter::addObserver(const QString &name, const QObject *object, Handler handler)
{
    std::erase_if(m_observers, [](const auto &observer) { return observer.expired(); });
    auto observer = std::make_shared<Observation::Observer>(Observation::Observer{name, object, std::move(handler)});
    m_observers.push_back(observer);
    return Observation(std::move(observer));
}

void NotificationCenter::postNotificationName(const QString &name, const QObject *object) const
{
    const auto observers = m_observers; // handlers may add observers and remove them
    for (const auto &remembered : observers) {
        const auto observer = remembered.lock();
        if (observer && observer->name == name && (observer->object == nullptr || observer->object == object)) {
            observer->handler({name, object});
        }
    }
}

} // namespace platform
