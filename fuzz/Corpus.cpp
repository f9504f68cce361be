// Runs a fuzz target over the files of a folder, without the fuzzer.

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size);

int main(int argumentCount, char **arguments)
{
    const QDir folder(argumentCount == 2 ? QFile::decodeName(arguments[1]) : QString());
    const QStringList names = folder.entryList(QDir::Files);
    if (argumentCount != 2 || names.isEmpty()) {
        std::fprintf(stderr, "usage: %s FOLDER, with files in it\n", arguments[0]);
        return 2;
    }
    for (const QString &name : names) {
        std::printf("%s\n", qUtf8Printable(name));
        std::fflush(stdout); // so that the last line names the file that fails
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            return 2;
        }
        const QByteArray data = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char *>(data.constData()),
                               static_cast<std::size_t>(data.size()));
    }
    return 0;
}
