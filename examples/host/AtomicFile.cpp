#include "AtomicFile.h"

#include "Messages.h"

namespace host {

void writeFile(const QString &path, const QByteArray &content)
{
    platform::FileReplacement file;
    if (!file.write(path, content) || !file.finish()) {
        throw notWritten(file.failure());
    }
}

HostError notWritten(const platform::FileFailure &failure)
{
    const QString message = failure.isInPlace
                                ? Texts::tr("%1 is written, but may be lost if the computer stops now, for its folder "
                                            "was not written to disk: %2; see to that and try again")
                                : Texts::tr("%1 can't be written: %2; see to that and try again");
    return HostError(ExitCode::Output, message.arg(quoted(failure.path), failure.reason));
}

} // namespace host
