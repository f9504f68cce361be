#include <OrvaneExportKit/windowing/EventGuard.h>

#include <OrvaneExportKit/platform/ErrorAlert.h>
#include <OrvaneExportKit/platform/Exceptions.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QString>

#include <algorithm>
#include <exception>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

/// An error that is not told again for now.
struct ToldError {
    QPointer<const QObject> receiver;
    QString text;

    friend bool operator==(const ToldError &, const ToldError &) = default;
};

QList<ToldError> &toldErrors()
{
    static QList<ToldError> errors;
    return errors;
}

/// What the exception that is being handled says; the kit's own ones name their place themselves.
QString currentErrorText(const QObject &receiver)
{
    const QString place = QString::fromLatin1(receiver.metaObject()->className());
    try {
        throw;
    } catch (const platform::Exception &error) {
        return QString::fromUtf8(error.what());
    } catch (const std::exception &error) {
        return u"%1: %2"_s.arg(place, QString::fromUtf8(error.what()));
    } catch (...) {
        return u"%1: an error that does not say what it is"_s.arg(place);
    }
}

void show(const ToldError &error, ErrorTelling telling) noexcept
{
    try {
        platform::alertError(error.text);
    } catch (...) { // an alert that fails cannot be told either
    }
    if (telling == ErrorTelling::EachTime) {
        toldErrors().removeOne(error);
    }
}

} // namespace

void tellCurrentException(const QObject &receiver, ErrorTelling telling) noexcept
{
    try {
        const ToldError error{&receiver, currentErrorText(receiver)};
        QList<ToldError> &told = toldErrors();
        told.removeIf([](const ToldError &earlier) { return earlier.receiver == nullptr; });
        if (told.contains(error)) {
            return;
        }
        told.append(error);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [error, telling] { show(error, telling); }, Qt::QueuedConnection);
    } catch (...) { // there is no memory left to tell it in
    }
}

void forgetToldErrors(const QObject &receiver) noexcept
{
    toldErrors().removeIf([&receiver](const ToldError &error) { return error.receiver == &receiver; });
}

} // namespace windowing
