#include <OrvaneExportKit/platform/KernelLock.h>

namespace platform {

struct KernelLock::Held {
};

KernelLock::KernelLock() = default;
KernelLock::~KernelLock() = default;

KernelLock::Outcome KernelLock::tryTake(const QString & /*path*/)
{
    return Outcome::Unsupported;
}

void KernelLock::setOwner(const QByteArray & /*owner*/)
{
}

std::error_code KernelLock::error() const
{
    return m_error;
}

} // namespace platform
